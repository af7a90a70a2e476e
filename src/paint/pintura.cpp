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
#include <vector>

#include "paint/letra.h"
#include "viewer/ewdraw.h"

namespace duktores {

namespace {

constexpr double kTrazoFino = 1.1, kTrazoContorno = 1.8;

QColor ColorFondo(Fondo fondo) { return fondo == Fondo::claro ? QColor(255, 255, 255) : QColor(27, 31, 37); }

/// On paper greys are turned round, white to near black, and every colour is darkened until it reads on white.
QColor Tinta(std::int32_t color, Fondo fondo) {
  const Rgb rgb = RgbDe(color);
  const QColor pura(rgb.r, rgb.g, rgb.b);
  if (fondo == Fondo::oscuro) return pura;
  double canales[] = {pura.redF(), pura.greenF(), pura.blueF()};
  const auto [bajo, alto] = std::ranges::minmax(canales);
  if (alto - bajo < 0.15) {
    for (double& c : canales) c = 1 - 0.88 * c;
  }
  constexpr double kGamma = 2.2, kClaridadMaxima = 0.18;  // a contrast of 4.5 to 1
  const double claridad = 0.2126 * std::pow(canales[0], kGamma) + 0.7152 * std::pow(canales[1], kGamma) +
                          0.0722 * std::pow(canales[2], kGamma);
  const double resto = claridad > kClaridadMaxima ? std::pow(kClaridadMaxima / claridad, 1 / kGamma) : 1;
  return QColor::fromRgbF(static_cast<float>(canales[0] * resto), static_cast<float>(canales[1] * resto),
                          static_cast<float>(canales[2] * resto));
}

bool Finito(QPointF p) { return std::isfinite(p.x()) && std::isfinite(p.y()); }

/// The part of a line inside a rectangle.
std::optional<QLineF> Recorta(const QLineF& linea, const QRectF& caja) {
  double desde = 0, hasta = 1;
  const auto dentro = [&](double paso, double sitio) {
    if (paso == 0) return sitio >= 0;
    (paso < 0 ? desde : hasta) = paso < 0 ? std::max(desde, sitio / paso) : std::min(hasta, sitio / paso);
    return desde <= hasta;
  };
  if (!dentro(-linea.dx(), linea.x1() - caja.left()) || !dentro(linea.dx(), caja.right() - linea.x1()) ||
      !dentro(-linea.dy(), linea.y1() - caja.top()) || !dentro(linea.dy(), caja.bottom() - linea.y1())) {
    return std::nullopt;
  }
  return QLineF(linea.pointAt(desde), linea.pointAt(hasta));
}

class Pincel {
 public:
  Pincel(QPainter& pintor, const EWdraw& axew, const Encuadre& encuadre, QSizeF lienzo, Fondo fondo)
      : pintor_(pintor), base_(BaseVista(axew.DireccionVista())), encuadre_(encuadre), lienzo_(lienzo), fondo_(fondo) {
    const QPaintEngine::Type motor = pintor.paintEngine()->type();
    vectorial_ = motor == QPaintEngine::SVG || motor == QPaintEngine::Pdf;
    puntosPorUnidad_ = pintor.device()->devicePixelRatioF();
    visible_ = QRectF(QPointF(), lienzo).adjusted(-8, -8, 8, 8);
  }

  void PintaLineas(const Entidad& entidad);
  void PintaTexto(const Entidad& entidad);
  void Vuelca();

 private:
  QPointF Lugar(Punto3 p) const { return encuadre_.AlDispositivo(AlPlano(base_, p), lienzo_); }
  QPointF Vector(Punto3 p) const {
    const QPointF q = encuadre_.escala * AlPlano(base_, p);
    return {q.x(), -q.y()};
  }
  QPolygonF Camino(const Entidad& entidad) const;
  QPolygonF CaminoCurva(const Entidad& curva) const;
  void PonPluma(const QColor& color, double ancho);
  void Traza(const QPolygonF& camino, bool cerrado);
  QLineF Centra(QLineF linea) const;

