#pragma once
// A pattern against its piece: what is wrong with it, why, and what would cure it.

#include "check/veredicto.h"
#include "piece/patron.h"

namespace duktores {

/// `patron` is that of the piece, as it was made or as it stands on a sheet; `solido` the piece's. The tolerance is
/// that of the configured unit. Of a pattern that isn't true by the usual rules the exact one is made and looked at
/// too.
Veredicto Juzga(const Pieza& pieza, const Solido& solido, const Patron& patron);

}  // namespace duktores
