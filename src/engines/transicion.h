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
// Development frame: the rectangle's corner at the origin, sides along X and Y, the rectangle below and the circle
// above. It is a mirror image of the solid, so that the pattern shows the outer side: with a rectangular base Y is
// mirrored, with a rectangular mouth Z. Lengths in the configured unit.

#include <array>
#include <functional>

#include "geometry/planas.h"
#include "geometry/puntos.h"
#include "piece/patron.h"

namespace duktores {

/// What a start position means: `a0` is the angle of Q(1), `esquinas` are P(1) to P(4) in units of the sides, and the
/// start side runs along Y (`ladoY`) or X, with `signo` the sense in which the offset lengthens the part S-P(1).
struct PosicionInicio {
  double a0;
  Punto2 esquinas[4];
  bool ladoY;
  double signo;
};

/// `iInicio` is 1 to 4; anything else is std::out_of_range.
const PosicionInicio& Inicio(int iInicio);

/// A transition in space, and where its pattern begins.
struct EnEspacio {
  Puntos3 dPuntos3D;            ///< Q(1..N+2)
  Puntos3 dVertices3D;          ///< P(1..5)
  Punto3 dPtoInicio;            ///< S
  bool bFueraCierre = false;    ///< the circle's centre projects at or beyond the half-length of the closing side
  bool bFueraLado = false;      ///< the same for the two sides next to the start side
  double ladoA = 0, ladoB = 0;  ///< the lengths P(1)-P(2) and P(1)-P(3)
  Punto2 primera, C4;           ///< F(h+1) and C(4)
};

struct Transicion : EnEspacio {
  Puntos2 dPuntosPlano;    ///< F(1..N+1)
  Puntos2 dVerticesPlano;  ///< C(1..6)
  Regla regla = Regla::usual;
};

/// Q(1..N+2) of the mouth whose points `enAngulo` gives: in the first half the angle falls from a0, in the second it
/// rises from there again.
Puntos3 Recorrido(int N, double a0, const std::function<Punto3(double)>& enAngulo);

/// P(1..5) at z = 0.
Puntos3 Esquinas(const PosicionInicio& inicio, double L1, double L2);

/// A curve of the points Q over a level rectangle; `desvio` are the offsets of its centre in the development frame.
EnEspacio SobreRectangulo(Puntos3 Q, const PosicionInicio& inicio, const Boca& rectangulo, Punto2 desvio);

/// The tilt as the development of a circle has always taken it, to the last digit: by way of radians.
inline double PorRadianes(double grados) { return Grados(Radianes(grados)); }

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

/// Lays the transition flat by true lengths. The exact rule doesn't ask for choices: the triangles are laid out as a
/// strip, each beside the one before. Circles that don't meet put their point at (0, 0).
Transicion ColocaPlano(EnEspacio espacio, const ReglasPlano& reglas, Regla regla);

/// A side line: the height of the plane triangle between two fans, from F(k) to the side of the rectangle below it. It
/// ends at the foot of the perpendicular, or at the middle of the side where the offset leaves the foot without
/// meaning; by the exact rule also where the foot falls beside the side.
struct LineaLado {
  Punto2 alto, bajo;  ///< on the circle, on the side
  /// The end with the smaller y.
  Punto2 Pie() const { return alto.y < bajo.y ? alto : bajo; }
};
/// `turno` 1 to 3 from left to right, at k = turno*q + 1; 2 is that of the start side.
LineaLado LineaDeLado(const Transicion& t, int turno);

/// The lower end of the line that splits a pattern in two pieces.
struct Corte {
  Punto2 dCorteBajo;   ///< for the first piece
  Punto2 dCorteBajo2;  ///< for the second; by the usual rules the flat origin when the end is a foot
};
Corte CortePieza1(const Transicion& t);

/// A height's horizontal run at a slope of `Angulo` degrees.
double CalculaDistCentro(double Angulo, double Altura);

/// The direction of a vector, in radians from 0 up to 2*pi; (0, 0) gives pi/2.
double CalculaGiro(double x1, double y1);

}  // namespace duktores
