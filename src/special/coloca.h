#pragma once
// Placing the shapes of a special piece: a prompt, a pick, an outline.

#include <vector>

#include "geometry/puntos.h"
#include "viewer/ewdraw.h"

namespace duktores {

enum class Forma { esquina, lado };

/// Asks for the place of a corner or side by its number; `contorno`, relative to the place, hangs on the pointer.
Punto2 PideSitio(EWdraw& axew, Forma forma, int numero, const std::vector<Punto2>& contorno);

/// Draws an outline by way of `estado.PoliContorno`.
void DibujaForma(EWdraw& axew, std::vector<Punto2> contorno);

}  // namespace duktores
