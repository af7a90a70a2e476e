#include "cut/caja_minima.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "geometry/planas.h"

namespace duktores {

namespace {

// Counter-clockwise, the leftmost point first.
std::vector<Punto2> Envolvente(std::vector<Punto2> puntos) {
  std::sort(puntos.begin(), puntos.end(), [](Punto2 a, Punto2 b) { return a.x < b.x || (a.x == b.x && a.y < b.y); });
  std::vector<Punto2> casco;
  const auto anade = [&casco](Punto2 p, std::size_t suelo) {
    const auto sobra = [&] {
      const Punto2 b = casco.back(), a = casco[casco.size() - 2];
      return Vectorial2(b - a, p - b) <= 0;
    };
    while (casco.size() > suelo + 1 && sobra()) casco.pop_back();
    casco.push_back(p);
  };
  for (const Punto2 p : puntos) anade(p, 0);
  const std::size_t suelo = casco.size() - 1;
  for (auto p = puntos.rbegin() + 1; p != puntos.rend(); ++p) anade(*p, suelo);
  casco.pop_back();
  return casco;
}

}  // namespace

// One side of it lies along an edge of the hull.
Punto2 CajaMinima(const std::vector<Punto2>& puntos) {
  if (puntos.size() < 2) return {};
  const std::vector<Punto2> casco = Envolvente(puntos);
  Punto2 mejor;
  double menor = std::numeric_limits<double>::infinity();
  for (std::size_t i = 0; i < casco.size(); ++i) {
    const Punto2 lado = casco[(i + 1) % casco.size()] - casco[i];
    const double largo = std::hypot(lado.x, lado.y);
    if (!(largo > 0)) continue;
    const Punto2 u = (1 / largo) * lado;
    double izquierda = 0, derecha = 0, alto = 0;
    for (const Punto2 p : casco) {
      const Punto2 v = p - casco[i];
      const double a = u.x * v.x + u.y * v.y;
      izquierda = std::min(izquierda, a);
      derecha = std::max(derecha, a);
      alto = std::max(alto, Vectorial2(u, v));
    }
    if ((derecha - izquierda) * alto >= menor) continue;
    menor = (derecha - izquierda) * alto;
    mejor = {std::max(derecha - izquierda, alto), std::min(derecha - izquierda, alto)};
  }
  return mejor;
}

}  // namespace duktores
