#pragma once
// The solid that a pattern has to be true to: its points as the view shows them, in the order in which the pattern lays
// them out.

#include <array>
#include <cstdint>
#include <variant>

#include "engines/solido.h"
#include "special/pieza.h"

namespace duktores {

/// F(1..N+1) in space, and the corners below the four fans, from left to right.
struct SolidoTransicion {
  Puntos3 F;
  std::array<Punto3, 4> esquinas;
};

/// Corners in n steps round the circle; every `paso`-th element is marked.
struct SolidoEspecial {
  PiezaEspecial pieza;
  int n = 0, paso = 1;
};

using Solido = std::variant<SolidoTransicion, SolidoEspecial>;

/// Brings a solid's points into the order of a pattern that starts at `iInicio`. `sentido`: 1 when the pattern runs
/// round the view's Z axis counter-clockwise, -1 when it runs clockwise.
SolidoTransicion EnOrden(const PuntosSolido& solido, std::int16_t iInicio, int sentido);

}  // namespace duktores
