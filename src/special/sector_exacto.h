#pragma once
// The exact development of a corner: between two neighbouring elements a cone is plane, so its strips are plane
// quadrilaterals, unrolled one beside the other. Equal radii (a cylinder) and a radius of 0 (a point) are ordinary.
//
// On the sheet the lower mouth lies at the bottom, with the outer side up. The corner's middle element stands straight
// on the origin, which is the anchor.

#include "special/sector.h"

namespace duktores {

/// Corner `c` of `pieza`; nothing of it is adjusted.
Sector SectorExacto(const PiezaEspecial& pieza, int c, const OrdenEspecial& orden);

}  // namespace duktores
