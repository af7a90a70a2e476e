#pragma once
// Answers the picks of a run without a window from a list of points.

#include <optional>
#include <vector>

#include "viewer/ewdraw.h"

namespace duktores {

/// Each pick takes the next point; one beyond the list is refused.
class PuntosLote : public VistaEWdraw {
 public:
  explicit PuntosLote(std::vector<Punto2> puntos) : puntos_(std::move(puntos)) {}

  std::optional<Punto3> EligePunto(EWdraw& axew) override;

 private:
  std::vector<Punto2> puntos_;
  std::size_t siguiente_ = 0;
};

}  // namespace duktores
