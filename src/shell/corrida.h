#pragma once
// The run driver: which engine serves which piece, and the signs and units between the dialogs' values and each
// engine's arguments. It reads the piece from `estado`.

#include "check/solido_mostrado.h"
#include "viewer/ewdraw.h"

namespace duktores {

/// Draws the solid of the current piece on the control. A type key that names no other piece is the elliptical one.
void Dibuja3D(EWdraw& axew);

/// The points of that solid, for the check of its pattern. An unfolding changes the piece in `estado`: take it before.
Solido SolidoActual();

/// How an unfolding has ended. In all three cases what has been drawn stays.
enum class FinCorrida { completo, eleccionRechazada, error };

/// Unfolds the current piece into the control and a new `estado.oDrawing`. Never throws: a refused pick ends the run
/// quietly, an error of the run is told to the user.
FinCorrida Despliega(EWdraw& axew);

}  // namespace duktores
