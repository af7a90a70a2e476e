#pragma once
// What the search sees of a part: an outline of few vertices that holds the true one with half the gap around it.
// Coordinates are whole thousandths of a millimetre, as the clipping library wants them.

#include <optional>
#include <polyclipping/clipper.hpp>
#include <vector>

#include "nest/nido.h"

namespace duktores {

inline constexpr double kPorMilimetro = 1000;
/// No part and no sheet of the search is longer: 100 m.
inline constexpr double kLargoMaximo = 1e5 * kPorMilimetro;

struct Silueta {
  ClipperLib::Path contorno;  ///< counter-clockwise
  double area = 0;            ///< of the true outline
};

/// A box, of points that are taken in one after the other.
struct Extremos {
  Punto2 desde{1e300, 1e300}, hasta{-1e300, -1e300};

  void Incluye(Punto2 p);
  double Ancho() const { return hasta.x - desde.x; }
  double Alto() const { return hasta.y - desde.y; }
};

/// None if the outline has no area, is longer than the search takes, or has coordinates that are no numbers.
std::optional<Silueta> SiluetaDe(const std::vector<Punto2>& contorno, double hueco, double milimetro);

/// Turned about the origin. Vertices are rounded, which the outline has room for.
ClipperLib::Path Girado(const ClipperLib::Path& contorno, double grados);
Extremos ExtremosDe(const ClipperLib::Path& contorno);

}  // namespace duktores
