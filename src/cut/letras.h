#pragma once
// Characters of single strokes, for a tool that scratches or sprays.

#include <string_view>
#include <vector>

#include "geometry/puntos.h"

namespace duktores {

/// A character is 4 wide and 6 high, and the next one begins 6 further right.
inline constexpr double kAnchoLetra = 4, kAltoLetra = 6, kPasoLetra = 6;

/// The lines of a character, its lower left corner at the origin. Letters are capitals; what is no letter of the
/// English alphabet, digit, `_`, `-` or point is empty.
std::vector<std::vector<Punto2>> TrazosLetra(char letra);

}  // namespace duktores
