#pragma once
// Turning in the plane.

#include "geometry/puntos.h"

namespace duktores {

/// A turn about the origin, counter-clockwise. By a multiple of a right angle it is exact.
class Giro {
 public:
  explicit Giro(double grados);
  Punto2 operator()(Punto2 p) const { return {coseno_ * p.x - seno_ * p.y, seno_ * p.x + coseno_ * p.y}; }

 private:
  double coseno_, seno_;
};

}  // namespace duktores
