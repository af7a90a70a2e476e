#pragma once
// Placing the shapes of a special piece: a prompt and a pick.

#include <vector>

#include "geometry/puntos.h"
#include "state/estado.h"
#include "viewer/ewdraw.h"

namespace duktores {

/// Asks for the place of a corner or side by its number; `contorno`, relative to the place, hangs on the pointer.
Punto2 PideSitio(EWdraw& axew, Forma forma, int numero, const std::vector<Punto2>& contorno);

}  // namespace duktores
