#pragma once
// Answers the picks of a run without a window from a list of points, and makes that list where a job has none.

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

/// Places for all that the unfolding of `estado` will ask a place for: side by side from the left, right of what lies
/// where it is, each with its annotation on the bottom line y = 0. It unfolds the piece once to see how large they are;
/// `estado` stays as it was.
std::vector<Punto2> SitiosLibres();

}  // namespace duktores
