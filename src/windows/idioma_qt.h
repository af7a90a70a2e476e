#pragma once
// Qt's own texts: the buttons of message boxes, the file dialog, the names of the keys.

namespace duktores {

/// Has them in the configured language from now on, as far as their translations are installed; else in English.
void PonIdiomaQt();

}  // namespace duktores
