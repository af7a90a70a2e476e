#pragma once
// Holds a pattern against its solid. Nothing here knows how the pattern was made, nor which piece it is of.

#include "check/veredicto.h"
#include "piece/patron.h"

namespace duktores {

/// The pattern as it was made, or as it stands on a sheet. `tolerancia` is how far off a length may be.
Veredicto Comprueba(const Solido& solido, const Patron& patron, double tolerancia);

}  // namespace duktores
