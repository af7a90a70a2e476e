#pragma once
// The annotation of a cone sector as it lies on the sheet: bend lines, numbers, dimensions. A number stands on every
// marked element; the list of lengths in the title block has a row for each.

#include <vector>

#include "geometry/puntos.h"
#include "viewer/ewdraw.h"

namespace duktores {

/// A sector in its place: both rims, element by element, and the origin of the development, where the uncut cone's
/// elements met.
struct Sector {
  std::vector<Punto2> base, boca;
  Punto2 vertice;

  std::size_t Ultimo() const { return base.size() - 1; }
  /// Both border elements, and every `estado.MultinumDoblado`-th between them.
  bool Marcado(std::size_t i) const;
};

/// Bend lines and numbers. The border elements are numbered only: the outline draws them.
void DibujaDoblados(EWdraw& axew, const Sector& sector);

/// Dimensions: heights at both sides, widths below and above, the opening at the point where the border elements meet,
/// and the marked elements from there. Border elements that don't meet end them with ErrorCorrida.
void GeneraCotaCono(EWdraw& axew, const Sector& sector);

}  // namespace duktores
