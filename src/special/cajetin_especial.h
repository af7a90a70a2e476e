#pragma once
// The title blocks of the special pieces: one for each cone sector and each panel. Both name the whole piece and differ
// in their units and in the list of lengths.

#include <array>

#include "geometry/puntos.h"
#include "special/anotacion_cono.h"
#include "viewer/ewdraw.h"

namespace duktores {

/// Asks for the place of a sector's block and draws it: in the forms of millimetres, whatever the unit, with the
/// lengths of the marked elements.
void GeneraCajetinCono(EWdraw& axew, const Sector& sector);

/// The same for a panel A, B, C, D: in the configured unit, with the lengths of its sides in the order of their
/// numbers.
void GeneraCajetinPanel(EWdraw& axew, const std::array<Punto2, 4>& panel);

}  // namespace duktores
