#include "imagenes_papel.h"

#include <QFont>
#include <QFontMetricsF>
#include <QPainterPath>
#include <QPen>
#include <QSaveFile>
#include <algorithm>
#include <array>
#include <cmath>

#include "geometry/puntos.h"

namespace duktores {
namespace {

struct Tinta {
  QRgb color;
  double ancho;
  std::array<double, 6> rayas;  // dash, gap, ... in pixels; 0 ends the list
};
// clang-format off
constexpr std::array<Tinta, 5> kTintas{{
    {0xff1d2b3a, 4, {}},                    // arista
    {0xffa3b4c2, 2, {}},                    // generatriz
    {0xff3a6ea5, 2, {}},                    // cota
    {0xff3a6ea5, 2, {22, 6, 4, 6}},         // eje
    {0xff8a98a5, 2, {8, 5}             },   // fantasma
}};
// clang-format on
constexpr QRgb kTintaLetra = 0xff123a66;

constexpr double kAlturaLetra = 28, kHalo = 10;
constexpr double kFlechaLargo = 16, kFlechaMedio = 3.4, kFlechaFuera = 34;
constexpr double kAparte = 30;                // from a dimension line to a letter beside it
constexpr double kHueco = 8, kSaliente = 10;  // extension lines: from the point, beyond the dimension line

QRgb Color(Trazo trazo) { return kTintas[static_cast<std::size_t>(trazo)].color; }

QPen Pluma(Trazo trazo) {
  const Tinta& tinta = kTintas[static_cast<std::size_t>(trazo)];
  QPen pluma(QColor(tinta.color), tinta.ancho, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
  QList<qreal> rayas;
  for (const double raya : tinta.rayas) {
    if (raya > 0) rayas << raya / tinta.ancho;
  }
  if (!rayas.isEmpty()) {
    pluma.setCapStyle(Qt::FlatCap);
    pluma.setDashPattern(rayas);
  }
  return pluma;
}

double Largo(QPointF v) { return std::hypot(v.x(), v.y()); }
QPointF Unidad(QPointF v) { return v / Largo(v); }
QPointF Polar(double radio, double grados) {
  return {radio * std::cos(Radianes(grados)), -radio * std::sin(Radianes(grados))};
}

// A line two pixels wide covers a pair of pixels that becomes one when shown.
double APareja(double v) { return 2 * std::floor(v / 2) + 1; }

bool EsVertical(QPointF a, QPointF b) { return std::abs(a.x() - b.x()) < 1e-6; }
bool EsHorizontal(QPointF a, QPointF b) { return std::abs(a.y() - b.y()) < 1e-6; }

// The end `a` of the line from `a` to `b`, moved so if the line runs along an axis.
QPointF APareja(QPointF a, QPointF b) {
  return {EsVertical(a, b) ? APareja(a.x()) : a.x(), EsHorizontal(a, b) ? APareja(a.y()) : a.y()};
}

// The tones of sheet metal, and white to each ink for the edges of lines and letters.
QList<QRgb> Paleta() {
  constexpr int kTonosAcero = 120, kTonosTinta = 45;
  const std::array<QRgb, 3> tintas{Color(Trazo::arista), Color(Trazo::cota), kTintaLetra};
  QList<QRgb> paleta;
  for (int i = 0; i <= kTonosAcero; ++i) paleta << Acero(1 - 0.7 * i / kTonosAcero);
  for (const QRgb tinta : tintas) {
    for (int i = 1; i <= kTonosTinta; ++i) {
      const auto tono = [i](int canal) { return 255 + (canal - 255) * i / kTonosTinta; };
      paleta << qRgb(tono(qRed(tinta)), tono(qGreen(tinta)), tono(qBlue(tinta)));
    }
  }
  return paleta;
}

}  // namespace

QRgb Acero(double claridad) {
  const double azul = 0.09 * std::sqrt(claridad * (1 - claridad));
  const auto canal = [](double x) { return static_cast<int>(std::lround(255 * std::clamp(x, 0.0, 1.0))); };
  return qRgb(canal(claridad - azul), canal(claridad), canal(claridad + azul));
}

Papel::Papel() : imagen_(kLienzo, QImage::Format_RGB32), fuente_("DejaVu Sans") {
  imagen_.fill(Qt::white);
  fuente_.setPixelSize(static_cast<int>(kAlturaLetra));
  fuente_.setHintingPreference(QFont::PreferNoHinting);
  pintor_.begin(&imagen_);
  pintor_.setRenderHint(QPainter::Antialiasing);
}

void Papel::Linea(Trazo trazo, QPointF a, QPointF b) {
  const bool fina = trazo != Trazo::arista;
  pintor_.setPen(Pluma(trazo));
  pintor_.drawLine(fina ? APareja(a, b) : a, fina ? APareja(b, a) : b);
}

void Papel::Rellena(const QPolygonF& contorno, QRgb color) {
  // The outline closes the seams that antialiasing would leave between neighbours.
  pintor_.setPen(QPen(QColor(color), 1.2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  pintor_.setBrush(QColor(color));
  pintor_.drawPolygon(contorno);
}

void Papel::Perfil(QPointF a, QPointF b, QRgb color, double ancho) {
  pintor_.setPen(QPen(QColor(color), ancho, Qt::SolidLine, Qt::RoundCap));
  pintor_.drawLine(a, b);
}

void Papel::Flecha(QPointF punta, QPointF hacia) {
  const QPointF cola = punta - kFlechaLargo * hacia, lado = kFlechaMedio * QPointF(-hacia.y(), hacia.x());
  pintor_.setPen(Qt::NoPen);
  pintor_.setBrush(QColor(Color(Trazo::cota)));
  pintor_.drawPolygon(QPolygonF{punta, cola + lado, cola - lado});
}

void Papel::Cota(const Medida& medida, const QString& letra) {
  const auto& [a, b, a2, b2, extension] = medida;
  for (const auto& [punto, fin] : {std::pair(a, a2), std::pair(b, b2)}) {
    if (Largo(fin - punto) < 1) continue;
    const QPointF hacia = Unidad(fin - punto);
    // A centre line passes its centre; other extension lines keep a gap to the edge.
    Linea(extension, extension == Trazo::eje ? punto - 10 * hacia : punto + kHueco * hacia, fin + kSaliente * hacia);
  }
  const bool vertical = EsVertical(a2, b2), horizontal = EsHorizontal(a2, b2);
  const QPointF p = APareja(a2, b2), q = APareja(b2, a2);
  const QPointF u = Unidad(q - p);
  const double letraLargo = vertical ? kAlturaLetra : AnchoRotulo(letra);
  const bool fuera = Largo(q - p) < letraLargo + 2 * kFlechaLargo + 16;
  if (fuera) {
    Linea(Trazo::cota, p - kFlechaFuera * u, q + kFlechaFuera * u);
  } else {
    Linea(Trazo::cota, p, q);
  }
  Flecha(p, fuera ? u : -u);
  Flecha(q, fuera ? -u : u);
  // Arrows that stand outside leave no room between them: the letter goes below, or to the right.
  QPointF aparte;
  if (fuera && horizontal) aparte.setY(kAparte);
  if (fuera && vertical) aparte.setX(kAparte / 2 + AnchoRotulo(letra) / 2);
  Rotulo(letra, (p + q) / 2 + aparte);
}

void Papel::CotaRadio(QPointF centro, double radio, double angulo, double largo, const QString& letra) {
  const QPointF hacia = Polar(1, angulo), punta = centro + radio * hacia, fin = punta + largo * hacia;
  Linea(Trazo::cota, punta, fin);
  Flecha(punta, largo > 0 ? -hacia : hacia);
  // The letter stands beside the line's end, its near edge touching an ellipse around it.
  const QPointF sale = largo > 0 ? hacia : -hacia;
  const double medio = AnchoRotulo(letra) / 2 + 7, alto = kAlturaLetra / 2;
  Rotulo(letra, fin + QPointF(sale.x() * medio, sale.y() * alto));
}

void Papel::CotaAngulo(QPointF vertice, double radio, double angulo, const QString& letra) {
  Linea(Trazo::cota, vertice, vertice + QPointF(radio + kSaliente, 0));
  Linea(Trazo::cota, vertice, vertice + Polar(radio + kSaliente, -angulo));
  pintor_.setPen(Pluma(Trazo::cota));
  pintor_.setBrush(Qt::NoBrush);
  const QRectF caja(vertice - QPointF(radio, radio), QSizeF(2 * radio, 2 * radio));
  pintor_.drawArc(caja, 0, static_cast<int>(std::lround(-16 * angulo)));
  // An arrow head lies on the chord of its own length.
  const double giro = Grados(kFlechaLargo / radio);
  Flecha(vertice + Polar(radio, 0), Polar(1, 90 - giro / 2));
  Flecha(vertice + Polar(radio, -angulo), Polar(1, -angulo - 90 + giro / 2));
  Rotulo(letra, vertice + Polar(radio + 13 + AnchoRotulo(letra) / 2, -angulo / 2));
}

void Papel::Rotulo(const QString& letra, QPointF centro) { letreros_.push_back({letra, centro}); }

double Papel::AnchoRotulo(const QString& letra) const { return QFontMetricsF(fuente_).horizontalAdvance(letra); }

void Papel::EscribeRotulos() {
  const double mayuscula = QFontMetricsF(fuente_).capHeight();
  for (const bool halo : {true, false}) {
    for (const auto& [letra, centro] : letreros_) {
      QPainterPath forma;
      forma.addText(0, 0, fuente_, letra);
      const QRectF caja = forma.boundingRect();
      forma.translate(centro.x() - caja.center().x(), centro.y() + mayuscula / 2);
      pintor_.setPen(halo ? QPen(Qt::white, 2 * kHalo, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin) : QPen(Qt::NoPen));
      pintor_.setBrush(halo ? QColor(Qt::white) : QColor(kTintaLetra));
      pintor_.drawPath(forma);
    }
  }
  letreros_.clear();
}

bool Papel::Guarda(const QString& ruta) {
  EscribeRotulos();
  QImage salida = imagen_.convertToFormat(QImage::Format_Indexed8, Paleta(), Qt::AvoidDither);
  const int puntosPorMetro = 7559;  // 192 per inch: twice the density of a plain screen
  salida.setDotsPerMeterX(puntosPorMetro);
  salida.setDotsPerMeterY(puntosPorMetro);
  QSaveFile fichero(ruta);
  return fichero.open(QIODevice::WriteOnly) && salida.save(&fichero, "BMP") && fichero.commit();
}

}  // namespace duktores
