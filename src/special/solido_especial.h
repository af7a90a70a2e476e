#pragma once
// The wire model of a special piece, and the check of its tilt.

#include "special/pieza.h"
#include "viewer/ewdraw.h"

namespace duktores {

/// Draws the rims of the four corners, the lines across them, one for each 36 steps of a circle of `divisiones` * 36,
/// and the sides. Clears the control first.
void GeneraDibujo3D(const PiezaEspecial& pieza, int divisiones, EWdraw& axew);

/// False if the cut falls below the lower mouth anywhere on a rim of n steps a circle.
bool CompruebaValido(const PiezaEspecial& pieza, int n);

}  // namespace duktores
