#include "viewer/ewdraw.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "geometry/rotacion.h"

namespace duktores {

namespace {

/// Where x and y of a curve's plane lie for a normal: the arbitrary axis rule of DXF.
struct Ejes {
  Punto3 x{1, 0, 0}, y{0, 1, 0};
};

Ejes EjesDe(Punto3 normal) {
  const double largo = Distancia(Punto3{}, normal);
  if (!(largo > 0) || !std::isfinite(largo)) return {};
  const Punto3 n = (1 / largo) * normal;
  const bool casiZ = std::abs(n.x) < 1.0 / 64 && std::abs(n.y) < 1.0 / 64;
  Punto3 x = Vectorial(casiZ ? Punto3{0, 1, 0} : Punto3{0, 0, 1}, n);
  x = (1 / Distancia(Punto3{}, x)) * x;
  return {x, Vectorial(n, x)};
}

Entidad Nueva(TipoEntidad tipo, std::vector<Punto3> puntos) {
  Entidad entidad;
  entidad.tipo = tipo;
  entidad.puntos = std::move(puntos);
  return entidad;
}

Entidad Curva(TipoEntidad tipo, Punto3 centro, double semiejeX, double semiejeY, Punto3 normal) {
  const Ejes ejes = EjesDe(normal);
  Entidad curva = Nueva(tipo, {centro});
  curva.u = semiejeX * ejes.x;
  curva.v = semiejeY * ejes.y;
  curva.fin = 2 * dPi;
  return curva;
}

/// Takes the vertices out of the list.
Entidad Polilinea(std::vector<Punto3>& vertices, bool cerrada) {
  return Nueva(cerrada ? TipoEntidad::contorno : TipoEntidad::polilinea, std::exchange(vertices, {}));
}

// `desde` is taken away first: a move of a point from its own place reaches `hasta` to the last digit.
void Mueve(Entidad& entidad, Punto3 desde, Punto3 hasta) {
  for (Punto3& p : entidad.puntos) p = (p - desde) + hasta;
}

}  // namespace

// Entities -----------------------------------------------------------------------------------------------------------

std::int32_t EWdraw::Anade(Entidad entidad) {
  entidad.id = ++ultimoId_;
  entidades_.push_back(std::move(entidad));
  return ultimoId_;
}

const Entidad* EWdraw::Busca(std::int32_t id) const {
  const auto lugar = std::ranges::lower_bound(entidades_, id, {}, &Entidad::id);
  return lugar != entidades_.end() && lugar->id == id ? &*lugar : nullptr;
}

Entidad* EWdraw::Busca(std::int32_t id) { return const_cast<Entidad*>(std::as_const(*this).Busca(id)); }

std::int32_t EWdraw::EwAddPoint(Punto3 p) { return Anade(Nueva(TipoEntidad::punto, {p})); }

std::int32_t EWdraw::EwAddLine(Punto3 p, Punto3 q) { return Anade(Nueva(TipoEntidad::linea, {p, q})); }

std::int32_t EWdraw::EwAddCircle(Punto3 centro, double radio, Punto3 normal) {
  return Anade(Curva(TipoEntidad::circulo, centro, radio, radio, normal));
}

std::int32_t EWdraw::EwAddEllipse(Punto3 centro, double semiejeX, double semiejeY, Punto3 normal) {
  return Anade(Curva(TipoEntidad::elipse, centro, semiejeX, semiejeY, normal));
}

std::int32_t EWdraw::EwAddArc(Punto3 centro, double radio, double angIni, double angFin, Punto3 normal) {
  Entidad arco = Curva(TipoEntidad::arco, centro, radio, radio, normal);
  if (angFin < angIni) angFin += 360 * std::ceil((angIni - angFin) / 360);
  arco.inicio = Radianes(angIni);
  arco.fin = Radianes(angFin);
  return Anade(std::move(arco));
}

std::int32_t EWdraw::EwAddText(std::string_view texto, std::string_view fuente, Punto3 p, double altura,
                               double angulo) {
  Entidad entidad = Nueva(TipoEntidad::texto, {p});
  const double t = Radianes(angulo);
  entidad.u = {altura * std::cos(t), altura * std::sin(t), 0};
  entidad.v = {-entidad.u.y, entidad.u.x, 0};
  entidad.texto = texto;
  entidad.fuente = fuente;
  return Anade(std::move(entidad));
}

void EWdraw::EwBeginPolyline() { vertices_.clear(); }
void EWdraw::EwAddVertex(double x, double y, double z) { vertices_.push_back({x, y, z}); }
std::int32_t EWdraw::EwEndPolyline(bool cerrada) {
  return vertices_.empty() ? 0 : Anade(Polilinea(vertices_, cerrada));
}

void EWdraw::EwBeginPolyline3D() { vertices3D_.clear(); }
void EWdraw::EwAddVertex3D(double x, double y, double z) { vertices3D_.push_back({x, y, z}); }
std::int32_t EWdraw::EwEndPolyline3D(bool cerrada) {
  return vertices3D_.empty() ? 0 : Anade(Polilinea(vertices3D_, cerrada));
}

void EWdraw::EwRotate(std::int32_t id, Punto3 enEje, Punto3 direccion, double grados) {
  Entidad* entidad = Busca(id);
  if (!entidad) return;
  for (Punto3& p : entidad->puntos) p = Rota(p, enEje, direccion, grados);
  entidad->u = Rota(entidad->u, {}, direccion, grados);
  entidad->v = Rota(entidad->v, {}, direccion, grados);
}

void EWdraw::EwMove(std::int32_t id, Punto3 desde, Punto3 hasta) {
  if (Entidad* entidad = Busca(id)) Mueve(*entidad, desde, hasta);
}

std::int32_t EWdraw::EwCopy(std::int32_t id, Punto3 desde, Punto3 hasta) {
  const Entidad* entidad = Busca(id);
  if (!entidad) return 0;
  Entidad copia = *entidad;
  Mueve(copia, desde, hasta);
  return Anade(std::move(copia));
}

void EWdraw::EwDelete(std::int32_t id) {
  if (const Entidad* entidad = Busca(id)) entidades_.erase(entidades_.begin() + (entidad - entidades_.data()));
}

void EWdraw::EwSetColor(std::int32_t id, std::int32_t color) {
  if (Entidad* entidad = Busca(id)) entidad->color = color;
}

void EWdraw::EwClear() { entidades_.clear(); }

bool EWdraw::EwGetPoint(std::int32_t id, double& x, double& y, double& z) const {
  const Entidad* entidad = Busca(id);
  if (!entidad || entidad->tipo != TipoEntidad::punto) return false;
  x = entidad->puntos[0].x;
  y = entidad->puntos[0].y;
  z = entidad->puntos[0].z;
  return true;
}

std::int32_t EWdraw::EwEntityCount() const { return static_cast<std::int32_t>(entidades_.size()); }

std::int32_t EWdraw::EwEntityAt(std::int32_t indice) const {
  return indice >= 0 && indice < EwEntityCount() ? entidades_[static_cast<std::size_t>(indice)].id : 0;
}

std::int32_t EWdraw::EwEntityType(std::int32_t id) const {
  const Entidad* entidad = Busca(id);
  return entidad ? static_cast<std::int32_t>(entidad->tipo) : 0;
}

// View ---------------------------------------------------------------------------------------------------------------

void EWdraw::EwInicia(bool inicia) {
  if (!inicia) return;
  EwClear();
  vertices_.clear();
  vertices3D_.clear();
  direccionVista_ = {0, 0, 1};
}

// Mode 1, a parallel view along a direction, is the only one there is.
void EWdraw::EwViewMode(std::int32_t) {}

void EWdraw::CambiaModelo(EWdraw& otro) {
  std::swap(entidades_, otro.entidades_);
  std::swap(ultimoId_, otro.ultimoId_);
  std::swap(direccionVista_, otro.direccionVista_);
}
void EWdraw::EwViewDirection(double x, double y, double z) {
  const double largo = std::hypot(x, y, z);
  if (largo > 0 && std::isfinite(largo)) direccionVista_ = {x, y, z};
}

void EWdraw::EwRegen() {
  if (vista_ && !callado_) vista_->Regenera(*this);
}

void EWdraw::EwPickPoint(double& x, double& y, double& z) {
  struct QuitaFantasma {
    EWdraw& axew;
    ~QuitaFantasma() { axew.EwGhost({}); }
  } const alSalir{*this};
  const std::optional<Punto3> punto = vista_ ? vista_->EligePunto(*this) : std::nullopt;
  if (!punto) throw EleccionRechazada{};
  x = punto->x;
  y = punto->y;
  z = punto->z;
}

void EWdraw::EwGhost(std::vector<Punto2> contorno, std::string_view rotulo) {
  fantasma_ = std::move(contorno);
  rotuloFantasma_ = rotulo;
}

void EWdraw::Manda(MandoVista mando) {
  if (vista_) vista_->Manda(*this, mando);
}

void EWdraw::EwPan() { Manda(MandoVista::pan); }
void EWdraw::EwZoom() { Manda(MandoVista::zoom); }
void EWdraw::EwZoomAll() { Manda(MandoVista::zoomAll); }
void EWdraw::EwZoomWindow() { Manda(MandoVista::zoomWindow); }
void EWdraw::EwOrbit() { Manda(MandoVista::orbit); }

}  // namespace duktores
