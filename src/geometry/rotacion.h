#pragma once
// Rotation in space by the right-hand rule: thumb along the axis, positive angles along the fingers. The view and the
// development use this one sense.

#include "geometry/puntos.h"

namespace duktores {

/// The direction about which the engines tilt a mouth.
inline constexpr Punto3 kEjeY{0, 1, 0};

/// `p` turned about the axis through `enEje` with direction `direccion` (any length but 0; with 0 `p` stays).
Punto3 Rota(Punto3 p, Punto3 enEje, Punto3 direccion, double grados);

}  // namespace duktores
