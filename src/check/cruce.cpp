#include "check/cruce.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace duktores {

namespace {

struct Lado {
  Punto2 p, q;  // p.x <= q.x
  double yMin, yMax;
};

double Vectorial2(Punto2 a, Punto2 b) { return a.x * b.y - a.y * b.x; }

// Each end of one edge lies off the line of the other on its own side.
bool Parte(const Lado& a, const Lado& b, double margen) {
  const Punto2 linea = a.q - a.p;
  const double largo = std::hypot(linea.x, linea.y);
  const double d1 = Vectorial2(linea, b.p - a.p), d2 = Vectorial2(linea, b.q - a.p);
  return std::min(d1, d2) < -margen * largo && std::max(d1, d2) > margen * largo;
}

Punto2 Encuentro(const Lado& a, const Lado& b) {
  const Punto2 u = a.q - a.p, v = b.q - b.p;
  return a.p + Vectorial2(b.p - a.p, v) / Vectorial2(u, v) * u;
}

}  // namespace

// The edges enter from left to right; those that end before the newest begins leave.
std::optional<Punto2> Cruce(const std::vector<Punto2>& contorno, double margen) {
  std::vector<Lado> lados;
  for (std::size_t i = 0; i < contorno.size(); ++i) {
    Punto2 p = contorno[i], q = contorno[(i + 1) % contorno.size()];
    if (p == q) continue;
    if (p.x > q.x) std::swap(p, q);
    lados.push_back({p, q, std::min(p.y, q.y), std::max(p.y, q.y)});
  }
  std::ranges::sort(lados, {}, [](const Lado& l) { return l.p.x; });
  std::vector<const Lado*> abiertos;
  for (const Lado& nuevo : lados) {
    std::erase_if(abiertos, [&](const Lado* l) { return l->q.x < nuevo.p.x; });
    for (const Lado* l : abiertos) {
      if (l->yMax < nuevo.yMin || l->yMin > nuevo.yMax) continue;
      if (Parte(*l, nuevo, margen) && Parte(nuevo, *l, margen)) return Encuentro(*l, nuevo);
    }
    abiertos.push_back(&nuevo);
  }
  return std::nullopt;
}

}  // namespace duktores
