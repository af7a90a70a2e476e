#pragma once
// The elliptical mouth, its long axis along X, and how it is divided. Usually by polar angle, so that its chords are
// not equal. By the exact rule its axes go to the middle of the sheet, each quarter is divided evenly by its length,
// and the polygon of the chords is as long as the curve.

#include <vector>

#include "geometry/puntos.h"
#include "piece/pieza.h"

namespace duktores {

class Elipse {
 public:
  explicit Elipse(const Pieza& pieza);

  /// The point of the division at a multiple of 2*pi/N.
  Punto3 En(Punto3 centro, double angulo) const;
  double a() const { return a_; }  ///< semi-axes
  double b() const { return b_; }

 private:
  Punto2 EnPolar(double polar) const;

  double a_, b_;
  int N_;
  std::vector<Punto2> cuarto_;  // exact: the divisions of the first quarter, from X to Y
};

}  // namespace duktores
