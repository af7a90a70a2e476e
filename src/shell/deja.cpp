#include "shell/deja.h"

#include <tuple>

#include "special/pieza_especial.h"
#include "state/estado.h"
#include "state/numeros.h"

namespace duktores {

namespace {

using Radios = std::tuple<double, double, double, double>;
Radios RadiosDe(const Cuatro& r) { return {r(1), r(2), r(3), r(4)}; }

// Which radii are kept as they were accepted depends on the piece.
void GuardaIniciales(const Pieza& pieza) {
  EstadoPrograma& e = estado;
  const auto& [arriba, abajo] = pieza.corregidas;
  if (pieza.tipo == TipoPieza::esp2 || pieza.tipo == TipoPieza::esp3) {
    e.dRadioEspIni = arriba.r(1);
    return;
  }
  if (pieza.tipo == TipoPieza::esp4) {
    e.dR11Ini = arriba.r(1);
  } else {
    std::tie(e.dR11Ini, e.dR12Ini, e.dR13Ini, e.dR14Ini) = RadiosDe(arriba.r);
  }
  if (pieza.tipo != TipoPieza::esp5) std::tie(e.dR21Ini, e.dR22Ini, e.dR23Ini, e.dR24Ini) = RadiosDe(abajo.r);
}

}  // namespace

void DejaTransicion(const Pieza& pieza, const Desarrollo&) { estado.inumDoblado = EnteroCorto(pieza.divisiones); }

void DejaEliptica(const Pieza& pieza, const Desarrollo& desarrollo) {
  DejaTransicion(pieza, desarrollo);
  estado.MultinumDoblado = 20;
}

void DejaEspecial(const Pieza& pieza, const Desarrollo& desarrollo) {
  EstadoPrograma& e = estado;
  e.MultinumDoblado = kPasosPorDivision;
  GuardaIniciales(pieza);
  e.inumDoblado = EnteroCorto(kPasosPorDivision * pieza.divisiones);
  const auto& [arriba, abajo] = desarrollo.ajustadas.value_or(pieza.corregidas);
  if (pieza.tipo == TipoPieza::esp2 || pieza.tipo == TipoPieza::esp3) {
    e.dRadioEsp = arriba.r(1);
    e.dRadioEsp2 = abajo.r(3);
  } else {
    std::tie(e.dR11, e.dR12, e.dR13, e.dR14) = RadiosDe(arriba.r);
    std::tie(e.dR21, e.dR22, e.dR23, e.dR24) = RadiosDe(abajo.r);
  }
}

}  // namespace duktores
