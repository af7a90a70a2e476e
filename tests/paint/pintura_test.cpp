#include <gtest/gtest.h>

#include <QBitmap>
#include <QFile>
#include <QImage>
#include <QPainter>
#include <QTemporaryDir>
#include <QXmlStreamReader>
#include <cmath>
#include <tuple>
#include <vector>

#include "paint/pintura.h"
#include "viewer/ewdraw.h"

namespace duktores {
namespace {

constexpr QSize kLienzo(400, 300);

QImage Imagen(const EWdraw& axew, const Encuadre& encuadre, Fondo fondo = Fondo::oscuro) {
  QImage imagen(kLienzo, QImage::Format_RGB32);
  QPainter pintor(&imagen);
  Pinta(pintor, axew, encuadre, kLienzo, fondo);
  return imagen;
}

/// The pixels that differ from the background, which the corner shows.
QRect Manchado(const QImage& imagen) {
  return QRegion(QBitmap::fromImage(imagen.createMaskFromColor(imagen.pixel(0, 0), Qt::MaskInColor))).boundingRect();
}

void EsperaCaja(QRect caja, int izquierda, int arriba, int derecha, int abajo, int tolerancia) {
  EXPECT_NEAR(caja.left(), izquierda, tolerancia);
  EXPECT_NEAR(caja.top(), arriba, tolerancia);
  EXPECT_NEAR(caja.right(), derecha, tolerancia);
  EXPECT_NEAR(caja.bottom(), abajo, tolerancia);
}

TEST(Vista, AxesOfTheViewingPlane) {
  const double h = std::sqrt(0.5);
  // clang-format off
  const Punto3 casos[][3] = {  // from where one looks, right, up; from below one sees the back of the sheet
      {{0, 0, 1}, {1, 0, 0}, {0, 1, 0}},  {{0, 0, -3}, {-1, 0, 0}, {0, 1, 0}}, {{0, -1, 0}, {1, 0, 0}, {0, 0, 1}},
      {{1, 0, 0}, {0, 1, 0}, {0, 0, 1}},  {{-1, 0, 0}, {0, -1, 0}, {0, 0, 1}}, {{0, 2, 0}, {-1, 0, 0}, {0, 0, 1}},
      {{0, -1, 1}, {1, 0, 0}, {0, h, h}}, {{1, 0, 1}, {0, 1, 0}, {-h, 0, h}}};
  // clang-format on
  for (const auto& [direccion, derecha, arriba] : casos) {
    const Base3 base = BaseVista(direccion);
    EXPECT_LT(Distancia(base.derecha, derecha) + Distancia(base.arriba, arriba), 1e-15);
  }
  const Encuadre encuadre{{-7, 100}, 0.37};
  EXPECT_EQ(encuadre.AlDispositivo({-7, 100}, kLienzo), QPointF(200, 150));
  const QPointF vuelta = encuadre.DelDispositivo(encuadre.AlDispositivo({12.5, -80}, kLienzo), kLienzo);
  EXPECT_LT((vuelta - QPointF(12.5, -80)).manhattanLength(), 1e-12);
}

TEST(Pinta, LinesAreSharpAndWhereTheyBelong) {
  EWdraw axew;
  axew.EwSetColor(axew.EwAddLine({-50, 30.3, 0}, {50, 30.3, 0}), EwRgb(255, 0, 0));
  axew.EwSetColor(axew.EwAddLine({-60, -40, 0}, {-60, 20, 0}), 3);
  const QImage imagen = Imagen(axew, {{0, 0}, 2});
  EXPECT_EQ(imagen.pixel(200, 89), qRgb(255, 0, 0)) << "150 - 2 * 30.3";
  EXPECT_EQ(imagen.pixel(80, 200), qRgb(0, 255, 0));
  for (const QPoint p : {QPoint(200, 88), {200, 90}, {79, 200}, {81, 200}})
    EXPECT_EQ(imagen.pixel(p), imagen.pixel(0, 0));
  EsperaCaja(Manchado(imagen), 80, 89, 300, 230, 1);

  axew.EwAddLine({-100, -100, 0}, {250, 250, 0});
  axew.EwAddCircle({0, 0, 0}, 200, {0, 0, 1});
  axew.EwAddText("1", "", {}, 10, 0);
  const QImage cerca = Imagen(axew, {{0, 0}, 1e9});
  EXPECT_NE(cerca.pixel(229, 120), cerca.pixel(10, 290)) << "at any zoom";
}

TEST(Pinta, CurvesAndOutlines) {
  EWdraw circulo, punto;
  circulo.EwAddCircle({10, 0, 0}, 50, {0, 0, 1});
  EsperaCaja(Manchado(Imagen(circulo, {{10, 0}, 2})), 100, 50, 300, 250, 1);
  circulo.EwViewDirection(0, -1, 0);
  EsperaCaja(Manchado(Imagen(circulo, {{10, 0}, 2})), 100, 150, 300, 150, 1);

  const auto contorno = [](std::initializer_list<Punto2> vertices) {
    EWdraw axew;
    for (const Punto2& p : vertices) axew.EwAddVertex(p.x, p.y, 0);
    axew.EwEndPolyline(true);
    return Imagen(axew, {{0, 0}, 2});
  };
  const QImage cerrado = contorno({{0, 0}, {60, 0}, {60, 40}});
  EXPECT_EQ(contorno({{0, 0}, {60, 0}, {60, 0}, {60, 40}, {0, 0}}), cerrado) << "no spurs at doubled vertices";
  EsperaCaja(Manchado(cerrado), 200, 70, 320, 150, 3);  // a corner's point reaches out
  EXPECT_NE(cerrado.pixel(260, 110), cerrado.pixel(0, 0)) << "the closing side";

  punto.EwAddPoint({});
  EsperaCaja(Manchado(Imagen(punto, {{0, 0}, 1})), 198, 148, 202, 152, 1);
}

TEST(Pinta, TextsStandOnTheirBaselineWithTheHeightOfCapitals) {
  EWdraw axew;
  const auto texto = axew.EwAddText("H", "Arial Unicode MS", {10, -20, 0}, 50, 0);
  const QRect caja = Manchado(Imagen(axew, {{0, 0}, 2}, Fondo::claro));
  const int hueco = caja.left() - 220;  // the letter's own bearing
  EXPECT_NEAR(hueco, 5, 8);
  EsperaCaja(caja, caja.left(), 91, caja.right(), 190, 2);
  axew.EwRotate(texto, {10, -20, 0}, {0, 0, 1}, 90);  // its foot is to the right, it reads upwards
  EsperaCaja(Manchado(Imagen(axew, {{0, 0}, 2})), 121, 190 - hueco - caja.width(), 220, 190 - hueco, 2);
}

TEST(Pinta, EveryColourReadsOnPaper) {
  const auto lineal = [](int c) { return std::pow(c / 255.0, 2.2); };
  for (std::int32_t color = 0; color < 256; ++color) {
    EWdraw axew;
    axew.EwSetColor(axew.EwAddLine({-50, 0, 0}, {50, 0, 0}), color);
    const QImage imagen = Imagen(axew, {{0, 0}, 2}, Fondo::claro);
    const QColor tinta = imagen.pixelColor(200, 150);
    EXPECT_LT(0.21 * lineal(tinta.red()) + 0.72 * lineal(tinta.green()) + 0.07 * lineal(tinta.blue()), 0.2) << color;
    EXPECT_TRUE(imagen.pixel(0, 0) == qRgb(255, 255, 255) && (color != 7 || tinta.lightness() < 40)) << color;
  }
}

TEST(Ajusta, TheWholeModelIsInsideWithAMargin) {
  EWdraw axew;
  EXPECT_TRUE(ExtensionPintada(axew).isNull() && Ajusta(axew, kLienzo).escala > 0);
  axew.EwAddPoint({700, 800, 0});
  EXPECT_TRUE(Ajusta(axew, kLienzo).centro == QPointF(700, 800) && Ajusta(axew, kLienzo).escala > 0);

  axew.EwAddLine({0, 0, 0}, {1000, 0, 0});
  EXPECT_EQ(ExtensionPintada(axew), QRectF(0, 0, 1000, 800));
  axew.EwAddText("a rather long line of text", "Arial Unicode MS", {900, 100, 0}, 100, 0);
  EXPECT_GT(ExtensionPintada(axew).right(), 2000);
  axew.EwAddLine({NAN, 0, 0}, {0, HUGE_VAL, 0});
  axew.EwAddText("x", "", {}, NAN, 0);
  axew.EwAddCircle({}, HUGE_VAL, {0, 0, 1});
  const QRect caja = Manchado(Imagen(axew, Ajusta(axew, kLienzo), Fondo::claro));
  EXPECT_TRUE(QRect(QPoint(), kLienzo).adjusted(8, 8, -8, -8).contains(caja));
  EXPECT_NEAR(caja.width(), 400 - 2 * 12, 4) << "and it fills it";

  axew.EwAddLine({1e308, -1e308, 0}, {-1e308, 1e308, 0});
  EXPECT_TRUE(Ajusta(axew, kLienzo).escala > 0 && Ajusta(axew, QSizeF(0, 0)).escala > 0);
  Imagen(axew, Ajusta(axew, kLienzo));
}

constexpr Formato kFormatos[] = {Formato::png, Formato::svg, Formato::pdf};

void Llena(EWdraw& axew, double ancho, double alto) {
  for (int i = 0; i <= 50; ++i) axew.EwAddLine({0, 0, 0}, {ancho, alto * i / 50, 0});
  axew.EwAddText("12,5 < 13 & \u5468\u957F \x01", "Arial Unicode MS", {ancho / 2, alto / 2, 0}, alto / 40, 30);
}

QByteArray Lee(const QString& ruta) {
  QFile archivo(ruta);
  EXPECT_TRUE(archivo.open(QIODevice::ReadOnly)) << ruta.toStdString();
  return archivo.readAll();
}

TEST(GuardaImagen, ShapeFollowsTheModel) {
  const QTemporaryDir carpeta;
  const std::pair<Punto3, QSize> casos[] = {
      {{2000, 1000, 0}, {1600, 800}}, {{9000, 10, 0}, {1600, 640}}, {{10, 9000, 0}, {1600, 2400}}, {{}, {1600, 1600}}};
  for (const auto& [esquina, tamano] : casos) {
    EWdraw axew;
    axew.EwAddLine({}, esquina);
    ASSERT_TRUE(GuardaImagen(axew, carpeta.filePath("a").toStdString(), Formato::png, Escala::ajustada));
    EXPECT_EQ(QImage(carpeta.filePath("a")).size(), tamano);
  }
  const std::pair<Punto3, QSize> conTexto[] = {// as large as its smallest text asks for, of a tenth
                                               {{4, 4, 0}, {1600, 1600}},
                                               {{40, 20, 0}, {3344, 1744}},
                                               {{900, 1, 0}, {8000, 640}},
                                               {{4, 900, 0}, {1600, 8000}},
                                               {{900, 900, 0}, {5657, 5657}}};
  for (const auto& [esquina, tamano] : conTexto) {
    EWdraw axew;
    axew.EwAddLine({}, esquina);
    axew.EwAddText("x", "", {}, 0.1, 0);
    axew.EwAddText("x", "", {}, 0.2, 0);
    ASSERT_TRUE(GuardaImagen(axew, carpeta.filePath("a").toStdString(), Formato::png, Escala::milimetros));
    EXPECT_EQ(QImage(carpeta.filePath("a")).size(), tamano);
  }
  for (const Formato formato : kFormatos)
    EXPECT_TRUE(GuardaImagen(EWdraw(), carpeta.filePath("b").toStdString(), formato, Escala::ajustada));
}

TEST(GuardaImagen, SvgIsSoundXmlAndPdfIsWhole) {
  const QTemporaryDir carpeta;
  EWdraw axew;
  Llena(axew, 1000, 800);
  axew.EwAddText("tiny", "", {5, 5, 0}, 0.01, 0);
  axew.EwAddLine({qQNaN(), 0, 0}, {1, 1, 0});
  const std::tuple<Escala, QString, QString> casos[] = {{Escala::ajustada, "423.333333mm", "tiny"},
                                                        {Escala::milimetros, "1016mm", "100 mm"},
                                                        {Escala::pulgadas, "1000.6in", "4 in"}};
  for (const auto& [escala, ancho, dicho] : casos) {
    ASSERT_TRUE(GuardaImagen(axew, carpeta.filePath("a").toStdString(), Formato::svg, escala));
    const QByteArray svg = Lee(carpeta.filePath("a"));
    QXmlStreamReader xml(svg);
    QString textos;
    EXPECT_TRUE(xml.readNextStartElement() && xml.attributes().value("width") == ancho) << ancho.toStdString();
    while (!xml.atEnd()) textos += xml.readNext() == QXmlStreamReader::Characters ? xml.text().toString() : QString();
    EXPECT_FALSE(xml.hasError() || svg.contains("nan")) << xml.errorString().toStdString();
    for (const QString& texto : {QString("12,5 < 13 &"), QString("\u5468\u957F"), dicho})
      EXPECT_TRUE(textos.contains(texto)) << texto.toStdString();
  }

  ASSERT_TRUE(GuardaImagen(axew, carpeta.filePath("a").toStdString(), Formato::pdf, Escala::ajustada));
  const QByteArray pdf = Lee(carpeta.filePath("a"));
  EXPECT_TRUE(pdf.startsWith("%PDF-") && pdf.trimmed().endsWith("%%EOF"));
  EXPECT_TRUE(pdf.contains("/MediaBox [0 0 800.000000 640.000000]")) << "the picture's shape, half a point to a pixel";

  axew.EwAddLine({1e308, -1e308, 0}, {-1e308, 1e308, 0});
  for (const Formato formato : kFormatos) {
    ASSERT_TRUE(GuardaImagen(axew, carpeta.filePath("a").toStdString(), formato, Escala::pulgadas));
    EXPECT_FALSE(formato == Formato::svg && Lee(carpeta.filePath("a")).contains("inf"));
  }
}

}  // namespace
}  // namespace duktores
