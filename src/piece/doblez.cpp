#include "piece/doblez.h"

#include <cmath>

namespace duktores {

namespace {

// A facet as the quadrilateral between its first and its last element, counter-clockwise seen from outside.
struct Plana {
  std::array<Punto3, 4> p;

  Plana(const Solido& solido, int cual) {
    const Cara& cara = solido.caras[static_cast<std::size_t>(cual)];
    const auto en = [&](int i) { return solido.puntos[static_cast<std::size_t>(i)]; };
    p = {en(cara.bajo.front()), en(cara.bajo.back()), en(cara.alto.back()), en(cara.alto.front())};
  }
  Punto3 Normal() const { return Vectorial(p[2] - p[0], p[3] - p[1]); }
  Punto3 Centro() const { return 0.25 * (p[0] + p[1] + p[2] + p[3]); }
};

}  // namespace

std::optional<Doblez> DoblezDe(const Solido& solido, const Linea& linea) {
  const auto [izquierda, derecha] = linea.caras;
  if (linea.clase != Clase::doblez || izquierda < 0 || derecha < 0) return std::nullopt;
  const Plana a(solido, izquierda), b(solido, derecha);
  const Punto3 u = a.Normal(), v = b.Normal();
  const double grados = Grados(std::atan2(Norma(Vectorial(u, v)), Escalar(u, v)));
  return Doblez{grados, Escalar(u, b.Centro() - a.Centro()) > 0};
}

}  // namespace duktores
