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
    ASSERT_TRUE(GuardaImagen(axew, carpeta.filePath("a").toStdString(), Formato::png));
    EXPECT_EQ(QImage(carpeta.filePath("a")).size(), tamano);
  }
  for (const Formato formato : kFormatos)
    EXPECT_TRUE(GuardaImagen(EWdraw(), carpeta.filePath("b").toStdString(), formato));
}

TEST(GuardaImagen, SvgIsSoundXmlAndPdfIsWhole) {
  const QTemporaryDir carpeta;
  EWdraw axew;
  Llena(axew, 1000, 800);
  axew.EwAddText("tiny", "", {5, 5, 0}, 0.01, 0);
  axew.EwAddLine({qQNaN(), 0, 0}, {1, 1, 0});
  ASSERT_TRUE(GuardaImagen(axew, carpeta.filePath("a").toStdString(), Formato::svg));
  const QByteArray svg = Lee(carpeta.filePath("a"));
  QXmlStreamReader xml(svg);
  QString textos;
  while (!xml.atEnd()) textos += xml.readNext() == QXmlStreamReader::Characters ? xml.text().toString() : QString();
  EXPECT_FALSE(xml.hasError() || svg.contains("nan")) << xml.errorString().toStdString();
  for (const char* texto : {"12,5 < 13 &", "\u5468\u957F", "tiny"}) EXPECT_TRUE(textos.contains(texto)) << texto;

  ASSERT_TRUE(GuardaImagen(axew, carpeta.filePath("a").toStdString(), Formato::pdf));
  const QByteArray pdf = Lee(carpeta.filePath("a"));
  EXPECT_TRUE(pdf.startsWith("%PDF-") && pdf.trimmed().endsWith("%%EOF"));
  EXPECT_TRUE(pdf.contains("/MediaBox [0 0 800.000000 640.000000]")) << "the picture's shape, half a point to a pixel";
}

TEST(GuardaImagen, WhatCannotBeWrittenLeavesWhatWasThere) {
  const QTemporaryDir carpeta;
  EWdraw axew;
  Llena(axew, 1000, 800);
  const QString ruta = carpeta.filePath("old");
  const QStringList malas{carpeta.filePath("none/a"), carpeta.path(), ruta + "/a", ""};
  ASSERT_TRUE(GuardaImagen(EWdraw(), ruta.toStdString(), Formato::svg));
  const QByteArray antes = Lee(ruta);
  std::signal(SIGXFSZ, SIG_IGN);
  rlimit limite{};
  getrlimit(RLIMIT_FSIZE, &limite);
  const rlimit lleno{100, limite.rlim_max};  // a disk that is full after 100 bytes
  for (const Formato formato : kFormatos) {
    for (const QString& mal : malas) EXPECT_FALSE(GuardaImagen(axew, mal.toStdString(), formato)) << mal.toStdString();
    setrlimit(RLIMIT_FSIZE, &lleno);
    EXPECT_FALSE(GuardaImagen(axew, ruta.toStdString(), formato));
    setrlimit(RLIMIT_FSIZE, &limite);
    EXPECT_EQ(Lee(ruta), antes);
  }
  EXPECT_EQ(QDir(carpeta.path()).entryList(QDir::Files | QDir::Hidden), QStringList("old")) << "no scraps";
}

TEST(GuardaImagen, SeveralThreadsAtOnce) {
  const QTemporaryDir carpeta;
  const auto ruta = [&](int hilo) { return carpeta.filePath(QString::number(hilo)); };
  const auto guarda = [&](int hilo) {
    EWdraw axew;
    Llena(axew, 300, 200);
    for (const Formato formato : {Formato::pdf, Formato::svg, Formato::png}) {
      EXPECT_TRUE(GuardaImagen(axew, ruta(hilo).toStdString(), formato));
    }
  };
  guarda(0);
  std::vector<std::thread> hilos;
  for (int hilo = 1; hilo <= 4; ++hilo) hilos.emplace_back(guarda, hilo);
  for (std::thread& hilo : hilos) hilo.join();
  for (int hilo = 1; hilo <= 4; ++hilo) EXPECT_EQ(Lee(ruta(hilo)), Lee(ruta(0)));
}

}  // namespace
}  // namespace duktores
