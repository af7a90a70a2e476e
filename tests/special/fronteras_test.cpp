// Worked pieces and boundaries of the special pieces.

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "ayudas.h"
#include "mesa.h"
#include "piezas_azar.h"
#include "special/anotacion_cono.h"
#include "special/cono.h"
#include "special/rectangulo.h"
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
    const PiezaEspecial pieza = Ajustada();
    for (int c = 1; c <= 4; ++c) {
      EXPECT_NEAR(pieza.r1(c), caso.r1[static_cast<std::size_t>(c - 1)], 1e-12) << "r1 of " << c;
      EXPECT_NEAR(pieza.r2(c), caso.r2[static_cast<std::size_t>(c - 1)], 1e-12) << "r2 of " << c;
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
      {"no mouth, no plane",           "TransEsp1", "300 0 0 0 0 50 50 50 50 0 0 200 200 0 0 20 0 4",            8, 8},
      {"no height",                    "TransEsp4", "0 50 60 60 60 60 300 300 0 0 0 0 4",                        8, 4},
      {"circle on circle: no panel",   "TransEsp2", "300 50 200 200 0 0 0 0 4",                                  4, 4},
      {"half oblong with a wide mouth", "TransEsp3", "300 150 300 200 0 0 0 0 8",                                 7, 7},
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

TEST(Solido, CountsItsLinesAndLeavesOutThoseWithoutLength) {
  const struct {
    const char *tipo, *textos;
    int tiras, lados;
  } casos[]{
      // The tilt pulls the ends of the long sides apart on the mouth.
      {"TransEsp2", "300 50 300 200 0 0 5 0 4", 1, 4},
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

TEST(Anotacion, DimensionsOfASector) {
  estado = {};
  estado.iUnidad = estado.MultinumDoblado = 1;
  EWdraw axew;
  // The heights stand at the outermost point of both rims or the apex, the mouth's width at the apex.
  Sector sector{{{-30, -100}, {0, -104}, {30, -100}}, {{-15, -50}, {0, -52}, {15, -50}}, Punto2{0, 0}};
  GeneraCotaCono(axew, sector);
  EXPECT_EQ(
      Textos(axew.Entidades()),
      "-90,-75=50.00|90,-75=50.00|0,-134=60.00|-0,-52.2015=33.4|-15,-50=52.20|0,-52=52.00|15,-50=52.20|0,30=30.00|");
  EXPECT_EQ(axew.Entidades().size(), 4 * 10 + 4 + 2 + 3 * 3 + 2u);
  // Seen from below the apex: neither radial lines nor a width there, but one at the higher end of the mouth.
  axew.EwClear();
  for (auto* orilla : {&sector.base, &sector.boca}) {
    for (Punto2& p : *orilla) p = {p.x + 7, -p.y};
  }
  sector.vertice = Punto2{-100, 0};
  sector.boca[2].y = 40;
  sector.boca[2].x = 19;
  GeneraCotaCono(axew, sector);
  EXPECT_EQ(Textos(axew.Entidades()), "-160,70=60.00|97,75=50.00|7,70=60.00|7,-52.2015=326.6|5.5,80=27.00|");
}

TEST(Anotacion, DimensionsOfAPanel) {
  Corrida corrida("TransEsp2", "");
  clRectangulo panel;
  panel.GeneraDesarrollo(corrida.axew, {{{0, 0, 0}, {-100, 0, 0}, {-130, -80, 0}, {40, -60, 0}}}, 1);
  corrida.axew.EwClear();
  panel.GeneraCota(corrida.axew);
  const auto& todo = corrida.axew.Entidades();
  EXPECT_EQ(Textos(todo), "-49,28=100.00|-189,-42=80.00|-44,-112=170.00|101,-32=60.00|");
  const auto hay = [&](Punto3 p, Punto3 q) {
    return std::ranges::any_of(todo, [&](const Entidad& e) {
      const bool linea = e.tipo == TipoEntidad::linea && e.puntos.size() == 2;
      return linea && std::max(Distancia(e.puntos[0], p), Distancia(e.puntos[1], q)) < 1e-9;
    });
  };
  EXPECT_TRUE(hay({-99, -2, 0}, {-129, -2, 0}) && hay({41, -82, 0}, {41, -62, 0}) && hay({1, -2, 0}, {41, -2, 0}));
}

// In inches, with a comma as the system's mark: a sector's block has bare figures of centimetres all the same.
TEST(Anotacion, BlocksNameThePieceAsEntered) {
  Corrida corrida("TransEsp5", "12 1.5 2 2.5 3 8 9 14 13 1 0 5 0 16");
  estado.iUnidad = 0;
  estado.bComaDecimal = true;
  estado.iBox = 1;
  estado.iFibra = 3;
  estado.dEspesor = 0.5;
  estado.sDensidad = "2,5";
  DesarrollaEspecial(corrida.axew);
  const auto bloque = [&](std::size_t i) {
    const std::size_t desde = corrida.dibujado[i];
    return Textos(std::span(corrida.axew.Entidades()).subspan(desde, corrida.dibujado[i + 1] - desde));
  };
  EXPECT_EQ(bloque(1),
            "22,-32=Denominación:|165,-32=Transf. Base 4 Vert.|22,-54=Tipo de Fibra:|176,-54=Fibra Externa|"
            "22,-76=Espesor:|110,-76=0,5|22,-98=Alfa:|77,-98=5|22,-120=Beta|66,-120=0|22,-142=r11:|66,-142=1,75|"
            "22,-164=r12:|66,-164=2,25|22,-186=r13:|66,-186=2,75|22,-208=r14:|66,-208=3,25|22,-230=H:|44,-230=12|"
            "22,-252=AX:|55,-252=1|22,-274=AY:|55,-274=0|22,-296=LY1:|66,-296=9|22,-318=LX1:|66,-318=8|"
            "22,-340=LY2:|66,-340=13|22,-362=LX2:|66,-362=14|22,-384=Número Divisiones:|220,-384=16|312,-32=Densidad:|"
            "411,-32=2,5gr/(cm^ 3)|312,-72=Perímetro:|422,-72=2,86 cm|312,-112=Area Pieza:|433,-112=0,14 (cm^ 2)|"
            "312,-152=Area Rectángulo:|488,-152=0,3 (cm^ 2)|312,-192=Peso Pieza:|433,-192=0,01 gr|"
            "312,-232=Peso Rectángulo:|488,-232=0,03 gr|312,-272=Desperdicio:|444,-272=0,15 (cm^ 2)|"
            "312,-312=% Desperdicio:|476,-312=50,57|52,-542=1  13,12|52,-564=2  13|52,-586=3  12,98|52,-608=4  13,05|"
            "52,-630=5  13,2|");
  EXPECT_EQ(bloque(3),
            "24,-32=Denominación:|141,-32=Transf. Base 4 Vert.|24,-54=Tipo de Fibra:|164,-54=Fibra Externa|"
            "24,-76=Espesor:|104,-76=0.5 in|24,-98=Alfa:|74,-98=5º|24,-120=Beta:|74,-120=0º|24,-142=r11:|"
            "64,-142=1.75 in|24,-164=r12:|64,-164=2.25 in|24,-186=r13:|64,-186=2.75 in|24,-208=r14:|64,-208=3.25 in|"
            "24,-230=H:|44,-230=12 in|24,-252=AX:|54,-252=1 in|24,-274=AY:|54,-274=0 in|24,-296=LX1:|64,-296=8 in|"
            "24,-318=LY1:|64,-318=9 in|24,-340=LY2:|64,-340=13 in|24,-362=LX2:|64,-362=14 in|"
            "24,-384=Número Divisiones:|204,-384=16|314,-32=Densidad:|404,-32=2,5oz/(in^ 3)|314,-72=Perímetro:|"
            "414,-72=28,664 in|314,-112=Area Pieza:|424,-112=14,947 (in^ 2)|314,-152=Area Rectángulo:|"
            "474,-152=30,244 (in^ 2)|314,-192=Peso Pieza:|424,-192=18,684 oz|314,-232=Peso Rectángulo:|"
            "474,-232=37,805 oz|314,-272=Desperdicio:|434,-272=15,296 (in^ 2)|314,-312=% Desperdicio:|"
            "464,-312=50,577|54,-542=1  13,123 in|54,-564=2  13,265 in|54,-586=3  12,99 in|54,-608=4  5,5 in|");
}

TEST(Pieza, ElementsRunFromTheBaseToTheTiltedMouth) {
  const PiezaEspecial pieza{Cuatro(10, 20, 30, 40), Cuatro(50, 60, 70, 80), 200, 180, 400, 360, 300, 15, -25, 12, -7};
  const PlanoCorte plano = PlanoDeCorte(pieza);
  // A point of the mouth from its north-west corner: it tilts about the west edge, then about the north edge.
  const double a = pieza.Alfa * 3.141592 / 180, b = pieza.Beta * 3.141592 / 180;
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

class Desarrollos : public testing::TestWithParam<std::string_view> {};

// All five lengths of a panel hold for any four points in space. The discriminant of the circles' intersection is
// rounded to 6 decimals, which shows where a panel tapers to a hundredth.
void ComparaPanel(const std::vector<Punto2>& plano, const std::array<Punto3, 4>& P) {
  constexpr double kCerca = 5e-5;
  ASSERT_EQ(plano.size(), 4u);
  for (std::size_t i = 0; i < 4; ++i) {
    EXPECT_NEAR(Distancia(plano[i], plano[(i + 1) % 4]), Distancia(P[i], P[(i + 1) % 4]), kCerca) << "edge " << i;
  }
  EXPECT_NEAR(Distancia(plano[0], plano[2]), Distancia(P[0], P[2]), kCerca);
}

// The elements of a corner have their lengths; they come in either order round it. The lower rim is never moved.
void ComparaEsquina(const std::vector<Punto2>& plano, const PiezaEspecial& pieza, int c, bool bCambio, bool conBorde) {
  const int q = 9 * estado.iDivisiones, primero = bCambio ? q + 1 : 0;
  ASSERT_EQ(plano.size(), static_cast<std::size_t>(2 * (q + 1)));
  const auto en = [&](int i) { return plano[static_cast<std::size_t>(i)]; };
  double derecho = 0, vuelto = 0;
  for (int i = 0; i <= q; ++i) {
    const auto [bajo, corte] = ElementoDe(pieza, PlanoDeCorte(pieza), c, i + 1, 4 * q);
    const double largo = Distancia(bajo, corte);
    const auto error = [&](int j) { return std::abs(Distancia(en(j), en(2 * q + 1 - j)) - largo) / (1 + largo); };
    derecho = std::max(derecho, error(i));
    vuelto = std::max(vuelto, error(q - i));
  }
  EXPECT_LT(std::min(derecho, vuelto), 1e-8) << "elements of corner " << c;
  const double cuerda = 2 * std::abs(pieza.r2(c)) * std::sin(dPi / 4 / q);
  for (int i = primero; conBorde && i < primero + q; ++i) {
    EXPECT_NEAR(Distancia(en(i), en(i + 1)), cuerda, 1e-8) << "rim of corner " << c;
  }
}

TEST_P(Desarrollos, KeepTheLengthsOfThePieceInSpace) {
  int formas = 0;
  std::mt19937 azar(7);
  for (int vez = 0; vez < 500; ++vez) {
    SCOPED_TRACE(vez);
    Corrida corrida(GetParam(), [&](Dialogo& dialogo) { TecleaPieza(dialogo, azar); });
    if (!corrida.aceptada || DelReves()) continue;
    DesarrollaEspecial(corrida.axew);

    // The sharp corners: a cone that all but ends in a point, and panels that leave a hair's breadth.
    const PiezaEspecial real = Ajustada();
    PiezaEspecial deConos = real, dePaneles = real;
    const bool agudas = GetParam() == "TransEsp3";
    if (agudas) {
      deConos.r2(1) = 1e-11;
      dePaneles.r2(1) = dePaneles.r2(2) = deConos.r2(2) = 0.005;
    }
    for (int c = 1; c <= 4; ++c) {
      if (const auto lado = corrida.Forma(kLado, c)) {
        ++formas;
        const PlanoCorte plano = PlanoDeCorte(dePaneles);
        const Elemento de = ElementoDe(dePaneles, plano, c, 2, 4), a = ElementoDe(dePaneles, plano, Siguiente(c), 1, 4);
        std::array P{de.corte, a.corte, a.bajo, de.bajo};
        if (Distancia(P[0], P[1]) < 2e-9) P[0].x -= 0.005;  // an edge of the mouth that would be a point
        ComparaPanel(*lado, P);
      }
      if (const auto esquina = corrida.Forma(kEsquina, c)) {
        ++formas;
        const bool bCambio = real.r2(c) < real.r1(c);
        // Under a mouth wider than its half circle, the sharp corners take the near-zero radius for the mouth and the
        // half circle's for the base.
        ComparaEsquina(*esquina, deConos, c, bCambio, !(agudas && bCambio && c <= 2));
      }
    }
    if (HasFailure()) return;
  }
  EXPECT_GT(formas, 1500);
}
INSTANTIATE_TEST_SUITE_P(Tipos, Desarrollos, testing::ValuesIn(TiposDePieza().begin() + 3, TiposDePieza().end()));

}  // namespace
}  // namespace duktores
