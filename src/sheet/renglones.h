#pragma once
// The lines of a title block that name the piece, as texts in the configured language and unit.

#include <string>
#include <vector>

#include "piece/bloque.h"

namespace duktores {

/// A label and its value, on one line.
struct Renglon {
  std::string rotulo, valor;
};

/// A sector's block shows bare numbers.
std::vector<Renglon> Renglones(const Bloque& bloque, bool milimetros);

}  // namespace duktores
