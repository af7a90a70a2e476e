#pragma once
// Why a special piece can't be made.

#include <optional>

#include "piece/pieza.h"

namespace duktores {

enum class ImposibleEspecial { radio, corteSobreVertice };

struct CausaEspecial {
  ImposibleEspecial causa;
  int esquina;    ///< the corner, or the one before the side
  double medida;  ///< by how much a radius or an edge is negative, on the base, the mouth or the cut
};

/// The worst; none if every radius and every edge is sound. A cut below the base is another matter.
std::optional<CausaEspecial> Imposible(const Pieza& pieza);

}  // namespace duktores
