#pragma once
// What all windows of the program need.

class QWidget;

namespace duktores {

/// Brings a window in front of all others without keeping it there.
void TraeAlFrente(QWidget& ventana);

/// Enables the host's window and ends the program. Waiting windows and picks end with it.
void Termina();

}  // namespace duktores
