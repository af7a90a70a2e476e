#pragma once
// Answers the picks of a run without a window: from a list, or by placing each shape to the right of what is drawn.

#include <optional>
#include <vector>

#include "viewer/ewdraw.h"

namespace duktores {

class PuntosLote : public VistaEWdraw {
 public:
  /// With a list, each pick takes the next point, and one beyond the list is refused. Without one each shape's lower
  /// left corner goes to the bottom line y = 0, with a gap to what is drawn.
  explicit PuntosLote(std::optional<std::vector<Punto2>> puntos) : puntos_(std::move(puntos)) {}

  std::optional<Punto3> EligePunto(EWdraw& axew) override;

 private:
  std::optional<std::vector<Punto2>> puntos_;
  std::size_t siguiente_ = 0;
};

}  // namespace duktores
