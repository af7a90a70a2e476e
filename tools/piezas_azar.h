#pragma once
// Random pieces as a dialog accepts them.

#include <map>
#include <random>
#include <string>

#include "dialogs/dialogo.h"

namespace duktores {

/// Fills the fields with the values of their words, in small letters, and the combo boxes at random.
void TecleaMedidas(Dialogo& dialogo, const std::map<std::string, double>& medidas, std::mt19937& azar);

/// Fills the fields of `dialogo` with a piece of everyday sizes, from centimetres to two metres, of which some are
/// square, upright, without offset, or rounded all round. The dialog may still refuse it.
void TecleaPieza(Dialogo& dialogo, std::mt19937& azar);

/// A piece as shops order them, typed and accepted: sides of 150 to 1200 and diameters of 80 to 1000 in the usual
/// steps, as high as 0.35 to 1.6 of the larger, half of them without offset, a quarter flush on one side, seven in ten
/// level and the others clear of the base by more than the sheet's thickness. Sets thickness and surface in `estado`.
void AceptaCotidiana(Dialogo& dialogo, std::mt19937& azar);

}  // namespace duktores
