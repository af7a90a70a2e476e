#pragma once
// Solid and pattern of the special pieces. A pattern has up to eight shapes in ring order round the piece: corner 1,
// side 1, corner 2, side 2 and so on.

#include "piece/patron.h"

namespace duktores {

/// The points of the corners in steps of kPasosPorDivision to each division: element by element, first on the lower
/// mouth, then on the cut. The facets are the strips between marked elements, one element to each division, and the
/// sides.
Solido GeneraDibujo3D(const Pieza& pieza);

/// By the exact rule as the solid shows it. Else with the radii adjusted, so that every corner has a cone and every
/// panel an edge. `solido` is that of the same piece. A shape that can't be made is empty.
Desarrollo DesarrollaEspecial(const Pieza& pieza, const Solido& solido);

}  // namespace duktores
