#include "piece/patron.h"

#include <algorithm>
#include <cmath>

#include "geometry/planas.h"

namespace duktores {

Punto2 SitioNumero(Forma forma, const Linea& linea) {
  const auto [p, q] = std::pair(linea.p, linea.q);
  switch (forma) {
    case Forma::entera:
    case Forma::mitad:
      return {std::min(p.x, q.x) + std::abs(q.x - p.x) / 2, std::min(p.y, q.y) + std::abs(q.y - p.y) / 2};
    case Forma::esquina:
      return PuntoMedio(p, q);
    case Forma::lado:
      break;
  }
  const Punto2 medio = PuntoMedio(p, q);
  return {medio.x + 1, medio.y};
}

}  // namespace duktores
