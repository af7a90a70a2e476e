#pragma once
// The smallest rectangle around a shape, however it is turned.

#include <vector>

#include "geometry/puntos.h"

namespace duktores {

/// Its sides, the longer one first; of all rectangles that which has the least area.
Punto2 CajaMinima(const std::vector<Punto2>& puntos);

}  // namespace duktores
