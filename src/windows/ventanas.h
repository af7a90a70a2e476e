#pragma once
// What all windows of the program need.

class QWidget;

namespace duktores {

/// Brings a window in front of all others without keeping it there.
void TraeAlFrente(QWidget& ventana);

/// Enables the host's window and ends the program. Waiting windows and picks end with it. False if a pattern that was
/// placed by hand isn't saved and the user stays.
bool Termina();

}  // namespace duktores
