#include "viewer/ewdraw.h"

#include <gtest/gtest.h>

#include <cmath>

namespace duktores {
namespace {

constexpr Punto3 kZ{0, 0, 1};

Punto3 Lee(const EWdraw& axew, std::int32_t id) {
  Punto3 p;
  EXPECT_TRUE(axew.EwGetPoint(id, p.x, p.y, p.z));
  return p;
}

std::int32_t Contorno(EWdraw& axew, std::initializer_list<Punto3> vertices) {
  axew.EwBeginPolyline();
  for (const Punto3& p : vertices) axew.EwAddVertex(p.x, p.y, p.z);
  return axew.EwEndPolyline(true);
}

void EsperaPunto(Punto3 p, Punto3 q, double tolerancia = 1e-12) {
  EXPECT_LE(Distancia(p, q), tolerancia) << p.x << ", " << p.y << ", " << p.z;
}

void EsperaCaja(const EWdraw& axew, std::int32_t id, Punto3 minimo, Punto3 maximo) {
  Punto3 p, q;
  EXPECT_TRUE(axew.EwExtent(id, p.x, p.y, p.z, q.x, q.y, q.z));
  EsperaPunto(p, minimo);
  EsperaPunto(q, maximo);
}

TEST(EWdraw, IdsAreNeverUsedTwice) {
  EWdraw axew;
  const auto punto = axew.EwAddPoint({1, 2, 3}), linea = axew.EwAddLine({}, {1, 0, 0});
  axew.EwDelete(punto);
  EXPECT_TRUE(punto == 1 && axew.EwEntityCount() == 1 && axew.EwEntityAt(0) == linea);
  double d = 7;
  EXPECT_FALSE(axew.EwEntityAt(1) || axew.EwEntityAt(-1) || axew.EwGetPoint(linea, d, d, d));
  axew.EwClear();
  EXPECT_EQ(axew.EwAddPoint({}), 3);
}

TEST(EWdraw, RotatesMovesAndCopies) {
  EWdraw axew;
  const Punto3 inicio{3.1, -4.7, 1e-3}, meta{0.1, 0.2, 0.3};
  const auto punto = axew.EwAddPoint(inicio);
  axew.EwRotate(punto, {1, 2, 3}, {0, 1, 0}, 0);
  axew.EwRotate(punto, inicio, {5, 1, 0}, 77);  // on the axis
  const auto copia = axew.EwCopy(punto, inicio, meta);
  EXPECT_EQ(Lee(axew, copia), meta) << "reached to the last digit";
  axew.EwRotate(copia, {}, {0, 2, 0}, 90);
  EsperaPunto(Lee(axew, copia), {0.3, 0.2, -0.1});
  EXPECT_EQ(Lee(axew, punto), inicio);
  axew.EwMove(punto, inicio, meta);
  EXPECT_EQ(Lee(axew, punto), meta);

  // A text turns with its baseline and keeps its height.
  axew.EwRotate(axew.EwAddText("7", "Arial", {10, 0, 0}, 4, 90), {}, kZ, 90);
  const Entidad& e = axew.Entidades().back();
  EsperaPunto(e.puntos[0] + e.u, {-4, 10, 0});
  EsperaPunto(e.puntos[0] + e.v, {0, 6, 0});
}

TEST(EWdraw, BoxesOfCurvesAreExact) {
  EWdraw axew;
  EsperaCaja(axew, axew.EwAddCircle({5, 6, 7}, 10, kZ), {-5, -4, 7}, {15, 16, 7});
  const auto elipse = axew.EwAddEllipse({}, 20, 10, kZ);
  axew.EwRotate(elipse, {}, kZ, 30);
  axew.EwRotate(elipse, {}, {1, 0, 0}, 60);
  const double y = std::sqrt(400 * 0.25 + 100 * 0.75);
  const Punto3 alta{std::sqrt(400 * 0.75 + 100 * 0.25), y / 2, y * std::sqrt(0.75)};
  EsperaCaja(axew, elipse, -1.0 * alta, alta);
  const double h = 10 * std::sqrt(0.75);
  EsperaCaja(axew, axew.EwAddArc({}, 10, 330, 60, kZ), {5, -5, 0}, {10, h, 0});  // through 0 only
  EsperaCaja(axew, axew.EwAddArc({}, 10, -150, -120, kZ), {-h, -h, 0}, {-5, -5, 0});
}

TEST(EWdraw, MeasuresOutlines) {
  EWdraw axew;
  const auto ele = Contorno(axew, {{0, 0, 0}, {30, 0, 0}, {30, 10, 0}, {10, 10, 0}, {10, 40, 0}, {0, 40, 0}});
  EXPECT_EQ(axew.EwEndPolyline(true), 0) << "the list is used up";
  EXPECT_TRUE(axew.EwEntityType(ele) == 7 && axew.EwArea(ele) == 600);
  const auto copia = axew.EwCopy(ele, {}, {1e5, -1e5, 0});
  axew.EwRotate(copia, {3, 2, 1}, {1, 1, 1}, 50);
  const auto region = axew.EwMakeRegion(copia, true);
  EXPECT_NEAR(axew.EwArea(region), 600, 1e-7);
  EXPECT_NEAR(axew.EwPerimeter(region), 140, 1e-9);
  EXPECT_TRUE(axew.EwEntityCount() == 3 && axew.EwMakeRegion(copia, false) != 0 && axew.EwEntityType(copia) == 0);

  EXPECT_EQ(axew.EwArea(Contorno(axew, {{0, 0, 0}, {0, 2, 0}, {3, 0, 0}})), 3) << "clockwise";
  EXPECT_EQ(axew.EwMakeRegion(Contorno(axew, {{0, 0, 0}, {1, 0, 0}, {1, 1, 0}, {0, 1, 1}}), true), 0) << "no plane";
  axew.EwAddVertex3D(1, 0, 0);
  const auto abierta = axew.EwEndPolyline3D(false);
  EXPECT_TRUE(axew.EwEntityType(abierta) == 8 && !axew.EwMakeRegion(abierta, true) && axew.EwPerimeter(abierta) == 0);
}

TEST(EWdraw, NotANumberIsHarmless) {
  EWdraw axew;
  const auto linea = axew.EwAddLine({NAN, 0, 0}, {1, 1, 1});
  axew.EwAddArc({}, NAN, 0, NAN, {NAN, 0, 0});
  EXPECT_TRUE(CajaDe(axew.Entidades()[1]).Vacia());
  EsperaCaja(axew, linea, {1, 1, 1}, {1, 1, 1});  // the sound points count
  for (const double x : {0.0, HUGE_VAL, std::nan("")}) axew.EwViewDirection(x, 0, 0);
  EXPECT_EQ(axew.DireccionVista(), kZ);
}

TEST(Colores, IndexTableAndRgb) {
  // clang-format off
  const std::pair<std::int32_t, Rgb> casos[] = {
      {1, {255, 0, 0}}, {2, {255, 255, 0}}, {3, {0, 255, 0}}, {4, {0, 255, 255}}, {5, {0, 0, 255}}, {6, {255, 0, 255}},
      {7, {255, 255, 255}}, {10, {255, 0, 0}}, {40, {255, 191, 0}}, {120, {0, 255, 191}}, {219, {38, 19, 38}},
      {-1, {255, 255, 255}}, {255, {255, 255, 255}}, {256, {255, 255, 255}},
      {EwRgb(0, 256, 255), {0, 255, 255}}, {EwRgb(-5, 12, 999), {0, 12, 255}}};
  // clang-format on
  for (const auto& [color, rgb] : casos) EXPECT_EQ(RgbDe(color), rgb) << color;
  EXPECT_GT(EwRgb(0, 0, 7), 255);
}

}  // namespace
}  // namespace duktores
