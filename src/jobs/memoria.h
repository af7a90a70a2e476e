#pragma once
// What the user's own file keeps of pieces: the values last accepted in each dialog, and the files of pieces last used.

#include <string>
#include <vector>

#include "dialogs/dialogo.h"

namespace duktores {

/// Keeps the dialog's values as the last ones of its piece in the configured unit, if they would fit it again.
void PonUltimos(const Dialogo& dialogo);

/// Fills them in; false, and nothing is changed, if there are none that fit the piece.
bool LlenaUltimos(Dialogo& dialogo);
bool HayUltimos(const Dialogo& dialogo);

/// The files of pieces last opened or saved, the latest first.
std::vector<std::string> Recientes();
void PonReciente(const std::string& ruta);

}  // namespace duktores
