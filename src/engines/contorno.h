#pragma once
// Draws the pattern of a transition, in one piece as it lies, or in two pieces, each placed by a pick.

#include <cstdint>

#include "engines/transicion.h"
#include "viewer/ewdraw.h"

namespace duktores {

/// Reads `estado.bDosPiezas`, builds the outlines in `estado.PoliContorno`. With two pieces each is announced by a
/// message and placed by EwPickPoint; a refused pick (EleccionRechazada) leaves what is drawn so far.
void GeneraDesarrollo(Transicion& t, EWdraw& axew, std::int16_t inumPuntos);

}  // namespace duktores
