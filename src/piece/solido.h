#pragma once
// The solid of a piece: its points, the plane facets between them, and the lines of its wire view. Frame: Z upwards, as
// the view shows it; lengths in the configured unit.

#include <cstdint>
#include <optional>
#include <vector>

#include "geometry/puntos.h"

namespace duktores {

/// What the shapes of a pattern are: a transition's whole pattern, one of its two halves, a corner or a side of a
/// special piece.
enum class Forma : std::uint8_t { entera, mitad, esquina, lado };

/// A shape by its name.
struct NombreForma {
  Forma forma = Forma::entera;
  int numero = 1;
  friend bool operator==(NombreForma, NombreForma) = default;
};

/// A facet, by the points of its lower and its upper rim on the sheet, from left to right with the outer side up; a rim
/// may be a single point. Both rims of a cone's facet have as many points as there are elements on it.
struct Cara {
  NombreForma forma;  ///< the shape that it belongs to
  std::vector<int> bajo, alto;
};

/// A whole circle, or an ellipse with its axes along X and Y, turned about the parallel to Y through its centre.
struct Curva {
  bool elipse = false;
  Punto3 centro;
  double semiejeX = 0, semiejeY = 0;
  double grados = 0;
};

struct Solido {
  std::vector<Punto3> puntos;
  std::vector<Cara> caras;
  std::optional<Curva> curva;
  std::vector<std::vector<int>> alambre;  ///< lines and open polylines in the order of drawing, after the curve
};

}  // namespace duktores
