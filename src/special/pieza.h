#pragma once
// The family of special pieces. Each joins a lower mouth in the plane z = 0 to an upper mouth at z = H; each mouth is a
// rectangle whose corners may be rounded by quarter circles. Four quarters of oblique cones stand at the corners, four
// flat panels between them, and a tilted plane cuts the top off. The five pieces differ in their radii alone.
//
// Frame: the lower mouth is centred on the origin, the upper one on (AX, AY). Corner 1 lies at -x -y, 2 at -x +y, 3 at
// +x +y, 4 at +x -y; side c joins corner c to the next. Lengths in the configured unit, angles in degrees as `estado`
// holds them: the entered ones negated.

#include <array>
#include <cassert>

#include "geometry/puntos.h"

namespace duktores {

/// One value for each corner, indexed from 1.
class Cuatro {
 public:
  Cuatro() = default;
  Cuatro(double v1, double v2, double v3, double v4) : v_{v1, v2, v3, v4} {}
  explicit Cuatro(double v) : Cuatro(v, v, v, v) {}
  double& operator()(int c) { return v_.at(static_cast<std::size_t>(c - 1)); }
  double operator()(int c) const { return v_.at(static_cast<std::size_t>(c - 1)); }

 private:
  std::array<double, 4> v_{};
};

inline int Siguiente(int corner) { return corner % 4 + 1; }

struct PiezaEspecial {
  Cuatro r1, r2;                              ///< upper and lower radius of each corner
  double LX1 = 0, LY1 = 0, LX2 = 0, LY2 = 0;  ///< sides of the upper and the lower mouth
  double H = 0, AX = 0, AY = 0, Alfa = 0, Beta = 0;
};

/// The dimensions that `estado` holds, each by its name.
PiezaEspecial MedidasDeEstado();
/// The piece of `estado`, as its solid shows it: with the radii and sides that its type gives.
PiezaEspecial PiezaDeEstado();

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

}  // namespace duktores
