#pragma once
// What a line of a pattern bends.

#include <optional>

#include "piece/patron.h"

namespace duktores {

/// An angle in degrees, 0 where the two facets lie in one plane, and whether the sheet beside the line comes up with
/// the outer side up.
struct Doblez {
  double grados = 0;
  bool haciaArriba = false;
};

/// Of a bend line between two facets of the solid; none for other lines.
std::optional<Doblez> DoblezDe(const Solido& solido, const Linea& linea);

}  // namespace duktores
