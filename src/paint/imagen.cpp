// Pictures as files. All formats have the same layout in picture units: a pixel of the PNG.

#include <QBuffer>
#include <QImage>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <QSvgGenerator>
#include <algorithm>
#include <filesystem>
#include <new>
#include <optional>
#include <string_view>

#include "paint/letra.h"
#include "paint/pintura.h"
#include "piece/numeros_texto.h"
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

/// A text as XML may hold it; Qt writes titles as they are.
QString TextoXml(QString texto) {
  for (QChar& c : texto) {
    if (c.category() == QChar::Other_Control || c.unicode() >= 0xFFFE) c = QChar::Space;
  }
  return texto.toHtmlEscaped();
}

bool PintaEn(QPaintDevice& dispositivo, const EWdraw& axew, QSizeF lienzo) {
  QPainter pintor;
  if (!pintor.begin(&dispositivo)) return false;
  Pinta(pintor, axew, Ajusta(axew, lienzo), lienzo, Fondo::claro);
  return pintor.end();
}

bool Png(QIODevice& salida, const EWdraw& axew, QSize lienzo) {
  QImage imagen(lienzo, QImage::Format_RGB32);
  if (imagen.isNull()) throw std::bad_alloc();
  return PintaEn(imagen, axew, lienzo) && imagen.save(&salida, "PNG");
}

bool Svg(QIODevice& salida, const EWdraw& axew, QSize lienzo, const QString& titulo) {
  QSvgGenerator svg;
  svg.setOutputDevice(&salida);
  svg.setTitle(TextoXml(titulo));
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

// A machine without fonts would draw boxes in their place.
bool HayLetraParaTodo(const EWdraw& axew) {
  std::optional<Letra> letra;  // asked for by texts only: without them no application is needed
  return std::ranges::all_of(axew.Entidades(), [&](const Entidad& entidad) {
    if (entidad.tipo != TipoEntidad::texto) return true;
    if (!letra) letra.emplace();
    return letra->Sabe(Letra::Caracteres(entidad));
  });
}

}  // namespace

Guardado GuardaImagen(const EWdraw& axew, const std::string& ruta, Formato formato) {
  if (!HayLetraParaTodo(axew)) return {texto::kSinLetra, {}, {}};
  const QSize lienzo = TamanoImagen(axew);
  const QString titulo = QString::fromStdString(std::filesystem::path(ruta).stem().string());
  QBuffer salida;
  salida.open(QIODevice::WriteOnly);
  const bool pintado = formato == Formato::png   ? Png(salida, axew, lienzo)
                       : formato == Formato::svg ? Svg(salida, axew, lienzo, titulo)
                                                 : Pdf(salida, axew, lienzo, titulo);
  if (!pintado) return {texto::kNoPintado, {}, {}};
  return EscribeFichero(ruta, std::string_view(salida.data().constData(), static_cast<std::size_t>(salida.size())));
}

}  // namespace duktores
