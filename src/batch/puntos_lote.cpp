#include "batch/puntos_lote.h"

#include "dxf/dibujo.h"
#include "state/estado.h"

namespace duktores {

namespace {

Punto3 SitioLibre(const EWdraw& axew) {
  Caja forma;
  for (const Punto2 p : axew.Fantasma()) forma.Incluye({p.x, p.y, 0});
  if (forma.Vacia()) forma.Incluye({});
  if (estado.oDrawing->Count() == 0) return {-forma.minimo.x, -forma.minimo.y, 0};
  double xMin = 0, yMin = 0, zMin = 0, xMax = 0, yMax = 0, zMax = 0;
  estado.oDrawing->GetBorder(xMin, yMin, zMin, xMax, yMax, zMax);
  const double hueco = 2 * estado.dPasoTablaX;
  return {xMax + hueco - forma.minimo.x, -forma.minimo.y, 0};
}

}  // namespace

std::optional<Punto3> PuntosLote::EligePunto(EWdraw& axew) {
  if (!puntos_) return SitioLibre(axew);
  if (siguiente_ == puntos_->size()) return std::nullopt;
  const Punto2 p = (*puntos_)[siguiente_++];
  return Punto3{p.x, p.y, 0};
}

}  // namespace duktores
