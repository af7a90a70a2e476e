// Worked pieces and boundaries of the special pieces.

#include <gtest/gtest.h>

#include "ayudas.h"
#include "special/cono.h"
#include "special/solido_especial.h"

namespace duktores {
namespace {

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
        PiezaEspecial pieza{Cuatro(rt), Cuatro(rb), 400, 400, 400, 400, 200};
        const EsquinaEspecial e = Esquina(pieza, c);
        pieza.AX = e.bajo.x - e.alto.x - Dx;
        pieza.AY = e.bajo.y - e.alto.y - Dy;
        clCono cono;
        cono.GeneraPuntos(100, 40, 200, n, Dx, Dy, c, bCambio);
        const Puntos2 antes = bCambio ? cono.DesBase() : cono.DesBoca();
        Corrida corrida("TransEsp4", "1 9 1 1 1 1 99 99 0 0 0 0 4");
        cono.GeneraDesarrollo1(corrida.axew, pieza, Dx, Dy, n, c, bCambio);
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
  using R = std::array<double, 4>;
  const double u = 0.005, v = 100 - u;
  const struct {
    const char *caso, *tipo;
    std::string textos;
    R r1, r2;
  } casos[]{
      // clang-format off
      {"equal, near, exactly 0.2 above and 0", "TransEsp1", "300 10 20 30.2 0 10 20.15 30 0 200 200 200 200",
       {10 - .2, 20 - .2, 30 - .2, -.2}, {10, 20.15, 30, 0}},
      {"base all arc on one side", "TransEsp1", "300 10 20 30 40 100 100 70 80 200 200 300 200",
       {10, 20, 30, 40}, {v, v, 70, 80}},
      {"a round base: the later rules see what the earlier ones left", "TransEsp1",
       "300 10 20 30 40 100 100 100 100 200 200 200 200", {10, 20, 30, 40}, {v, v, v, v}},
      {"a round mouth", "TransEsp1", "300 100 100 100 100 10 20 30 40 200 200 200 200", {v, v, v, v}, {10, 20, 30, 40}},
      {"both round: no rule", "TransEsp1", "300 100 100 100 100 150 150 150 150 200 200 300 300",
       {100, 100, 100, 100}, {150, 150, 150, 150}},
      {"lower radius grows", "TransEsp4", "300 50 50 50.15 49.85 0 200 200",
       {50 - u, 50 - u, 50 - u, 50 - u}, {50.2, 50.15 + .2, 50.195, 0}},
      {"sharp base", "TransEsp5", "300 0 20 30 100 200 200 200 200", {-.2, 20, 30, 100}, {u, u, u, u}},
      {"oblong", "TransEsp2", "300 50 300 200", {50 - u, 50 - u, 50 - u, 50 - u}, {100, 100, 100, 100}},
      {"oblong of the mouth's radius", "TransEsp2", "300 100 300 200", {v, v, v, v}, {100.2, 100.2, 100.2, 100.2}},
      // clang-format on
  };
  for (const auto& caso : casos) {
    SCOPED_TRACE(caso.caso);
    Corrida corrida(caso.tipo, caso.textos + " 0 0 0 0 4");
    ASSERT_TRUE(corrida.aceptada);
    const EstadoPrograma antes = estado;
    DesarrollaEspecial(corrida.axew);
    const EnElEspacio pieza;
    for (std::size_t c = 0; c < 4; ++c) {
      EXPECT_NEAR(pieza.r1[c + 1], caso.r1[c], 1e-12) << "r1 of " << c + 1;
      EXPECT_NEAR(pieza.r2[c + 1], caso.r2[c], 1e-12) << "r2 of " << c + 1;
    }
    EXPECT_EQ(estado.dR11Ini, antes.dR11);
    EXPECT_EQ(estado.dRadioEspIni, antes.dRadioEsp);
    EXPECT_EQ(estado.dR22Ini, std::string_view(caso.tipo) == "TransEsp5" ? 0 : antes.dR22);
    EXPECT_EQ(estado.inumDoblado, 144);
  }
}

TEST(Desarrollo, BoundariesAskForTheirPlacesAndDrawWhatThereIs) {
  const struct {
    const char *caso, *tipo, *textos;
    std::size_t lugares;
    int contornos;
  } casos[]{
      // clang-format off
      {"sharp at both mouths",         "TransEsp1", "300 0 0 0 0 0 0 0 0 200 100 300 200 0 0 0 0 4",             8, 4},
      {"sharp at the mouth",           "TransEsp1", "300 0 0 0 0 40 40 0 40 200 100 300 200 0 0 9 9 12",         8, 7},
      {"sharp at the base",            "TransEsp1", "300 40 40 40 40 0 0 0 0 200 100 300 200 0 0 0 0 4",         8, 8},
      {"upright, equal radii",         "TransEsp1", "300 50 50 50 50 50 50 50 50 200 200 200 200 0 0 0 0 4",     8, 8},
      {"no mouth, no plane",           "TransEsp1", "300 0 0 0 0 50 50 50 50 0 0 200 200 0 0 20 0 4",            8, 8},
      {"tilt of 90",                   "TransEsp1", "300 50 50 50 50 40 40 40 40 200 200 200 200 0 0 90 0 4",    8, 8},
      {"both tilts of 90",             "TransEsp2", "300 50 300 200 10 0 90 90 4",                               6, 6},
      {"no height",                    "TransEsp4", "0 50 60 60 60 60 300 300 0 0 0 0 4",                        8, 4},
      {"oblong: none on half circles", "TransEsp2", "300 50 300 200 0 0 5 0 8",                                  6, 6},
      {"circle on circle: no panel",   "TransEsp2", "300 50 200 200 0 0 0 0 4",                                  4, 4},
      {"half oblong",                  "TransEsp3", "300 50 300 200 0 0 5 5 8",                                  7, 7},
      {"half oblong with a wide mouth", "TransEsp3", "300 150 300 200 0 0 0 0 8",                                 7, 7},
      {"sharp base",                   "TransEsp5", "300 50 50 0 50 200 200 300 300 0 0 0 0 4",                  8, 8},
      {"finest division",              "TransEsp5", "300 50 50 50 50 200 200 300 300 0 0 3 4 908",               8, 8},
      {"nothing at all",               "TransEsp1", "0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 4",                       8, 4},
      // A last digit of the sum is short of the side, so that no rule leaves an edge there, and the mouth's edge stands
      // on a base edge of all but no length. Without its triangle the piece would have a hole.
      {"a triangular panel", "TransEsp1", "300 10 10 10 10 78.46 41.93 20 20 200 200 300 120.39 0 0 0 0 4", 8, 8},
      // clang-format on
  };
  for (const auto& caso : casos) {
    Corrida corrida(caso.tipo, caso.textos);
    ASSERT_TRUE(corrida.aceptada) << caso.caso;
    DesarrollaEspecial(corrida.axew);
    EXPECT_EQ(corrida.rotulos.size(), caso.lugares) << caso.caso;
    EXPECT_EQ(corrida.Cuantas(TipoEntidad::contorno), caso.contornos) << caso.caso;
    for (const char* malo : {"nan", "inf"}) {
      EXPECT_EQ(estado.oDrawing->GetEntities().find(malo), std::string::npos) << caso.caso;
    }
  }
}

// An upright prism: its radii are moved apart by 0.2, and offsets of 0.2 but for the last digit take no other quarter.
TEST(Desarrollo, AnUprightPrismHasFourEqualCornersAndPanelsThatHang) {
  for (const char* textos : {"300 80 80 80 80 80 80 80 80 300 500 300 500 0 0 0 0 16",
                             "300 78.84 78.84 78.84 78.84 78.84 78.84 78.84 78.84 259 682.7 259 682.7 0 0 0 0 16"}) {
    Corrida corrida("TransEsp1", textos);
    ASSERT_TRUE(corrida.aceptada);
    DesarrollaEspecial(corrida.axew);
    const auto primera = *corrida.Forma(kEsquina, 1);
    for (int c = 1; c <= 4; ++c) {
      const auto esquina = *corrida.Forma(kEsquina, c), panel = *corrida.Forma(kLado, c);
      for (std::size_t i = 0; i < esquina.size(); ++i) {
        EXPECT_LT(Distancia(esquina[i] - esquina[0], primera[i] - primera[0]), 1e-6) << c;
      }
      EXPECT_LT(panel[1].x, panel[0].x) << "B lies left of A";
      EXPECT_LT(panel[2].y, panel[1].y) << "C below them";
      EXPECT_GT(panel[3].x, panel[2].x) << "D right of C";
    }
  }
}

TEST(Desarrollo, ARefusedPickKeepsWhatIsDrawn) {
  Corrida corrida("TransEsp2", "300 50 300 200 0 0 5 0 8");
  corrida.limite = 3;
  EXPECT_THROW(DesarrollaEspecial(corrida.axew), EleccionRechazada);
  const std::vector<std::string> rotulos{Texto(kEsquina) + " 1", Texto(kEsquina) + " 2", Texto(kLado) + " 2"};
  EXPECT_EQ(corrida.rotulos, rotulos) << "ring order, without side 1";
  EXPECT_EQ(corrida.Cuantas(TipoEntidad::contorno), 3);
  EXPECT_EQ(estado.oDrawing->Count(), 3 + 4 + 2 * (3 + 1)) << "and the panel's numbers, the corners' marks";
}

TEST(Solido, CountsItsLinesAndLeavesOutThoseWithoutLength) {
  const struct {
    const char *tipo, *textos;
    int tiras, lados;
  } casos[]{
      {"TransEsp2", "300 50 300 200 0 0 0 0 4", 1, 2},
      // The tilt pulls the ends of the long sides apart on the mouth.
      {"TransEsp2", "300 50 300 200 0 0 5 0 4", 1, 4},
      {"TransEsp3", "300 50 300 200 0 0 0 0 12", 3, 3},
      {"TransEsp4", "300 50 60 60 60 60 300 300 0 0 0 0 8", 2, 4},
      {"TransEsp5", "300 50 50 50 50 200 200 300 300 0 0 0 0 4", 1, 8},
  };
  for (const auto& caso : casos) {
    SCOPED_TRACE(caso.textos);
    Corrida corrida(caso.tipo, caso.textos);
    GeneraDibujo3D(PiezaDeEstado(), estado.iDivisiones, corrida.axew);
    EXPECT_EQ(corrida.Cuantas(TipoEntidad::polilinea), 8);
    EXPECT_EQ(corrida.Cuantas(TipoEntidad::linea), 4 * (caso.tiras + 1) + caso.lados);
    EXPECT_TRUE(std::ranges::all_of(corrida.axew.Entidades(), [](const Entidad& e) { return e.color == 120; }));
  }
}

}  // namespace
}  // namespace duktores
