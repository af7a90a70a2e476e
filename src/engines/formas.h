#pragma once
// The shapes of a transition's pattern: outlines, numbered lines and facets, with the points of the solid that they
// stand for.
//
// Four fans of bend lines: F(1)..F(q+1) on C(2), F(q+1)..F(2q+1) on C(3), F(2q+1)..F(3q+1) on C(4), F(3q+1)..F(N+1) on
// C(5), and a side line wherever two of them meet. Fans are counted from 0 here.

#include <array>
#include <vector>

#include "engines/cotas_transicion.h"
#include "piece/patron.h"

namespace duktores {

/// The solid's points in the order in which a pattern lays them out: F(1..N+1), and the corners below the four fans.
struct OrdenPatron {
  std::vector<int> F;
  std::array<int, 4> esquinas;

  int N() const { return static_cast<int>(F.size()) - 1; }
  int Punto(int k) const { return F[static_cast<std::size_t>(k - 1)]; }
  int Esquina(int abanico) const { return esquinas[static_cast<std::size_t>((abanico + 4) % 4)]; }
  // The solid's facets: of each fan its q triangles, and behind it the one on the side towards the next fan.
  int Triangulo(int abanico, int i) const { return abanico * (N() / 4 + 1) + i; }
  int Lado(int abanico) const { return Triangulo((abanico + 4) % 4, N() / 4); }
};

/// `sentido` is that of the engine; `inicio` counts on behind 4.
OrdenPatron Orden(const Pieza& pieza, int sentido, int inicio);

std::vector<Cara> Caras(const OrdenPatron& orden, bool dosPiezas);

FormaPatron FormaDe(const Transicion& t, const OrdenPatron& orden, Parte parte, const Corte& corte);

}  // namespace duktores
