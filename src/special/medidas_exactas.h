#pragma once
// The mouths of a special piece at the middle of the sheet: the outlines of the entered surface as parallel curves. A
// sharp corner stays sharp.

#include "piece/pieza.h"

namespace duktores {

Bocas MedidasExactas(const Pieza& pieza);

}  // namespace duktores
