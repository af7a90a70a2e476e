#pragma once
// The surface of the sheet that entered dimensions refer to, and the usual correction: to the inner surface of a
// rectangle and the medium fibre of a circle.

#include <cstdint>
#include <optional>

namespace duktores {

/// As the configuration numbers them; another number is none of them.
enum class Fibra : std::int16_t { interior = 1, media = 2, exterior = 3 };

struct CorreccionDeFibra {
  double lado, radio;  ///< to be added to a side of the rectangle, to a radius
};

/// None for a number that is no surface.
inline std::optional<CorreccionDeFibra> CorreccionFibra(Fibra fibra, double espesor) {
  switch (fibra) {
    case Fibra::interior:
      return CorreccionDeFibra{0, espesor / 2};
    case Fibra::media:
      return CorreccionDeFibra{-espesor, 0};
    case Fibra::exterior:
      return CorreccionDeFibra{-2 * espesor, -espesor / 2};
  }
  return std::nullopt;
}

/// From the entered surface outwards to the middle of the sheet; 0 for a number that is no surface.
inline double AlMedio(Fibra fibra, double espesor) {
  return fibra == Fibra::interior ? espesor / 2 : fibra == Fibra::exterior ? -espesor / 2 : 0;
}

}  // namespace duktores
