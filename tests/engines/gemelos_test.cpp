// The twins of the circle on a rectangular base: their worked figures and what tells them apart.

#include <gtest/gtest.h>

#include "engines/trans_cr.h"
#include "engines/trans_elip.h"
#include "engines/trans_rc.h"

namespace duktores {
namespace {

void ExpectPunto(Punto2 p, double x, double y) {
  EXPECT_NEAR(p.x, x, 0.005);
  EXPECT_NEAR(p.y, y, 0.005);
}

Transicion ColocaRC(double L1, double L2, double R, std::int16_t N, double Ax, double Ay, double grados,
                    std::int16_t inicio) {
  EWdraw axew;
  clTransRC motor;
  motor.GeneraPuntos(axew, L1, L2, R, N, Ax, Ay, 300, Radianes(grados), inicio);
  return motor.Modelo();
}

TEST(ClTransRC, WorkedPattern) {
  const Transicion t = ColocaRC(400, 300, 100, 16, 0, 0, 0, 1);
  const auto& [F, C] = std::pair(t.dPuntosPlano, t.dVerticesPlano);
  ExpectPunto(F(9), 0, 316.23);
  ExpectPunto(C(4), 150, 0);
  ExpectPunto(C(3), -150, 0);
  ExpectPunto(C(5), 481.74, 223.49);
  ExpectPunto(C(2), -481.74, 223.49);
  ExpectPunto(F(1), -245.01, 481.29);
  ExpectPunto(F(17), 245.01, 481.29);
  ExpectPunto(C(1), -538.08, 362.51);
  ExpectPunto(C(6), 538.08, 362.51);
}

TEST(ClTransRC, TiltsAndOffsetsMoveTheStart) {
  EXPECT_EQ(ColocaRC(400, 300, 200, 12, 0, 30, 0, 1).dVerticesPlano(4).x, 180);
  EXPECT_EQ(ColocaRC(400, 300, 200, 12, 0, 30, 0, 3).dVerticesPlano(4).x, 120);
  EXPECT_EQ(ColocaRC(400, 300, 200, 12, 30, 0, 0, 2).dVerticesPlano(4).x, 230);
  EXPECT_EQ(ColocaRC(400, 300, 200, 12, 30, 0, 0, 4).dVerticesPlano(4).x, 170);
  EXPECT_EQ(ColocaRC(400, 300, 200, 12, 30, 0, 5, 2).dVerticesPlano(4).x, 200);
  EXPECT_NEAR(ColocaRC(400, 300, 200, 12, 30, 0, 5, 2).dPtoInicio.x, 200, 1e-9) << "the foot forgets the offset";
  EXPECT_GT(ColocaRC(400, 300, 200, 12, 30, 0, -5, 2).dPtoInicio.x, 229) << "and keeps it when tilted the other way";
  EXPECT_NEAR(ColocaRC(400, 300, 200, 12, 0, 0, 30, 1).dVertices3D(1).z, -100, 1e-9);
}

TEST(ClTransRC, AnyTiltSendsSideLinesOrSeamToTheMiddle) {
  EXPECT_FALSE(ColocaRC(400, 300, 200, 12, 0, 0, 0, 1).bFueraLado);
  EXPECT_TRUE(ColocaRC(400, 300, 200, 12, 0, 0, 1, 1).bFueraLado);
  EXPECT_FALSE(ColocaRC(400, 300, 200, 12, 0, 0, 1, 1).bFueraCierre);
  const Transicion t = ColocaRC(400, 300, 200, 12, 0, 0, 1, 2);
  EXPECT_TRUE(t.bFueraCierre);
  EXPECT_NEAR(Distancia(t.dVerticesPlano(1), t.dVerticesPlano(2)), 200, 0.01);
}

// Corner above the previous point (m = 4, k = 1) and below it (m = 5): where the twin rises, this one goes down.
TEST(ClTransRC, ChoicesAndTheirTies) {
  Transicion t;
  t.dPuntosPlano = Puntos2(2);
  t.dVerticesPlano = Puntos2(6);
  t.dVerticesPlano(4) = {0, 1};
  t.dVerticesPlano(5) = {0, -1};
  const ParPuntos altaA{{0, 9}, {1, 2}}, altaB{{1, 2}, {0, 9}}, empateY{{0, 5}, {1, 5}}, empateX{{3, 1}, {3, 0}};
  const ReglasPlano& r = kReglasRC;
  const struct {
    Eleccion elige;
    int m;
    const ParPuntos* pares;
    bool daA;
  } casos[]{
      {r.circuloDerecha, 4, &altaA, false},    {r.circuloDerecha, 4, &altaB, true},
      {r.circuloDerecha, 4, &empateY, false},  {r.circuloDerecha, 5, &altaB, true},
      {r.circuloDerecha, 5, &empateX, false},  {r.esquinaDerecha, 4, &altaA, true},
      {r.esquinaDerecha, 5, &altaA, false},    {r.esquinaDerecha, 5, &empateX, false},
      {r.circuloIzquierda, 4, &altaB, true},   {r.circuloIzquierda, 4, &empateY, false},
      {r.circuloIzquierda, 5, &altaA, true},   {r.esquinaIzquierda, 4, &altaA, false},
      {r.esquinaIzquierda, 4, &empateY, true}, {r.esquinaIzquierda, 5, &altaB, false},
  };
  for (std::size_t i = 0; i < std::size(casos); ++i) {
    const auto& c = casos[i];
    EXPECT_EQ(c.elige(*c.pares, t, c.m, 1), c.daA ? c.pares->A : c.pares->B) << "row " << i;
  }
  // The closing point lies across the line C(5)-F(2) from F(1).
  t.dPuntosPlano(2) = {4, -1};
  const Punto2 arriba{2, 3}, abajo{2, -3};
  EXPECT_EQ(r.cierre({arriba, abajo}, t, 5, 2), abajo);
  t.dPuntosPlano(1) = {2, -5};
  EXPECT_EQ(r.cierre({arriba, abajo}, t, 5, 2), arriba);
}

TEST(ClTransBaRectBoElip, DividesByPolarAngle) {
  EWdraw axew;
  axew.EwAddPoint({});
  clTransBaRectBoElip motor;
  motor.GeneraPuntos(axew, 300, 200, 200, 100, 12, 0, 0, 300, 0, 1);
  EXPECT_EQ(axew.EwEntityCount(), 0);
  const Punto3 M{150, 100, 300};
  const Puntos3& Q = motor.Modelo().dPuntos3D;
  EXPECT_NEAR(Distancia(Q(1), M + Punto3{100, 0, 0}), 0, 1e-9);
  EXPECT_NEAR(Distancia(Q(4), M + Punto3{0, -50, 0}), 0, 1e-9);
  const Punto3 r = Q(2) - M;
  EXPECT_NEAR(std::atan2(r.y, r.x), -dPi / 6, 1e-12);
  motor.GeneraPuntos(axew, 300, 200, 200, 100, 12, 0, 0, 300, 0, 2);
  EXPECT_NEAR(Distancia(motor.Modelo().dPuntos3D(1), M + Punto3{0, -50, 0}), 0, 1e-9);
}

TEST(ClTransBaRectBoElip, AnEllipseWithEqualAxesIsACircle) {
  for (std::int16_t inicio = 1; inicio <= 4; ++inicio) {
    EWdraw axew;
    clTransCR circulo;
    clTransBaRectBoElip elipse;
    circulo.GeneraPuntos(axew, 400, 300, 100, 24, 20, -15, 300, Radianes(10), inicio);
    elipse.GeneraPuntos(axew, 400, 300, 200, 200, 24, 20, -15, 300, 10, inicio);
    const Transicion &c = circulo.Modelo(), &e = elipse.Modelo();
    for (int k = 1; k <= 25; ++k) EXPECT_NEAR(Distancia(c.dPuntosPlano(k), e.dPuntosPlano(k)), 0, 1e-6) << k;
    for (int j = 1; j <= 6; ++j) EXPECT_NEAR(Distancia(c.dVerticesPlano(j), e.dVerticesPlano(j)), 0, 1e-6) << j;
  }
}

}  // namespace
}  // namespace duktores
