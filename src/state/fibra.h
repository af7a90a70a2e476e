#pragma once
// Fibre correction: from the surface that the entered dimensions refer to, to the inner surface of the rectangle and
// the medium fibre of the circle.

#include <optional>

#include "state/estado.h"

namespace duktores {

struct CorreccionDeFibra {
  double lado, radio;  ///< to be added to a side of the rectangle, to a radius
};

/// By `estado.iFibra` and `estado.dEspesor`; none for a surface outside 1..3, the values stored before then stay.
inline std::optional<CorreccionDeFibra> CorreccionFibra() {
  const double t = estado.dEspesor;
  switch (estado.iFibra) {
    case 1:
      return CorreccionDeFibra{0, t / 2};
    case 2:
      return CorreccionDeFibra{-t, 0};
    case 3:
      return CorreccionDeFibra{-2 * t, -t / 2};
    default:
      return std::nullopt;
  }
}

}  // namespace duktores
