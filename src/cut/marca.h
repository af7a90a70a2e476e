#pragma once
// A name on a part, for whoever takes it from the machine.

#include <string_view>
#include <utility>
#include <vector>

#include "cut/recorte.h"

namespace duktores {

using Trazo = std::pair<Punto2, Punto2>;

/// The lines of a name within the outline, clear of that and of the folds, as high as there is room for, at most 10 mm;
/// of a name that finds no room its beginning, or nothing.
std::vector<Trazo> MarcaDe(const Recorte& recorte, std::string_view nombre, double milimetro);

}  // namespace duktores
