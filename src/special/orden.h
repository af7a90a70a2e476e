#pragma once
// Places in the lists of a special piece's solid.

#include "piece/solido.h"
#include "special/pieza_especial.h"

namespace duktores {

/// n steps round the circle, q to a quarter, m strips between marked elements to a corner.
struct OrdenEspecial {
  explicit OrdenEspecial(int divisiones) : n(kPasosPorDivision * divisiones), q(n / 4), m(q / kPasosPorDivision) {}
  int n, q, m;

  /// Element p = 0..q of corner c, on the lower mouth or on the cut.
  int Punto(int c, int p, bool corte) const { return 2 * ((c - 1) * (q + 1) + p) + (corte ? 1 : 0); }
  int Tira(int c, int tira) const { return (c - 1) * (m + 1) + tira; }
  int Lado(int c) const { return Tira(c, m); }
};

}  // namespace duktores
