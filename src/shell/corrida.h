#pragma once
// The run driver: shows and unfolds the piece that a dialog has accepted, `estado.pieza`, which says itself of which
// type it is. Without one nothing is drawn.

#include <functional>
#include <vector>

#include "piece/patron.h"
#include "sheet/formato_hoja.h"
#include "sheet/hoja.h"
#include "viewer/ewdraw.h"

namespace duktores {

/// The solid of a piece, and what it unfolds to.
Solido SolidoDe(const Pieza& pieza);
Desarrollo DesarrolloDe(const Pieza& pieza, const Solido& solido);

/// Draws the wire view of the accepted piece on the control, which it empties, and returns its solid.
Solido Dibuja3D(EWdraw& axew);
void DibujaSolido(EWdraw& axew, const Solido& solido);

/// Exchanges the rule of the accepted piece for the other one.
void CambiaRegla();

/// How patterns are drawn, as `estado` has it.
FormatoHoja FormatoDeEstado();

/// How an unfolding has ended. In all three cases what has been drawn stays.
enum class FinCorrida { completo, eleccionRechazada, error };

struct Corrida {
  FinCorrida fin = FinCorrida::error;
  Patron hoja{};                 ///< of a complete one: the pattern as it stands on the sheet
  std::vector<Punto2> sitios{};  ///< the places that its shapes and blocks have got, in the order in which it asks
};

/// Unfolds the accepted piece into the emptied control and a new `estado.oDrawing`. Never throws: a refused pick ends
/// the run quietly, an `ErrorCorrida` is told to the user, any other error shows in how the run has ended.
Corrida Despliega(EWdraw& axew);
/// The same of a pattern that has been made already.
Corrida Despliega(EWdraw& axew, Desarrollo desarrollo);
/// The same with a pattern that `hace` makes or has, and places that `pide` gives; what either throws ends the run.
using HaceDesarrollo = std::function<Desarrollo()>;
Corrida Despliega(EWdraw& axew, const HaceDesarrollo& hace, const PideSitio& pide);

}  // namespace duktores
