#include "check/cruce.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "geometry/planas.h"

namespace duktores {

namespace {

struct Lado {
  Punto2 p, q;  // p.x <= q.x
  double yMin, yMax;
  std::size_t lugar;  // behind this vertex of the outline
};

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

// Areas and lengths of the outline up to each vertex, so that those of any part of it are known at once.
class Sumas {
 public:
  explicit Sumas(const std::vector<Punto2>& contorno) : contorno_(contorno), suma_(contorno.size() + 1) {
    for (std::size_t i = 0; i < contorno.size(); ++i) {
      suma_[i + 1] = suma_[i] + Tramo(contorno[i], contorno[(i + 1) % contorno.size()]);
    }
  }
  // Of the whole outline, and of the loop that begins and ends at X, on the edges behind the vertices i and j.
  double Ancho() const { return Ancho(suma_.back()); }
  double AnchoBucle(Punto2 X, std::size_t i, std::size_t j) const {
    if (i > j) std::swap(i, j);
    const Suma bucle = Tramo(X, contorno_[i + 1]) + suma_[j] - suma_[i + 1] + Tramo(contorno_[j], X);
    return std::min(Ancho(bucle), Ancho(suma_.back() - bucle));
  }

 private:
  struct Suma {
    double doble = 0, largo = 0;  // twice the area
    friend Suma operator+(Suma a, Suma b) { return {a.doble + b.doble, a.largo + b.largo}; }
    friend Suma operator-(Suma a, Suma b) { return {a.doble - b.doble, a.largo - b.largo}; }
  };
  Suma Tramo(Punto2 p, Punto2 q) const {
    const Punto2 u = p - contorno_[0], v = q - contorno_[0];
    return {Vectorial2(u, v), std::hypot(q.x - p.x, q.y - p.y)};
  }
  static double Ancho(Suma s) { return s.largo > 0 ? std::abs(s.doble) / s.largo : 0; }

  const std::vector<Punto2>& contorno_;
  std::vector<Suma> suma_;
};

// Whether `es` is true of some pair of edges whose boxes, widened by `margen`, meet. The edges enter from left to
// right; those that end before the newest begins leave. An edge without length is none.
template <class Es>
bool AlgunPar(const std::vector<Punto2>& contorno, double margen, Es es) {
  std::vector<Lado> lados;
  for (std::size_t i = 0; i < contorno.size(); ++i) {
    Punto2 p = contorno[i], q = contorno[(i + 1) % contorno.size()];
    if (p == q) continue;
    if (p.x > q.x) std::swap(p, q);
    lados.push_back({p, q, std::min(p.y, q.y) - margen, std::max(p.y, q.y) + margen, i});
  }
  std::ranges::sort(lados, {}, [](const Lado& l) { return l.p.x; });
  std::vector<const Lado*> abiertos;
  for (const Lado& nuevo : lados) {
    std::erase_if(abiertos, [&](const Lado* l) { return l->q.x + margen < nuevo.p.x; });
    for (const Lado* l : abiertos) {
      if (l->yMax >= nuevo.yMin && l->yMin <= nuevo.yMax && es(*l, nuevo)) return true;
    }
    abiertos.push_back(&nuevo);
  }
  return false;
}

}  // namespace

double AnchoDe(const std::vector<Punto2>& contorno) { return Sumas(contorno).Ancho(); }

std::optional<Punto2> Cruce(const std::vector<Punto2>& contorno, double margen, double ancho) {
  std::optional<Sumas> sumas;
  std::optional<Punto2> cruce;
  AlgunPar(contorno, 0, [&](const Lado& a, const Lado& b) {
    if (!Parte(a, b, margen) || !Parte(b, a, margen)) return false;
    if (!sumas) sumas.emplace(contorno);
    const Punto2 X = Encuentro(a, b);
    if (sumas->AnchoBucle(X, a.lugar, b.lugar) > ancho) cruce = X;
    return cruce.has_value();
  });
  return cruce;
}

bool EsSimple(const std::vector<Punto2>& contorno, double hueco) {
  const auto junto = [&](Punto2 p, const Lado& l) { return DistanciaASegmento(p, l.p, l.q) < hueco; };
  const auto siguiente = [&](std::size_t i) { return (i + 1) % contorno.size(); };
  return !AlgunPar(contorno, hueco, [&](const Lado& a, const Lado& b) {
    if (siguiente(a.lugar) != b.lugar && siguiente(b.lugar) != a.lugar) {
      return (Parte(a, b, 0) && Parte(b, a, 0)) || junto(a.p, b) || junto(a.q, b) || junto(b.p, a) || junto(b.q, a);
    }
    // Neighbours share a vertex; what lies beyond it must not come back.
    const std::size_t primero = siguiente(a.lugar) == b.lugar ? a.lugar : b.lugar;
    const Lado &una = primero == a.lugar ? a : b, &otra = primero == a.lugar ? b : a;
    return junto(contorno[primero], otra) || junto(contorno[siguiente(otra.lugar)], una);
  });
}

}  // namespace duktores
