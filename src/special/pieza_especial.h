#pragma once
// The geometry of the special pieces. Each mouth is a rectangle whose corners may be rounded by quarter circles. Four
// quarters of oblique cones stand at the corners, four flat panels between them, and a tilted plane cuts the top off.
// The five pieces differ in their radii alone.
//
// Frame: the lower mouth is centred on the origin, the upper one on (AX, AY). Corner 1 lies at -x -y, 2 at -x +y, 3 at
// +x +y, 4 at +x -y; side c joins corner c to the next. Lengths in the configured unit, angles in degrees with the
// signs that were typed.

#include "geometry/puntos.h"
#include "piece/pieza.h"

namespace duktores {

inline constexpr int kPasosPorDivision = 36;  ///< steps round a circle to each of its divisions
inline constexpr int kMaximoDivisiones = 32767 / kPasosPorDivision / 4 * 4;  ///< the most whose steps still fit 16 bits
inline constexpr double kRoce = 0.005;  ///< an edge, or a radius, of all but no length

inline int Siguiente(int corner) { return corner % 4 + 1; }

struct PiezaEspecial {
  Bocas bocas;
  double H = 0, AX = 0, AY = 0, Alfa = 0, Beta = 0;

  double r1(int c) const { return bocas.arriba.r(c); }  ///< upper radius of a corner
  double r2(int c) const { return bocas.abajo.r(c); }   ///< lower radius
};

/// A piece with the mouths that its rule gives it, or with others.
PiezaEspecial ComoEspecial(const Pieza& pieza);
PiezaEspecial ComoEspecial(const Pieza& pieza, const Bocas& bocas);

/// A corner's quarter circles, walked clockwise from the angle a0: centres on the lower and the upper mouth.
struct EsquinaEspecial {
  double a0;
  Punto3 bajo, alto;
};
EsquinaEspecial Esquina(const PiezaEspecial& pieza, int c);

/// The plane a*x + b*y + c*z + d = 0 that cuts the upper mouth. All four are 0 when there is none.
struct PlanoCorte {
  double a = 0, b = 0, c = 0, d = 0;
};
PlanoCorte PlanoDeCorte(const PiezaEspecial& pieza);

/// Where the line from Q on the lower mouth to T on the uncut upper one meets the plane; T where it doesn't.
Punto3 PuntoDeCorte(const PlanoCorte& plano, Punto3 Q, Punto3 T);

/// One element of a corner: point p = 1..q+1 of its quarter, on the lower mouth and on the cut.
struct Elemento {
  Punto3 bajo, corte;
};
Elemento ElementoDe(const PiezaEspecial& pieza, const PlanoCorte& plano, int c, int p, int n);

/// False if the cut falls below the lower mouth anywhere on a rim of n steps a circle.
bool CompruebaValido(const PiezaEspecial& pieza, int n);

}  // namespace duktores
