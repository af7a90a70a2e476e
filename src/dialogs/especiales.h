#pragma once
// The dialogs of the special pieces.

#include "dialogs/dialogo.h"

namespace duktores {

extern const DefDialogo kFrTransfEsp1;  ///< four rounded corners at both mouths
extern const DefDialogo kFrTansfEsp2;   ///< base of two half circles, round mouth
extern const DefDialogo kFrTransfEsp3;  ///< base of a rectangle and a half circle, round mouth
extern const DefDialogo kFrTransEsp4;   ///< base of four rounded corners, round mouth
extern const DefDialogo kFrTransEspe5;  ///< square base, mouth of four rounded corners

}  // namespace duktores
