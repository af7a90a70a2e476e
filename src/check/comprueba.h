#pragma once
// Holds a drawn pattern against its solid. What is on the sheet is read from the control alone: outlines, lines and
// numbers; what they should be comes from the solid's points. Nothing here knows how the pattern was made.

#include "check/solido_mostrado.h"
#include "check/veredicto.h"
#include "viewer/ewdraw.h"

namespace duktores {

/// The pattern of `estado.Formas` on the control.
Veredicto Comprueba(const Solido& solido, const EWdraw& axew);

}  // namespace duktores
