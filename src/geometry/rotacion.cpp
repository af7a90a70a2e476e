#include "geometry/rotacion.h"

#include <cmath>

namespace duktores {

Punto3 Rota(Punto3 p, Punto3 enEje, Punto3 direccion, double grados) {
  const double largo = std::hypot(direccion.x, direccion.y, direccion.z);
  if (largo == 0) return p;
  const Punto3 e = (1 / largo) * direccion;
  const Punto3 r = p - enEje;
  const double t = Radianes(grados);
  // 1 - cos t without cancellation, so that a turn by 0 leaves p as it is to the last digit.
  const double versor = 2 * std::sin(t / 2) * std::sin(t / 2);
  return p + std::sin(t) * Vectorial(e, r) + versor * Vectorial(e, Vectorial(e, r));
}

}  // namespace duktores
