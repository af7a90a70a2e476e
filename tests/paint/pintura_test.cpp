#include "paint/pintura.h"

#include <gtest/gtest.h>

#include <QFontDatabase>
#include <QImage>
#include <QPainter>
#include <QTransform>
#include <chrono>
#include <cmath>
#include <limits>

#include "viewer/ewdraw.h"

namespace duktores {
namespace {

constexpr QSize kLienzo(400, 300);

QImage Imagen(const EWdraw& axew, const Encuadre& encuadre, Fondo fondo = Fondo::oscuro, QSize lienzo = kLienzo) {
  QImage imagen(lienzo, QImage::Format_RGB32);
  QPainter pintor(&imagen);
  Pinta(pintor, axew, encuadre, lienzo, fondo);
  return imagen;
}

/// The pixels that differ from the background, which the corner shows.
QRect Manchado(const QImage& imagen) {
  QRect caja;
  for (int y = 0; y < imagen.height(); ++y) {
    for (int x = 0; x < imagen.width(); ++x) {
      if (imagen.pixel(x, y) != imagen.pixel(0, 0)) caja |= QRect(x, y, 1, 1);
    }
  }
  return caja;
}

void EsperaCaja(QRect caja, int izquierda, int arriba, int derecha, int abajo, int tolerancia) {
  EXPECT_NEAR(caja.left(), izquierda, tolerancia);
  EXPECT_NEAR(caja.top(), arriba, tolerancia);
  EXPECT_NEAR(caja.right(), derecha, tolerancia);
  EXPECT_NEAR(caja.bottom(), abajo, tolerancia);
}

TEST(Vista, AxesOfTheViewingPlane) {
  struct {
    Punto3 direccion, derecha, arriba;
  } const casos[] = {
      {{0, 0, 1}, {1, 0, 0}, {0, 1, 0}},    // top
      {{0, 0, -3}, {-1, 0, 0}, {0, 1, 0}},  // bottom: the back of the sheet
      {{0, -1, 0}, {1, 0, 0}, {0, 0, 1}},   // front
      {{0, 2, 0}, {-1, 0, 0}, {0, 0, 1}},   // rear
      {{1, 0, 0}, {0, 1, 0}, {0, 0, 1}},    // right
      {{-1, 0, 0}, {0, -1, 0}, {0, 0, 1}},  // left
      {{0, -1, 1}, {1, 0, 0}, {0, std::sqrt(0.5), std::sqrt(0.5)}},
      {{1, 0, 1}, {0, 1, 0}, {-std::sqrt(0.5), 0, std::sqrt(0.5)}},
  };
  for (const auto& caso : casos) {
    const Base3 base = BaseVista(caso.direccion);
    EXPECT_LT(Distancia(base.derecha, caso.derecha) + Distancia(base.arriba, caso.arriba), 1e-15);
  }
  const Encuadre encuadre{{-7, 100}, 0.37};
  EXPECT_EQ(encuadre.AlDispositivo({-7, 100}, kLienzo), QPointF(200, 150));
  const QPointF ida = encuadre.AlDispositivo({12.5, -80}, kLienzo);
  const QPointF vuelta = encuadre.DelDispositivo(ida, kLienzo);
  EXPECT_NEAR(vuelta.x(), 12.5, 1e-12);
  EXPECT_NEAR(vuelta.y(), -80, 1e-12);
}

TEST(Pinta, LinesAreSharpAndWhereTheyBelong) {
  EWdraw axew;
  axew.EwSetColor(axew.EwAddLine({-50, 30.3, 0}, {50, 30.3, 0}), EwRgb(255, 0, 0));
  axew.EwSetColor(axew.EwAddLine({-60, -40, 0}, {-60, 20, 0}), 3);
  const QImage imagen = Imagen(axew, {{0, 0}, 2});
  const QRgb fondo = imagen.pixel(0, 0);
  EXPECT_EQ(imagen.pixel(200, 89), qRgb(255, 0, 0)) << "150 - 2 * 30.3";
  EXPECT_EQ(imagen.pixel(200, 88), fondo);
  EXPECT_EQ(imagen.pixel(200, 90), fondo);
  EXPECT_EQ(imagen.pixel(80, 200), qRgb(0, 255, 0));
  EXPECT_EQ(imagen.pixel(79, 200), fondo);
  EXPECT_EQ(imagen.pixel(81, 200), fondo);
  EsperaCaja(Manchado(imagen), 80, 89, 300, 230, 1);
}

TEST(Pinta, CurvesAndOutlines) {
  EWdraw circulo;
  circulo.EwAddCircle({10, 0, 0}, 50, {0, 0, 1});
  EsperaCaja(Manchado(Imagen(circulo, {{10, 0}, 2})), 100, 50, 300, 250, 1);
  circulo.EwViewDirection(0, -1, 0);
  EsperaCaja(Manchado(Imagen(circulo, {{10, 0}, 2})), 100, 150, 300, 150, 1);

  EWdraw contorno;
  contorno.EwBeginPolyline();
  for (const Punto2 p : {Punto2{0, 0}, {60, 0}, {60, 40}}) contorno.EwAddVertex(p.x, p.y, 0);
  contorno.EwEndPolyline(true);
  const QImage cerrado = Imagen(contorno, {{0, 0}, 2});
  EsperaCaja(Manchado(cerrado), 200, 70, 320, 150, 3);  // a corner's point reaches out
  EXPECT_NE(cerrado.pixel(260, 110), cerrado.pixel(0, 0)) << "the closing side";

  EWdraw punto;
  punto.EwAddPoint({});
  EsperaCaja(Manchado(Imagen(punto, {{0, 0}, 1})), 198, 148, 202, 152, 1);
}

TEST(Pinta, TextsStandOnTheirBaselineWithTheHeightOfCapitals) {
  for (const Fondo fondo : {Fondo::oscuro, Fondo::claro}) {
    EWdraw axew;
    const auto texto = axew.EwAddText("H", "Arial Unicode MS", {10, -20, 0}, 50, 0);
    QRect caja = Manchado(Imagen(axew, {{0, 0}, 2}, fondo));
    EXPECT_NEAR(caja.height(), 100, 2);
    EXPECT_NEAR(caja.bottom(), 190, 1);
    EXPECT_NEAR(caja.left(), 225, 8) << "the letter's own bearing";
    const int ancho = caja.width();
    axew.EwRotate(texto, {10, -20, 0}, {0, 0, 1}, 90);
    caja = Manchado(Imagen(axew, {{0, 0}, 2}, fondo));
    EXPECT_NEAR(caja.width(), 100, 2);
    EXPECT_NEAR(caja.height(), ancho, 2);
    EXPECT_NEAR(caja.right(), 220, 1) << "its foot is to the right, it reads upwards";
    EXPECT_LT(caja.bottom(), 190);
  }
}

TEST(Pinta, ChineseCharactersAreNotMissing) {
  if (QFontDatabase::families(QFontDatabase::SimplifiedChinese).isEmpty()) GTEST_SKIP() << "no Chinese font here";
  const auto dibuja = [](const char* texto) {
    EWdraw axew;
    axew.EwAddText(texto, "Arial Unicode MS", {}, 30, 0);
    return Imagen(axew, {{0, 0}, 2});
  };
  // Missing characters would all be the same box.
  EXPECT_NE(dibuja("\u5468"), dibuja("\u957F"));
}

TEST(Pinta, EveryColourReadsOnPaper) {
  for (std::int32_t color = 0; color < 256; ++color) {
    EWdraw axew;
    axew.EwSetColor(axew.EwAddLine({-50, 0, 0}, {50, 0, 0}), color);
    const QImage imagen = Imagen(axew, {{0, 0}, 2}, Fondo::claro);
    ASSERT_EQ(imagen.pixel(0, 0), qRgb(255, 255, 255));
    const QRgb tinta = imagen.pixel(200, 150);
    const auto lineal = [](int c) { return std::pow(c / 255.0, 2.2); };
    EXPECT_LT(0.2126 * lineal(qRed(tinta)) + 0.7152 * lineal(qGreen(tinta)) + 0.0722 * lineal(qBlue(tinta)), 0.2)
        << color;
  }
}

TEST(Pinta, FansAndFarZoomsAreQuick) {
  EWdraw axew;
  for (int i = 0; i < 2000; ++i) axew.EwAddLine({0, 0, 0}, {10 + i % 15 * 20.0, 250, i * 1.0});
  axew.EwAddCircle({0, 0, 0}, 200, {0, 0, 1});
  axew.EwBeginPolyline();
  for (int i = 0; i < 20'000; ++i) axew.EwAddVertex(i % 300, i % 199, 0);
  axew.EwEndPolyline(true);
  axew.EwAddText("1", "", {}, 10, 0);
  const auto inicio = std::chrono::steady_clock::now();
  constexpr QSize kGrande(1600, 1000);
  Imagen(axew, Ajusta(axew, kGrande), Fondo::claro, kGrande);
  const QImage cerca = Imagen(axew, {{0, 0}, 1e9});
  EXPECT_NE(cerca.pixel(229, 120), cerca.pixel(10, 290)) << "a line still goes up at 45 degrees";
  const std::chrono::duration<double> tiempo = std::chrono::steady_clock::now() - inicio;
  EXPECT_LT(tiempo.count(), 2) << "hardly anything, unless the pen is of the wrong kind";
}

TEST(Ajusta, TheWholeModelIsInsideWithAMargin) {
  EWdraw axew;
  EXPECT_TRUE(ExtensionPintada(axew).isNull());
  EXPECT_GT(Ajusta(axew, kLienzo).escala, 0);
  axew.EwAddPoint({700, 800, 0});
  const Encuadre solo = Ajusta(axew, kLienzo);
  EXPECT_EQ(solo.centro, QPointF(700, 800));
  EXPECT_GT(solo.escala, 0);

  axew.EwAddLine({0, 0, 0}, {1000, 0, 0});
  const QRectF sinTexto = ExtensionPintada(axew);
  EXPECT_EQ(sinTexto, QRectF(0, 0, 1000, 800));
  axew.EwAddText("a rather long line of text", "Arial Unicode MS", {900, 100, 0}, 100, 0);
  EXPECT_GT(ExtensionPintada(axew).right(), 2000);
  axew.EwAddLine({std::numeric_limits<double>::quiet_NaN(), 0, 0}, {0, std::numeric_limits<double>::infinity(), 0});
  axew.EwAddText("x", "", {}, std::numeric_limits<double>::quiet_NaN(), 0);
  axew.EwAddCircle({}, std::numeric_limits<double>::infinity(), {0, 0, 1});
  const QRect caja = Manchado(Imagen(axew, Ajusta(axew, kLienzo), Fondo::claro));
  EXPECT_TRUE(QRect(QPoint(), kLienzo).adjusted(8, 8, -8, -8).contains(caja));
  EXPECT_NEAR(caja.width(), 400 - 2 * 12, 4) << "and it fills it";

  axew.EwAddPoint({1e308, -1e308, 0});
  axew.EwAddPoint({-1e308, 1e308, 0});
  EXPECT_TRUE(std::isfinite(Ajusta(axew, kLienzo).escala));
  EXPECT_TRUE(std::isfinite(Ajusta(axew, QSizeF(0, 0)).escala));
  Imagen(axew, Ajusta(axew, kLienzo));
}

}  // namespace
}  // namespace duktores
