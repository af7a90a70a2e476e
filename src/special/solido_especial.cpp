#include <utility>

#include "special/especial.h"
#include "special/orden.h"

namespace duktores {

namespace {

// From left to right seen from outside: against the order of the elements.
Cara Tira(const OrdenEspecial& orden, int c, int tira) {
  Cara cara{{Forma::esquina, c}, {}, {}};
  const int desde = (tira + 1) * kPasosPorDivision;
  for (int p = desde; p >= desde - kPasosPorDivision; --p) {
    cara.bajo.push_back(orden.Punto(c, p, false));
    cara.alto.push_back(orden.Punto(c, p, true));
  }
  return cara;
}

Cara Panel(const OrdenEspecial& orden, int c) {
  const auto canto = [&](bool corte) {
    return std::vector{orden.Punto(Siguiente(c), 0, corte), orden.Punto(c, orden.q, corte)};
  };
  return {{Forma::lado, c}, canto(false), canto(true)};
}

// The rims of a corner, and the lines across it where it is marked.
void PonAlambre(Solido& solido, const OrdenEspecial& orden, int c) {
  for (const bool corte : {false, true}) {
    auto& orilla = solido.alambre.emplace_back();
    for (int p = 0; p <= orden.q; ++p) orilla.push_back(orden.Punto(c, p, corte));
  }
  for (int p = 0; p <= orden.q; p += kPasosPorDivision) {
    solido.alambre.push_back({orden.Punto(c, p, false), orden.Punto(c, p, true)});
  }
}

// A side that the arcs take whole has no length but that of its rounding.
void PonLado(Solido& solido, int p, int q) {
  constexpr double kIgual = 1e-9;
  const auto en = [&](int i) { return solido.puntos[static_cast<std::size_t>(i)]; };
  if (Distancia(en(p), en(q)) > kIgual) solido.alambre.push_back({p, q});
}

}  // namespace

Solido GeneraDibujo3D(const Pieza& pieza) {
  const PiezaEspecial especial = ComoEspecial(pieza);
  const PlanoCorte plano = PlanoDeCorte(especial);
  const OrdenEspecial orden(pieza.divisiones);
  Solido solido;
  solido.puntos.reserve(static_cast<std::size_t>(8 * (orden.q + 1)));
  for (int c = 1; c <= 4; ++c) {
    for (int p = 1; p <= orden.q + 1; ++p) {
      const auto [bajo, corte] = ElementoDe(especial, plano, c, p, orden.n);
      solido.puntos.insert(solido.puntos.end(), {bajo, corte});
    }
    for (int tira = 0; tira < orden.m; ++tira) solido.caras.push_back(Tira(orden, c, tira));
    solido.caras.push_back(Panel(orden, c));
    PonAlambre(solido, orden, c);
  }
  for (const bool corte : {true, false}) {
    for (const int c : {2, 3, 4, 1}) {
      PonLado(solido, orden.Punto(c, orden.q, corte), orden.Punto(Siguiente(c), 0, corte));
    }
  }
  return solido;
}

}  // namespace duktores
