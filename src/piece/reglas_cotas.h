#pragma once
// The dimensions of a shape, as rules for whoever draws it at its place.

#include <array>
#include <cstdint>
#include <optional>
#include <span>
#include <variant>
#include <vector>

#include "geometry/puntos.h"

namespace duktores {

enum class Eje : std::uint8_t { H, V };

/// The place of a point in the list that a row belongs to.
using Ref = std::uint8_t;

/// An extension line from (x of `x1`, y of `y1`) to (x of `x2`, y of `y2`).
struct Extension {
  Ref x1 = 0, y1 = 0, x2 = 0, y2 = 0;
};

/// A horizontal row measures from the x of `de` to the x of `a`, at the y of `base`; its line stands `pasos` steps
/// above the y of `nivel`. A vertical one likewise with x and y exchanged. Without steps there is no such row.
struct FilaCota {
  Eje eje;
  Ref de, a, base, nivel;
  double pasos;
  std::array<Extension, 2> extensiones{};
};

struct CotasFilas {
  std::span<const FilaCota> filas;  ///< of a table that stands for ever
  std::vector<Punto2> puntos;       ///< in the frame of the shape
};

/// Those of a cone's sector, whose outline runs along one rim and back along the other.
struct CotasSector {
  std::optional<Punto2> vertice;  ///< where its elements meet, in the frame of the shape; none for a cylinder
  int paso = 1;                   ///< from one measured element to the next
};

struct CotasPanel {};

using ReglaCotas = std::variant<std::monostate, CotasFilas, CotasSector, CotasPanel>;

}  // namespace duktores
