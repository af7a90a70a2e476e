#pragma once
// Draws the dimensions of a shape that lies in its place.

#include "piece/patron.h"
#include "sheet/formato_hoja.h"
#include "viewer/ewdraw.h"

namespace duktores {

/// What the dimensions measure goes with the shape.
void Mueve(ReglaCotas& cotas, Punto2 mas);

/// Nothing is drawn for what has no length. Border elements of a sector that don't meet end it with ErrorCorrida.
void DibujaCotas(EWdraw& axew, const FormaPatron& forma, const FormatoHoja& formato);

}  // namespace duktores
