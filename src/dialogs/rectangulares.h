#pragma once
// The dialogs of the transitions between a circle and a rectangle.

#include "dialogs/dialogo.h"

namespace duktores {

/// Circle on a rectangular base.
extern const DefDialogo kFrTransfCR;

}  // namespace duktores
