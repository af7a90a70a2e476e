#pragma once
// The annotation of a cone sector as it lies on the sheet: bend lines, numbers, dimensions. A number stands on every
// marked element; the list of lengths in the title block has a row for each.

#include <optional>
#include <vector>

#include "geometry/puntos.h"
#include "viewer/ewdraw.h"

namespace duktores {

/// A sector: both rims, element by element from left to right, and where the uncut cone's elements meet.
struct Sector {
  std::vector<Punto2> base, boca;
  std::optional<Punto2> vertice;  ///< none for a cylinder

  std::size_t Ultimo() const { return base.size() - 1; }
  /// Both border elements, and every `estado.MultinumDoblado`-th between them.
  bool Marcado(std::size_t i) const;
};

/// Bend lines and numbers. The border elements are numbered only: the outline draws them.
void DibujaDoblados(EWdraw& axew, const Sector& sector);

/// Dimensions: heights at both sides, widths below and above, the opening at the point where the border elements meet,
/// and the marked elements from there; a cylinder has none of the last two. Border elements that don't meet end them
/// with ErrorCorrida.
void GeneraCotaCono(EWdraw& axew, const Sector& sector);

}  // namespace duktores
