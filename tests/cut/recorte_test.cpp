#include "cut/recorte.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>

#include "check/cruce.h"
#include "cut/adelgaza.h"
#include "cut/caja_minima.h"
#include "cut/marca.h"
#include "geometry/planas.h"

namespace duktores {
namespace {

// A pattern of one outline, without folds.
FormaPatron Contorno(const std::vector<Punto2>& puntos) {
  FormaPatron forma;
  for (const Punto2 p : puntos) forma.contorno.push_back({p});
  forma.contorno.push_back(forma.contorno.front());
  return forma;
}

Recorte DeContorno(const std::vector<Punto2>& puntos) { return RecorteDe({}, Contorno(puntos), {}, 1); }

TEST(Recortes, OutlinesThatNoMachineCanCut) {
  using Caso = std::pair<std::vector<Punto2>, std::optional<FaltaRecorte>>;
  const Caso casos[]{
      {{{0, 0}, {100, 0}, {100, 50}, {0, 50}}, std::nullopt},
      {{{0, 0}, {0, 50}, {100, 50}, {100, 0}}, std::nullopt},                            // clockwise
      {{{0, 0}, {100, 0}, {10, 80}, {100, 50}}, FaltaRecorte::cruce},                     // a bow
      {{{0, 0}, {100, 0}, {100, 50}, {50, 0}, {0, 50}}, FaltaRecorte::cruce},            // touches its own edge
      {{{0, 0}, {50, 0}, {50, -20}, {50, 0}, {100, 0}, {50, 50}}, FaltaRecorte::cruce},  // a spur
      {{{0, 0}, {100, 0}, {100, 0.02}, {0, 0.02}}, FaltaRecorte::sinArea},
      {{{0, 0}, {100, 0}}, FaltaRecorte::sinArea},
      {{{0, 0}, {100, 0}, {std::nan(""), 50}}, FaltaRecorte::sinArea},
  };
  for (const auto& [puntos, falta] : casos) {
    const Recorte recorte = DeContorno(puntos);
    EXPECT_EQ(recorte.falta, falta) << testing::PrintToString(puntos.size()) << " " << puntos.back().x;
    EXPECT_TRUE(falta || recorte.area == 5000);
    EXPECT_TRUE(!recorte.falta || MarcaDe(recorte, "name", 1).empty());
  }
}

TEST(Recortes, TinyStepsGoAndTheirCornersStay) {
  // A chamfer of 0.01 mm at one corner, 0.03 mm at another.
  const Recorte recorte = DeContorno({{10, 10}, {110, 10}, {110.01, 10.01}, {110.01, 60}, {10.03, 60}, {10, 59.97}});
  ASSERT_EQ(recorte.contorno.size(), 4);
  EXPECT_TRUE(recorte.En(0) == Punto2() && recorte.tamano == (Punto2{100.01, 50}));
  EXPECT_NEAR(recorte.area, 5000, 3);
}

// Whatever the rim, by lines or arcs: no point of it lies further off than asked for, which is measured by walking
// along it in small steps.
TEST(Recortes, ThinnedRimsStayWithinTheTolerance) {
  std::mt19937 azar(7);
  std::uniform_real_distribution<double> u(0, 1);
  for (int vez = 0; vez < 60; ++vez) {
    const double a = 50 + 500 * u(azar), b = 0.1 * a * u(azar), tolerancia = vez % 3 == 0 ? 0.5 : 0.02;
    const int n = 100 + static_cast<int>(4000 * u(azar)), ondas = 2 + static_cast<int>(6 * u(azar));
    std::vector<Punto2> rim;
    for (int i = 0; i < n; ++i) {
      const double t = 2 * dPi * i / n, r = a + b * std::sin(ondas * t);
      rim.push_back({r * std::cos(t), 0.7 * r * std::sin(t)});
    }
    std::vector<bool> fijo(rim.size());
    fijo[0] = fijo[static_cast<std::size_t>(n) / 3] = true;
    for (const bool arcos : {false, true}) {
      const std::vector<Queda> quedan = Adelgaza(rim, fijo, {tolerancia, kPasoMinimo, arcos});
      EXPECT_TRUE(quedan[0].vertice == 0 &&
                  std::ranges::count(quedan, static_cast<std::size_t>(n) / 3, &Queda::vertice) == 1);
      EXPECT_TRUE(n < 2000 || quedan.size() < rim.size() / 4) << vez << arcos;
      for (std::size_t k = 0; k < quedan.size(); ++k) {
        const std::size_t desde = quedan[k].vertice;
        const std::size_t hasta = k + 1 < quedan.size() ? quedan[k + 1].vertice : rim.size();
        const Punto2 p = rim[desde], q = rim[hasta % rim.size()];
        const auto circulo = quedan[k].medio ? PorTres(p, rim[*quedan[k].medio], q) : std::nullopt;
        for (std::size_t i = desde; i < hasta; ++i) {
          for (const double parte : {0.0, 0.3, 0.6}) {
            const Punto2 punto = rim[i] + parte * (rim[(i + 1) % rim.size()] - rim[i]);
            const double lejos = circulo ? std::abs(Distancia(punto, circulo->centro) - circulo->radio)
                                         : DistanciaASegmento(punto, p, q);
            ASSERT_LE(lejos, tolerancia + kPasoMinimo * (hasta - desde < 2) + 1e-9) << vez << arcos;
          }
        }
      }
    }
  }
}

TEST(Recortes, TheSmallestRectangleIsTheSmallestOfAllTurns) {
  std::mt19937 azar(3);
  std::normal_distribution<double> u(0, 100);
  for (int vez = 0; vez < 50; ++vez) {
    std::vector<Punto2> puntos;
    for (int i = 0; i < 4 + vez; ++i) puntos.push_back({u(azar), 3 * u(azar)});
    const Punto2 caja = CajaMinima(puntos);
    EXPECT_GE(caja.x, caja.y);
    double menor = HUGE_VAL;
    for (int giro = 0; giro < 3600; ++giro) {
      const double t = dPi * giro / 3600, c = std::cos(t), s = std::sin(t);
      double x0 = HUGE_VAL, x1 = -x0, y0 = x0, y1 = -x0;
      for (const Punto2 p : puntos) {
        const Punto2 q{c * p.x + s * p.y, c * p.y - s * p.x};
        x0 = std::min(x0, q.x), x1 = std::max(x1, q.x), y0 = std::min(y0, q.y), y1 = std::max(y1, q.y);
      }
      menor = std::min(menor, (x1 - x0) * (y1 - y0));
    }
    EXPECT_LE(caja.x * caja.y, menor * (1 + 1e-9));
    EXPECT_GE(caja.x * caja.y, menor * 0.99);
  }
  EXPECT_LT(Distancia(CajaMinima({{3, 4}, {0, 0}, {4, -3}, {7, 1}}), {5, 5}), 1e-9);
  EXPECT_EQ(CajaMinima({{1, 1}, {1, 1}}), Punto2());
}

}  // namespace
}  // namespace duktores
