#pragma once
// A flat side of a piece, a quadrilateral laid out as two triangles.

#include <array>

#include "geometry/puntos.h"

namespace duktores {

/// Corners in space in ring order: P11, P12 on the upper mouth, P21 below P12, P22 below P11.
using Lado = std::array<Punto3, 4>;

/// The corners A, B, C, D on the sheet, with A at `A` and B left of it, from the true lengths of the edges and of the
/// diagonal from A to C. The last digits depend on the place.
std::array<Punto2, 4> TiendePanel(const Lado& lado, Punto2 A);

}  // namespace duktores
