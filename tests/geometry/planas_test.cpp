#include "geometry/planas.h"

#include <gtest/gtest.h>

#include <random>

#include "geometry/redondeo.h"

namespace duktores {
namespace {

void ExpectPunto(Punto2 p, double x, double y, double margen = 1e-12) {
  EXPECT_NEAR(p.x, x, margen);
  EXPECT_NEAR(p.y, y, margen);
}

TEST(InterseccionCirculos, OrderOfTheResults) {
  const auto nivelados = InterseccionCirculos({0, 0}, 5, {6, 0}, 5);
  ExpectPunto(nivelados.A, 3, 4);
  ExpectPunto(nivelados.B, 3, -4);
  const auto inversos = InterseccionCirculos({6, 0}, 5, {0, 0}, 5);
  ExpectPunto(inversos.A, 3, 4);
  const auto verticales = InterseccionCirculos({0, 0}, 5, {0, 6}, 5);
  ExpectPunto(verticales.A, -4, 3);
  ExpectPunto(verticales.B, 4, 3);
  ExpectPunto(InterseccionCirculos({0, 6}, 5, {0, 0}, 5).A, -4, 3);
}

TEST(InterseccionCirculos, TouchAndMiss) {
  const auto toque = InterseccionCirculos({0, 0}, 2, {3, 4}, 3);
  ExpectPunto(toque.A, 1.2, 1.6, 1e-6);
  ExpectPunto(toque.B, 1.2, 1.6, 1e-6);
  ExpectPunto(InterseccionCirculos({0, 0}, 2, {5 + 1e-10, 0}, 3).A, 2, 0, 1e-4);
  for (const auto& [c2, r2] : {std::pair{Punto2{5.1, 0}, 3.0}, {{3.1, 4.1}, 3.0}, {{0, 0}, 2.0}, {{1, 0}, 0.5}}) {
    const auto nada = InterseccionCirculos({0, 0}, 2, c2, r2);
    EXPECT_EQ(nada.A, Punto2{});
    EXPECT_EQ(nada.B, Punto2{});
  }
}

// The slope of the radical line is up to 1e6 here, where its quadratic would lose every digit.
TEST(InterseccionCirculos, KeepsItsDigitsNearLevelCentres) {
  std::mt19937 azar(20);
  std::uniform_real_distribution<double> u(0, 1);
  for (int i = 0; i < 20000; ++i) {
    const Punto2 c1{1000 * u(azar), 0}, c2{1000 * u(azar), 0.0051 + 0.02 * u(azar)};
    const Punto2 p{1000 * u(azar), 5 + 1000 * u(azar)};
    const double r1 = Distancia(c1, p), r2 = Distancia(c2, p);
    if (Distancia(c1, c2) < 5) continue;
    const auto [A, B] = InterseccionCirculos(c1, r1, c2, r2);
    ASSERT_LE(A.x, B.x);
    for (const Punto2 corte : {A, B}) {
      ASSERT_NEAR(Distancia(c1, corte), r1, 1e-9) << i;
      ASSERT_NEAR(Distancia(c2, corte), r2, 1e-9) << i;
    }
    ASSERT_LT(std::min(Distancia(A, p), Distancia(B, p)), 1e-6) << i;
  }
}

TEST(CorteRectas, OrdinaryAndVertical) {
  EXPECT_EQ(CorteRectas(2, 1, 0, -1, 4, 0), (Punto3{1, 3, 0}));
  EXPECT_EQ(CorteRectas(1e9, 0, 5, 2, 1, 0), (Punto3{5, 11, 0}));
  EXPECT_EQ(CorteRectas(2, 1, 0, 1e9, 0, 5), (Punto3{5, 11, 0}));
}

TEST(AnguloRecta, EveryDirection) {
  const struct {
    Punto2 hacia;
    double grados;
  } casos[]{{{1, 0}, 0},     {{1, 1}, 45},   {{0, 1}, 90},   {{-1, 1}, 135}, {{-1, 0}, 180},
            {{-1, -1}, 225}, {{0, -1}, 270}, {{1, -1}, 315}, {{0, 0}, 270}};
  for (const auto& caso : casos) EXPECT_NEAR(AnguloRecta({0, 0}, caso.hacia), caso.grados, 1e-12);
}

TEST(PieDePerpendicular, SteepLinesKeepTheirDigits) {
  ExpectPunto(PieDePerpendicular({3, 7}, {1, 0}, {1, 5}), 1, 7);
  ExpectPunto(PieDePerpendicular({3, 7}, {1, 2}, {1, 2}), 1, 7);
  ExpectPunto(PieDePerpendicular({0, 2}, {0, 0}, {1, 1}), 1, 1);
  ExpectPunto(PieDePerpendicular({300, 200}, {100, 0}, {100 + 1e-11, 400}), 100, 200, 1e-9);
}

TEST(Redondea, HalfToEven) {
  EXPECT_EQ(Redondea(0.125, 2), 0.12);
  EXPECT_EQ(Redondea(0.375, 2), 0.38);
  EXPECT_EQ(Redondea(-2.5, 0), -2);
}

}  // namespace
}  // namespace duktores
