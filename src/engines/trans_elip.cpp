#include "engines/trans_elip.h"

#include <cmath>

#include "engines/contorno.h"
#include "engines/solido.h"
#include "engines/trans_cr.h"
#include "geometry/rotacion.h"
#include "state/textos.h"

namespace duktores {

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

// The point of an ellipse with the full axes a along X and b along Y that is seen from its centre at the angle `polar`.
Punto3 EnElipse(Punto3 centro, double a, double b, double polar) {
  const double c = std::cos(polar), s = std::sin(polar);
  const double r = a / 2 * (b / 2) / std::hypot(b / 2 * c, a / 2 * s);
  return centro + Punto3{r * c, r * s, 0};
}

}  // namespace

const ReglasPlano kReglasElip{CirculoDerecha, EsquinaDerecha, kReglasCR.circuloIzquierda, kReglasCR.esquinaIzquierda,
                              kReglasCR.cierre};

PuntosSolido clTransBaRectBoElip::Solido(double L1Base, double L2Base, double RadioAlto, double RadioBajo,
                                         std::int16_t inumPuntos, double Ax, double Ay, double Altura,
                                         double Inclinacion) {
  const Punto3 centro{-Ax, -Ay, Altura};
  return {Boca(inumPuntos,
               [&](double a) { return Rota(EnElipse(centro, RadioAlto, RadioBajo, a), centro, kEjeY, -Inclinacion); }),
          EsquinasCentradas(L1Base, L2Base, 0)};
}

void clTransBaRectBoElip::GeneraDibujo(double L1Base, double L2Base, double RadioAlto, double RadioBajo,
                                       std::int16_t inumPuntos, double Ax, double Ay, double Altura, double Inclinacion,
                                       EWdraw& axew) {
  CursorEspera(true);
  axew.EwClear();
  const Punto3 centro{-Ax, -Ay, Altura};
  const auto elipse = axew.EwAddEllipse(centro, RadioAlto / 2, RadioBajo / 2, {0, 0, 1});
  axew.EwRotate(elipse, centro, kEjeY, -Inclinacion);
  axew.EwSetColor(elipse, kColorSolido);
  DibujaRectanguloYGeneratrices(axew,
                                Solido(L1Base, L2Base, RadioAlto, RadioBajo, inumPuntos, Ax, Ay, Altura, Inclinacion));
}

void clTransBaRectBoElip::GeneraPuntos(EWdraw& axew, double L1Base, double L2Base, double RadioTop, double RadioDown,
                                       std::int16_t inumDoblado, double Ax, double Ay, double Altura,
                                       double Inclinacion, std::int16_t iInicio) {
  axew.EwClear();
  const PosicionInicio& inicio = Inicio(iInicio);
  const Punto3 centro{L1Base / 2 + Ax, L2Base / 2 + Ay, Altura};
  modelo_ = {};
  PonBoca(modelo_, inumDoblado, inicio.a0,
          [&](double a) { return Rota(EnElipse(centro, RadioTop, RadioDown, a), centro, kEjeY, Inclinacion); });
  ColocaSobreRectangulo(modelo_, inicio, L1Base, L2Base, Ax, Ay, kReglasElip);
}

void clTransBaRectBoElip::GeneraDesarrollo(EWdraw& axew, std::int16_t inumPuntos) {
  duktores::GeneraDesarrollo(
      modelo_, axew, inumPuntos,
      {.cotas = ListaCotas::baseRectangular, .cotasPrimero = false, .cajetin = kCajetinElip, .soloCaja1 = true});
}

}  // namespace duktores
