#include "viewer/ewdraw.h"

#include <gtest/gtest.h>

#include <chrono>
#include <limits>
#include <stdexcept>

namespace duktores {
namespace {

constexpr double kNoEs = std::numeric_limits<double>::quiet_NaN();
constexpr Punto3 kZ{0, 0, 1};

Punto3 Lee(const EWdraw& axew, std::int32_t id) {
  Punto3 p;
  EXPECT_TRUE(axew.EwGetPoint(id, p.x, p.y, p.z));
  return p;
}

std::vector<Punto3> Corta(EWdraw& axew, std::int32_t a, std::int32_t b, bool alargada = false) {
  std::vector<Punto3> puntos(static_cast<std::size_t>(axew.EwIntersect(a, b, alargada)));
  for (std::size_t i = 0; i < puntos.size(); ++i) {
    EXPECT_TRUE(axew.EwIntersectPoint(static_cast<std::int32_t>(i), puntos[i].x, puntos[i].y, puntos[i].z));
  }
  return puntos;
}

std::int32_t Contorno(EWdraw& axew, std::initializer_list<Punto3> vertices) {
  axew.EwBeginPolyline();
  for (const Punto3& p : vertices) axew.EwAddVertex(p.x, p.y, p.z);
  return axew.EwEndPolyline(true);
}

Caja Extension(const EWdraw& axew, std::int32_t id) {
  Caja c;
  EXPECT_TRUE(axew.EwExtent(id, c.minimo.x, c.minimo.y, c.minimo.z, c.maximo.x, c.maximo.y, c.maximo.z));
  return c;
}

void EsperaPunto(Punto3 p, Punto3 q, double tolerancia = 1e-12) {
  EXPECT_NEAR(p.x, q.x, tolerancia);
  EXPECT_NEAR(p.y, q.y, tolerancia);
  EXPECT_NEAR(p.z, q.z, tolerancia);
}

TEST(EWdraw, IdsAreNeverUsedTwiceAndWrongOnesDoNothing) {
  EWdraw axew;
  const auto punto = axew.EwAddPoint({1, 2, 3});
  const auto linea = axew.EwAddLine({}, {1, 0, 0});
  EXPECT_EQ(punto, 1);
  axew.EwDelete(punto);
  EXPECT_EQ(axew.EwEntityCount(), 1);
  EXPECT_EQ(axew.EwEntityAt(0), linea);
  EXPECT_EQ(axew.EwEntityAt(1), 0);
  EXPECT_EQ(axew.EwEntityAt(-1), 0);
  axew.EwClear();
  EXPECT_EQ(axew.EwAddPoint({}), 3);

  double d = 7;
  for (const std::int32_t id : {-1, 0, 2, 4, std::numeric_limits<std::int32_t>::max()}) {
    axew.EwRotate(id, {}, kZ, 30);
    axew.EwMove(id, {}, kZ);
    axew.EwDelete(id);
    axew.EwSetColor(id, 1);
    EXPECT_EQ(axew.EwCopy(id, {}, kZ), 0);
    EXPECT_EQ(axew.EwEntityType(id), 0);
    EXPECT_FALSE(axew.EwGetPoint(id, d, d, d));
    EXPECT_FALSE(axew.EwExtent(id, d, d, d, d, d, d));
    EXPECT_EQ(axew.EwMakeRegion(id, true), 0);
    EXPECT_EQ(axew.EwArea(id) + axew.EwPerimeter(id), 0);
    EXPECT_EQ(axew.EwIntersect(id, 3, true), 0);
    EXPECT_FALSE(axew.EwIntersectPoint(0, d, d, d));
  }
  EXPECT_EQ(d, 7);
  EXPECT_EQ(axew.EwEntityCount(), 1);
}

TEST(EWdraw, RotatesMovesAndCopies) {
  EWdraw axew;
  const Punto3 inicio{3.1, -4.7, 1e-3};
  const auto punto = axew.EwAddPoint(inicio);
  axew.EwRotate(punto, {1, 2, 3}, {0, 1, 0}, 0);
  EXPECT_EQ(Lee(axew, punto), inicio);
  axew.EwRotate(punto, inicio, {5, 1, 0}, 77);
  EXPECT_EQ(Lee(axew, punto), inicio) << "on the axis";
  const Punto3 meta{0.1, 0.2, 0.3};
  const auto copia = axew.EwCopy(punto, inicio, meta);
  EXPECT_EQ(Lee(axew, copia), meta) << "reached to the last digit";
  axew.EwRotate(copia, {}, {0, 2, 0}, 90);
  EsperaPunto(Lee(axew, copia), {0.3, 0.2, -0.1});
  EXPECT_EQ(Lee(axew, punto), inicio);

  // A text turns with its baseline and keeps its height.
  const auto texto = axew.EwAddText("7", "Arial", {10, 0, 0}, 4, 90);
  axew.EwRotate(texto, {}, kZ, 90);
  const Entidad& e = axew.Entidades().back();
  EsperaPunto(e.puntos[0], {0, 10, 0});
  EsperaPunto(e.u, {-4, 0, 0});
  EsperaPunto(e.v, {0, -4, 0});
}

TEST(EWdraw, BoxesOfCurvesAreExact) {
  EWdraw axew;
  Caja c = Extension(axew, axew.EwAddCircle({5, 6, 7}, 10, kZ));
  EXPECT_EQ(c.minimo, (Punto3{-5, -4, 7}));
  EXPECT_EQ(c.maximo, (Punto3{15, 16, 7}));

  const auto elipse = axew.EwAddEllipse({}, 20, 10, kZ);
  axew.EwRotate(elipse, {}, kZ, 30);
  const double x = std::sqrt(400 * 0.75 + 100 * 0.25), y = std::sqrt(400 * 0.25 + 100 * 0.75);
  axew.EwRotate(elipse, {}, {1, 0, 0}, 60);
  c = Extension(axew, elipse);
  EsperaPunto(c.maximo, {x, y / 2, y * std::sqrt(0.75)});
  EsperaPunto(c.minimo, -1.0 * c.maximo);

  c = Extension(axew, axew.EwAddArc({}, 10, 330, 60, kZ));  // through 0 only
  EsperaPunto(c.minimo, {5, -5, 0});
  EsperaPunto(c.maximo, {10, 10 * std::sqrt(0.75), 0});
  c = Extension(axew, axew.EwAddArc({}, 10, -170, -100, kZ));
  EsperaPunto(c.minimo, {10 * std::cos(Radianes(170)), -10 * std::sin(Radianes(100)), 0});
  EsperaPunto(c.maximo, {-10 * std::sin(Radianes(10)), -10 * std::sin(Radianes(10)), 0});
}

TEST(EWdraw, RaysFromTheCentreDivideAnEllipse) {
  EWdraw axew;
  const Punto3 M{212.5, -87.25, 300};
  for (const double b : {100.0, 99.9999, 200.0}) {
    const double a = 200;
    const auto elipse = axew.EwAddEllipse(M, a / 2, b / 2, kZ);
    for (int i = 0; i < 240; ++i) {
      const double theta = i * 1.5;
      const auto punto = axew.EwAddPoint({M.x + a / 2, M.y, M.z});
      axew.EwRotate(punto, M, kZ, theta);
      const auto linea = axew.EwAddLine(M, Lee(axew, punto));
      const auto cortes = Corta(axew, elipse, linea);
      ASSERT_EQ(cortes.size(), 1U) << theta;
      const double t = Radianes(theta), r = a * b / 4 / std::hypot(b / 2 * std::cos(t), a / 2 * std::sin(t));
      EsperaPunto(cortes[0], M + r * Punto3{std::cos(t), std::sin(t), 0}, 1e-11);
    }
  }
}

TEST(EWdraw, LinesMeetCurves) {
  EWdraw axew;
  const auto circulo = axew.EwAddCircle({}, 5, kZ);
  const auto larga = axew.EwAddLine({-10, 3, 0}, {10, 3, 0});
  auto p = Corta(axew, larga, circulo);
  ASSERT_EQ(p.size(), 2U);
  EsperaPunto(p[0], {-4, 3, 0});  // by their place along the line
  EsperaPunto(p[1], {4, 3, 0});
  EXPECT_EQ(Corta(axew, circulo, axew.EwAddLine({0, 3, 0}, {10, 3, 0})).size(), 1U);
  const auto corta = axew.EwAddLine({-1, 3, 0}, {1, 3, 0});
  EXPECT_EQ(Corta(axew, circulo, corta).size(), 0U);
  EXPECT_EQ(Corta(axew, circulo, corta, true).size(), 2U);

  p = Corta(axew, circulo, axew.EwAddLine({-8, 5, 0}, {9, 5, 0}));
  ASSERT_EQ(p.size(), 1U);
  EsperaPunto(p[0], {0, 5, 0});
  EXPECT_EQ(Corta(axew, circulo, axew.EwAddLine({-8, 5.0001, 0}, {9, 5.0001, 0})).size(), 0U);
  EXPECT_EQ(Corta(axew, circulo, axew.EwAddLine({-8, 4.9999, 0}, {9, 4.9999, 0})).size(), 2U);

  const auto arco = axew.EwAddArc({}, 5, 350, 40, kZ);
  p = Corta(axew, larga, arco);
  ASSERT_EQ(p.size(), 1U);
  EsperaPunto(p[0], {4, 3, 0});
  EXPECT_EQ(Corta(axew, circulo, axew.EwAddLine({-10, 3, 1}, {10, 3, 1})).size(), 0U) << "another plane";

  // A tilted pair meets where the flat one does.
  const auto recta = axew.EwAddLine({0, 0, 0}, {3, 4, 0});
  for (const auto id : {circulo, recta}) axew.EwRotate(id, {7, 1, 2}, {1, 2, 3}, 111);
  EXPECT_EQ(Corta(axew, circulo, recta).size(), 1U);

  // Nothing but a line and a curve can meet.
  EXPECT_EQ(axew.EwIntersect(larga, larga, true) + axew.EwIntersect(circulo, arco, true), 0);
  EXPECT_EQ(Corta(axew, circulo, axew.EwAddLine({5, 0, 0}, {5, 0, 0}), true).size(), 0U) << "no direction";
  EXPECT_EQ(Corta(axew, axew.EwAddCircle({}, 0, kZ), larga, true).size(), 0U);
}

TEST(EWdraw, MeasuresOutlines) {
  EWdraw axew;
  EXPECT_EQ(axew.EwEndPolyline(true), 0) << "no vertex";
  const auto ele = Contorno(axew, {{0, 0, 0}, {30, 0, 0}, {30, 10, 0}, {10, 10, 0}, {10, 40, 0}, {0, 40, 0}});
  EXPECT_EQ(axew.EwEntityType(ele), 7);
  EXPECT_EQ(axew.EwEndPolyline(true), 0) << "the list is used up";
  const auto copia = axew.EwCopy(ele, {}, {1e5, -1e5, 0});
  axew.EwRotate(copia, {3, 2, 1}, {1, 1, 1}, 50);
  const auto region = axew.EwMakeRegion(copia, true);
  EXPECT_NEAR(axew.EwArea(region), 600, 1e-7);
  EXPECT_NEAR(axew.EwPerimeter(region), 140, 1e-9);
  EXPECT_EQ(axew.EwArea(ele), 600);
  EXPECT_EQ(axew.EwEntityCount(), 3);
  EXPECT_NE(axew.EwMakeRegion(copia, false), 0);
  EXPECT_EQ(axew.EwEntityType(copia), 0);

  const auto horaria = Contorno(axew, {{0, 0, 0}, {0, 2, 0}, {3, 0, 0}});
  EXPECT_EQ(axew.EwArea(horaria), 3);
  EXPECT_EQ(axew.EwMakeRegion(Contorno(axew, {{0, 0, 0}, {1, 0, 0}, {1, 1, 0}, {0, 1, 1}}), true), 0) << "no plane";
  axew.EwBeginPolyline3D();
  axew.EwAddVertex3D(0, 0, 0);
  axew.EwAddVertex3D(1, 0, 0);
  const auto abierta = axew.EwEndPolyline3D(false);
  EXPECT_NE(axew.EwEntityType(abierta), 7);
  EXPECT_EQ(axew.EwMakeRegion(abierta, true), 0);
  EXPECT_EQ(axew.EwPerimeter(abierta), 0);
}

TEST(EWdraw, NotANumberIsHarmless) {
  EWdraw axew;
  const Punto3 nada{kNoEs, 0, 0};
  const auto linea = axew.EwAddLine(nada, {1, 1, 1});
  const auto arco = axew.EwAddArc({}, kNoEs, 0, kNoEs, nada);
  const auto circulo = axew.EwAddCircle({}, 1, kZ);
  axew.EwRotate(circulo, {}, nada, 10);
  EXPECT_EQ(axew.EwIntersect(linea, circulo, true) + axew.EwIntersect(arco, linea, true), 0);
  EXPECT_EQ(axew.EwMakeRegion(Contorno(axew, {nada, {1, 0, 0}, {1, 1, 0}}), true), 0);
  EXPECT_TRUE(CajaDe(axew.Entidades()[1]).Vacia());
  EXPECT_EQ(Extension(axew, linea).minimo, (Punto3{1, 1, 1})) << "the sound points count";
  axew.EwViewDirection(0, 0, 0);
  axew.EwViewDirection(kNoEs, 0, 1);
  EXPECT_EQ(axew.DireccionVista(), kZ);
}

struct Ojo : VistaEWdraw {
  std::optional<Punto3> EligePunto(EWdraw& axew) override {
    fantasma = axew.Fantasma().size();
    if (rompe) throw std::runtime_error("broken view");
    return punto;
  }
  void Manda(EWdraw&, MandoVista mando) override { mandos.push_back(mando); }
  std::optional<Punto3> punto;
  bool rompe = false;
  std::size_t fantasma = 0;
  std::vector<MandoVista> mandos;
};

TEST(EWdraw, AsksItsViewForPoints) {
  EWdraw axew;
  double x = 0, y = 0, z = 0;
  EXPECT_THROW(axew.EwPickPoint(x, y, z), EleccionRechazada) << "no view";
  Ojo ojo;
  axew.PonVista(&ojo);
  axew.EwGhost({{0, 0}, {1, 0}, {1, 1}});
  ojo.punto = Punto3{4, 5, 6};
  axew.EwPickPoint(x, y, z);
  EXPECT_EQ((Punto3{x, y, z}), ojo.punto);
  EXPECT_EQ(ojo.fantasma, 3U) << "there during the pick";
  EXPECT_TRUE(axew.Fantasma().empty());

  ojo.punto.reset();
  axew.EwGhost({{0, 0}});
  EXPECT_THROW(axew.EwPickPoint(x, y, z), EleccionRechazada);
  EXPECT_TRUE(axew.Fantasma().empty());
  ojo.rompe = true;
  axew.EwGhost({{0, 0}});
  EXPECT_THROW(axew.EwPickPoint(x, y, z), std::runtime_error);
  EXPECT_TRUE(axew.Fantasma().empty());

  axew.EwZoomWindow();
  axew.EwOrbit();
  EXPECT_EQ(ojo.mandos, (std::vector{MandoVista::zoomWindow, MandoVista::orbit}));
}

TEST(EWdraw, NewestEntitiesComeAndGoCheaply) {
  EWdraw axew;
  const auto inicio = std::chrono::steady_clock::now();
  for (int i = 0; i < 32'000; ++i) {
    const auto punto = axew.EwAddPoint({1, 0, 0});
    axew.EwRotate(punto, {}, kZ, i);
    axew.EwAddLine({}, Lee(axew, punto));
    axew.EwDelete(punto);
  }
  EXPECT_EQ(axew.EwEntityCount(), 32'000);
  const std::chrono::duration<double> tiempo = std::chrono::steady_clock::now() - inicio;
  EXPECT_LT(tiempo.count(), 2) << "milliseconds when it is linear";
}

TEST(Colores, IndexTableAndRgb) {
  constexpr Rgb kBlanco{255, 255, 255};
  EXPECT_EQ(RgbDe(1), (Rgb{255, 0, 0}));
  EXPECT_EQ(RgbDe(5), (Rgb{0, 0, 255}));
  EXPECT_EQ(RgbDe(7), kBlanco);
  EXPECT_EQ(RgbDe(10), RgbDe(1));
  EXPECT_EQ(RgbDe(40), (Rgb{255, 191, 0}));
  EXPECT_EQ(RgbDe(120), (Rgb{0, 255, 191}));
  EXPECT_EQ(RgbDe(171), (Rgb{127, 127, 255}));
  EXPECT_EQ(RgbDe(219), (Rgb{38, 19, 38}));
  EXPECT_EQ(RgbDe(240), (Rgb{255, 0, 63}));
  EXPECT_EQ(RgbDe(255), kBlanco);
  for (const std::int32_t fuera : {-1, 256, 257, std::numeric_limits<std::int32_t>::min()}) {
    EXPECT_EQ(RgbDe(fuera), kBlanco) << fuera;
  }
  EXPECT_EQ(RgbDe(EwRgb(0, 256, 255)), (Rgb{0, 255, 255}));
  EXPECT_EQ(RgbDe(EwRgb(-5, 12, 999)), (Rgb{0, 12, 255}));
  EXPECT_GT(EwRgb(0, 0, 7), 255);
}

}  // namespace
}  // namespace duktores
