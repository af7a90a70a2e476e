#pragma once
// The unfolding of the special pieces: eight shapes in ring order round the piece, corner 1, side 1, corner 2, side 2
// and so on, each placed by a pick of its own.

#include "viewer/ewdraw.h"

namespace duktores {

/// Unfolds the special piece of `estado`; with `estado.iExacto` as its solid shows it. Else its radii are adjusted
/// there, so that every corner has a cone and every panel an edge, and stay so. A shape that can't be made draws
/// nothing, and the next one follows.
void DesarrollaEspecial(EWdraw& axew);

}  // namespace duktores
