#include "batch/puntos_lote.h"

namespace duktores {

std::optional<Punto3> PuntosLote::EligePunto(EWdraw&) {
  if (siguiente_ == puntos_.size()) return std::nullopt;
  const Punto2 p = puntos_[siguiente_++];
  return Punto3{p.x, p.y, 0};
}

}  // namespace duktores
