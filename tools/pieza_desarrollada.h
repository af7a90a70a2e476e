#pragma once
// A typed piece, unfolded with everything placed at the origin, and its verdict.

#include <cstdlib>

#include "check/comprueba.h"
#include "dialogs/dialogo.h"
#include "shell/visor.h"
#include "state/estado.h"

namespace duktores {

struct PiezaDesarrollada : VistaEWdraw {
  /// By the usual rules or exactly. The dialog must accept the piece.
  PiezaDesarrollada(Dialogo dialogo, std::int16_t exacto) {
    estado.iExacto = exacto;
    if (dialogo.CmdAceptar() != Respuesta::aceptado) std::abort();
    solido = SolidoActual();
    axew.PonVista(this);
    Desplegado(axew);
  }
  std::optional<Punto3> EligePunto(EWdraw&) override { return Punto3{}; }
  Veredicto Juzga() const { return Comprueba(solido, axew); }

  EWdraw axew;
  Solido solido;
};

}  // namespace duktores
