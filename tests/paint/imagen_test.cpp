#include <gtest/gtest.h>
#include <sys/resource.h>

#include <QDir>
#include <QFile>
#include <QImage>
#include <QTemporaryDir>
#include <QXmlStreamReader>
#include <csignal>
#include <thread>
#include <vector>

#include "paint/pintura.h"
#include "viewer/ewdraw.h"

namespace duktores {
namespace {

constexpr Formato kFormatos[] = {Formato::png, Formato::svg, Formato::pdf};

void Llena(EWdraw& axew, double ancho, double alto) {
  axew.EwBeginPolyline();
  for (const Punto2 p : {Punto2{0, 0}, {ancho, 0}, {ancho, alto}, {0, alto}}) axew.EwAddVertex(p.x, p.y, 0);
  axew.EwEndPolyline(true);
  for (int i = 0; i < 50; ++i) axew.EwAddLine({0, 0, 0}, {ancho, alto * i / 50, 0});
  axew.EwAddText("12,5 < 13 & \u5468\u957F \x01", "Arial Unicode MS", {ancho / 2, alto / 2, 0}, alto / 40, 30);
}

QByteArray Lee(const QString& ruta) {
  QFile archivo(ruta);
  EXPECT_TRUE(archivo.open(QIODevice::ReadOnly)) << ruta.toStdString();
  return archivo.readAll();
}

void Escribe(const QString& ruta, const QByteArray& bytes) {
  QFile archivo(ruta);
  ASSERT_TRUE(archivo.open(QIODevice::WriteOnly) && archivo.write(bytes) == bytes.size());
}

TEST(GuardaImagen, ShapeFollowsTheModel) {
  const QTemporaryDir carpeta;
  struct {
    double ancho, alto;
    QSize tamano;
  } const casos[] = {{2000, 1000, {1600, 800}}, {9000, 10, {1600, 640}}, {10, 9000, {1600, 2400}}};
  for (const auto& caso : casos) {
    EWdraw axew;
    axew.EwBeginPolyline();
    axew.EwAddVertex(0, 0, 0);
    axew.EwAddVertex(caso.ancho, caso.alto, 0);
    axew.EwEndPolyline(false);
    ASSERT_TRUE(GuardaImagen(axew, carpeta.filePath("a.png"), Formato::png));
    EXPECT_EQ(QImage(carpeta.filePath("a.png")).size(), caso.tamano);
  }
  const EWdraw vacio;
  for (const Formato formato : kFormatos) EXPECT_TRUE(GuardaImagen(vacio, carpeta.filePath("b"), formato));
}

TEST(GuardaImagen, SvgIsSoundXmlAndPdfIsWhole) {
  const QTemporaryDir carpeta;
  EWdraw axew;
  Llena(axew, 1000, 800);
  axew.EwAddText("tiny", "", {5, 5, 0}, 0.01, 0);
  ASSERT_TRUE(GuardaImagen(axew, carpeta.filePath("a.svg"), Formato::svg));
  QXmlStreamReader xml(Lee(carpeta.filePath("a.svg")));
  QString textos;
  while (!xml.atEnd()) {
    if (xml.readNext() == QXmlStreamReader::Characters) textos += xml.text();
  }
  EXPECT_FALSE(xml.hasError()) << xml.errorString().toStdString();
  EXPECT_TRUE(textos.contains("12,5 < 13 &"));
  EXPECT_TRUE(textos.contains(QStringLiteral("\u5468\u957F")));
  EXPECT_TRUE(textos.contains("tiny")) << "however small, one can zoom";

  ASSERT_TRUE(GuardaImagen(axew, carpeta.filePath("a.pdf"), Formato::pdf));
  const QByteArray pdf = Lee(carpeta.filePath("a.pdf"));
  EXPECT_TRUE(pdf.startsWith("%PDF-"));
  EXPECT_TRUE(pdf.trimmed().endsWith("%%EOF"));
  EXPECT_TRUE(pdf.contains("/MediaBox [0 0 800.000000 640.000000]")) << "the picture's shape, half a point to a pixel";
}

TEST(GuardaImagen, WhatCannotBeWrittenLeavesWhatWasThere) {
  const QTemporaryDir carpeta;
  EWdraw axew;
  Llena(axew, 1000, 800);
  const QString ruta = carpeta.filePath("old");
  Escribe(ruta, "old");
  for (const Formato formato : kFormatos) {
    EXPECT_FALSE(GuardaImagen(axew, carpeta.filePath("none/a"), formato));
    EXPECT_FALSE(GuardaImagen(axew, carpeta.path(), formato));
    EXPECT_FALSE(GuardaImagen(axew, ruta + "/a", formato));
    EXPECT_FALSE(GuardaImagen(axew, QString(), formato));

    // A disk that is full after 100 bytes.
    const auto antes = std::signal(SIGXFSZ, SIG_IGN);
    rlimit limite{};
    getrlimit(RLIMIT_FSIZE, &limite);
    const rlimit lleno{100, limite.rlim_max};
    setrlimit(RLIMIT_FSIZE, &lleno);
    const bool guardado = GuardaImagen(axew, ruta, formato);
    setrlimit(RLIMIT_FSIZE, &limite);
    std::signal(SIGXFSZ, antes);
    EXPECT_FALSE(guardado);
    EXPECT_EQ(Lee(ruta), "old");
  }
  EXPECT_EQ(QDir(carpeta.path()).entryList(QDir::Files | QDir::Hidden), QStringList("old")) << "no scraps";
}

TEST(GuardaImagen, SeveralThreadsAtOnce) {
  const QTemporaryDir carpeta;
  EWdraw modelo;
  Llena(modelo, 300, 200);
  ASSERT_TRUE(GuardaImagen(modelo, carpeta.filePath("m.png"), Formato::png));
  std::vector<std::thread> hilos;
  hilos.reserve(4);
  for (int hilo = 0; hilo < 4; ++hilo) {
    hilos.emplace_back([&carpeta, hilo] {
      for (int ronda = 0; ronda < 3; ++ronda) {
        EWdraw axew;
        Llena(axew, 300, 200);
        const QString ruta = carpeta.filePath(QString::number(hilo));
        for (const Formato formato : {Formato::pdf, Formato::svg, Formato::png}) {
          EXPECT_TRUE(GuardaImagen(axew, ruta, formato));
        }
      }
    });
  }
  for (std::thread& hilo : hilos) hilo.join();
  const QByteArray bytes = Lee(carpeta.filePath("m.png"));
  for (int hilo = 0; hilo < 4; ++hilo) EXPECT_EQ(Lee(carpeta.filePath(QString::number(hilo))), bytes);
}

}  // namespace
}  // namespace duktores
