#pragma once
// A typed piece, unfolded with everything placed at the origin, and its verdict.

#include <cstdlib>

#include "shell/juicio.h"
#include "shell/lista.h"
#include "shell/texto_veredicto.h"
#include "shell/visor.h"
#include "state/estado.h"

namespace duktores {

struct PiezaDesarrollada : VistaEWdraw {
  /// By the usual rules or exactly. The dialog must accept the piece.
  PiezaDesarrollada(Dialogo dialogo, std::int16_t exacto) {
    estado.iExacto = exacto;
    if (dialogo.CmdAceptar() != Respuesta::aceptado) std::abort();
    solido = SolidoDe(*estado.pieza);
    axew.PonVista(this);
    hoja = Desplegado(axew).hoja;
  }
  std::optional<Punto3> EligePunto(EWdraw&) override { return Punto3{}; }
  Veredicto Juzga() const { return duktores::Juzga(*estado.pieza, solido, hoja); }

  EWdraw axew;
  Solido solido;
  Patron hoja;
};

}  // namespace duktores
