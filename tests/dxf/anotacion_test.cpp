#include "dxf/anotacion.h"

#include <cmath>
#include <limits>

#include "ayudas.h"
#include "geometry/redondeo.h"
#include "state/error_corrida.h"
#include "state/textos.h"

namespace duktores {
namespace {

class Anotacion : public PruebaCorrida {
 protected:
  const Entidad& Ultima() const { return axew_.Entidades().back(); }
  /// Draws a text and gives the line that the file has of it.
  std::string EnFichero(std::string texto) {
    DibujaTexto(axew_, 0, 0, texto, 1, 1, 0);
    const auto lineas = LineasDibujo();
    return lineas[lineas.size() - 5];
  }
  EWdraw axew_;
};

TEST_F(Anotacion, ColoursReachFileAndScreenEachInItsWay) {
  std::string texto = "A";
  for (const std::int16_t color : {std::int16_t{4}, std::int16_t{8}}) {
    DibujaLinea(axew_, 0, 0, 1, 1, color);
    EXPECT_EQ(Ultima().color, color == 4 ? EwRgb(0, 255, 255) : 8);
    DibujaTexto(axew_, 0, 0, texto, 1, color, 0);
    EXPECT_EQ(Ultima().color, color == 4 ? EwRgb(0, 256, 255) : Entidad{}.color);
    DibujaArco(axew_, 0, 0, 1, 0, 90, color);
    EXPECT_EQ(Ultima().color, color);
  }
  DibujaPolilinea(axew_, {{0, 0}, {1, 0}, {1, 1}});
  EXPECT_TRUE(Ultima().color == 7 && Ultima().puntos.size() == 3);
  const auto lineas = LineasDibujo();
  EXPECT_EQ(lineas[lineas.size() - 16 - 5], "4") << "the first vertex once more";
  EXPECT_EQ(std::count(lineas.begin(), lineas.end(), " 62"), 6);
}

TEST_F(Anotacion, TextsForTheFile) {
  std::string texto = "A^2";
  DibujaTexto(axew_, 0, 0, texto, 1, 1, 0);
  EXPECT_TRUE(texto == "A^ 2" && Ultima().texto == texto) << texto;
  EXPECT_EQ(EnFichero("\u00D8 90\u00BA"), "\u00D8 90\u00BA");

  estado.dIdioma = kChino;
  texto = "\u4E2D^";
  DibujaTexto(axew_, 0, 0, texto, 1, 1, 0);
  EXPECT_TRUE(texto == "\u4E2D^" && Ultima().texto == texto) << texto;
  // clang-format off
  const std::pair<std::string, const char*> casos[] = {
      {"12.5", "12.5"}, {"-1,5E+15", "-1,5E+15"}, {"1+1", "1\\U+2B1"}, {"\u4E2D^", "\\U+4E2D^ "},
      {"\u00D8", "\\U+D8"}, {"\uFF08", "\\U+FF08"}, {"\U0001F600", "\\U+D83D\\U+DE00"},
      {"Az09\u00BA /-)(%,.:", "Az09\u00BA /-)(%,.:"}, {std::string("a\0\1b", 4), "ab"}};
  // clang-format on
  for (const auto& [entrada, salida] : casos) EXPECT_EQ(EnFichero(entrada), salida);
}

TEST_F(Anotacion, SlopedDimensionStandsAtTheRootOfItsDistance) {
  // The line y = x and a point 10 away from it, up to the left.
  DibujaCota(axew_, 0, 0, 30, 30, -10 / std::sqrt(2), 10 / std::sqrt(2), 5, 4, "M");
  const auto& e = axew_.Entidades();
  ASSERT_EQ(e.size(), 10U);
  const double t = std::sqrt(99.0);
  EXPECT_NEAR(Distancia(e[0].puntos[0], e[0].puntos[1]), 14.07, 0.005);
  EXPECT_NEAR(Distancia(e[2].puntos[0], {-t, t, 0}), 0, 1e-12);
  EXPECT_NEAR(Distancia(e[2].puntos[1], {30 - t, 30 + t, 0}), 0, 1e-12);
  // Both heads point outward, three units long, nine degrees to each side.
  EXPECT_NEAR(e[3].puntos[1].x - e[3].puntos[0].x, 3 * std::cos(Radianes(54)), 1e-12);
  EXPECT_NEAR(e[4].puntos[1].y - e[4].puntos[0].y, 3 * std::sin(Radianes(36)), 1e-12);
  EXPECT_NEAR(e[6].puntos[1].x - e[6].puntos[0].x, -3 * std::cos(Radianes(54)), 1e-12);
  EXPECT_EQ(e[9].texto, "42.43");
  EXPECT_NEAR(e[9].puntos[0].x, 15 - t, 1e-12);
  EXPECT_EQ(estado.iHandleDxf, 510);
}

TEST_F(Anotacion, DimensionsOfEveryKind) {
  struct Caso {
    Punto2 M1, M2, P, E1, E2;
    double grados;
    const char* texto;
  };
  const Caso casos[] = {
      {{0, 0}, {0, 20}, {6, 3}, {6, 0}, {6, 20}, 90, "20.00"},                // vertical, P to the right
      {{0, 0}, {40, 4}, {0, -7}, {0, -6.965}, {40, -2.965}, 5.711, "40.20"},  // slope of exactly 0.1: d straight down
      {{50, 0}, {10, 0}, {9, 8}, {50, 8}, {10, 8}, 0, "40.00"},               // from right to left
      {{0, 0}, {40, 0}, {9, 0}, {0, 0}, {40, 0}, 0, "40.00"},                 // P on the line
      {{0, 0}, {30, 30}, {15.5, 15}, {0, 0}, {30, 30}, 45, "42.43"},          // closer than 1
      {{0, 0}, {0.1, 20}, {0, 3}, {-0.1, 0}, {0, 20}, 89.7135, "20.00"},      // a tie at the first point
  };
  for (const Caso& c : casos) {
    axew_.EwClear();
    DibujaCota(axew_, c.M1.x, c.M1.y, c.M2.x, c.M2.y, c.P.x, c.P.y, 5, 4, "M");
    const auto& e = axew_.Entidades();
    EXPECT_NEAR(Distancia(e[0].puntos[1], {c.E1.x, c.E1.y, 0}), 0, 1e-3) << c.texto;
    EXPECT_NEAR(Distancia(e[1].puntos[1], {c.E2.x, c.E2.y, 0}), 0, 1e-3) << c.texto;
    EXPECT_NEAR(Grados(std::atan2(e[9].u.y, e[9].u.x)), c.grados, 1e-3);
    EXPECT_EQ(e[9].texto, c.texto);
  }
  estado.iUnidad = 2;
  estado.bComaDecimal = true;
  axew_.EwClear();
  DibujaCota(axew_, 1, 2, 4, 6.0005, 0, 0, 5, 4, "S");
  EXPECT_EQ(Ultima().texto, "5.000");
  EXPECT_EQ(Ultima().puntos[0], (Punto3{1, 2, 0}));
  estado.iUnidad = 1;
  DibujaCota(axew_, 1, 2, 4, 6, 0, 0, 5, 4, "E");
  EXPECT_EQ(Ultima().texto, "5,00");
  EXPECT_EQ(Ultima().puntos[0], (Punto3{4, 6, 0}));
  DibujaCota(axew_, 1, 2, 4, 6, 0, 0, 5, 4, "m");
  EXPECT_EQ(axew_.EwEntityCount(), 4);
}

TEST_F(Anotacion, ArcWithItsSpan) {
  estado.bComaDecimal = true;
  double fin = 10.25;
  DibujaArcoCota(axew_, 5, 6, 2, 300, fin, 1, 1);
  EXPECT_EQ(fin, 370.25);
  EXPECT_EQ(Ultima().texto, "70,2");
  EXPECT_EQ(Ultima().puntos[0], (Punto3{5, 4, 0}));
}

TEST_F(Anotacion, FrameWidensWithTheDivisions) {
  const std::pair<std::int16_t, double> casos[] = {{44, 670}, {45, 870}, {60, 1070}, {58, 870}, {59, 870}};
  for (const auto& [divisiones, ancho] : casos) {
    axew_.EwClear();
    DibujaMarcoDatos(axew_, divisiones, {10, 20, 3});
    const auto& e = axew_.Entidades();
    ASSERT_EQ(e.size(), 7U);
    EXPECT_EQ(e[0].puntos[1], (Punto3{10 + ancho, 20, 0})) << divisiones;
    EXPECT_EQ(e[6].puntos[1], (Punto3{10 + ancho, -430, 0}));
    EXPECT_EQ(e[4].puntos[1], (Punto3{10, -1180, 0}));
  }
}

TEST_F(Anotacion, ImpossibleMeasureDrawsNothing) {
  const double nan = std::nan(""), inf = std::numeric_limits<double>::infinity(), enorme = 1e308;
  std::string texto = "12345";
  double fin = 90;
  EXPECT_THROW(DibujaLinea(axew_, 0, 0, nan, 1, 1), ErrorCorrida);
  EXPECT_THROW(DibujaArco(axew_, 0, 0, inf, 0, 1, 1), ErrorCorrida);
  EXPECT_THROW(DibujaArcoCota(axew_, 0, 0, 1, 0, fin, nan, 1), ErrorCorrida);
  EXPECT_THROW(DibujaTexto(axew_, 0, 0, texto, enorme, 1, 0), ErrorCorrida);
  EXPECT_THROW(DibujaTexto(axew_, 0, 0, texto, 1, 1, nan), ErrorCorrida);
  EXPECT_THROW(DibujaPolilinea(axew_, {{0, 0}, {1, inf}}), ErrorCorrida);
  EXPECT_THROW(DibujaMarcoDatos(axew_, 8, {nan, 0, 0}), ErrorCorrida);
  for (const char* tipo : {"M", "S", "E"}) {
    EXPECT_THROW(DibujaCota(axew_, 0, 0, 1, 1, nan, 0, 1, 1, tipo), ErrorCorrida);
    EXPECT_THROW(DibujaCota(axew_, -enorme, 0, enorme, 1, 0, 5, 1, 1, tipo), ErrorCorrida);
  }
  DibujaPolilinea(axew_, {});
  EXPECT_EQ(axew_.EwEntityCount(), 0);
  EXPECT_EQ(estado.oDrawing->Count(), 0);

  estado.oDrawing.reset();  // then only the control is drawn on
  DibujaLinea(axew_, 0, 0, 1, 1, 1);
  EXPECT_EQ(axew_.EwEntityCount(), 1);
}

TEST_F(Anotacion, MeasuresThePieceAndLeavesNoTrace) {
  double area = -1, rectangulo = -1, perimetro = -1;
  DibujaLinea(axew_, 0, 0, 9, 9, 1);
  DibujaPolilinea(axew_, {{10, 10}, {14, 10}, {10, 13}});
  MidePieza(axew_, 2, area, rectangulo, perimetro);
  EXPECT_EQ(area, -1);
  MidePieza(axew_, 1, area, rectangulo, perimetro);
  EXPECT_NEAR(area, 6, 1e-12);
  EXPECT_NEAR(rectangulo, 12, 1e-12);
  EXPECT_NEAR(perimetro, 12, 1e-12);
  EXPECT_EQ(axew_.EwEntityCount(), 2);
}

TEST_F(Anotacion, NumbersAreCutNotRounded) {
  const std::pair<double, double> dos[] = {{2.4567, 2.45}, {2.678, 2.67},   {2.4999, 2.5}, {0.29, 0.29},
                                           {1.15, 1.15},   {-2.456, -2.46}, {7, 7},        {1e17, 1e17}};
  for (const auto& [v, cortado] : dos) EXPECT_EQ(TruncaDosDecimales(v), cortado);
  EXPECT_EQ(TruncaTresDecimales(2.4567), 2.457);
  EXPECT_EQ(TruncaTresDecimales(0.0004), 0);
  for (int centesimas = -5000; centesimas <= 5000; ++centesimas) {
    EXPECT_EQ(TruncaDosDecimales(centesimas / 100.0), centesimas / 100.0);
  }
}

TEST_F(Anotacion, TextsAreMeasuredAndCut) {
  EXPECT_EQ(LongitudTexto("\u00BAC"), 2);
  estado.dIdioma = kChino;
  EXPECT_EQ(LongitudTexto("\u4E2D\u4E2D\u4E2D"), 4);
  EXPECT_EQ(LongitudTexto("12345"), 7);
  std::vector<std::string> partes{"x", "y"};
  EXPECT_EQ(DivideCadena("", partes, ','), 0);
  EXPECT_EQ(partes, (std::vector<std::string>{""}));
  EXPECT_EQ(DivideCadena("a,,b", partes, ','), 3);
  EXPECT_EQ(partes, (std::vector<std::string>{"", "a", "", "b"}));
  EXPECT_EQ(DivideCadena("a,", partes, ','), 1);
  EXPECT_EQ(DivideCadena(",", partes, ','), 1);
}

}  // namespace
}  // namespace duktores