  QPainter& pintor_;
  Base3 base_;
  Encuadre encuadre_;
  QSizeF lienzo_;
  Fondo fondo_;
  bool vectorial_ = false;
  double puntosPorUnidad_ = 1;
  QRectF visible_;
  QPen pluma_{Qt::NoPen};
  std::vector<QLineF> lineas_;  // waiting for the pen to change
  std::optional<Letra> letra_;
};

void Pincel::PonPluma(const QColor& color, double ancho) {
  if (pluma_.style() != Qt::NoPen && pluma_.color() == color && pluma_.widthF() == ancho) return;
  Vuelca();
  pluma_ = QPen(color, ancho, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
  pluma_.setCosmetic(true);
  pintor_.setPen(pluma_);
}

void Pincel::Vuelca() {
  pintor_.drawLines(lineas_.data(), static_cast<int>(lineas_.size()));
  lineas_.clear();
}

/// Long level and plumb lines go to the middle of a pixel, where they come out sharp.
QLineF Pincel::Centra(QLineF linea) const {
  constexpr double kRecto = 0.01, kLargo = 24;
  const double dx = std::abs(linea.dx()), dy = std::abs(linea.dy());
  const auto medio = [this](double c) { return (std::floor(c * puntosPorUnidad_) + 0.5) / puntosPorUnidad_; };
  if (dx < kRecto && dy > kLargo) {
    const double x = medio(linea.x1());
    linea.setLine(x, linea.y1(), x, linea.y2());
  } else if (dy < kRecto && dx > kLargo) {
    const double y = medio(linea.y1());
    linea.setLine(linea.x1(), y, linea.x2(), y);
  }
  return linea;
}

// On pixels every segment goes by itself: long connected paths of a pen wider than a pixel take super-linear time.
void Pincel::Traza(const QPolygonF& camino, bool cerrado) {
  if (camino.isEmpty() || !std::ranges::all_of(camino, Finito)) return;
  if (vectorial_) {
    cerrado ? pintor_.drawPolygon(camino) : pintor_.drawPolyline(camino);
    return;
  }
  for (qsizetype i = cerrado ? 0 : 1; i < camino.size(); ++i) {
    const QPointF anterior = i > 0 ? camino[i - 1] : camino.back();
    if (const auto linea = Recorta({anterior, camino[i]}, visible_)) lineas_.push_back(Centra(*linea));
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
  for (int i = 0; i <= n; ++i) {
    const double t = curva.inicio + vuelta * i / n;
    camino << Lugar(curva.puntos[0] + std::cos(t) * curva.u + std::sin(t) * curva.v);
  }
  return camino;
}

QPolygonF Pincel::Camino(const Entidad& entidad) const {
  QPolygonF camino;
  camino.reserve(static_cast<qsizetype>(entidad.puntos.size()));
  for (const Punto3& p : entidad.puntos) camino << Lugar(p);
  return camino;
}

void Pincel::PintaLineas(const Entidad& entidad) {
  const QColor color = Tinta(entidad.color, fondo_);
  switch (entidad.tipo) {
    case TipoEntidad::texto:
      return;
    case TipoEntidad::punto:
      PonPluma(color, 2 * kTrazoContorno);
      return Traza({Lugar(entidad.puntos[0]), Lugar(entidad.puntos[0])}, false);
    case TipoEntidad::circulo:
    case TipoEntidad::elipse:
    case TipoEntidad::arco:
      PonPluma(color, kTrazoFino);
      return Traza(CaminoCurva(entidad), false);
    case TipoEntidad::linea:
    case TipoEntidad::polilinea:
      PonPluma(color, kTrazoFino);
      return Traza(Camino(entidad), false);
    case TipoEntidad::contorno:
    case TipoEntidad::region:
      PonPluma(color, kTrazoContorno);
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
  if (deCanto || !Finito(origen)) return;
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

}  // namespace

void Pinta(QPainter& pintor, const EWdraw& axew, const Encuadre& encuadre, QSizeF lienzo, Fondo fondo) {
  if (!pintor.isActive()) return;
  pintor.save();
  pintor.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
  pintor.setBrush(Qt::NoBrush);
  pintor.setLayoutDirection(Qt::LeftToRight);
  pintor.fillRect(QRectF(QPointF(), lienzo), ColorFondo(fondo));
  Pincel pincel(pintor, axew, encuadre, lienzo, fondo);
  for (const Entidad& entidad : axew.Entidades()) pincel.PintaLineas(entidad);
  pincel.Vuelca();
  for (const Entidad& entidad : axew.Entidades()) pincel.PintaTexto(entidad);
  pintor.restore();
}

}  // namespace duktores
