#pragma once
// What tells one piece from another at a glance: its type and main sizes, in a file's name and in a window's title.

#include <string>

#include "piece/pieza.h"

namespace duktores {

/// Base, then mouth, as they were typed: sides as "400x300", a circle as "R100". With a decimal point everywhere.
std::string MedidasPrincipales(const Pieza& pieza, char entre);

/// A file name without ending, of characters that every system takes: "TransCR_400x300_R100".
std::string NombrePropuesto(const Pieza& pieza);

}  // namespace duktores
