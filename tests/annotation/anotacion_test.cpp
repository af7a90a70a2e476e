#include "annotation/anotacion.h"

#include <cmath>

#include "dxf/ayudas.h"
#include "state/error_corrida.h"
#include "state/textos.h"

namespace duktores {
namespace {

class Anotacion : public PruebaCorrida {
 protected:
  const Entidad& Ultima() const { return axew_.Entidades().back(); }
  EWdraw axew_;
};

TEST_F(Anotacion, ColoursReachFileAndScreenEachInItsWay) {
  std::string texto = "A", colores;
  for (std::int16_t color = 1; color <= 8; ++color) {
    const auto [r, g, b] = RgbDe(color);
    DibujaLinea(axew_, 0, 0, 1, 1, color);
    EXPECT_EQ(Ultima().color, color < 8 ? EwRgb(r, g, b) : 8);
    DibujaTexto(axew_, 0, 0, texto, 1, color, 0);
    EXPECT_EQ(Ultima().color, color < 8 ? EwRgb(r, g, b) : Entidad{}.color);
    DibujaArco(axew_, 0, 0, 1, 0, 90, color);
    EXPECT_EQ(Ultima().color, color);
  }
  const auto lineas = LineasDibujo();
  for (std::size_t i = 1; i < lineas.size(); ++i) colores += lineas[i - 1] == " 62" ? lineas[i] : "";
  EXPECT_EQ(colores, "111222333444555666777888");
}

TEST_F(Anotacion, TextsForTheFile) {
  // clang-format off
  const std::tuple<double, std::string, std::string> casos[] = {
      {0, "A^2", "A^ 2"}, {0, "\u00D8 90\u00BA", "\u00D8 90\u00BA"}, {kChino, "\u4E2D^", "\\U+4E2D^ "},
      {kChino, "+12.5", "+12.5"}, {kChino, "-1,5E+15", "-1,5E+15"}, {kChino, "1+1", "1\\U+2B1"},
      {kChino, "\u00D8\uFF08\U0001F600", "\\U+D8\\U+FF08\\U+D83D\\U+DE00"},
      {kChino, "Az09\u00BA /-)(%,.:", "Az09\u00BA /-)(%,.:"}, {kChino, std::string("a\0\1b", 4), "ab"}};
  // clang-format on
  for (const auto& [idioma, dado, enFichero] : casos) {
    estado.dIdioma = idioma;
    std::string texto = dado;
    DibujaTexto(axew_, 0, 0, texto, 1, 1, 0);
    EXPECT_EQ(LineasDibujo().rbegin()[4], enFichero);
    EXPECT_TRUE(texto == (idioma == kChino ? dado : enFichero) && Ultima().texto == texto) << texto;
  }
}

TEST_F(Anotacion, DimensionsBetweenPoints) {
  const double d = 7 / std::sqrt(1.01), t = std::sqrt(99.0), raiz = std::sqrt(50.0);
  // clang-format off
  const struct { Punto2 M1, M2, P, E1, E2; double grados; const char* texto; } casos[] = {
      {{0, 0}, {0, 20}, {6, 3}, {6, 0}, {6, 20}, 90, "20.00"},                    // vertical, P to the right
      {{0, 0}, {40, 4}, {0, -7}, {0, -d}, {40, 4 - d}, 5.7105931375, "40.20"},    // slope of 0.1: d straight down
      {{0, 0}, {30, 30}, {-raiz, raiz}, {-t, t}, {30 - t, 30 + t}, 45, "42.43"},  // steeper: not at P's distance of 10
      {{50, 0}, {10, 0}, {9, 8}, {50, 8}, {10, 8}, 0, "40.00"},                   // from right to left
      {{0, 0}, {40, 0}, {9, 0}, {0, 0}, {40, 0}, 0, "40.00"},                     // P on the line: nothing to extend
      {{0, 0}, {30, 30}, {15.5, 15}, {0, 0}, {30, 30}, 45, "42.43"},              // closer than 1
      {{0, 0}, {0.1, 20}, {0, 3}, {-0.1, 0}, {0, 20}, 89.7135234897, "20.00"}};   // a tie at the first point
  // clang-format on
  const auto lejos = [](Punto3 p, Punto2 q) { return Distancia(Punto2{p.x, p.y}, q); };
  for (const auto& c : casos) {
    axew_.EwClear();
    DibujaCota(axew_, c.M1.x, c.M1.y, c.M2.x, c.M2.y, c.P.x, c.P.y, 5, 4, "M");
    const auto a = [&](double giro) { return Radianes(c.grados + giro); };
    const auto punta = [&](Punto2 E, double giro) { return E + 3 * Punto2{std::cos(a(giro)), std::sin(a(giro))}; };
    std::vector<Punto2> rayas{c.E1, c.E2};
    if (c.M1 != c.E1) rayas = {c.M1, c.E1, c.M2, c.E2, c.E1, c.E2};
    for (const auto& [E, giro] : {std::pair(c.E1, 0.0), {c.E2, 180.0}}) {
      const Punto2 alta = punta(E, giro + 9), baja = punta(E, giro - 9);
      rayas.insert(rayas.end(), {E, alta, E, baja, alta, baja});
    }
    ASSERT_EQ(2 * axew_.Entidades().size(), rayas.size() + 2) << c.P.x;
    for (std::size_t i = 0; i < rayas.size(); ++i) {
      EXPECT_LT(lejos(axew_.Entidades()[i / 2].puntos[i % 2], rayas[i]), 1e-8) << c.P.x << " " << i;
    }
    EXPECT_EQ(Ultima().texto, c.texto);
    EXPECT_LT(lejos(Ultima().puntos[0], 0.5 * (c.E1 + c.E2)), 1e-8) << c.P.x;
    EXPECT_NEAR(std::atan2(Ultima().u.y, Ultima().u.x), a(0), 1e-8) << c.P.x;
  }
}

TEST_F(Anotacion, DimensionsAtAPointAndOfAnArc) {
  estado.bComaDecimal = true;
  estado.iUnidad = 2;
  DibujaCota(axew_, 1, 2, 4, 6.0005, NAN, NAN, 5, 4, "S");
  EXPECT_TRUE(Ultima().texto == "5.000" && Ultima().puntos[0] == (Punto3{1, 2, 0})) << Ultima().texto;
  estado.iUnidad = 1;
  DibujaCota(axew_, 1, 2, 4, 6, NAN, NAN, 5, 4, "E");
  EXPECT_TRUE(Ultima().texto == "5,00" && Ultima().puntos[0] == (Punto3{4, 6, 0})) << Ultima().texto;
  DibujaCota(axew_, 1, 2, 4, 6, 0, 0, 5, 4, "m");
  EXPECT_EQ(axew_.EwEntityCount(), 4);
  for (auto [fin, despues, texto] : {std::tuple(10.25, 370.25, "70,2"), {300.0, 300.0, "0"}, {345.0, 345.0, "45"}}) {
    DibujaArcoCota(axew_, 5, 6, 2, 300, fin, 1, 1);
    EXPECT_TRUE(fin == despues && Ultima().texto == texto && Ultima().puntos[0] == (Punto3{5, 4, 0})) << texto;
  }
}

TEST_F(Anotacion, ImpossibleMeasureDrawsNothing) {
  std::string texto = "12345";
  double fin = 90;
  EXPECT_THROW(DibujaLinea(axew_, 0, 0, NAN, 1, 1), ErrorCorrida);
  EXPECT_THROW(DibujaArco(axew_, 0, 0, HUGE_VAL, 0, 1, 1), ErrorCorrida);
  EXPECT_THROW(DibujaArcoCota(axew_, 0, 0, 1, 0, fin, NAN, 1), ErrorCorrida);
  EXPECT_THROW(DibujaTexto(axew_, 0, 0, texto, 1e308, 1, 0), ErrorCorrida);
  EXPECT_THROW(DibujaTexto(axew_, 0, 0, texto, 1, 1, NAN), ErrorCorrida);
  EXPECT_THROW(DibujaPolilinea(axew_, {{0, 0}, {1, HUGE_VAL}}), ErrorCorrida);
  EXPECT_THROW(DibujaCota(axew_, 0, 0, 1, 1, NAN, 0, 1, 1, "M"), ErrorCorrida);
  EXPECT_THROW(DibujaCota(axew_, -1e308, 0, 1e308, 1, 0, 5, 1, 1, "M"), ErrorCorrida);
  EXPECT_THROW(DibujaCota(axew_, 0, 0, 1, 1, 0, 5, NAN, 1, "S"), ErrorCorrida);
  DibujaPolilinea(axew_, {});
  EXPECT_TRUE(axew_.EwEntityCount() == 0 && estado.oDrawing->Count() == 0);
  estado.oDrawing.reset();  // then only the control is drawn on
  DibujaLinea(axew_, 0, 0, 1, 1, 1);
  EXPECT_EQ(axew_.EwEntityCount(), 1);
}

TEST_F(Anotacion, OutlineIsClosedInTheFileAndMeasuredWithoutATrace) {
  double area = -1, rectangulo = -1, perimetro = -1;
  DibujaLinea(axew_, 0, 0, 9, 9, 1);
  DibujaPolilinea(axew_, {{10, 20}, {14, 20}, {10, 23}});
  EXPECT_TRUE(Ultima().color == 7 && Ultima().puntos.size() == 3);
  EXPECT_TRUE(Fila(estado.oDrawing->GetEntities()).ends_with("|  10|14|  20|20|  10|10|  20|23|  10|10|  20|20|"));
  MidePieza(axew_, 2, area, rectangulo, perimetro);
  EXPECT_EQ(area, -1);
  MidePieza(axew_, 1, area, rectangulo, perimetro);
  EXPECT_LT(std::abs(area - 6) + std::abs(rectangulo - 12) + std::abs(perimetro - 12), 1e-11);
  EXPECT_EQ(axew_.EwEntityCount(), 2);
}

TEST_F(Anotacion, NumbersAreCutNotRounded) {
  for (auto [v, cortado] : {std::pair(2.4567, 2.45), {2.678, 2.67}, {2.4999, 2.5}, {-2.456, -2.46}, {1e17, 1e17}}) {
    EXPECT_EQ(TruncaDosDecimales(v), cortado);
  }
  for (int n = -5000; n <= 5000; ++n) EXPECT_EQ(TruncaDosDecimales(n / 100.0), n / 100.0);
  EXPECT_TRUE(TruncaTresDecimales(2.4567) == 2.457 && TruncaTresDecimales(0.0004) == 0);
}

TEST_F(Anotacion, TextsAreMeasured) {
  EXPECT_EQ(LongitudTexto("\u00BAC"), 2);
  estado.dIdioma = kChino;
  EXPECT_TRUE(LongitudTexto("\u4E2D\u4E2D\u4E2D") == 4 && LongitudTexto("12345") == 7) << "1.4 each";
}

}  // namespace
}  // namespace duktores
