#include "geometry/solape.h"

#include <algorithm>
#include <array>

namespace duktores {

namespace {

struct Marco {
  Punto2 minimo, maximo;

  explicit Marco(const std::vector<Punto2>& puntos) : minimo(puntos.front()), maximo(puntos.front()) {
    for (const Punto2 p : puntos) Incluye(p);
  }
  Marco(Punto2 p, Punto2 q) : minimo(p), maximo(p) { Incluye(q); }
  void Incluye(Punto2 p) {
    minimo = {std::min(minimo.x, p.x), std::min(minimo.y, p.y)};
    maximo = {std::max(maximo.x, p.x), std::max(maximo.y, p.y)};
  }
  bool Toca(const Marco& otro) const {
    return minimo.x <= otro.maximo.x && otro.minimo.x <= maximo.x && minimo.y <= otro.maximo.y &&
           otro.minimo.y <= maximo.y;
  }
};

// Positive with `c` left of the way from `a` to `b`.
double Giro(Punto2 a, Punto2 b, Punto2 c) { return (b.x - a.x) * (c.y - a.y) - (b.y - a.y) * (c.x - a.x); }

template <class Hace>
bool AlgunLado(const std::vector<Punto2>& contorno, Hace hace) {
  for (std::size_t i = 0, j = contorno.size() - 1; i < contorno.size(); j = i++) {
    if (hace(contorno[j], contorno[i])) return true;
  }
  return false;
}

bool Dentro(Punto2 p, const std::vector<Punto2>& contorno) {
  bool dentro = false;
  AlgunLado(contorno, [&](Punto2 a, Punto2 b) {
    const bool sube = b.y > a.y;
    if ((a.y > p.y) != (b.y > p.y) && (Giro(a, b, p) > 0) == sube) dentro = !dentro;
    return false;
  });
  return dentro;
}

bool SeCortan(const std::vector<Punto2>& a, const std::vector<Punto2>& b) {
  const Marco deB(b);
  return AlgunLado(a, [&](Punto2 p, Punto2 q) {
    const Marco lado(p, q);
    return lado.Toca(deB) && AlgunLado(b, [&](Punto2 r, Punto2 s) {
             return Giro(p, q, r) * Giro(p, q, s) < 0 && Giro(r, s, p) * Giro(r, s, q) < 0;
           });
  });
}

}  // namespace

// Outlines that share corners or stretches of their edges neither cross nor stay apart, and rounding would decide.
// Moved by a hair to one side and to the other they do either; what only touches is apart on one of them.
bool SeSolapan(const std::vector<Punto2>& a, const std::vector<Punto2>& b) {
  if (a.size() < 3 || b.size() < 3) return false;
  const Marco deA(a), deB(b);
  if (!deA.Toca(deB)) return false;
  const double pelo = 1e-7 * (Distancia(deA.minimo, deA.maximo) + Distancia(deB.minimo, deB.maximo));
  return std::ranges::all_of(std::array{1.0, -1.0}, [&](double lado) {
    const Punto2 mas{lado * pelo, lado * 0.618 * pelo};
    std::vector<Punto2> movido = a;
    for (Punto2& p : movido) p = p + mas;
    return SeCortan(movido, b) || Dentro(movido.front(), b) || Dentro(b.front(), movido);
  });
}

}  // namespace duktores
