#include "paint/pintura.h"

#include <QLineF>
#include <QPaintEngine>
#include <QPainter>
#include <QPen>
#include <QPolygonF>
#include <QTransform>
#include <algorithm>
#include <cmath>
#include <optional>
#include <utility>
#include <vector>

#include "paint/letra.h"
#include "viewer/ewdraw.h"

namespace duktores {

namespace {

// Widths in device units, on paper of kPorPulgada to an inch. On the screen the many thin lines take Qt's fast road,
// which ends at one pixel.
struct Trazos {
  double fino, contorno, punto;
};
constexpr Trazos kTrazosPantalla{1, 1.8, 4}, kTrazosPapel{1.4, 2.4, 5};

QColor ColorFondo(Fondo fondo) { return fondo == Fondo::claro ? QColor(255, 255, 255) : QColor(27, 31, 37); }

struct Canales {
  double r, g, b;
  double Claridad() const {
    constexpr double kGamma = 2.2;
    return 0.2126 * std::pow(r, kGamma) + 0.7152 * std::pow(g, kGamma) + 0.0722 * std::pow(b, kGamma);
  }
};

/// The colour that is painted: as it is, if it stands out from the background by about 4.5 to 1 on paper or 3 to 1 on
/// the screen; else darker or lighter. On paper greys are first turned round, white to near black.
QColor Tinta(std::int32_t color, Fondo fondo) {
  const Rgb rgb = RgbDe(color);
  Canales c{rgb.r / 255.0, rgb.g / 255.0, rgb.b / 255.0};
  constexpr double kPaso = 0.02, kMaximaEnPapel = 0.18, kMinimaEnPantalla = 0.13;
  if (fondo == Fondo::claro) {
    const bool gris = std::max({c.r, c.g, c.b}) - std::min({c.r, c.g, c.b}) < 0.15;
    if (gris) c = {1 - 0.88 * c.r, 1 - 0.88 * c.g, 1 - 0.88 * c.b};
    while (c.Claridad() > kMaximaEnPapel) c = {(1 - kPaso) * c.r, (1 - kPaso) * c.g, (1 - kPaso) * c.b};
  } else {
    const auto aclara = [](double v) { return v + kPaso * (1 - v); };
    while (c.Claridad() < kMinimaEnPantalla) c = {aclara(c.r), aclara(c.g), aclara(c.b)};
  }
  return QColor::fromRgbF(static_cast<float>(c.r), static_cast<float>(c.g), static_cast<float>(c.b));
}

/// Numbers, and such that their differences are numbers too.
bool Dibujable(QPointF p) { return std::abs(p.x()) < 1e100 && std::abs(p.y()) < 1e100; }

bool EsVueltaEntera(const Entidad& curva) { return curva.fin - curva.inicio > 2 * dPi - 1e-9; }

class Pincel {
 public:
  Pincel(QPainter& pintor, const Base3& base, const Encuadre& encuadre, QSizeF lienzo, Fondo fondo, double porPulgada,
         Esmero esmero = Esmero::fino)
      : pintor_(pintor),
        base_(base),
        encuadre_(encuadre),
        lienzo_(lienzo),
        fondo_(fondo),
        esmero_(esmero),
        trazos_(fondo == Fondo::claro ? kTrazosPapel : kTrazosPantalla),
        escalaTrazos_(fondo == Fondo::claro ? porPulgada / kPorPulgada : 1),
        celda_(20 * porPulgada) {
    const QPaintEngine::Type motor = pintor.paintEngine()->type();
    svg_ = motor == QPaintEngine::SVG;
    vectorial_ = svg_ || motor == QPaintEngine::Pdf;
    puntosPorUnidad_ = pintor.device()->devicePixelRatioF();
    visible_ = QRectF(QPointF(), lienzo).adjusted(-8, -8, 8, 8);
  }

  void Pinta(std::span<const Entidad> entidades);

 private:
  void PintaLineas(const Entidad& entidad);
  void PintaTexto(const Entidad& entidad);
  void Vuelca();
  void Vuelve();
  QPointF Lugar(Punto3 p) const { return encuadre_.AlDispositivo(AlPlano(base_, p), lienzo_); }
  QPointF Vector(Punto3 p) const {
    const QPointF q = encuadre_.escala * AlPlano(base_, p);
    return {q.x(), -q.y()};
  }
  QPolygonF Camino(const Entidad& entidad) const;
  QPolygonF CaminoCurva(const Entidad& curva) const;
  void PonPluma(std::int32_t color, double ancho);
  void Traza(QPolygonF camino, bool cerrado);
  void Centra(QPointF& p, QPointF& q) const;
  void Acerca(QPolygonF& camino);

