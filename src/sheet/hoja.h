#pragma once
// The sheet: the one place where patterns are placed and drawn, on a control and into the drawing of the run.

#include <functional>
#include <string>
#include <vector>

#include "piece/patron.h"
#include "sheet/formato_hoja.h"
#include "viewer/ewdraw.h"

namespace duktores {

/// What a place is asked for: a shape, or the title block that stands beside it.
struct Encargo {
  const FormaPatron& forma;
  bool bloque;
};
/// Gives a place; what it throws ends the drawing.
using PideSitio = std::function<Punto2(const Encargo&)>;

/// Draws the shapes one after the other, each as soon as its place is known: outline, numbered lines, dimensions, and
/// behind them its title block. Returns the pattern as it stands on the sheet: shapes in their places, without an
/// outline where nothing could be drawn. A coordinate that is no finite number ends a shape, and where the pattern
/// doesn't go on after that the drawing, with ErrorCorrida; what is drawn stays.
Patron DibujaPatron(EWdraw& axew, Patron patron, const FormatoHoja& formato, const PideSitio& pide);

/// How the owner is asked.
struct Peticion {
  bool caja = true;      ///< with the prompt's message box
  std::string nombre{};  ///< of the thing, below the prompt and on the pointer
};

/// Asks whoever owns the control: a prompt, then a pick, with the shape or the block's frame hanging on the pointer. A
/// refused pick throws EleccionRechazada.
Punto2 PideAlDueno(EWdraw& axew, const Encargo& encargo, const Peticion& peticion = {});

/// A place for each that `DibujaPatron` asks for, in that order: in rows from the left and from the top that together
/// come near to 16:9, right of what lies where it is; a shape's title block stands beside it, all annotation of the
/// last row on the line y = 0. Where the drawing would end early the places end too.
std::vector<Punto2> Reparte(const Patron& patron, const FormatoHoja& formato);

}  // namespace duktores
