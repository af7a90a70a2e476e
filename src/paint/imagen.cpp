// Pictures as files.

#include <QBuffer>
#include <QImage>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <QSvgGenerator>
#include <algorithm>
#include <cmath>
#include <filesystem>
#include <functional>
#include <new>
#include <optional>
#include <string_view>

#include "paint/letra.h"
#include "paint/papel.h"
#include "paint/pintura.h"
#include "piece/numeros_texto.h"
#include "viewer/ewdraw.h"

namespace duktores {

namespace {

/// A page in units of which `porPulgada` are an inch of paper, and what is painted on it where a device has as many.
/// Width and height of an SVG picture are `tamano` times `medida` of its `unidad`.
struct Lamina {
  QSizeF tamano;
  double porPulgada;
  double medida;
  const char* unidad;
  std::function<void(QPainter& pintor, double porPulgada)> pinta;
};

constexpr double kAncho = 1600, kAltoMinimo = 640, kAltoMaximo = 2400;

/// As high as the model asks for; long thin models get air instead of a strip or a tower.
QSizeF TamanoPagina(const QRectF& zona) {
  const double cociente = zona.height() / zona.width(), forma = std::isfinite(cociente) ? cociente : 1;
  return {kAncho, std::round(std::clamp(kAncho * forma, kAltoMinimo, kAltoMaximo))};
}

double TextoMenor(const EWdraw& axew) {
  const Base3 base = BaseVista(axew.DireccionVista());
  double menor = HUGE_VAL;
  for (const Entidad& entidad : axew.Entidades()) {
    const QPointF v = AlPlano(base, entidad.v);
    const double alto = std::hypot(v.x(), v.y());
    if (entidad.tipo == TipoEntidad::texto && alto > 0) menor = std::min(menor, alto);
  }
  return menor;
}

/// A page on which the smallest text can be read, as far as pixels and memory go. It grows without the air around a
/// strip or a tower.
QSizeF TamanoLegible(const EWdraw& axew) {
  constexpr double kTexto = 8, kLado = 8000, kPixeles = 32e6, kMargen = 0.09;
  const QRectF zona = ExtensionPintada(axew);
  const QSizeF pagina = TamanoPagina(zona);
  const double escala = kTexto / TextoMenor(axew);
  const QSizeF dibujo = escala * zona.size();
  const bool legible = !(escala > Ajusta(axew, pagina).escala);
  if (legible || !std::isfinite(dibujo.width() * dibujo.height())) return pagina;
  const QSizeF minimo = QSizeF(kAncho, kAltoMinimo), ancha = dibujo.expandedTo(minimo);
  const double margen = kMargen * std::min(ancha.width(), ancha.height());
  const QSizeF lleno(dibujo.width() + margen, dibujo.height() + margen);
  const double cabe = std::min(
      {1.0, kLado / lleno.width(), kLado / lleno.height(), std::sqrt(kPixeles / (lleno.width() * lleno.height()))});
  return QSizeF((cabe * lleno).toSize()).expandedTo(minimo);
}

Lamina LaminaAjustada(const EWdraw& axew, QSizeF tamano) {
  constexpr double kSvg = 25.4 / 96;  // its pixels are larger
  return {tamano, kPorPulgada, kSvg, "mm", [&axew, tamano](QPainter& pintor, double porPulgada) {
            const QSizeF lienzo = porPulgada / kPorPulgada * tamano;
            Pinta(pintor, axew, Ajusta(axew, lienzo), lienzo, Fondo::claro, porPulgada);
          }};
}

Lamina LaminaDe(const Papel& papel) {
  return {papel.Tamano(), papel.UnidadesPorPulgada(), 1, papel.Milimetros() ? "mm" : "in",
          [&papel](QPainter& pintor, double porPulgada) { papel.Pinta(pintor, porPulgada); }};
}

/// A text as XML may hold it; Qt writes titles as they are.
QString TextoXml(QString texto) {
  for (QChar& c : texto) {
    if (c.category() == QChar::Other_Control || c.unicode() >= 0xFFFE) c = QChar::Space;
  }
  return texto.toHtmlEscaped();
}

bool PintaEn(QPaintDevice& dispositivo, const Lamina& lamina, double porPulgada) {
  QPainter pintor;
  if (!pintor.begin(&dispositivo)) return false;
  lamina.pinta(pintor, porPulgada);
  return pintor.end();
}

bool Png(QIODevice& salida, const Lamina& lamina) {
  QImage imagen(lamina.tamano.toSize(), QImage::Format_RGB32);
  if (imagen.isNull()) throw std::bad_alloc();
  return PintaEn(imagen, lamina, lamina.porPulgada) && imagen.save(&salida, "PNG");
}

bool Svg(QBuffer& salida, const Lamina& lamina, const QString& titulo) {
  QSvgGenerator svg;
  svg.setOutputDevice(&salida);
  svg.setTitle(TextoXml(titulo));
  svg.setDescription("duktores");
  svg.setViewBox(QRectF(QPointF(), lamina.tamano));
  if (!PintaEn(svg, lamina, lamina.porPulgada)) return false;
  // Qt knows a size in whole pixels only.
  const QSizeF lados = lamina.medida * lamina.tamano;
  constexpr int kCifras = 9;
  const QString cabeza = QStringLiteral("<svg width=\"%1%3\" height=\"%2%3\"\n");
  const qsizetype desde = salida.data().indexOf("<svg"), hasta = salida.data().indexOf(" viewBox", desde);
  salida.buffer().replace(
      desde, hasta - desde,
      cabeza.arg(lados.width(), 0, 'g', kCifras).arg(lados.height(), 0, 'g', kCifras).arg(lamina.unidad).toUtf8());
  return true;
}

bool Pdf(QIODevice& salida, const Lamina& lamina, const QString& titulo) {
  const QSizeF puntos = 72 / lamina.porPulgada * lamina.tamano;
  QPdfWriter pdf(&salida);
  pdf.setPdfVersion(QPagedPaintDevice::PdfVersion_1_6);  // the first that has pages of more than 14400 points
  pdf.setTitle(titulo);
  pdf.setCreator("duktores");
  pdf.setResolution(qRound(kPorPulgada));
  pdf.setPageMargins(QMarginsF());
  const QSizeF enteros(std::ceil(puntos.width()), std::ceil(puntos.height()));
  pdf.setPageSize(QPageSize(enteros, QPageSize::Point, QString(), QPageSize::ExactMatch));
  return PintaEn(pdf, lamina, kPorPulgada);
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

std::string Sufijo(Formato formato) {
  return formato == Formato::png ? ".png" : formato == Formato::svg ? ".svg" : ".pdf";
}

Guardado GuardaImagen(const EWdraw& axew, const std::string& ruta, Formato formato, Escala escala) {
  if (!HayLetraParaTodo(axew)) return {texto::kSinLetra, {}, {}};
  std::optional<Papel> papel;
  if (formato != Formato::png && escala != Escala::ajustada) papel.emplace(axew, escala == Escala::milimetros);
  if (papel && !HayLetraParaTodo(papel->Regla())) return {texto::kSinLetra, {}, {}};
  const Lamina lamina = papel ? LaminaDe(*papel)
                              : LaminaAjustada(axew, formato == Formato::png ? TamanoLegible(axew)
                                                                             : TamanoPagina(ExtensionPintada(axew)));
  const QString titulo = QString::fromStdString(std::filesystem::path(ruta).stem().string());
  QBuffer salida;
  salida.open(QIODevice::WriteOnly);
  const bool pintado = formato == Formato::png   ? Png(salida, lamina)
                       : formato == Formato::svg ? Svg(salida, lamina, titulo)
                                                 : Pdf(salida, lamina, titulo);
  if (!pintado) return {texto::kNoPintado, {}, {}};
  return EscribeFichero(ruta, std::string_view(salida.data().constData(), static_cast<std::size_t>(salida.size())));
}

}  // namespace duktores