  QPainter& pintor_;
  Base3 base_;
  Encuadre encuadre_;
  QSizeF lienzo_;
  Fondo fondo_;
  Esmero esmero_;
  Trazos trazos_;
  double escalaTrazos_, celda_;
  bool svg_ = false, vectorial_ = false;
  double puntosPorUnidad_ = 1;
  QRectF visible_;
  QPointF cerca_;  // where the painter's origin is
  std::int32_t colorPluma_ = 0;
  double anchoPluma_ = 0;
  std::vector<QLineF> lineas_;  // waiting for the pen to change
  std::optional<Letra> letra_;
};

// Square caps, because round ones on lines that share an end cost a hundred times as much; mitred joins, because round
// ones leave blots on curves.
void Pincel::PonPluma(std::int32_t color, double ancho) {
  if (color == colorPluma_ && ancho == anchoPluma_) return;
  Vuelca();
  colorPluma_ = color;
  anchoPluma_ = ancho;
  const double puntos = esmero_ == Esmero::fino ? ancho * escalaTrazos_ * puntosPorUnidad_ : 1;
  QPen pluma(Tinta(color, fondo_), puntos, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin);
  pluma.setCosmetic(!vectorial_);
  pintor_.setPen(pluma);
}

void Pincel::Vuelca() {
  pintor_.drawLines(lineas_.data(), static_cast<int>(lineas_.size()));
  lineas_.clear();
}

/// Long level and plumb lines go to the middle of a pixel, where they come out sharp.
void Pincel::Centra(QPointF& p, QPointF& q) const {
  constexpr double kRecto = 0.01, kLargo = 24;
  const double dx = std::abs(q.x() - p.x()), dy = std::abs(q.y() - p.y());
  const auto medio = [this](double c) { return (std::floor(c * puntosPorUnidad_) + 0.5) / puntosPorUnidad_; };
  if (dx < kRecto && dy > kLargo) {
    p.setX(medio(p.x()));
    q.setX(p.x());
  } else if (dy < kRecto && dx > kLargo) {
    p.setY(medio(p.y()));
    q.setY(p.y());
  }
}

/// Qt writes six digits into an SVG file. Far from the origin too few of them are behind the point, so the origin goes
/// along.
void Pincel::Acerca(QPolygonF& camino) {
  const QPointF p = camino.front() / celda_, cerca = celda_ * QPointF(std::floor(p.x()), std::floor(p.y()));
  if (cerca != cerca_) pintor_.translate(cerca - cerca_);
  cerca_ = cerca;
  camino.translate(-cerca);
}

void Pincel::Vuelve() { pintor_.translate(-std::exchange(cerca_, QPointF())); }

void Pincel::Traza(QPolygonF camino, bool cerrado) {
  if (camino.isEmpty() || !std::ranges::all_of(camino, Dibujable)) return;
  if (cerrado && camino.size() > 2 && camino.isClosed()) camino.removeLast();
  const qsizetype primero = cerrado ? 0 : 1;
  const auto anterior = [&](qsizetype i) -> QPointF& { return camino[i > 0 ? i - 1 : camino.size() - 1]; };
  if (!vectorial_) {
    for (qsizetype i = primero; i < camino.size(); ++i) Centra(anterior(i), camino[i]);
  }
  const bool suelta = camino.size() == 2;
  // On pixels, a pen wider than one takes super-linear time for long connected paths.
  constexpr qsizetype kCorto = 2000;
  if (vectorial_ || (!suelta && camino.size() <= kCorto && visible_.contains(camino.boundingRect()))) {
    Vuelca();
    if (svg_) Acerca(camino);
    cerrado ? pintor_.drawPolygon(camino) : pintor_.drawPolyline(camino);
    return;
  }
  for (qsizetype i = primero; i < camino.size(); ++i) {
    if (const auto linea = Recorta({anterior(i), camino[i]}, visible_)) lineas_.push_back(*linea);
  }
}

QPolygonF Pincel::CaminoCurva(const Entidad& curva) const {
  constexpr double kFlecha = 0.02;  // device units between the arc and its chord
  const double vuelta = std::clamp(curva.fin - curva.inicio, 0.0, 2 * dPi);
  const double radio = encuadre_.escala * std::max(Distancia(Punto3{}, curva.u), Distancia(Punto3{}, curva.v));
  const double pasos = std::ceil(vuelta / (2 * std::sqrt(2 * kFlecha / radio)));
  if (!std::isfinite(pasos)) return {};
  const int n = static_cast<int>(std::clamp(pasos, 16.0, 4096.0));
  QPolygonF camino;
  for (int i = 0; i < n + (EsVueltaEntera(curva) ? 0 : 1); ++i) {
    const double t = curva.inicio + vuelta * i / n;
    camino << Lugar(curva.puntos[0] + std::cos(t) * curva.u + std::sin(t) * curva.v);
  }
  return camino;
}

QPolygonF Pincel::Camino(const Entidad& entidad) const {
  QPolygonF camino;
  camino.reserve(static_cast<qsizetype>(entidad.puntos.size()));
  // A vertex that stands twice would leave a spur at its corner; a small part of a pixel shows nothing.
  const double cerca = vectorial_ ? 0 : 0.1 / puntosPorUnidad_;
  for (const Punto3& p : entidad.puntos) {
    const QPointF q = Lugar(p);
    if (camino.isEmpty() || !((q - camino.back()).manhattanLength() <= cerca)) {
      camino << q;
    } else if (&p == &entidad.puntos.back()) {
      camino.back() = q;
    }
  }
  return camino;
}

void Pincel::PintaLineas(const Entidad& entidad) {
  switch (entidad.tipo) {
    case TipoEntidad::texto:
      return;
    case TipoEntidad::punto: {
      PonPluma(entidad.color, trazos_.punto);
      const QPointF lugar = Lugar(entidad.puntos[0]), pelo(0.01, 0);
      return Traza({lugar - pelo, lugar + pelo}, false);
    }
    case TipoEntidad::circulo:
    case TipoEntidad::elipse:
    case TipoEntidad::arco:
      PonPluma(entidad.color, trazos_.fino);
      return Traza(CaminoCurva(entidad), EsVueltaEntera(entidad));
    case TipoEntidad::linea:
    case TipoEntidad::polilinea:
      PonPluma(entidad.color, trazos_.fino);
      return Traza(Camino(entidad), false);
    case TipoEntidad::contorno:
    case TipoEntidad::region:
      PonPluma(entidad.color, trazos_.contorno);
      return Traza(Camino(entidad), true);
  }
}

void Pincel::PintaTexto(const Entidad& entidad) {
  if (entidad.tipo != TipoEntidad::texto || entidad.texto.empty()) return;
  if (!letra_) {
    letra_.emplace();
    pintor_.setFont(letra_->Fuente());
  }
  const QPointF origen = Lugar(entidad.puntos[0]);
  const QPointF u = Vector(entidad.u) / letra_->Capital(), v = Vector(entidad.v) / letra_->Capital();
  const QTransform marco(u.x(), u.y(), -v.x(), -v.y(), origen.x(), origen.y());
  const double largos = std::hypot(u.x(), u.y()) * std::hypot(v.x(), v.y());
  const bool deCanto = !(std::abs(marco.determinant()) > 1e-3 * largos);  // nothing to see, or no numbers
  if (deCanto || !Dibujable(origen)) return;
  const QString texto = Letra::Caracteres(entidad);
  const double alto = letra_->Fuente().pixelSize();
  const QRectF caja(-alto, -2 * alto, 2 * alto * static_cast<double>(texto.size() + 1), 3 * alto);  // ample
  const bool seVe = std::sqrt(largos) * letra_->Capital() >= 1 && marco.mapRect(caja).intersects(visible_);
  if (!vectorial_ && !seVe) return;
  const QTransform antes = pintor_.transform();
  pintor_.setTransform(marco, true);
  pintor_.setPen(Tinta(entidad.color, fondo_));
  pintor_.drawText(QPointF(0, 0), texto);
  pintor_.setTransform(antes);
}

// Outlines lie over the bend lines that run along them, texts over all.
void Pincel::Pinta(std::span<const Entidad> entidades) {
  pintor_.save();
  pintor_.setRenderHint(QPainter::Antialiasing, esmero_ == Esmero::fino);
  pintor_.setRenderHint(QPainter::TextAntialiasing);
  pintor_.setBrush(Qt::NoBrush);
  pintor_.setLayoutDirection(Qt::LeftToRight);
  for (const bool contornos : {false, true}) {
    for (const Entidad& entidad : entidades) {
      if ((entidad.tipo == TipoEntidad::contorno) == contornos) PintaLineas(entidad);
    }
  }
  Vuelca();
  Vuelve();
  for (const Entidad& entidad : entidades) PintaTexto(entidad);
  pintor_.restore();
}

}  // namespace

void Pinta(QPainter& pintor, const EWdraw& axew, const Encuadre& encuadre, QSizeF lienzo, Fondo fondo,
           double porPulgada, Esmero esmero) {
  if (!pintor.isActive()) return;
  pintor.fillRect(QRectF(QPointF(), lienzo), ColorFondo(fondo));
  Pincel(pintor, BaseVista(axew.DireccionVista()), encuadre, lienzo, fondo, porPulgada, esmero)
      .Pinta(axew.Entidades());
}

void PintaEntidades(QPainter& pintor, std::span<const Entidad> entidades, const Encuadre& encuadre, QSizeF lienzo,
                    Fondo fondo) {
  if (pintor.isActive()) Pincel(pintor, BaseVista({0, 0, 1}), encuadre, lienzo, fondo, kPorPulgada).Pinta(entidades);
}

}  // namespace duktores
