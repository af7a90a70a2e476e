#pragma once
// The exact development of a corner: between two neighbouring elements a cone is plane, so its strips are plane
// quadrilaterals, unrolled one beside the other. Equal radii (a cylinder) and a radius of 0 (a point) are ordinary.
//
// On the sheet the wider rim lies at the bottom, with the outer side up. The element that stands straight and the
// anchor are those of the usual development.

#include "special/sector.h"

namespace duktores {

/// Corner `c` of `pieza` in n steps round the circle; `bCambio`: the wider rim is the upper one.
Sector SectorExacto(const PiezaEspecial& pieza, int c, int n, bool bCambio);

}  // namespace duktores
