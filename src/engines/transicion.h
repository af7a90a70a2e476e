#pragma once
// A triangulated transition between a circle and a rectangle: its points in space and its flat pattern, as the engines
// share them.
//
// Glossary. N: divisions of the circle, a multiple of 4; h = N/2, q = N/4. L1, L2: sides of the rectangle along X and
// Y. Q(c): points of the circle in space, walked in two halves that both begin at the start and end opposite to it, so
// that Q(h+2) repeats Q(1) and Q(N+2) repeats Q(h+1). P(j): corners of the rectangle as the halves pass them, P(5) =
// P(2). S: foot of the circle's centre on the start side. F(k): flat points of the circle, left to right. C(j): flat
// corners, C(1) and C(6) the seam's ends; C(3)-C(4) is the start side, on the X axis, and S the flat origin.
//
// Development frame: the rectangle's corner at the origin, sides along X and Y. Lengths in the configured unit.

#include <cstdint>
#include <functional>

#include "geometry/planas.h"
#include "geometry/puntos.h"

namespace duktores {

struct Transicion {
  Puntos3 dPuntos3D;          ///< Q(1..N+2)
  Puntos3 dVertices3D;        ///< P(1..5)
  Punto3 dPtoInicio;          ///< S
  Puntos2 dPuntosPlano;       ///< F(1..N+1)
  Puntos2 dVerticesPlano;     ///< C(1..6)
  bool bFueraCierre = false;  ///< the circle's centre projects at or beyond the half-length of the closing side
  bool bFueraLado = false;    ///< the same for the two sides next to the start side

  // Two pieces: the line from F(h+1) that splits the start side, in flat coordinates.
  Punto2 dCorteBajo;   ///< its end on the rectangle, for the first piece
  Punto2 dCorteBajo2;  ///< the same end for the second piece; the flat origin when the end is a foot, but for the exact
                       ///< pattern
};

/// What a start position means: `a0` is the angle of Q(1), `esquinas` are P(1) to P(4) in units of the sides, and the
/// start side runs along Y (`ladoY`) or X, with `signo` the sense in which the offset lengthens the part S-P(1).
struct PosicionInicio {
  double a0;
  Punto2 esquinas[4];
  bool ladoY;
  double signo;
};

/// `iInicio` is 1 to 4; anything else is std::out_of_range.
const PosicionInicio& Inicio(std::int16_t iInicio);

/// Sizes the lists for N divisions and fills Q(c) with the points `enAngulo` of the mouth: in the first half the angle
/// falls from a0, in the second it rises from there again.
void PonBoca(Transicion& t, int N, double a0, const std::function<Punto3(double)>& enAngulo);

/// Fills P(j) with the corners at z = 0.
void PonEsquinas(Transicion& t, const PosicionInicio& inicio, double L1, double L2);

/// Sets the flags: `fueraX`, `fueraY` say that the centre lies outside along that axis.
void PonFuera(Transicion& t, const PosicionInicio& inicio, bool fueraX, bool fueraY);

/// Picks one result of an intersection of circles around C(m) and F(k).
using Eleccion = Punto2 (*)(const ParPuntos& AB, const Transicion& t, int m, int k);

/// The choices of an engine, one for each kind of step.
struct ReglasPlano {
  Eleccion circuloDerecha;    ///< F(k+1) around C(m), right half
  Eleccion esquinaDerecha;    ///< C(5)
  Eleccion circuloIzquierda;  ///< F(k-1) around C(m), left half
  Eleccion esquinaIzquierda;  ///< C(m-1), left half
  Eleccion cierre;            ///< C(6)
};

/// The result further right (left); a tie gives B.
Punto2 MasDerecha(const ParPuntos& AB);
Punto2 MasIzquierda(const ParPuntos& AB);

/// Lays the transition flat by true lengths. Needs Q, P, F(h+1), C(4), both flags, and the lists of F and C in their
/// full size. With `estado.iExacto` the rules are not asked: the triangles are laid out as a strip, each beside the one
/// before. `ladoA` is the length P(1)-P(2), `ladoB` that of P(1)-P(3). Circles that don't meet put their point at
/// (0, 0).
void ColocaPlano(Transicion& t, double ladoA, double ladoB, const ReglasPlano& reglas);

/// A side line: the height of the plane triangle between two fans, from F(k) to the side of the rectangle below it. It
/// ends at the foot of the perpendicular, or at the middle of the side where the offset leaves the foot without
/// meaning; with `estado.iExacto` also where the foot falls beside the side.
struct LineaLado {
  Punto2 alto, bajo;  ///< on the circle, on the side
  /// The end with the smaller y.
  Punto2 Pie() const { return alto.y < bajo.y ? alto : bajo; }
};
/// `turno` 1 to 3 from left to right, at k = turno*q + 1; 2 is that of the start side.
LineaLado LineaDeLado(const Transicion& t, int turno);

/// Leaves the line that splits a pattern in two pieces.
void CortePieza1(Transicion& t);

/// A height's horizontal run at a slope of `Angulo` degrees.
double CalculaDistCentro(double Angulo, double Altura);

/// The direction of a vector, in radians from 0 up to 2*pi; (0, 0) gives pi/2.
double CalculaGiro(double x1, double y1);

}  // namespace duktores
