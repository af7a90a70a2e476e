#pragma once
// The words of a verdict, in the configured language and unit.

#include <string>

#include "check/veredicto.h"

namespace duktores {

/// Lengths may be off by half a millimetre.
double ToleranciaPatron();

/// A length with its unit, to a tenth of what a drawing shows; "?" if it is no number.
std::string TextoMedido(double v);

/// A shape's name.
std::string TextoForma(NombreForma forma);

/// The verdict in one line: every shape and kind of fault with its millimetres, the cause and the cure, the notes.
std::string TextoVeredicto(const Veredicto& veredicto);
/// The notes alone; empty if there are none.
std::string TextoNotas(const Veredicto& veredicto);

}  // namespace duktores
