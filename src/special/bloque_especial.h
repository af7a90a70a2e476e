#pragma once
// The title blocks of the special pieces: one for each sector and each panel. Both name the whole piece.

#include "piece/bloque.h"
#include "piece/pieza.h"
#include "piece/solido.h"

namespace duktores {

Bloque BloqueEspecial(const Pieza& pieza, Forma forma);

}  // namespace duktores
