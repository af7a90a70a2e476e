#include "geometry/planas.h"

#include <algorithm>
#include <cmath>

#include "geometry/redondeo.h"

namespace duktores {

namespace {

// A cosine this little beyond 1 is a touch that rounding has moved.
constexpr double kToque = 1 + 1e-9;

ParPuntos CirculosNivelados(Punto2 c1, double r1, Punto2 c2, double r2, double d) {
  const double coseno = (d * d + (r2 - r1) * (r2 + r1)) / (2 * r2 * d);
  if (!(std::abs(coseno) <= kToque)) return {};
  const double c = std::clamp(coseno, -1.0, 1.0);
  const double x = c2.x + (c2.x > c1.x ? -c : c) * r2;
  const double alto = r2 * std::sqrt((1 - c) * (1 + c));
  return {{x, c2.y + alto}, {x, c2.y - alto}};
}

}  // namespace

// The radical line y = m*x + b meets the first circle where a*x^2 + p*x + e = 0, a = 1 + m^2. Near level centres m
// grows without bound and that quadratic loses all its digits. The same points lie half a chord to both sides of the
// foot on the line of centres, and the quadratic's discriminant is D = (2 * half chord * d / dy)^2, by Heron a product
// of sums.
ParPuntos InterseccionCirculos(Punto2 c1, double r1, Punto2 c2, double r2) {
  const double dx = c2.x - c1.x, dy = c2.y - c1.y;
  const double d = std::hypot(dx, dy);
  if (d == 0) return {};
  if (Redondea(c1.y, 2) == Redondea(c2.y, 2)) return CirculosNivelados(c1, r1, c2, r2, d);

  const double D = (r1 + r2 + d) * (r1 + r2 - d) * (d + r1 - r2) * (d - r1 + r2) / (dy * dy);
  if (!(Redondea(D, 4) >= 0)) return {};
  const double semicuerda = std::sqrt(std::max(Redondea(D, 6), 0.0)) * std::abs(dy) / (2 * d);
  const double hastaPie = (d + (r1 - r2) * (r1 + r2) / d) / 2;
  const Punto2 u{dx / d, dy / d};
  const Punto2 pie = c1 + hastaPie * u;
  const Punto2 haciaA{-std::abs(u.y), dy > 0 ? u.x : -u.x};
  return {pie + semicuerda * haciaA, pie - semicuerda * haciaA};
}

ParPuntos CorteRectaCirculo(double m, double b, Punto2 c, double r) {
  if (m > 1e10) return {{c.x, c.y - r}, {c.x, c.y + r}};
  const double a = m * m + 1;
  const double p = 2 * m * b - 2 * c.x - 2 * c.y * m;
  const double q = b * b - 2 * b * c.y + c.x * c.x + c.y * c.y - r * r;
  const double D = Redondea(p * p - 4 * a * q, 8);
  const auto punto = [&](double x) { return Punto2{x, m * x + b}; };
  if (D < 0) return {};
  if (D == 0) return {{}, punto(-p / (2 * a))};
  const double s = std::sqrt(D);
  return {punto((-p - s) / (2 * a)), punto((-p + s) / (2 * a))};
}

Punto3 CorteRectas(double m1, double b1, double x1, double m2, double b2, double x2) {
  if (m1 == kVertical) return {x1, m2 * x1 + b2, 0};
  if (m2 == kVertical) return {x2, m1 * x2 + b1, 0};
  const double x = Redondea((b2 - b1) / (m1 - m2), 8);
  return {x, m1 * x + b1, 0};
}

double AnguloRecta(Punto2 p1, Punto2 p2) {
  const double dx = p2.x - p1.x, dy = p2.y - p1.y;
  if (dx == 0) return dy > 0 ? 90 : 270;
  if (dy == 0) return dx > 0 ? 0 : 180;
  const double a = Grados(std::atan(dy / dx));
  if (dx < 0) return 180 + a;
  return dy > 0 ? a : 360 + a;
}

// Projected along the line, not through its slope: a steep line would leave no digits of the slope's product.
Punto2 PieDePerpendicular(Punto2 p, Punto2 a, Punto2 b) {
  if (a.x == b.x) return {a.x, p.y};
  const Punto2 r = b - a, v = p - a;
  return a + ((v.x * r.x + v.y * r.y) / (r.x * r.x + r.y * r.y)) * r;
}

double DistanciaASegmento(Punto2 p, Punto2 a, Punto2 b) {
  const Punto2 u = b - a, v = p - a;
  const double largo2 = u.x * u.x + u.y * u.y;
  const double t = largo2 > 0 ? std::clamp((u.x * v.x + u.y * v.y) / largo2, 0.0, 1.0) : 0;
  return Distancia(p, a + t * u);
}

}  // namespace duktores
