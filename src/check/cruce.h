#pragma once
// Whether an outline crosses itself.

#include <optional>
#include <vector>

#include "geometry/puntos.h"

namespace duktores {

/// A point where two edges of the closed outline cross, each by more than `margen` and cutting off more than a loop of
/// the width `ancho`; touching is no crossing.
std::optional<Punto2> Cruce(const std::vector<Punto2>& contorno, double margen, double ancho);

/// Whether no two edges of the closed outline, whose first vertex doesn't stand again at the end, come nearer than
/// `hueco`, but for neighbours at the vertex that they share.
bool EsSimple(const std::vector<Punto2>& contorno, double hueco);

/// The width of a shape as a strip of its area and its perimeter.
double AnchoDe(const std::vector<Punto2>& contorno);

}  // namespace duktores
