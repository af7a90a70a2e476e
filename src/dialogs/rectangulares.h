#pragma once
// The dialogs of the transitions between a circle and a rectangle.

#include "dialogs/dialogo.h"

namespace duktores {

extern const DefDialogo kFrTransfCR;  ///< circle on a rectangular base
extern const DefDialogo kFrTransfRC;  ///< rectangle on a circular base

}  // namespace duktores
