#pragma once
// Random pieces as a dialog accepts them.

#include <random>

#include "dialogs/dialogo.h"

namespace duktores {

/// Fills the fields of `dialogo` with a piece of everyday sizes, from centimetres to two metres, of which some are
/// square, upright, without offset, or rounded all round. The dialog may still refuse it.
void TecleaPieza(Dialogo& dialogo, std::mt19937& azar);

/// Whether a special piece is inside out somewhere, so that it has no flat pattern: the fibre correction
/// has made a radius negative or the radii of a side longer than the side, or the cut passes below the base or above
/// the point where elements meet. False for the other pieces.
bool DelReves(const Pieza& pieza);

}  // namespace duktores
