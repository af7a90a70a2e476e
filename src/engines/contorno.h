#pragma once
// Draws the pattern of a transition, in one piece as it lies, or in two pieces, each placed by a pick.

#include <cstdint>

#include "engines/cajetin.h"
#include "engines/cotas.h"
#include "engines/transicion.h"
#include "viewer/ewdraw.h"

namespace duktores {

/// What the patterns of the engines differ in.
struct EstiloDesarrollo {
  ListaCotas cotas;
  bool cotasPrimero;  ///< in one piece: the dimensions before the numbers of the edges
  const CajetinMotor& cajetin;
  bool soloCaja1;  ///< the title block only when `estado.iBox` is 1, else whenever it isn't 0
};

/// Reads `estado.bDosPiezas`, builds the outlines in `estado.PoliContorno` and draws all that belongs to each: marks,
/// dimensions, title block. Two pieces and each title block are announced by a message and placed by EwPickPoint; a
/// refused pick (EleccionRechazada) leaves what is drawn so far.
void GeneraDesarrollo(Transicion& t, EWdraw& axew, std::int16_t inumPuntos, const EstiloDesarrollo& estilo);

}  // namespace duktores
