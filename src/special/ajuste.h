#pragma once
// The radii as the usual rules adjust them, so that every corner has a cone and every panel an edge.

#include "piece/pieza.h"

namespace duktores {

inline constexpr double kCerca = 0.21;  ///< radii of a corner that are no further apart are moved apart

/// The mouths of a piece with their radii adjusted; the sides stay. TransEsp2 and TransEsp3 come out with one radius at
/// each mouth.
Bocas Ajusta(const Pieza& pieza);

}  // namespace duktores
