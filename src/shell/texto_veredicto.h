#pragma once
// The words of a verdict, in the configured language and unit.

#include <string>

#include "check/veredicto.h"

namespace duktores {

/// Lengths may be off by half a millimetre.
double ToleranciaPatron();

/// A shape's name.
std::string TextoForma(NombreForma forma);

/// The verdict in one line.
std::string TextoVeredicto(const Veredicto& veredicto);

}  // namespace duktores
