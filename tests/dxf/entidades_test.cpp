#include "dxf/entidades.h"

#include <cmath>
#include <limits>

#include "ayudas.h"
#include "dxf/numero_dxf.h"
#include "state/error_corrida.h"

namespace duktores {
namespace {

TEST(NumeroDxf, WritesTheDigitsThatReadersExpect) {
  // clang-format off
  const std::pair<double, const char*> casos[] = {
      {0, "0.0"}, {-0.0, "0.0"}, {0.5, "0.5"}, {-0.25, "-0.25"}, {0.999, "0.999"}, {0.1 + 0.2, "0.3"},
      {1.0 / 3, "0.3333333333333333"}, {1e-16, "0.0000000000000001"}, {1e-20, "0.0000000000000000"},
      {-1e-20, "0.0000000000000000"}, {1, "1"}, {-1, "-1"}, {1.5, "1.5"}, {100, "100"}, {1234.5, "1234.5"},
      {1000.0 / 3, "333.333333333333"}, {999999999999999, "999999999999999"}, {1e15, "1E+15"},
      {999999999999999.9, "1E+15"}, {std::nextafter(1.0, 0.0), "0.9999999999999999"},
      {-std::numeric_limits<double>::max(), "-1.79769313486232E+308"},
      {std::numeric_limits<double>::denorm_min(), "0.0000000000000000"},};
  // clang-format on
  for (const auto& [valor, texto] : casos) EXPECT_EQ(DxfNumeroTexto(valor), texto);
  EXPECT_EQ(DxfParNumero(10, 1.5), "  10\r\n1.5\r\n");
  EXPECT_EQ(DxfParNumero(9, 0), "  9\r\n0.0\r\n");
}

TEST(Cadena, GrowsByDoublingItsBound) {
  cAddString s;
  EXPECT_TRUE(s.AddString(""));
  EXPECT_EQ(s.EndAdd(), "");
  s.AddString(std::string(127999, 'a'));
  EXPECT_LT(s.CurString().capacity(), 255999U);
  s.AddString("b");  // ends exactly at the bound
  EXPECT_GE(s.CurString().capacity(), 255999U);
  EXPECT_EQ(s.Length(), 128000);
  EXPECT_EQ(s.CurString().back(), 'b');
  EXPECT_TRUE(s.BeginAdd());
  EXPECT_EQ(s.CurString(), "");
  EXPECT_TRUE(s.Add2Strings("\u00BA", "\U0001F600"));
  EXPECT_EQ(s.Length(), 3) << "UTF-16 units";
  s.MaxBytes(0);
  EXPECT_EQ(s.MaxBytes(), 128000);
  s.MaxBytes(10);
  EXPECT_EQ(s.MaxBytes(), 10);
  EXPECT_EQ(s.EndAdd(), std::string(3, '\0'));
  EXPECT_EQ(s.Length(), 0);
}

using Entidades = PruebaCorrida;

TEST_F(Entidades, LineIsWrittenInTwentySixLines) {
  cLine linea{.x2 = 100, .y2 = 50, .ColorIndex = 7};
  EXPECT_EQ(Fila(linea.DxfEntity()),
            "  0|LINE|5|500|330|6B|100|AcDbEntity|  8|0| 62|7|100|AcDbLine|  10|0.0|  20|0.0|  30|0.0|  11|"
            "100|  21|50|  31|0.0");
  EXPECT_EQ(estado.iHandleDxf, 501);
}

TEST_F(Entidades, OtherKindsKeepTheirOwnLayout) {
  cArc arco{.x = 1, .y = 2, .R = 3, .StartAngle = 4, .EndAngle = 5, .LayerName = ""};
  EXPECT_EQ(Fila(arco.DxfEntity()),
            "  0|ARC|5|500|330|6B|100|AcDbEntity|  8|0| 62|255|100|AcDbCircle|  10|1|  20|2|  30|0.0|  40|3|"
            "100|AcDbArc|  50|4|  51|5");
  EXPECT_EQ(arco.LayerName, "0");
  cText texto{.Text = "A", .x = 1, .y = 2, .Angle = 45, .ColorIndex = 1};
  EXPECT_EQ(Fila(texto.DxfEntity()),
            "  0|TEXT|5|501|330|6B|100|AcDbEntity|  8|0| 62|1|100|AcDbText|  10|1|  20|2|  30|0.0|  40|0.2|"
            "  1|A|  50|45|100|AcDbText");
  cPolyline contorno;
  EXPECT_EQ(contorno.DxfEntity(), "");
  contorno.InsertVertex(1, 2, 3);
  contorno.InsertVertex(4, 5, -6);
  EXPECT_EQ(Fila(contorno.DxfEntity()),
            "  0|LWPOLYLINE|  5|502|330|6B|100|AcDbEntity|  8|DUCT|100|AcDbPolyline| 90|2| 70|    0| 43|0.0|"
            "  10|1|  20|2|  10|4|  20|5");
  cCircle circulo{.x = 1, .R = 2, .LineTypeName = "", .ColorIndex = 3};
  EXPECT_EQ(Fila(circulo.DxfEntity()), "  0|CIRCLE|  8|0| 62|3|  6|CONTINUOUS|  10|1|  20|0.0|  30|0.0|  40|2");
  cPoint punto{.LayerName = "DUCT"};
  EXPECT_EQ(Fila(punto.DxfEntity()), "  0|POINT|  8|DUCT| 62|255|  6|CONTINUOUS|  10|0.0|  20|0.0|  30|0.0");
  EXPECT_EQ(estado.iHandleDxf, 503);
}

TEST_F(Entidades, ExtentFollowsTheOrderOfInsertion) {
  cText texto{.Text = "0123456789", .x = 100, .y = 50, .Height = 2.5};
  cDrawing deTexto;
  EXPECT_TRUE(deTexto.InsertText(&texto));
  EXPECT_EQ(Extension(deTexto), (std::vector<double>{75, 25, -25, 125, 75, 25}));

  cLine linea{.x1 = -1, .y1 = 5, .x2 = -7, .y2 = -3};  // to the left
  cDrawing deLinea;
  EXPECT_TRUE(deLinea.InsertLine(&linea));
  EXPECT_EQ(Extension(deLinea), (std::vector<double>{-7, -3, 0, -1, 5, 0}));
  cArc arco{.x = -4, .y = 4, .R = 2, .StartAngle = 0, .EndAngle = 1};
  EXPECT_TRUE(deLinea.InsertArc(&arco));
  EXPECT_EQ(Extension(deLinea), (std::vector<double>{-7, -3, -2, -1, 6, 2}));

  cCircle circulo{.x = -10, .y = -10, .z = -10, .R = 1};
  cDrawing deCirculo;
  EXPECT_TRUE(deCirculo.InsertCircle(&circulo));
  EXPECT_EQ(Extension(deCirculo), (std::vector<double>{-11, -11, -11, 0, 0, 0})) << "only lines seed the high corner";

  cPolyline vacia;
  cDrawing deVacia;
  deVacia.InsertPolyLine(&vacia);
  cPoint punto{.x = 2, .y = 3};
  EXPECT_TRUE(deVacia.InsertPoint(&punto));
  EXPECT_EQ(deVacia.Count(), 2);
  EXPECT_EQ(Extension(deVacia), (std::vector<double>{0, 0, 0, 2, 3, 0}));
  EXPECT_FALSE(deVacia.InsertLine(nullptr));
  deVacia.InsertPolyLine(nullptr);
  EXPECT_EQ(deVacia.Count(), 2);
}

TEST_F(Entidades, LastHandleIsUsedAndTheNextRefusedWhole) {
  estado.iHandleDxf = 32767;
  cLine linea{.x2 = 1, .LayerName = ""};
  cDrawing dibujo;
  EXPECT_TRUE(dibujo.InsertLine(&linea));
  EXPECT_EQ(Lineas(dibujo.GetEntities())[3], "32767");
  const std::string antes = dibujo.GetEntities();
  linea = {.x2 = 9, .LayerName = ""};
  for (int i = 0; i < 2; ++i) EXPECT_THROW(dibujo.InsertLine(&linea), ErrorCorrida);
  EXPECT_EQ(dibujo.GetEntities(), antes);
  EXPECT_EQ(dibujo.Count(), 1);
  EXPECT_EQ(Extension(dibujo)[3], 1);
  EXPECT_EQ(linea.LayerName, "");
  cPoint punto;
  EXPECT_TRUE(dibujo.InsertPoint(&punto)) << "takes no handle";
}

}  // namespace
}  // namespace duktores
