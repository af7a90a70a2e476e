// The twins of the circle on a rectangular base: their worked figures and what tells them apart.

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

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
                    std::int16_t inicio, double H = 300) {
  EWdraw axew;
  clTransRC motor;
  motor.GeneraPuntos(axew, L1, L2, R, N, Ax, Ay, H, Radianes(grados), inicio);
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
  EXPECT_TRUE(ColocaRC(400, 300, 200, 12, 0, 0, 1, 1).bFueraLado);
  EXPECT_FALSE(ColocaRC(400, 300, 200, 12, 0, 0, 1, 1).bFueraCierre);
  const Transicion t = ColocaRC(400, 300, 200, 12, 0, 0, 1, 2);
  EXPECT_TRUE(t.bFueraCierre);
  EXPECT_NEAR(Distancia(t.dVerticesPlano(1), t.dVerticesPlano(2)), 200, 0.01);
}

TEST(ClTransRC, TheHalfLengthCountsAsOutside) {
  for (const double falta : {0.0, 0.01}) {
    for (std::int16_t inicio = 1; inicio <= 4; ++inicio) {
      const Transicion x = ColocaRC(400, 300, 200, 12, falta - 200, 0, 0, inicio),
                       y = ColocaRC(400, 300, 200, 12, 0, 150 - falta, 0, inicio);
      EXPECT_EQ(inicio % 2 == 1 ? x.bFueraLado : x.bFueraCierre, falta == 0);
      EXPECT_EQ(inicio % 2 == 1 ? y.bFueraCierre : y.bFueraLado, falta == 0);
    }
  }
}

// A start side tilted along its length, the circle's point straight above its middle.
TEST(ClTransRC, AFirstPointAtMostTwoHighHangsBelow) {
  for (const double alto : {1.99, 2.01}) {
    const Transicion t = ColocaRC(400, 300, 150, 12, 0, 0, 1, 2, alto / std::cos(Radianes(1)));
    EXPECT_NEAR(t.dPuntosPlano(7).y, alto < 2 ? -alto : alto, 1e-9);
  }
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

// The choices of the two differ where a facet turns over; none does in this range.
TEST(ClTransBaRectBoElip, AnEllipseWithEqualAxesIsACircle) {
  const auto semilla = std::random_device{}();
  std::mt19937 azar(semilla);
  std::uniform_real_distribution<double> u(0, 1);
  for (int i = 0; i < 300; ++i) {
    const double L1 = 300 + 300 * u(azar), L2 = 300 + 300 * u(azar), R = 60 + 60 * u(azar), H = 150 + 350 * u(azar);
    const double Ax = L1 / 4 * (2 * u(azar) - 1), Ay = L2 / 4 * (2 * u(azar) - 1), alfa = 20 * (2 * u(azar) - 1);
    const auto inicio = static_cast<std::int16_t>(1 + i % 4);
    EWdraw axew;
    clTransCR circulo;
    clTransBaRectBoElip elipse;
    circulo.GeneraPuntos(axew, L1, L2, R, 24, Ax, Ay, H, Radianes(alfa), inicio);
    elipse.GeneraPuntos(axew, L1, L2, 2 * R, 2 * R, 24, Ax, Ay, H, alfa, inicio);
    const Transicion &c = circulo.Modelo(), &e = elipse.Modelo();
    double peor = 0;
    for (int k = 1; k <= 25; ++k) peor = std::max(peor, Distancia(c.dPuntosPlano(k), e.dPuntosPlano(k)));
    for (int j = 1; j <= 6; ++j) peor = std::max(peor, Distancia(c.dVerticesPlano(j), e.dVerticesPlano(j)));
    EXPECT_LT(peor, 1e-5) << "seed " << semilla << " piece " << i << ": L1 " << L1 << " L2 " << L2 << " R " << R
                          << " H " << H << " Ax " << Ax << " Ay " << Ay << " alfa " << alfa << " start " << inicio;
  }
}

}  // namespace
}  // namespace duktores
