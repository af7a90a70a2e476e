#include "engines/trans_rc.h"

#include <cmath>

#include "engines/contorno.h"
#include "engines/solido.h"
#include "geometry/rotacion.h"
#include "state/textos.h"

namespace duktores {

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

constexpr ReglasPlano kReglasRC{CirculoDerecha, EsquinaDerecha, CirculoIzquierda, EsquinaIzquierda, Cierre};

PuntosSolido clTransRC::Solido(double L1Base, double L2Base, double RadioAlto, std::int16_t inumPuntos, double Ax,
                               double Ay, double Altura, double Inclinacion) {
  auto esquinas = EsquinasCentradas(L1Base, L2Base, Altura);
  for (Punto3& esquina : esquinas) esquina = Rota(esquina, {0, 0, Altura}, kEjeY, -Inclinacion);
  return {Boca(inumPuntos, [&](double a) { return EnCirculo({Ax, Ay, 0}, RadioAlto, a); }), esquinas};
}

void clTransRC::GeneraDibujo(double L1Base, double L2Base, double RadioAlto, std::int16_t inumPuntos, double Ax,
                             double Ay, double Altura, double Inclinacion, EWdraw& axew) {
  CursorEspera(true);
  axew.EwClear();
  axew.EwSetColor(axew.EwAddCircle({Ax, Ay, 0}, RadioAlto, {0, 0, 1}), kColorSolido);
  DibujaRectanguloYGeneratrices(axew, Solido(L1Base, L2Base, RadioAlto, inumPuntos, Ax, Ay, Altura, Inclinacion));
}

void clTransRC::GeneraPuntos(EWdraw&, double L1Base, double L2Base, double RadioTop, std::int16_t inumDoblado,
                             double Ax, double Ay, double Altura, double Inclinacion, std::int16_t iInicio) {
  const PosicionInicio& inicio = Inicio(iInicio);
  Transicion& t = modelo_ = {};
  PonBoca(t, inumDoblado, inicio.a0, [&](double a) {
    return EnCirculo({L1Base / 2 + Ax, L2Base / 2 + Ay, Altura}, RadioTop, a);
  });
  PonEsquinas(t, inicio, L1Base, L2Base);
  // A start side along X that is tilted positively takes its middle as the foot, in every other case the foot keeps the
  // offset.
  const Punto3 P1 = t.dVertices3D(1);
  const double pieX = L1Base / 2 + (Inclinacion > 0 ? 0 : Ax);
  t.dPtoInicio = inicio.ladoY ? Punto3{P1.x, L2Base / 2 + Ay, 0} : Punto3{pieX, P1.y, 0};
  const auto inclina = [&](Punto3& p) { p = Rota(p, {L1Base / 2, L2Base / 2, 0}, kEjeY, Grados(Inclinacion)); };
  for (int j = 1; j <= 5; ++j) inclina(t.dVertices3D(j));
  inclina(t.dPtoInicio);
  PonFuera(t, inicio, Inclinacion != 0 || std::abs(Ax) >= L1Base / 2, std::abs(Ay) >= L2Base / 2);
  ColocaInicio(inicio, L1Base, L2Base, Ax, Ay, Inclinacion);
  ColocaPlano(t, inicio.ladoY ? L1Base : L2Base, inicio.ladoY ? L2Base : L1Base, kReglasRC);
}

// F(h+1) and C(4). Above a start side that is tilted along its length F(h+1) doesn't stand square to its middle.
void clTransRC::ColocaInicio(const PosicionInicio& inicio, double L1Base, double L2Base, double Ax, double Ay,
                             double Inclinacion) {
  constexpr double kAltoMinimo = 2.0;
  Transicion& t = modelo_;
  const Punto3 Q1 = t.dPuntos3D(1);
  Punto2& F = t.dPuntosPlano((t.dPuntosPlano.Cuenta() + 1) / 2);
  Punto2& C4 = t.dVerticesPlano(4);
  const double d = Distancia(t.dPtoInicio, Q1);
  F = {0, d};
  if (inicio.ladoY) {
    C4 = {L2Base / 2 + inicio.signo * Ay, 0};
  } else if (Inclinacion == 0) {
    C4 = {L1Base / 2 + inicio.signo * Ax, 0};
  } else {
    C4 = {L1Base / 2, 0};
    const auto AB = InterseccionCirculos({0, 0}, d, C4, Distancia(t.dVertices3D(1), Q1));
    F = AB.A.y > kAltoMinimo ? AB.A : AB.B;
  }
}

void clTransRC::GeneraDesarrollo(EWdraw& axew, std::int16_t inumPuntos) {
  duktores::GeneraDesarrollo(
      modelo_, axew, inumPuntos,
      {.cotas = ListaCotas::baseCircular, .cotasPrimero = true, .cajetin = kCajetinRC, .soloCaja1 = false});
}

}  // namespace duktores
