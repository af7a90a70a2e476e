#pragma once
// What the 3D views of the transitions share. They go to the control alone; nothing of them reaches the file.

#include <array>
#include <cstdint>
#include <functional>

#include "geometry/puntos.h"
#include "viewer/ewdraw.h"

namespace duktores {

/// The point of a level circle at an angle.
Punto3 EnCirculo(Punto3 centro, double R, double angulo);

/// Points 1..N+1 of a mouth, at the angles (i - 1) * 2*pi/N.
Puntos3 Boca(int N, const std::function<Punto3(double)>& enAngulo);

/// Corners of a rectangle centred on the Z axis: of the quarters (+,+), (-,+), (-,-), (+,-), as the circle passes them.
std::array<Punto3, 4> EsquinasCentradas(double L1, double L2, double z);

/// A solid's points: boca(1..N+1) round the mouth, and the rectangle's corners.
struct PuntosSolido {
  Puntos3 boca;
  std::array<Punto3, 4> esquinas;
};

/// The four sides, and from each corner a fan of generators to its quarter of the circle's points boca(1..N+1), of
/// which the last repeats the first. The points where two quarters meet get a generator from both corners.
void DibujaRectanguloYGeneratrices(EWdraw& axew, const PuntosSolido& solido);

}  // namespace duktores
