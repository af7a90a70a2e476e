#include "engines/elecciones.h"

namespace duktores {

namespace cr {
namespace {

// With the corner above the previous point the circle goes on upwards, else outwards. The ties differ from half to
// half.
Punto2 CirculoDerecha(const ParPuntos& AB, const Transicion& t, int m, int k) {
  if (t.dVerticesPlano(m).y > t.dPuntosPlano(k).y) return AB.B.y > AB.A.y ? AB.B : AB.A;
  return MasDerecha(AB);
}

Punto2 CirculoIzquierda(const ParPuntos& AB, const Transicion& t, int m, int k) {
  if (t.dVerticesPlano(m).y > t.dPuntosPlano(k).y) return AB.B.y >= AB.A.y ? AB.B : AB.A;
  return MasIzquierda(AB);
}

Punto2 EsquinaDerecha(const ParPuntos& AB, const Transicion&, int, int) { return MasDerecha(AB); }

Punto2 EsquinaIzquierda(const ParPuntos& AB, const Transicion& t, int m, int k) {
  if (t.dVerticesPlano(m).y > t.dPuntosPlano(k).y) return AB.B.y <= AB.A.y ? AB.A : AB.B;
  return MasIzquierda(AB);
}

// Judged by the other end of the seam, F(1).
Punto2 Cierre(const ParPuntos& AB, const Transicion& t, int m, int) {
  return t.dVerticesPlano(m).y > t.dPuntosPlano(1).y ? AB.A : MasDerecha(AB);
}

}  // namespace
}  // namespace cr

namespace rc {
namespace {

bool EsquinaEncima(const Transicion& t, int m, int k) { return t.dVerticesPlano(m).y > t.dPuntosPlano(k).y; }

// With the corner above the previous point this pattern goes on downwards, where that of a rectangular base rises.
Punto2 CirculoDerecha(const ParPuntos& AB, const Transicion& t, int m, int k) {
  if (EsquinaEncima(t, m, k)) return AB.B.y > AB.A.y ? AB.A : AB.B;
  return MasDerecha(AB);
}

Punto2 CirculoIzquierda(const ParPuntos& AB, const Transicion& t, int m, int k) {
  if (EsquinaEncima(t, m, k)) return AB.B.y > AB.A.y ? AB.A : AB.B;
  return MasIzquierda(AB);
}

Punto2 EsquinaDerecha(const ParPuntos& AB, const Transicion& t, int m, int k) {
  return t.dVerticesPlano(m).y < t.dPuntosPlano(k).y ? MasDerecha(AB) : MasIzquierda(AB);
}

Punto2 EsquinaIzquierda(const ParPuntos& AB, const Transicion& t, int m, int k) {
  if (EsquinaEncima(t, m, k)) return AB.B.y < AB.A.y ? AB.B : AB.A;
  return MasIzquierda(AB);
}

// C(6) lies beyond the line C(5)-F(N+1), seen from F(N). If that tells nothing, as for any next point.
Punto2 Cierre(const ParPuntos& AB, const Transicion& t, int m, int k) {
  const Punto2 desde = t.dVerticesPlano(m), linea = t.dPuntosPlano(k) - desde;
  const auto lado = [&](Punto2 p) { return linea.x * (p - desde).y - linea.y * (p - desde).x; };
  const double interior = lado(t.dPuntosPlano(k - 1));
  const bool enfrenteA = lado(AB.A) * interior < 0, enfrenteB = lado(AB.B) * interior < 0;
  if (enfrenteA == enfrenteB) return CirculoDerecha(AB, t, m, k);
  return enfrenteA ? AB.A : AB.B;
}

}  // namespace
}  // namespace rc

namespace elip {
namespace {

// Of two results as far away the choice falls on B, and rounding must not make a difference of such a tie. While the
// first fan is laid C(3) is still the origin.
Punto2 CirculoDerecha(const ParPuntos& AB, const Transicion& t, int m, int) {
  constexpr double kEmpate = 1e-9;
  const Punto2 esquina = t.dVerticesPlano(m - 1);
  return Distancia(AB.A, esquina) > Distancia(AB.B, esquina) + kEmpate ? AB.A : AB.B;
}

Punto2 EsquinaDerecha(const ParPuntos& AB, const Transicion& t, int, int k) {
  const Punto2 anterior = t.dPuntosPlano(k - 1);
  return Distancia(AB.A, anterior) > Distancia(AB.B, anterior) ? AB.A : AB.B;
}

}  // namespace
}  // namespace elip

constexpr ReglasPlano kReglasCR{cr::CirculoDerecha, cr::EsquinaDerecha, cr::CirculoIzquierda, cr::EsquinaIzquierda,
                                cr::Cierre};
constexpr ReglasPlano kReglasRC{rc::CirculoDerecha, rc::EsquinaDerecha, rc::CirculoIzquierda, rc::EsquinaIzquierda,
                                rc::Cierre};
constexpr ReglasPlano kReglasElip{elip::CirculoDerecha, elip::EsquinaDerecha, cr::CirculoIzquierda,
                                  cr::EsquinaIzquierda, cr::Cierre};

}  // namespace duktores
