#pragma once
// The plane routines that the engines share. Points are in the flat frame of a pattern. None of them fails: what an
// impossible input gives is said with each.

#include "geometry/puntos.h"

namespace duktores {

/// The two results of an intersection, in the order that the callers' choices rest on.
struct ParPuntos {
  Punto2 A, B;
};

/// Both intersections of the circles (`c1`, `r1`) and (`c2`, `r2`).
///
/// Centres whose y agree when rounded to 2 decimals count as level: A and B then have the same x, A is the upper one,
/// and both are laid from c2 as if the centres were exactly level. Otherwise A is the one with the smaller x.
/// Circles that don't meet, and equal centres, give (0, 0) twice.
ParPuntos InterseccionCirculos(Punto2 c1, double r1, Punto2 c2, double r2);

/// The line y = m*x + b and the circle (`c`, `r`). A slope above 1E+10 stands for the vertical through the centre: A is
/// the lower, B the upper point. Otherwise A has the smaller x; a touch gives A = (0, 0) and the point in B; a miss
/// gives (0, 0) twice. Touch and miss are judged on the discriminant rounded to 8 decimals.
ParPuntos CorteRectaCirculo(double m, double b, Punto2 c, double r);

inline constexpr double kVertical = 1e9;  ///< the slope that marks a vertical line

/// The meeting point of y = m1*x + b1 and y = m2*x + b2, z = 0. A line of slope `kVertical` lies at its `x1` or `x2`. x
/// is rounded to 8 decimals unless a line is vertical. Parallel lines must not be passed.
Punto3 CorteRectas(double m1, double b1, double x1, double m2, double b2, double x2);

/// The direction from `p1` to `p2`, counter-clockwise from the positive x axis, in degrees from 0 up to 360.
/// Equal points give 270.
double AnguloRecta(Punto2 p1, Punto2 p2);

/// The foot of the perpendicular from `p` on the line through `a` and `b`. When a.x and b.x are equal the line is taken
/// as vertical, also if the two points coincide.
Punto2 PieDePerpendicular(Punto2 p, Punto2 a, Punto2 b);

/// From a point to the nearest point of the segment between `a` and `b`.
double DistanciaASegmento(Punto2 p, Punto2 a, Punto2 b);

/// Twice the area of the triangle from the origin to `a` and `b`, positive if b lies counter-clockwise of a.
inline double Vectorial2(Punto2 a, Punto2 b) { return a.x * b.y - a.y * b.x; }

inline Punto2 PuntoMedio(Punto2 a, Punto2 b) { return {(a.x - b.x) / 2 + b.x, (a.y - b.y) / 2 + b.y}; }

}  // namespace duktores
