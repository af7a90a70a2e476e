#pragma once
// The dialog of the transition from a rectangular base to an elliptical mouth.

#include "dialogs/dialogo.h"

namespace duktores {

extern const DefDialogo kFrTransBaRectBoElip;

}  // namespace duktores
