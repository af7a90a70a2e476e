// Pictures as files. All formats have the same layout in picture units: a pixel of the PNG.

#include <QBuffer>
#include <QImage>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <QSvgGenerator>
#include <algorithm>
#include <filesystem>

#include "paint/pintura.h"
#include "state/fichero.h"
#include "viewer/ewdraw.h"

namespace duktores {

namespace {

/// As high as the model asks for; long thin models get air instead of a strip or a tower.
QSize TamanoImagen(const EWdraw& axew) {
  constexpr int kAncho = 1600;
  const QRectF zona = ExtensionPintada(axew);
  const double forma = zona.width() > 0 ? zona.height() / zona.width() : 1;
  return {kAncho, qRound(kAncho * std::clamp(forma, 0.4, 1.5))};
}

bool PintaEn(QPaintDevice& dispositivo, const EWdraw& axew, QSizeF lienzo) {
  QPainter pintor;
  if (!pintor.begin(&dispositivo)) return false;
  Pinta(pintor, axew, Ajusta(axew, lienzo), lienzo, Fondo::claro);
  return pintor.end();
}

bool Png(QIODevice& salida, const EWdraw& axew, QSize lienzo) {
  QImage imagen(lienzo, QImage::Format_RGB32);
  return PintaEn(imagen, axew, lienzo) && imagen.save(&salida, "PNG");
}

bool Svg(QIODevice& salida, const EWdraw& axew, QSize lienzo, const QString& titulo) {
  QSvgGenerator svg;
  svg.setOutputDevice(&salida);
  svg.setTitle(titulo);
  svg.setDescription("duktores");
  svg.setSize(lienzo);
  svg.setViewBox(QRect(QPoint(), lienzo));
  svg.setResolution(96);
  return PintaEn(svg, axew, lienzo);
}

bool Pdf(QIODevice& salida, const EWdraw& axew, QSize lienzo, const QString& titulo) {
  constexpr int kPorPulgada = 144;  // two picture units to a point of 1/72 inch
  QPdfWriter pdf(&salida);
  pdf.setTitle(titulo);
  pdf.setCreator("duktores");
  pdf.setResolution(kPorPulgada);
  pdf.setPageMargins(QMarginsF());
  pdf.setPageSize(QPageSize(QSizeF(lienzo) / 2, QPageSize::Point, QString(), QPageSize::ExactMatch));
  return PintaEn(pdf, axew, lienzo);
}

}  // namespace

bool GuardaImagen(const EWdraw& axew, const std::string& ruta, Formato formato) {
  const QSize lienzo = TamanoImagen(axew);
  const QString titulo = QString::fromStdString(std::filesystem::path(ruta).stem().string());
  QBuffer salida;
  salida.open(QIODevice::WriteOnly);
  const bool pintado = formato == Formato::png   ? Png(salida, axew, lienzo)
                       : formato == Formato::svg ? Svg(salida, axew, lienzo, titulo)
                                                 : Pdf(salida, axew, lienzo, titulo);
  return pintado && EscribeFichero(ruta, salida.data().toStdString());
}

}  // namespace duktores
