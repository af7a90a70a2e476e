#include "engines/trans_cr.h"

#include <cmath>

#include "engines/contorno.h"
#include "engines/solido.h"
#include "geometry/rotacion.h"
#include "state/textos.h"

namespace duktores {

namespace {

constexpr Punto3 kEjeY{0, 1, 0};

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

constexpr ReglasPlano kReglasCR{CirculoDerecha, EsquinaDerecha, CirculoIzquierda, EsquinaIzquierda, Cierre};

void clTransCR::GeneraDibujo(double L1Base, double L2Base, double RadioAlto, std::int16_t inumPuntos, double Ax,
                             double Ay, double Altura, double Inclinacion, EWdraw& axew) {
  CursorEspera(true);
  const Punto3 centro{-Ax, -Ay, Altura};
  const auto circulo = axew.EwAddCircle(centro, RadioAlto, {0, 0, 1});
  axew.EwRotate(circulo, centro, kEjeY, -Inclinacion);
  axew.EwSetColor(circulo, kColorSolido);

  Puntos3 boca(inumPuntos + 1);
  for (int i = 1; i <= inumPuntos + 1; ++i) {
    const double a = (i - 1) * 2 * dPi / inumPuntos;
    const Punto3 enPlano{centro.x + RadioAlto * std::cos(a), centro.y + RadioAlto * std::sin(a), Altura};
    boca(i) = Rota(enPlano, centro, kEjeY, -Inclinacion);
  }
  DibujaRectanguloYGeneratrices(axew, EsquinasCentradas(L1Base, L2Base, 0), boca);
}

void clTransCR::GeneraPuntos(EWdraw&, double L1Base, double L2Base, double RadioTop, std::int16_t inumDoblado,
                             double Ax, double Ay, double Altura, double Inclinacion, std::int16_t iInicio) {
  const int N = inumDoblado, h = N / 2;
  const PosicionInicio& inicio = Inicio(iInicio);
  const double paso = 2 * dPi / N;
  const Punto3 centro{L1Base / 2 + Ax, L2Base / 2 + Ay, Altura};
  Transicion& t = modelo_ = {};

  t.dPuntos3D = Puntos3(N + 2);
  for (int c = 1; c <= N + 2; ++c) {
    const double pasos = c <= h + 1 ? 1 - c : c - h - 2;
    const double a = inicio.a0 + pasos * paso;
    const Punto3 enPlano{centro.x + RadioTop * std::cos(a), centro.y + RadioTop * std::sin(a), Altura};
    t.dPuntos3D(c) = Rota(enPlano, centro, kEjeY, Grados(Inclinacion));
  }
  t.dVertices3D = Puntos3(5);
  for (int j = 1; j <= 4; ++j) {
    const Punto2 esquina = inicio.esquinas[j - 1];
    t.dVertices3D(j) = {esquina.x * L1Base, esquina.y * L2Base, 0};
  }
  t.dVertices3D(5) = t.dVertices3D(2);
  t.dPtoInicio = inicio.ladoY ? Punto3{t.dVertices3D(1).x, centro.y, 0} : Punto3{centro.x, t.dVertices3D(1).y, 0};

  t.bFueraCierre = std::abs(inicio.ladoY ? Ay : Ax) >= (inicio.ladoY ? L2Base : L1Base) / 2;
  t.bFueraLado = std::abs(inicio.ladoY ? Ax : Ay) >= (inicio.ladoY ? L1Base : L2Base) / 2;

  t.dPuntosPlano = Puntos2(N + 1);
  t.dVerticesPlano = Puntos2(6);
  t.dPuntosPlano(h + 1) = {0, Distancia(t.dPtoInicio, t.dPuntos3D(1))};
  t.dVerticesPlano(4) = {inicio.ladoY ? L2Base / 2 + inicio.signo * Ay : L1Base / 2 + inicio.signo * Ax, 0};
  ColocaPlano(t, inicio.ladoY ? L1Base : L2Base, inicio.ladoY ? L2Base : L1Base, kReglasCR);
}

void clTransCR::GeneraDesarrollo(EWdraw& axew, std::int16_t inumPuntos) {
  duktores::GeneraDesarrollo(modelo_, axew, inumPuntos);
}

}  // namespace duktores
