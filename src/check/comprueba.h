#pragma once
// Holds a pattern against its solid. Nothing here knows how the pattern was made, nor which piece it is of.

#include "check/veredicto.h"
#include "piece/patron.h"

namespace duktores {

/// The pattern as it was made, or as it stands on a sheet. `tolerancia` is how far off a length may be. Of the causes
/// only those show that the solid and the pattern tell.
Veredicto Comprueba(const Solido& solido, const Patron& patron, double tolerancia);

/// Enters a cause for which there is no such solid, which is a fault in itself.
void AnotaImposible(Veredicto& veredicto, Causa causa, const Lugar& donde, double medida);

}  // namespace duktores
