#pragma once
// Whether two outlines lie on each other.

#include <vector>

#include "geometry/puntos.h"

namespace duktores {

/// Whether their insides meet; to touch is no overlap. The first vertex of an outline may stand again at its end.
bool SeSolapan(const std::vector<Punto2>& a, const std::vector<Punto2>& b);

}  // namespace duktores
