#include <cmath>

#include "ayudas.h"
#include "dxf/entidades.h"
#include "dxf/numero_dxf.h"
#include "state/error_corrida.h"
#include "state/textos.h"

namespace duktores {
namespace {

TEST(NumeroDxf, WritesTheDigitsThatReadersExpect) {
  // clang-format off
  const std::pair<double, const char*> casos[] = {
      {0, "0.0"}, {-0.0, "0.0"}, {0.5, "0.5"}, {-0.25, "-0.25"}, {0.999, "0.999"}, {0.1 + 0.2, "0.3"},
      {1.0 / 3, "0.3333333333333333"}, {1e-16, "0.0000000000000001"}, {-1e-20, "0.0000000000000000"},
      {1, "1"}, {-1, "-1"}, {1234.5, "1234.5"}, {1000.0 / 3, "333.333333333333"}, {100, "100"},
      {999999999999999, "999999999999999"}, {1e15, "1E+15"}, {std::nextafter(1.0, 0.0), "0.9999999999999999"},
      {-1.7e308, "-1.7E+308"}};
  // clang-format on
  for (const auto& [valor, texto] : casos) EXPECT_EQ(DxfNumeroTexto(valor), texto);
  EXPECT_EQ(DxfParNumero(10, 1.5), "  10\r\n1.5\r\n");
}

using Entidades = PruebaCorrida;

cPolyline Contorno(std::initializer_list<Punto3> vertices) {
  cPolyline contorno;
  for (const Punto3& p : vertices) contorno.InsertVertex(p.x, p.y, p.z);
  return contorno;
}

TEST_F(Entidades, EveryKindHasItsOwnLayout) {
  cLine linea{.x1 = 1, .y1 = 2, .z1 = 3, .x2 = 4, .y2 = 5, .z2 = 6, .ColorIndex = 7};
  EXPECT_EQ(Fila(linea.DxfEntity()),
            "  0|LINE|5|500|330|6B|100|AcDbEntity|  8|0| 62|7|100|AcDbLine|  10|1|  20|2|  30|3|  11|4|  21|5|  31|6|");
  cArc arco{.x = 1, .y = 2, .R = 3, .StartAngle = 4, .EndAngle = 5, .LayerName = ""};
  EXPECT_EQ(Fila(arco.DxfEntity()),
            "  0|ARC|5|501|330|6B|100|AcDbEntity|  8|0| 62|255|100|AcDbCircle|  10|1|  20|2|  30|0.0|  40|3|"
            "100|AcDbArc|  50|4|  51|5|");
  cText texto{.Text = "A", .x = 1, .y = 2, .Angle = 45, .ColorIndex = 1};
  EXPECT_EQ(Fila(texto.DxfEntity()),
            "  0|TEXT|5|502|330|6B|100|AcDbEntity|  8|0| 62|1|100|AcDbText|  10|1|  20|2|  30|0.0|  40|0.2|"
            "  1|A|  50|45|100|AcDbText|");
  EXPECT_EQ(cPolyline().DxfEntity(), "");
  EXPECT_EQ(Fila(Contorno({{1, 2, 3}, {4, 5, -6}}).DxfEntity()),
            "  0|LWPOLYLINE|  5|503|330|6B|100|AcDbEntity|  8|DUCT|100|AcDbPolyline| 90|2| 70|    0| 43|0.0|"
            "  10|1|  20|2|  10|4|  20|5|");
  cCircle circulo{.x = 1, .R = 2, .LineTypeName = "", .ColorIndex = 3};
  EXPECT_EQ(Fila(circulo.DxfEntity()), "  0|CIRCLE|  8|0| 62|3|  6|CONTINUOUS|  10|1|  20|0.0|  30|0.0|  40|2|");
  cPoint punto{.LayerName = "DUCT"};
  EXPECT_EQ(Fila(punto.DxfEntity()), "  0|POINT|  8|DUCT| 62|255|  6|CONTINUOUS|  10|0.0|  20|0.0|  30|0.0|");
  EXPECT_TRUE(arco.LayerName == "0" && estado.iHandleDxf == 504);
}

using Seis = std::vector<double>;

/// The extent, minima first.
Seis Extension(const cDrawing& dibujo) {
  Seis v(6);
  dibujo.GetBorder(v[0], v[1], v[2], v[3], v[4], v[5]);
  return v;
}

/// That of a drawing of one entity.
template <class Hecho, class Clase>
Seis Solo(Hecho (cDrawing::*inserta)(Clase*), Clase entidad) {
  cDrawing dibujo;
  (dibujo.*inserta)(nullptr);
  (dibujo.*inserta)(&entidad);
  EXPECT_EQ(dibujo.Count(), 1);
  return Extension(dibujo);
}

TEST_F(Entidades, FirstEntitySeedsTheExtent) {
  // Wholly right of and above the origin.
  const Seis cubo{9, 19, 29, 11, 21, 31};
  EXPECT_EQ(Solo(&cDrawing::InsertLine, {11, 19, 31, 9, 21, 29}), cubo);
  EXPECT_EQ(Solo(&cDrawing::InsertArc, {.x = 10, .y = 20, .z = 30, .R = 1, .EndAngle = 1}), cubo);
  EXPECT_EQ(Solo(&cDrawing::InsertCircle, {.x = 10, .y = 20, .z = 30, .R = 1}), cubo);
  EXPECT_EQ(Solo(&cDrawing::InsertText, {.Text = "\u00BA2", .x = 10, .y = 20, .z = 30, .Height = 0.5}), cubo);
  // Wholly left of and below it: only lines and outlines seed the high corner.
  const Seis bajo{-7, -9, -8, -1, -2, -3};
  EXPECT_EQ(Solo(&cDrawing::InsertLine, {-1, -9, -3, -7, -2, -8}), bajo);
  EXPECT_EQ(Solo(&cDrawing::InsertPolyLine, Contorno({{-1, -9, -3}, {-7, -2, -8}})), bajo);
  EXPECT_EQ(Solo(&cDrawing::InsertPoint, {.x = -10, .y = -20, .z = -30}), (Seis{-10, -20, -30, 0, 0, 0}));
}

TEST_F(Entidades, LastHandleIsUsedAndTheNextRefusedWhole) {
  estado.iHandleDxf = 32767;
  cDrawing dibujo;
  cLine linea{.x2 = 1}, otra{.x2 = 9};
  EXPECT_TRUE(dibujo.InsertLine(&linea) && !dibujo.InsertLine(nullptr));
  const std::string antes = dibujo.GetEntities();
  EXPECT_TRUE(antes.starts_with("  0\r\nLINE\r\n5\r\n32767\r\n"));
  for (int i = 0; i < 2; ++i) EXPECT_THROW(dibujo.InsertLine(&otra), ErrorCorrida);
  EXPECT_TRUE(dibujo.GetEntities() == antes && dibujo.Count() == 1 && Extension(dibujo)[3] == 1);
}

}  // namespace
}  // namespace duktores
