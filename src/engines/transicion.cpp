#include "engines/transicion.h"

#include <array>
#include <cmath>

namespace duktores {

const PosicionInicio& Inicio(std::int16_t iInicio) {
  // clang-format off
  static constexpr std::array<PosicionInicio, 4> posiciones{{
      // a0             P(1)    P(2)    P(3)    P(4)      ladoY  signo
      {0,            {{1, 0}, {0, 0}, {1, 1}, {0, 1}},  true,   1},
      {-dPi / 2,     {{0, 0}, {0, 1}, {1, 0}, {1, 1}},  false,  1},
      {-dPi,         {{0, 1}, {1, 1}, {0, 0}, {1, 0}},  true,  -1},
      {-3 * dPi / 2, {{1, 1}, {1, 0}, {0, 1}, {0, 0}},  false, -1},
  }};
  // clang-format on
  return posiciones.at(static_cast<std::size_t>(iInicio - 1));
}

Punto2 MasDerecha(const ParPuntos& AB) { return AB.A.x <= AB.B.x ? AB.B : AB.A; }
Punto2 MasIzquierda(const ParPuntos& AB) { return AB.A.x >= AB.B.x ? AB.B : AB.A; }

namespace {

// Right half: F(h+2) to F(N+1), around C(4) until q points stand, then around C(5).
void ColocaDerecha(Transicion& t, double ladoA, const ReglasPlano& reglas) {
  const auto& Q = t.dPuntos3D;
  const auto& P = t.dVertices3D;
  auto& F = t.dPuntosPlano;
  auto& C = t.dVerticesPlano;
  const int N = F.Cuenta() - 1, h = N / 2, q = N / 4;
  int j = 1, m = 4;
  for (int c = 2; c <= h + 1; ++c) {
    const int k = h + c;
    const auto AB = InterseccionCirculos(C(m), Distancia(Q(c), P(j)), F(k - 1), Distancia(Q(c), Q(c - 1)));
    F(k) = reglas.circuloDerecha(AB, t, m, k - 1);
    if (c == q + 1) {
      j = 2;
      C(5) = reglas.esquinaDerecha(InterseccionCirculos(F(k), Distancia(Q(c), P(j)), C(4), ladoA), t, m, k);
      m = 5;
    }
  }
}

// Left half: C(3), then F(h) down to F(1), with a new corner after each q points.
void ColocaIzquierda(Transicion& t, double ladoA, double ladoB, const ReglasPlano& reglas) {
  const auto& Q = t.dPuntos3D;
  const auto& P = t.dVertices3D;
  auto& F = t.dPuntosPlano;
  auto& C = t.dVerticesPlano;
  const int N = F.Cuenta() - 1, h = N / 2, q = N / 4;
  int j = 3, m = 3;
  C(3) = MasIzquierda(InterseccionCirculos(F(h + 1), Distancia(Q(h + 2), P(3)), C(4), ladoB));
  for (int k = h; k >= 1; --k) {
    const int c = N + 3 - k;
    const auto AB = InterseccionCirculos(C(m), Distancia(Q(c), P(j)), F(k + 1), Distancia(Q(c), Q(c - 1)));
    F(k) = reglas.circuloIzquierda(AB, t, m, k + 1);
    if (k == q + 1 || k == 1) {
      ++j;
      const double lado = k == 1 ? ladoB : ladoA;
      C(m - 1) = reglas.esquinaIzquierda(InterseccionCirculos(F(k), Distancia(Q(c), P(j)), C(m), lado), t, m, k);
      --m;
    }
  }
}

// The seam: C(1), up to here the corner where the closing side ends, moves to the seam's foot, and C(6) is the same
// point seen from the other end of the pattern.
void ColocaCostura(Transicion& t, const ReglasPlano& reglas) {
  const auto& F = t.dPuntosPlano;
  auto& C = t.dVerticesPlano;
  const int N = F.Cuenta() - 1;
  const Punto2 esquina = C(1);
  C(1) = t.bFueraCierre ? PuntoMedio(esquina, C(2)) : PieDePerpendicular(F(1), esquina, C(2));
  const auto AB = InterseccionCirculos(C(5), Distancia(C(1), esquina), F(N + 1), Distancia(F(1), C(1)));
  C(6) = reglas.cierre(AB, t, 5, N + 1);
}

}  // namespace

void ColocaPlano(Transicion& t, double ladoA, double ladoB, const ReglasPlano& reglas) {
  ColocaDerecha(t, ladoA, reglas);
  ColocaIzquierda(t, ladoA, ladoB, reglas);
  ColocaCostura(t, reglas);
}

void CortePieza1(Transicion& t) {
  const auto& C = t.dVerticesPlano;
  t.dCorteAlto = t.dPuntosPlano((t.dPuntosPlano.Cuenta() + 1) / 2);
  if (t.bFueraCierre) {
    t.dCorteBajo = PuntoMedio(C(4), C(3));
    t.dCorteBajo2 = t.dCorteAlto.y < t.dCorteBajo.y ? t.dCorteAlto : t.dCorteBajo;
  } else {
    t.dCorteBajo = PieDePerpendicular(t.dCorteAlto, C(3), C(4));
    t.dCorteBajo2 = {};
  }
}

double CalculaDistCentro(double Angulo, double Altura) { return Altura / std::tan(Radianes(Angulo)); }

double CalculaGiro(double x1, double y1) {
  if (x1 == 0) return y1 < 0 ? 3 * dPi / 2 : dPi / 2;
  if (y1 == 0) return x1 < 0 ? dPi : 0;
  const double a = std::atan(y1 / x1);
  if (x1 < 0) return a + dPi;
  return y1 < 0 ? a + 2 * dPi : a;
}

}  // namespace duktores
