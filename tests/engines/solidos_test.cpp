// The views: corners, mouth and generators, worked out here from the frame of each piece.

#include <gtest/gtest.h>

#include <functional>

#include "engines/trans_cr.h"
#include "engines/trans_elip.h"
#include "engines/trans_rc.h"

namespace duktores {
namespace {

constexpr double L1 = 400, L2 = 300, H = 250, Cx = 35, Cy = -20;
constexpr int N = 12;

// (x, y) on a plane at the height `z` about (cx, cy), which sinks by `grados` towards +X.
Punto3 Inclinado(double cx, double cy, double z, double x, double y, double grados) {
  return {cx + x * std::cos(Radianes(grados)), cy + y, z - x * std::sin(Radianes(grados))};
}

bool Juntos(Punto3 a, Punto3 b) { return Distancia(a, b) < 1e-9; }

// The control holds `antes` foreign entities, then the curve, the four sides, and the generators, quarter by quarter.
void CompruebaVista(const EWdraw& axew, std::size_t antes, TipoEntidad curva, double inclinaBase,
                    const std::function<Punto3(double)>& boca) {
  const double alto = inclinaBase == 0 ? 0 : H;
  const auto esquina = [&](std::size_t cuarto) {
    const double sx = cuarto == 0 || cuarto == 3 ? 1 : -1, sy = cuarto < 2 ? 1 : -1;
    return Inclinado(0, 0, alto, sx * L1 / 2, sy * L2 / 2, inclinaBase);
  };
  ASSERT_EQ(axew.Entidades().size(), antes + 1 + 4 + N + 4);
  const Entidad* e = &axew.Entidades()[antes];
  for (std::size_t i = 0; i < 1 + 4 + N + 4; ++i) EXPECT_EQ(e[i].color, 120) << i;
  const Entidad& aro = *e++;
  EXPECT_EQ(aro.tipo, curva);
  for (std::size_t lado = 0; lado < 4; ++lado, ++e) {
    EXPECT_TRUE(Juntos(e->puntos[0], esquina((4 - lado) % 4))) << lado;
    EXPECT_TRUE(Juntos(e->puntos[1], esquina(3 - lado))) << lado;
  }
  for (std::size_t cuarto = 0; cuarto < 4; ++cuarto) {
    for (std::size_t i = 0; i <= N / 4; ++i, ++e) {
      const Punto3 p = boca(Radianes(90.0 * static_cast<double>(cuarto) + 30.0 * static_cast<double>(i)));
      EXPECT_TRUE(Juntos(e->puntos[0], esquina(cuarto))) << cuarto << ' ' << i;
      EXPECT_TRUE(Juntos(e->puntos[1], p)) << cuarto << ' ' << i;
      const Punto3 r = p - aro.puntos[0];
      const double c = Escalar(r, aro.u) / Escalar(aro.u, aro.u), s = Escalar(r, aro.v) / Escalar(aro.v, aro.v);
      EXPECT_NEAR(c * c + s * s, 1, 1e-9) << "off the curve";
      EXPECT_TRUE(Juntos(r, c * aro.u + s * aro.v)) << "off the curve's plane";
    }
  }
}

TEST(Solidos, GeneratorsFromEachCornerToItsQuarter) {
  EWdraw cr, rc, elip;
  for (EWdraw* axew : {&cr, &rc, &elip}) axew->EwAddPoint({});
  clTransCR().GeneraDibujo(L1, L2, 100, N, -Cx, -Cy, H, -25, cr);
  CompruebaVista(cr, 1, TipoEntidad::circulo, 0,
                 [](double a) { return Inclinado(Cx, Cy, H, 100 * std::cos(a), 100 * std::sin(a), 25); });
  clTransRC().GeneraDibujo(L1, L2, 100, N, Cx, Cy, H, -25, rc);
  CompruebaVista(rc, 0, TipoEntidad::circulo, 25, [](double a) {
    return Punto3{Cx + 100 * std::cos(a), Cy + 100 * std::sin(a), 0};
  });
  clTransBaRectBoElip().GeneraDibujo(L1, L2, 240, 140, N, -Cx, -Cy, H, -25, elip);
  CompruebaVista(elip, 0, TipoEntidad::elipse, 0, [](double a) {
    const double r = 1 / std::hypot(std::cos(a) / 120, std::sin(a) / 70);
    return Inclinado(Cx, Cy, H, r * std::cos(a), r * std::sin(a), 25);
  });
}

}  // namespace
}  // namespace duktores
