#pragma once
// Whether an outline crosses itself.

#include <optional>
#include <vector>

#include "geometry/puntos.h"

namespace duktores {

/// A point where two edges of the closed outline cross by more than `margen`; touching is no crossing.
std::optional<Punto2> Cruce(const std::vector<Punto2>& contorno, double margen);

}  // namespace duktores
