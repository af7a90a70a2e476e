#pragma once
// What an unfolding leaves in `estado` under the names of its working values; it stands until the next one begins.

#include "piece/patron.h"

namespace duktores {

void DejaTransicion(const Pieza& pieza, const Desarrollo& desarrollo);
void DejaEliptica(const Pieza& pieza, const Desarrollo& desarrollo);
/// The radii as the dialog stored them, and as the usual rules adjust them.
void DejaEspecial(const Pieza& pieza, const Desarrollo& desarrollo);

}  // namespace duktores
