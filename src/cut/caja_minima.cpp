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

// One side of it lies along an edge of the hull. Round the hull the edges turn one way, so what lies furthest to the
// right of an edge, above it and to its left goes round with it.
Punto2 CajaMinima(const std::vector<Punto2>& puntos) {
  if (puntos.size() < 2) return {};
  const std::vector<Punto2> casco = Envolvente(puntos);
  const std::size_t n = casco.size();
  Punto2 mejor;
  double menor = std::numeric_limits<double>::infinity();
  std::size_t derecha = 0, alto = 0, izquierda = 0;
  for (std::size_t i = 0; i < n; ++i) {
    const Punto2 lado = casco[(i + 1) % n] - casco[i];
    const double largo = std::hypot(lado.x, lado.y);
    if (!(largo > 0)) continue;
    const Punto2 u = (1 / largo) * lado, v{-u.y, u.x};
    const auto lejos = [&](std::size_t k, Punto2 w) {
      const Punto2 p = casco[k % n] - casco[i];
      return w.x * p.x + w.y * p.y;
    };
    const auto avanza = [&](std::size_t& k, std::size_t desde, Punto2 w) {
      k = std::max(k, desde);
      while (k < i + n && lejos(k + 1, w) > lejos(k, w)) ++k;
    };
    avanza(derecha, i + 1, u);
    avanza(alto, derecha, v);
    avanza(izquierda, alto, -1 * u);
    const double ancho = lejos(derecha, u) - lejos(izquierda, u), altura = lejos(alto, v);
    if (ancho * altura >= menor) continue;
    menor = ancho * altura;
    mejor = {std::max(ancho, altura), std::min(ancho, altura)};
  }
  return mejor;
}

}  // namespace duktores
