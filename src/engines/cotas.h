#pragma once
// The dimensions around a pattern: its overall sizes and the places of its corners, all horizontal or vertical. Each
// stands at a level of the pattern, an extreme coordinate of its points, a few steps `dPasoTablaX` or `dPasoTablaY`
// away from it. The steps are drawing units, in inches too.

#include "engines/marcas.h"
#include "engines/transicion.h"
#include "viewer/ewdraw.h"

namespace duktores {

/// Which list of dimensions a pattern gets.
enum class ListaCotas { baseRectangular, baseCircular };

/// Draws the dimensions of a pattern, or of a piece of it, translated by `base`. The pieces need CortePieza1.
void GeneraCotas(EWdraw& axew, const Transicion& t, Parte parte, ListaCotas lista, Punto2 base);

}  // namespace duktores
