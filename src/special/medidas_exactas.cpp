#include "special/medidas_exactas.h"

#include <algorithm>
#include <tuple>

namespace duktores {

namespace {

Boca Paralela(const Boca& boca, double e) {
  Boca otra{std::max(0.0, boca.LX + 2 * e), std::max(0.0, boca.LY + 2 * e), {}};
  for (int c = 1; c <= 4; ++c) otra.r(c) = boca.r(c) == 0 ? 0 : std::max(0.0, boca.r(c) + e);
  return otra;
}

// A circle has sides of its own.
Boca CirculoParalelo(double radio, double e) { return radio == 0 ? Boca{} : Circulo(std::max(0.0, radio + e)); }

// What a base has by its type, not by what was typed.
void PonRadiosPropios(Boca& base, TipoPieza tipo) {
  const double mitad = base.LY / 2;
  if (tipo == TipoPieza::esp2) base.r = Cuatro(mitad);
  if (tipo == TipoPieza::esp3) base.r = Cuatro(0, 0, mitad, mitad);
  if (tipo == TipoPieza::esp5) base.r = Cuatro(0);
}

// Beside a sharp corner a radius is at most as long as their side.
void CortaJuntoAAgudas(Boca& boca) {
  for (const auto& [a, b, lado] : {std::tuple(1, 2, boca.LY), {3, 4, boca.LY}, {2, 3, boca.LX}, {4, 1, boca.LX}}) {
    if (boca.r(a) == 0) boca.r(b) = std::min(boca.r(b), lado);
    if (boca.r(b) == 0) boca.r(a) = std::min(boca.r(a), lado);
  }
}

}  // namespace

Bocas MedidasExactas(const Pieza& pieza) {
  const double e = AlMedio(pieza.fibra, pieza.espesor);
  const auto& [arriba, abajo] = pieza.entradas;
  const bool redonda = pieza.tipo == TipoPieza::esp2 || pieza.tipo == TipoPieza::esp3 || pieza.tipo == TipoPieza::esp4;
  Bocas bocas{redonda ? CirculoParalelo(arriba.r(1), e) : Paralela(arriba, e), Paralela(abajo, e)};
  PonRadiosPropios(bocas.abajo, pieza.tipo);
  CortaJuntoAAgudas(bocas.arriba);
  CortaJuntoAAgudas(bocas.abajo);
  return bocas;
}

}  // namespace duktores
