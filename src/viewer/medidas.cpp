// What the control measures: boxes, areas, perimeters and meeting points.

#include <algorithm>
#include <cmath>
#include <utility>

#include "viewer/ewdraw.h"

namespace duktores {

namespace {

/// Relative to the size of what is compared: far above the noise of turned coordinates, far below a workshop's eye.
constexpr double kTolerancia = 1e-9;

bool EsCurva(const Entidad& entidad) {
  return entidad.tipo == TipoEntidad::circulo || entidad.tipo == TipoEntidad::elipse ||
         entidad.tipo == TipoEntidad::arco;
}

/// Whether the parameter `t`, or `t` and whole turns, lies between the curve's ends.
bool PasaPor(const Entidad& curva, double t, double margen = 0) {
  const double primero = t + 2 * dPi * std::ceil((curva.inicio - margen - t) / (2 * dPi));
  return primero <= curva.fin + margen;
}

struct Tramo {
  double minimo, maximo;
};

/// The span of c + u*cos t + v*sin t along the curve, for one coordinate.
Tramo TramoDe(const Entidad& curva, double c, double u, double v) {
  const auto en = [=](double t) { return c + u * std::cos(t) + v * std::sin(t); };
  const double alcance = std::hypot(u, v);
  const double cima = std::atan2(v, u);
  return {PasaPor(curva, cima + dPi) ? c - alcance : std::min(en(curva.inicio), en(curva.fin)),
          PasaPor(curva, cima) ? c + alcance : std::max(en(curva.inicio), en(curva.fin))};
}

/// Twice the area of a closed outline as a vector along its normal.
Punto3 DobleArea(const std::vector<Punto3>& p) {
  Punto3 suma;
  for (std::size_t i = 2; i < p.size(); ++i) suma = suma + Vectorial(p[i - 1] - p[0], p[i] - p[0]);
  return suma;
}

bool EsPlano(const std::vector<Punto3>& p) {
  const Punto3 normal = DobleArea(p);
  double tamano = 0, salida = 0;
  for (const Punto3& q : p) {
    tamano = std::max(tamano, Norma(q - p[0]));
    salida = std::max(salida, std::abs(Escalar(q - p[0], normal)));
  }
  return salida <= kTolerancia * tamano * Norma(normal);
}

/// Meeting points of the line from `p` to `q` with the curve. In units of the semi-axes the curve is the circle of
/// radius 1 about the origin, and the line is a + s*d with s from 0 to 1.
std::vector<Punto3> Cortes(Punto3 p, Punto3 q, const Entidad& curva, bool alargada) {
  const Punto3 centro = curva.puntos[0], u = curva.u, v = curva.v, normal = Vectorial(u, v);
  const double alto = std::max(std::abs(Escalar(p - centro, normal)), std::abs(Escalar(q - centro, normal)));
  const double tamano = std::max({Norma(u), Norma(v), Norma(p - centro), Norma(q - centro)});
  if (!(Norma(normal) > 0) || !(alto <= kTolerancia * tamano * Norma(normal))) return {};

  const double uu = Escalar(u, u), vv = Escalar(v, v);
  const Punto2 a{Escalar(p - centro, u) / uu, Escalar(p - centro, v) / vv};
  const Punto2 d{Escalar(q - p, u) / uu, Escalar(q - p, v) / vv};
  const double largo = std::hypot(d.x, d.y);
  if (!(largo > 0)) return {};
  const double pie = -((a.x * d.x + a.y * d.y) / largo) / largo;
  const double h = std::abs(a.x * d.y - a.y * d.x) / largo;
  if (!(h <= 1 + kTolerancia)) return {};
  const double media = std::sqrt(std::max(0.0, (1 - h) * (1 + h)));  // half the chord

  // Two points closer than this are the one of a touching line: a rounding of 1E-13 in h already parts them so far.
  constexpr double kToque = 1e-6;
  std::vector<double> lugares{pie};
  if (media > kToque / 2) lugares = {pie - media / largo, pie + media / largo};
  const double margen = kTolerancia * std::max(1.0, 1 / largo);
  std::vector<Punto3> cortes;
  for (const double s : lugares) {
    if (!alargada && (s < -margen || s > 1 + margen)) continue;
    if (!PasaPor(curva, std::atan2(a.y + s * d.y, a.x + s * d.x), kTolerancia)) continue;
    cortes.push_back(p + s * (q - p));
  }
  return cortes;
}

}  // namespace

void Caja::Incluye(Punto3 p) {
  if (!std::isfinite(p.x) || !std::isfinite(p.y) || !std::isfinite(p.z)) return;
  if (Vacia()) {
    minimo = maximo = p;
    return;
  }
  minimo = {std::min(minimo.x, p.x), std::min(minimo.y, p.y), std::min(minimo.z, p.z)};
  maximo = {std::max(maximo.x, p.x), std::max(maximo.y, p.y), std::max(maximo.z, p.z)};
}

Caja CajaDe(const Entidad& entidad) {
  Caja caja;
  if (!EsCurva(entidad)) {
    for (const Punto3& p : entidad.puntos) caja.Incluye(p);
    return caja;
  }
  const Punto3 c = entidad.puntos[0];
  const Tramo x = TramoDe(entidad, c.x, entidad.u.x, entidad.v.x);
  const Tramo y = TramoDe(entidad, c.y, entidad.u.y, entidad.v.y);
  const Tramo z = TramoDe(entidad, c.z, entidad.u.z, entidad.v.z);
  caja.Incluye({x.minimo, y.minimo, z.minimo});
  caja.Incluye({x.maximo, y.maximo, z.maximo});
  return caja;
}

bool EWdraw::EwExtent(std::int32_t id, double& xMin, double& yMin, double& zMin, double& xMax, double& yMax,
                      double& zMax) const {
  const Entidad* entidad = Busca(id);
  const Caja caja = entidad ? CajaDe(*entidad) : Caja{};
  if (caja.Vacia()) return false;
  xMin = caja.minimo.x;
  yMin = caja.minimo.y;
  zMin = caja.minimo.z;
  xMax = caja.maximo.x;
  yMax = caja.maximo.y;
  zMax = caja.maximo.z;
  return true;
}

std::int32_t EWdraw::EwMakeRegion(std::int32_t id, bool conserva) {
  const Entidad* contorno = Busca(id);
  if (!contorno || contorno->tipo != TipoEntidad::contorno || !EsPlano(contorno->puntos)) return 0;
  Entidad region = *contorno;
  region.tipo = TipoEntidad::region;
  if (!conserva) EwDelete(id);
  return Anade(std::move(region));
}

double EWdraw::EwPerimeter(std::int32_t id) const {
  const Entidad* entidad = BuscaCerrada(id);
  if (!entidad) return 0;
  double suma = 0;
  Punto3 anterior = entidad->puntos.back();
  for (const Punto3& p : entidad->puntos) {
    suma += Distancia(anterior, p);
    anterior = p;
  }
  return suma;
}

double EWdraw::EwArea(std::int32_t id) const {
  const Entidad* entidad = BuscaCerrada(id);
  return entidad ? Norma(DobleArea(entidad->puntos)) / 2 : 0;
}

const Entidad* EWdraw::BuscaCerrada(std::int32_t id) const {
  const Entidad* entidad = Busca(id);
  const bool cerrada = entidad && (entidad->tipo == TipoEntidad::contorno || entidad->tipo == TipoEntidad::region);
  return cerrada ? entidad : nullptr;
}

std::int32_t EWdraw::EwIntersect(std::int32_t id1, std::int32_t id2, bool alargada) {
  cortes_.clear();
  const Entidad* linea = Busca(id1);
  const Entidad* curva = Busca(id2);
  if (!linea || !curva) return 0;
  if (linea->tipo != TipoEntidad::linea) std::swap(linea, curva);
  if (linea->tipo != TipoEntidad::linea || !EsCurva(*curva)) return 0;
  cortes_ = Cortes(linea->puntos[0], linea->puntos[1], *curva, alargada);
  return static_cast<std::int32_t>(cortes_.size());
}

bool EWdraw::EwIntersectPoint(std::int32_t indice, double& x, double& y, double& z) const {
  if (indice < 0 || indice >= static_cast<std::int32_t>(cortes_.size())) return false;
  const Punto3& p = cortes_[static_cast<std::size_t>(indice)];
  x = p.x;
  y = p.y;
  z = p.z;
  return true;
}

}  // namespace duktores
