#pragma once
// The save command with its dialog: proposes a name and a folder, and remembers where the last drawing went.

#include <string>

class QWidget;

namespace duktores {

/// Where a saved file is looked for: the folder of the last save of this program run, else of an earlier one, else the
/// configured one.
std::string CarpetaDeGuardado();

/// Asks for a name, also before a file is replaced, and saves the drawing there, which tells the user what came of it.
/// The path of the file; empty if none was saved.
std::string GuardaConNombre(QWidget& padre);

}  // namespace duktores
