#include "engines/trans_cr.h"

#include <cmath>

#include "engines/contorno.h"
#include "engines/solido.h"
#include "geometry/rotacion.h"
#include "state/textos.h"

namespace duktores {

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

void ColocaSobreRectangulo(Transicion& t, const PosicionInicio& inicio, double L1Base, double L2Base, double Ax,
                           double Ay, const ReglasPlano& reglas) {
  PonEsquinas(t, inicio, L1Base, L2Base);
  const Punto3 P1 = t.dVertices3D(1);
  t.dPtoInicio = inicio.ladoY ? Punto3{P1.x, L2Base / 2 + Ay, 0} : Punto3{L1Base / 2 + Ax, P1.y, 0};
  PonFuera(t, inicio, std::abs(Ax) >= L1Base / 2, std::abs(Ay) >= L2Base / 2);

  const int h = (t.dPuntosPlano.Cuenta() - 1) / 2;
  t.dPuntosPlano(h + 1) = {0, Distancia(t.dPtoInicio, t.dPuntos3D(1))};
  t.dVerticesPlano(4) = {inicio.ladoY ? L2Base / 2 + inicio.signo * Ay : L1Base / 2 + inicio.signo * Ax, 0};
  ColocaPlano(t, inicio.ladoY ? L1Base : L2Base, inicio.ladoY ? L2Base : L1Base, reglas);
}

constexpr ReglasPlano kReglasCR{CirculoDerecha, EsquinaDerecha, CirculoIzquierda, EsquinaIzquierda, Cierre};

PuntosSolido clTransCR::Solido(double L1Base, double L2Base, double RadioAlto, std::int16_t inumPuntos, double Ax,
                               double Ay, double Altura, double Inclinacion) {
  const Punto3 centro{-Ax, -Ay, Altura};
  return {
      Boca(inumPuntos, [&](double a) { return Rota(EnCirculo(centro, RadioAlto, a), centro, kEjeY, -Inclinacion); }),
      EsquinasCentradas(L1Base, L2Base, 0)};
}

void clTransCR::GeneraDibujo(double L1Base, double L2Base, double RadioAlto, std::int16_t inumPuntos, double Ax,
                             double Ay, double Altura, double Inclinacion, EWdraw& axew) {
  CursorEspera(true);
  const Punto3 centro{-Ax, -Ay, Altura};
  const auto circulo = axew.EwAddCircle(centro, RadioAlto, {0, 0, 1});
  axew.EwRotate(circulo, centro, kEjeY, -Inclinacion);
  axew.EwSetColor(circulo, kColorSolido);
  DibujaRectanguloYGeneratrices(axew, Solido(L1Base, L2Base, RadioAlto, inumPuntos, Ax, Ay, Altura, Inclinacion));
}

void clTransCR::GeneraPuntos(EWdraw&, double L1Base, double L2Base, double RadioTop, std::int16_t inumDoblado,
                             double Ax, double Ay, double Altura, double Inclinacion, std::int16_t iInicio) {
  const PosicionInicio& inicio = Inicio(iInicio);
  const Punto3 centro{L1Base / 2 + Ax, L2Base / 2 + Ay, Altura};
  modelo_ = {};
  PonBoca(modelo_, inumDoblado, inicio.a0,
          [&](double a) { return Rota(EnCirculo(centro, RadioTop, a), centro, kEjeY, Grados(Inclinacion)); });
  ColocaSobreRectangulo(modelo_, inicio, L1Base, L2Base, Ax, Ay, kReglasCR);
}

void clTransCR::GeneraDesarrollo(EWdraw& axew, std::int16_t inumPuntos) {
  duktores::GeneraDesarrollo(
      modelo_, axew, inumPuntos,
      {.cotas = ListaCotas::baseRectangular, .cotasPrimero = false, .cajetin = kCajetinCR, .soloCaja1 = false});
}

}  // namespace duktores
