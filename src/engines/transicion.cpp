#include "engines/transicion.h"

#include <array>
#include <cmath>
#include <utility>

namespace duktores {

const PosicionInicio& Inicio(int iInicio) {
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

Puntos3 Recorrido(int N, double a0, const std::function<Punto3(double)>& enAngulo) {
  const int h = N / 2;
  const double paso = 2 * dPi / N;
  Puntos3 Q(N + 2);
  for (int c = 1; c <= N + 2; ++c) Q(c) = enAngulo(a0 + (c <= h + 1 ? 1 - c : c - h - 2) * paso);
  return Q;
}

Puntos3 Esquinas(const PosicionInicio& inicio, double L1, double L2) {
  Puntos3 P(5);
  for (int j = 1; j <= 4; ++j) {
    const Punto2 esquina = inicio.esquinas[j - 1];
    P(j) = {esquina.x * L1, esquina.y * L2, 0};
  }
  P(5) = P(2);
  return P;
}

EnEspacio SobreRectangulo(Puntos3 Q, const PosicionInicio& inicio, const Boca& rectangulo, Punto2 desvio) {
  const double L1 = rectangulo.LX, L2 = rectangulo.LY;
  const auto [Ax, Ay] = desvio;
  const bool ladoY = inicio.ladoY, fueraX = std::abs(Ax) >= L1 / 2, fueraY = std::abs(Ay) >= L2 / 2;
  EnEspacio t;
  t.dPuntos3D = std::move(Q);
  t.dVertices3D = Esquinas(inicio, L1, L2);
  const Punto3 P1 = t.dVertices3D(1);
  t.dPtoInicio = ladoY ? Punto3{P1.x, L2 / 2 + Ay, 0} : Punto3{L1 / 2 + Ax, P1.y, 0};
  t.bFueraCierre = ladoY ? fueraY : fueraX;
  t.bFueraLado = ladoY ? fueraX : fueraY;
  t.ladoA = ladoY ? L1 : L2;
  t.ladoB = ladoY ? L2 : L1;
  t.primera = {0, Distancia(t.dPtoInicio, t.dPuntos3D(1))};
  t.C4 = {ladoY ? L2 / 2 + inicio.signo * Ay : L1 / 2 + inicio.signo * Ax, 0};
  return t;
}

Punto2 MasDerecha(const ParPuntos& AB) { return AB.A.x <= AB.B.x ? AB.B : AB.A; }
Punto2 MasIzquierda(const ParPuntos& AB) { return AB.A.x >= AB.B.x ? AB.B : AB.A; }

namespace {

// Right half: F(h+2) to F(N+1), around C(4) until q points stand, then around C(5).
void ColocaDerecha(Transicion& t, const ReglasPlano& reglas) {
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
      C(5) = reglas.esquinaDerecha(InterseccionCirculos(F(k), Distancia(Q(c), P(j)), C(4), t.ladoA), t, m, k);
      m = 5;
    }
  }
}

// Left half: C(3), then F(h) down to F(1), with a new corner after each q points.
void ColocaIzquierda(Transicion& t, const ReglasPlano& reglas) {
  const auto& Q = t.dPuntos3D;
  const auto& P = t.dVertices3D;
  auto& F = t.dPuntosPlano;
  auto& C = t.dVerticesPlano;
  const int N = F.Cuenta() - 1, h = N / 2, q = N / 4;
  int j = 3, m = 3;
  C(3) = MasIzquierda(InterseccionCirculos(F(h + 1), Distancia(Q(h + 2), P(3)), C(4), t.ladoB));
  for (int k = h; k >= 1; --k) {
    const int c = N + 3 - k;
    const auto AB = InterseccionCirculos(C(m), Distancia(Q(c), P(j)), F(k + 1), Distancia(Q(c), Q(c - 1)));
    F(k) = reglas.circuloIzquierda(AB, t, m, k + 1);
    if (k == q + 1 || k == 1) {
      ++j;
      const double lado = k == 1 ? t.ladoB : t.ladoA;
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

// Where a height stands on the side a-b of the rectangle. The exact pattern takes the middle too where the foot would
// fall beside the side.
Punto2 PieDeLado(Punto2 alto, Punto2 a, Punto2 b, bool fuera, Regla regla) {
  const Punto2 medio = PuntoMedio(b, a), pie = fuera ? medio : PieDePerpendicular(alto, a, b);
  const bool aparte = Distancia(pie, medio) > Distancia(a, b) / 2;
  return regla == Regla::exacta && aparte ? medio : pie;
}

// The exact pattern: each triangle is a plane piece of the solid, and the frame of the edge that it shares with the one
// before gives its third point. No root is chosen, so no facet can turn over.
struct Arista {
  Punto2 a, b;  // flat; the next point lies to the left of a-b
  Punto3 A, B;  // in space

  Punto2 Siguiente(Punto3 X) const {
    const double largo = Distancia(A, B), largo2 = Distancia(a, b);
    const Punto3 u = largo > 0 ? (1 / largo) * (B - A) : Punto3{1, 0, 0}, v = X - A;
    const Punto2 u2 = largo2 > 0 ? (1 / largo2) * (b - a) : Punto2{1, 0};
    const double adelante = Escalar(v, u), aparte = Norma(v - adelante * u);
    return a + adelante * u2 + aparte * Punto2{-u2.y, u2.x};
  }
};

// The start side and F(h+1) above it: from C(4) towards the F(h+1) that the engine gives, and along the X axis if that
// isn't true.
void PonPrimera(Transicion& t) {
  constexpr double kCierto = 1e-6;
  const auto &Q = t.dPuntos3D, &P = t.dVertices3D;
  auto& C = t.dVerticesPlano;
  Punto2& F = t.dPuntosPlano((t.dPuntosPlano.Cuenta() + 1) / 2);
  const double largo = Distancia(P(1), Q(1)), dado = Distancia(C(4), F);
  if (F.y > 0 && std::abs(dado - largo) < kCierto) {
    F = C(4) + largo / dado * (F - C(4));
    C(3) = Arista{C(4), F, P(1), Q(1)}.Siguiente(P(3));
  } else {
    C(3) = C(4) - Punto2{Distancia(P(1), P(3)), 0};
    F = Arista{C(3), C(4), P(3), P(1)}.Siguiente(Q(1));
  }
}

void ColocaTira(Transicion& t) {
  const auto &Q = t.dPuntos3D, &P = t.dVertices3D;
  auto &F = t.dPuntosPlano, &C = t.dVerticesPlano;
  const int N = F.Cuenta() - 1, h = N / 2, q = N / 4;
  PonPrimera(t);
  for (int k = h + 2, m = 4; k <= N + 1; ++k) {
    const int c = k - h;
    F(k) = Arista{F(k - 1), C(m), Q(c - 1), P(m - 3)}.Siguiente(Q(c));
    if (c == q + 1) {
      C(5) = Arista{F(k), C(4), Q(c), P(1)}.Siguiente(P(2));
      m = 5;
    }
  }
  for (int k = h, m = 3; k >= 1; --k) {
    const int c = N + 3 - k;
    F(k) = Arista{C(m), F(k + 1), P(6 - m), Q(c - 1)}.Siguiente(Q(c));
    if (k == q + 1 || k == 1) {
      C(m - 1) = Arista{C(m), F(k), P(6 - m), Q(c)}.Siguiente(P(7 - m));
      --m;
    }
  }
  const Punto2 esquina = C(1);
  C(1) = PieDeLado(F(1), esquina, C(2), t.bFueraCierre, Regla::exacta);
  const double lado = Distancia(C(2), esquina), parte = lado > 0 ? Distancia(C(1), esquina) / lado : 0;
  const Punto3 costura = P(5) + parte * (P(4) - P(5));
  C(6) = Arista{F(N + 1), C(5), Q(h + 1), P(2)}.Siguiente(costura);
}

}  // namespace

Transicion ColocaPlano(EnEspacio espacio, const ReglasPlano& reglas, Regla regla) {
  const int N = espacio.dPuntos3D.Cuenta() - 2;
  Transicion t{std::move(espacio), Puntos2(N + 1), Puntos2(6), regla};
  t.dPuntosPlano(N / 2 + 1) = t.primera;
  t.dVerticesPlano(4) = t.C4;
  if (regla == Regla::exacta) {
    ColocaTira(t);
  } else {
    ColocaDerecha(t, reglas);
    ColocaIzquierda(t, reglas);
    ColocaCostura(t, reglas);
  }
  return t;
}

LineaLado LineaDeLado(const Transicion& t, int turno) {
  const auto& C = t.dVerticesPlano;
  const Punto2 alto = t.dPuntosPlano(turno * (t.dPuntosPlano.Cuenta() - 1) / 4 + 1);
  const bool fuera = turno == 2 ? t.bFueraCierre : t.bFueraLado;
  return {alto, PieDeLado(alto, C(turno + 1), C(turno + 2), fuera, t.regla)};
}

Corte CortePieza1(const Transicion& t) {
  const LineaLado corte = LineaDeLado(t, 2);
  if (t.regla == Regla::exacta) return {corte.bajo, corte.bajo};
  return {corte.bajo, t.bFueraCierre ? corte.Pie() : Punto2{}};
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
