#pragma once
// Fewer vertices for a rim.

#include <cstddef>
#include <optional>
#include <vector>

#include "geometry/puntos.h"

namespace duktores {

/// A vertex that stays, and the one in the middle of the arc to the next that stays; none for a straight step.
struct Queda {
  std::size_t vertice;
  std::optional<std::size_t> medio{};
};

struct Afinado {
  double tolerancia = 0;  ///< greatest distance of a point of the rim from what is left of it
  double paso = 0;        ///< least distance between vertices that stay
  bool arcos = false;
};

/// The vertices of a closed outline that stay, in order: the first one, those that are `fijo`, and between these as few
/// as will do. Of two that are nearer than the least step one goes, one that isn't fixed if there is one.
std::vector<Queda> Adelgaza(const std::vector<Punto2>& contorno, const std::vector<bool>& fijo, const Afinado& afinado);

/// The circle through three points; none if they lie in a line, or nearly.
struct Circunferencia {
  Punto2 centro;
  double radio = 0;
};
std::optional<Circunferencia> PorTres(Punto2 a, Punto2 b, Punto2 c);

}  // namespace duktores
