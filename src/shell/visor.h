#pragma once
// What the viewer's buttons do, without the window: views, unfolding, saving.

#include <span>
#include <string>
#include <string_view>

#include "shell/corrida.h"
#include "viewer/ewdraw.h"

namespace duktores {

/// A fixed view: the button and the key that call it, the text of its tooltip, and the place that one looks from.
struct VistaFija {
  std::string_view boton, clave;
  int texto;
  Punto3 direccion;
};

std::span<const VistaFija> VistasFijas();

/// Looks at the model as the view of the key `clave` says. The key "Z" with `soloRegen` only redraws; other keys do
/// nothing.
void ComandoVista(EWdraw& axew, std::string_view clave, bool soloRegen);

/// The unfold command: empties the control, looks at it from above, starts the handles at 500, unfolds the accepted
/// piece, or draws what it unfolds to.
Corrida Desplegado(EWdraw& axew);
Corrida Desplegado(EWdraw& axew, Desarrollo desarrollo);
Corrida Desplegado(EWdraw& axew, const HaceDesarrollo& hace, const PideSitio& pide);

/// The name that a drawing gets: with the ending ".dxf", which a name may have in capitals too.
std::string NombreDxf(const std::string& elegido);

/// The save command behind its dialog: writes the drawing of the last unfolding to the `NombreDxf` of `elegido`, and to
/// the scratch file beside the program where that can be. Tells the user what came of the chosen file; true if it
/// stands. A former file is replaced whole or not at all. An empty name does nothing.
bool GuardaDibujo(std::string elegido);

}  // namespace duktores
