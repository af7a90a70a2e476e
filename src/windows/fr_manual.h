#pragma once
// The manual: pages of the installation, Manual/es for the Spanish configuration and Manual/en for all others, in a
// window beside all others. It can be read while any of ours waits for an answer, and closes with the one that it was
// opened from. Nothing outside the installation is opened.

class QPushButton;
class QWidget;

namespace duktores {

/// Opens the manual for this window at its contents; one that is open already comes to the front with its page. A
/// missing page is told.
void AbreManual(QWidget& padre);

/// Gives its button name, icon and tooltip, which names the page of the keys too.
void PonBotonManual(QPushButton& boton);

/// Makes a button open the manual over its window. The focus stays where it is.
void ConectaManual(QPushButton& boton);

}  // namespace duktores
