#pragma once
// A corner laid flat: a sector of a cone, and how it becomes a shape of the pattern.

#include <optional>
#include <vector>

#include "piece/patron.h"
#include "special/orden.h"

namespace duktores {

/// Both rims, element by element from left to right, and where the uncut cone's elements meet.
struct Sector {
  std::vector<Punto2> base, boca;
  std::optional<Punto2> vertice;  ///< none for a cylinder
  Punto2 ancla;                   ///< the point of the sector's frame that is placed
  bool bCambio = false;           ///< the rim at the bottom of the sheet is that of the upper mouth
  bool alDerecho = false;         ///< the elements run as those of the corner, else against them
};

/// The shape of corner `c`; without a sector it is empty. A sector of more or fewer elements than the corner is an
/// outline that stands for nothing.
FormaPatron FormaEsquina(const std::optional<Sector>& sector, int c, const Solido& solido, const OrdenEspecial& orden);

}  // namespace duktores
