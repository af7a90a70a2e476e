// Worked pieces and boundaries of the special pieces.

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <random>

#include "pieza_desarrollada.h"
#include "pieza_tecleada.h"
#include "piezas_azar.h"
#include "special/ajuste.h"
#include "special/cono.h"
#include "special/especial.h"

namespace duktores {
namespace {

using enum TipoPieza;

// The span holds the elements of the real quarter: on an untilted piece the rim that is carried onto the cut stays
// where the whole cone has it, up to the rounding of the index, which a fine division makes small. A wrong cell of the
// table, or the quarter's points in the wrong order, moves it by several units.
TEST(Cono, EveryCellOfTheQuarterSelectionTakesTheCornersOwnQuarter) {
  constexpr int n = 7200;
  for (const bool bCambio : {false, true}) {
    for (int c = 1; c <= 4; ++c) {
      for (const double grados : {25., 52., 70., 115., 142., 160., 205., 232., 250., 295., 322., 340.}) {
        const double Dx = 60 * std::cos(Radianes(grados)), Dy = 60 * std::sin(Radianes(grados));
        const double rb = bCambio ? 40 : 100, rt = bCambio ? 100 : 40;
        PiezaEspecial pieza{{{400, 400, Cuatro(rt)}, {400, 400, Cuatro(rb)}}, 200};
        const EsquinaEspecial e = Esquina(pieza, c);
        pieza.AX = e.bajo.x - e.alto.x - Dx;
        pieza.AY = e.bajo.y - e.alto.y - Dy;
        clCono cono;
        cono.GeneraPuntos({100, 40, 200, n, {Dx, Dy}, c, bCambio});
        const Puntos2 antes = bCambio ? cono.DesBase() : cono.DesBoca();
        cono.GeneraDesarrollo1(pieza);
        ASSERT_TRUE(cono.Tramo());
        const auto [de, a] = *cono.Tramo();
        EXPECT_EQ(a - de, n / 4);
        double corrido = 0;
        const Puntos2& borde = bCambio ? cono.DesBase() : cono.DesBoca();
        for (int j = de; j <= a; ++j) corrido = std::max(corrido, Distancia(antes(j), borde(j)));
        EXPECT_LT(corrido, 0.1) << "bCambio " << bCambio << " corner " << c << " offset at " << grados;
      }
    }
  }
}

TEST(Radios, AdjustedInTheOrderOfTheRules) {
  Configura();
  const double u = 0.005, v = 100 - u;
  const struct {
    const char* caso;
    TipoPieza tipo;
    std::string textos;
    Cuatro r1, r2;
  } casos[]{
      // clang-format off
      {"equal, near, exactly 0.2 above and 0", esp1, "300 10 20 30.2 0 10 20.15 30 0 200 200 200 200",
       {10 - .2, 20 - .2, 30 - .2, -.2}, {10, 20.15, 30, 0}},
      {"base all arc on one side", esp1, "300 10 20 30 40 100 100 70 80 200 200 300 200",
       {10, 20, 30, 40}, {v, v, 70, 80}},
      {"a round base: the later rules see what the earlier ones left", esp1,
       "300 10 20 30 40 100 100 100 100 200 200 200 200", {10, 20, 30, 40}, {v, v, v, v}},
      {"a round mouth", esp1, "300 100 100 100 100 10 20 30 40 200 200 200 200", {v, v, v, v}, {10, 20, 30, 40}},
      {"both round: no rule", esp1, "300 100 100 100 100 150 150 150 150 200 200 300 300",
       {100, 100, 100, 100}, {150, 150, 150, 150}},
      {"lower radius grows", esp4, "300 50 50 50.15 49.85 0 200 200",
       {50 - u, 50 - u, 50 - u, 50 - u}, {50.2, 50.15 + .2, 50.195, 0}},
      {"sharp base", esp5, "300 0 20 30 100 200 200 200 200", {-.2, 20, 30, 100}, {u, u, u, u}},
      {"oblong", esp2, "300 50 300 200", {50 - u, 50 - u, 50 - u, 50 - u}, {100, 100, 100, 100}},
      {"oblong of the mouth's radius", esp2, "300 100 300 200", {v, v, v, v}, {100.2, 100.2, 100.2, 100.2}},
      // clang-format on
  };
  for (const auto& caso : casos) {
    SCOPED_TRACE(caso.caso);
    const auto [arriba, abajo] = Ajusta(Aceptada(caso.tipo, caso.textos + " 0 0 0 0 4"));
    for (int c = 1; c <= 4; ++c) {
      EXPECT_NEAR(arriba.r(c), caso.r1(c), 1e-12) << "r1 of " << c;
      EXPECT_NEAR(abajo.r(c), caso.r2(c), 1e-12) << "r2 of " << c;
    }
  }
}

TEST(Desarrollo, BoundariesAskForTheirPlacesAndDrawWhatThereIs) {
  const struct {
    const char* caso;
    TipoPieza tipo;
    const char* textos;
    std::size_t lugares;
    int contornos;
  } casos[]{
      // clang-format off
      {"sharp at both mouths",         esp1, "300 0 0 0 0 0 0 0 0 200 100 300 200 0 0 0 0 4",             8, 4},
      {"sharp at the mouth",           esp1, "300 0 0 0 0 40 40 0 40 200 100 300 200 0 0 9 9 12",         8, 7},
      {"no mouth, no plane",           esp1, "300 0 0 0 0 50 50 50 50 0 0 200 200 0 0 20 0 4",            8, 8},
      {"no height",                    esp4, "0 50 60 60 60 60 300 300 0 0 0 0 4",                        8, 4},
      {"circle on circle: no panel",   esp2, "300 50 200 200 0 0 0 0 4",                                  4, 4},
      {"half oblong with a wide mouth", esp3, "300 150 300 200 0 0 0 0 8",                                 7, 7},
      {"nothing at all",               esp1, "0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 4",                       8, 4},
      // A last digit of the sum is short of the side, so that no rule leaves an edge there, and the mouth's edge stands
      // on a base edge of all but no length. Without its triangle the piece would have a hole.
      {"a triangular panel", esp1, "300 10 10 10 10 78.46 41.93 20 20 200 200 300 120.39 0 0 0 0 4", 8, 8},
      // clang-format on
  };
  for (const auto& caso : casos) {
    Configura();
    const Patron hoja = PiezaDesarrollada(Tecleado(caso.tipo, caso.textos), 0).hoja;
    EXPECT_EQ(hoja.formas.size(), caso.lugares) << caso.caso;
    const auto dibujada = [](const FormaPatron& f) { return !f.contorno.empty(); };
    EXPECT_EQ(std::ranges::count_if(hoja.formas, dibujada), caso.contornos) << caso.caso;
  }
}

// The same at the mouth, whose edge must not be a point.
TEST(Desarrollo, AMouthsEdgeOfTheLastDigitIsDrawn) {
  Configura();
  const auto dialogo = Tecleado(esp1, "300 78.46 41.93 20 20 10 10 10 10 300 120.39 200 200 0 0 0 0 4");
  const FormaPatron panel = PiezaDesarrollada(dialogo, 0).hoja.formas.at(1);
  EXPECT_NEAR(Distancia(panel.En(0), panel.En(1)), 0.005, 1e-6);
}

// An upright prism: its radii are moved apart by 0.2, and offsets of 0.2 but for the last digit take no other quarter.
TEST(Desarrollo, AnUprightPrismHasFourEqualCornersAndPanelsThatHang) {
  for (const char* textos : {"300 80 80 80 80 80 80 80 80 300 500 300 500 0 0 0 0 16",
                             "300 78.84 78.84 78.84 78.84 78.84 78.84 78.84 78.84 259 682.7 259 682.7 0 0 0 0 16"}) {
    Configura();
    const auto formas = PiezaDesarrollada(Tecleado(esp1, textos), 0).hoja.formas;
    const FormaPatron& primera = formas.at(0);
    for (std::size_t c = 0; c < 4; ++c) {
      const FormaPatron &esquina = formas.at(2 * c), &panel = formas.at(2 * c + 1);
      for (std::size_t i = 0; i < esquina.contorno.size(); ++i) {
        const Punto2 p = esquina.contorno[i].p - esquina.En(0), p1 = primera.contorno[i].p - primera.En(0);
        EXPECT_LT(Distancia(p, p1), 1e-6) << c;
      }
      EXPECT_LT(panel.En(1).x, panel.En(0).x) << "B lies left of A";
      EXPECT_LT(panel.En(2).y, panel.En(1).y) << "C below them";
      EXPECT_GT(panel.En(3).x, panel.En(2).x) << "D right of C";
    }
  }
}

TEST(Solido, CountsItsLinesAndLeavesOutThoseWithoutLength) {
  const struct {
    TipoPieza tipo;
    const char* textos;
    int tiras, lados;
  } casos[]{
      // The tilt pulls the ends of the long sides apart on the mouth.
      {esp2, "300 50 300 200 0 0 5 0 4", 1, 4},
      {esp4, "300 50 60 60 60 60 300 300 0 0 0 0 8", 2, 4},
      {esp5, "300 50 50 50 50 200 200 300 300 0 0 0 0 4", 1, 8},
  };
  for (const auto& caso : casos) {
    Configura();
    const auto alambre = GeneraDibujo3D(Aceptada(caso.tipo, caso.textos)).alambre;
    EXPECT_EQ(std::ranges::count(alambre, 2U, &std::vector<int>::size), 4 * (caso.tiras + 1) + caso.lados);
    EXPECT_EQ(std::ranges::count(alambre, 9U * 4 * caso.tiras + 1, &std::vector<int>::size), 8);
  }
}

TEST(Pieza, ElementsRunFromTheBaseToTheTiltedMouth) {
  const PiezaEspecial pieza{{{200, 180, {10, 20, 30, 40}}, {400, 360, {50, 60, 70, 80}}}, 300, 15, -25, 12, -7};
  const PlanoCorte plano = PlanoDeCorte(pieza);
  // A point of the mouth from its north-west corner: it tilts about the west edge, then about the north edge.
  const double a = -pieza.Alfa * 3.141592 / 180, b = -pieza.Beta * 3.141592 / 180;
  const auto inclinado = [&](double x, double y) {
    const double z = x * std::sin(a);
    return Punto3{-85 + x * std::cos(a), 65 + y * std::cos(b) + z * std::sin(b),
                  300 - y * std::sin(b) + z * std::cos(b)};
  };
  const Punto3 P = inclinado(0, 0), normal = Vectorial(inclinado(1, 0) - P, inclinado(0, 1) - P);
  constexpr Punto3 hacia[]{{0, -1, 0}, {-1, 0, 0}, {0, 1, 0}, {1, 0, 0}, {0, -1, 0}};  // from side to side
  for (int c = 1; c <= 4; ++c) {
    const Punto3 de = hacia[c - 1], al = hacia[c], esquina = de + al;
    for (int p = 1; p <= 5; ++p) {
      const Punto3 radio = std::cos((p - 1) * dPi / 8) * de + std::sin((p - 1) * dPi / 8) * al;
      const double r1 = pieza.r1(c), r2 = pieza.r2(c);
      const Punto3 Q = Punto3{esquina.x * (200 - r2), esquina.y * (180 - r2), 0} + r2 * radio;
      const Punto3 T = Punto3{15 + esquina.x * (100 - r1), -25 + esquina.y * (90 - r1), 300} + r1 * radio;
      const auto [bajo, corte] = ElementoDe(pieza, plano, c, p, 16);
      EXPECT_LT(Distancia(bajo, Q), 1e-9) << c << ' ' << p;
      EXPECT_LT(Norma(Vectorial(corte - Q, T - Q)), 1e-7) << c << ' ' << p;
      EXPECT_NEAR(Escalar(normal, corte - P), 0, 1e-9) << c << ' ' << p;
    }
  }
}

}  // namespace
}  // namespace duktores
