// Where the model lies on the viewing plane, and the plane on the device.

#include <algorithm>
#include <cmath>
#include <optional>

#include "paint/letra.h"
#include "paint/pintura.h"
#include "viewer/ewdraw.h"

namespace duktores {

namespace {

Punto3 EnPlano(const Base3& base, Punto3 p) {
  const QPointF q = AlPlano(base, p);
  return {q.x(), q.y(), 0};
}

Entidad Proyecta(const Base3& base, const Entidad& entidad) {
  Entidad plana;
  plana.tipo = entidad.tipo;
  plana.inicio = entidad.inicio;
  plana.fin = entidad.fin;
  plana.puntos.reserve(entidad.puntos.size());
  for (const Punto3& p : entidad.puntos) plana.puntos.push_back(EnPlano(base, p));
  plana.u = EnPlano(base, entidad.u);
  plana.v = EnPlano(base, entidad.v);
  return plana;
}

void IncluyeTexto(Caja& caja, const Entidad& plana, const QRectF& tinta) {
  for (const double x : {tinta.left(), tinta.right()}) {
    for (const double y : {tinta.top(), tinta.bottom()}) {
      caja.Incluye(plana.puntos[0] + x * plana.u + y * plana.v);
    }
  }
}

}  // namespace

Base3 BaseVista(Punto3 direccion) {
  const double horizontal = std::hypot(direccion.x, direccion.y);
  const double largo = std::hypot(horizontal, direccion.z);
  if (!(horizontal > 1e-9 * largo)) return {{direccion.z < 0 ? -1.0 : 1.0, 0, 0}, {0, 1, 0}};
  const Punto3 derecha{-direccion.y / horizontal, direccion.x / horizontal, 0};
  return {derecha, Vectorial((1 / largo) * direccion, derecha)};
}

QPointF Encuadre::AlDispositivo(QPointF plano, QSizeF lienzo) const {
  return {lienzo.width() / 2 + (plano.x() - centro.x()) * escala,
          lienzo.height() / 2 - (plano.y() - centro.y()) * escala};
}

QPointF Encuadre::DelDispositivo(QPointF punto, QSizeF lienzo) const {
  return {centro.x() + (punto.x() - lienzo.width() / 2) / escala,
          centro.y() - (punto.y() - lienzo.height() / 2) / escala};
}

QRectF ExtensionPintada(const EWdraw& axew) {
  const Base3 base = BaseVista(axew.DireccionVista());
  std::optional<Letra> letra;  // asked for by texts only: without them no application is needed
  Caja caja;
  for (const Entidad& entidad : axew.Entidades()) {
    const Entidad plana = Proyecta(base, entidad);
    const Caja suya = CajaDe(plana);
    if (suya.Vacia()) continue;
    caja.Incluye(suya.minimo);
    caja.Incluye(suya.maximo);
    if (entidad.tipo != TipoEntidad::texto || entidad.texto.empty()) continue;
    if (!letra) letra.emplace();
    IncluyeTexto(caja, plana, letra->Tinta(Letra::Caracteres(entidad)));
  }
  if (caja.Vacia()) return {};
  return {QPointF(caja.minimo.x, caja.minimo.y), QPointF(caja.maximo.x, caja.maximo.y)};
}

Encuadre Ajusta(const EWdraw& axew, QSizeF lienzo) { return Ajusta(ExtensionPintada(axew), lienzo); }

Encuadre Ajusta(QRectF zona, QSizeF lienzo) {
  if (zona.isNull()) zona.adjust(-500, -500, 500, 500);  // nothing, or a single point
  const double margen = 0.04 * std::min(lienzo.width(), lienzo.height());
  const double ancho = lienzo.width() - 2 * margen, alto = lienzo.height() - 2 * margen;
  Encuadre encuadre;
  encuadre.escala = std::min(ancho / zona.width(), alto / zona.height());
  encuadre.centro = {zona.left() + zona.width() / 2, zona.top() + zona.height() / 2};
  return std::isfinite(encuadre.escala) && encuadre.escala > 0 ? encuadre : Encuadre{};
}

std::optional<QLineF> Recorta(const QLineF& linea, const QRectF& caja) {
  double desde = 0, hasta = 1;
  const auto dentro = [&](double paso, double sitio) {
    if (paso == 0) return sitio >= 0;
    (paso < 0 ? desde : hasta) = paso < 0 ? std::max(desde, sitio / paso) : std::min(hasta, sitio / paso);
    return desde <= hasta;
  };
  if (!dentro(-linea.dx(), linea.x1() - caja.left()) || !dentro(linea.dx(), caja.right() - linea.x1()) ||
      !dentro(-linea.dy(), linea.y1() - caja.top()) || !dentro(linea.dy(), caja.bottom() - linea.y1())) {
    return std::nullopt;
  }
  return QLineF(linea.pointAt(desde), linea.pointAt(hasta));
}

}  // namespace duktores
