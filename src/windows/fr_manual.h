#pragma once
// The manual: pages of the installation, Manual/es for the Spanish configuration and Manual/en for all others, in a
// window that stays open beside the one that it was opened from, until that one closes or waits for another. Nothing
// outside the installation is opened.

class QPushButton;
class QWidget;

namespace duktores {

/// Opens the manual over this window at its contents; one that is open already closes. A missing page is told.
void AbreManual(QWidget& padre);

/// Makes a button open the manual over its window. The focus stays where it is.
void ConectaManual(QPushButton& boton);

}  // namespace duktores
