#include "windows/vista_chapas.h"

#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>
#include <algorithm>
#include <cmath>
#include <map>

#include "geometry/planas.h"
#include "piece/numeros_texto.h"
#include "state/estado.h"
#include "state/numeros.h"
#include "state/textos.h"

namespace duktores {

namespace {

constexpr double kPasoRueda = 1.0015;  // zoom of an eighth of a degree of the wheel
constexpr QColor kFondo(27, 31, 37), kChapa(222, 226, 232), kBorde(120, 128, 140), kCanto(34, 40, 50);
constexpr QColor kLetra(225, 229, 235);

QString Q(const std::string& texto) { return QString::fromStdString(texto); }
QString Numero(double v) { return Q(TextoDeNumero(std::round(v * 100) / 100)); }
QString Decima(double v) { return Q(TextoDeNumero(std::round(v * 10) / 10)); }

/// Colours that lie far from one another, however many there are.
QColor ColorDe(std::size_t cual) {
  constexpr double kAureo = 0.618033988749895;
  const double tono = std::fmod(0.55 + kAureo * static_cast<double>(cual), 1.0);
  return QColor::fromHsvF(static_cast<float>(tono), 0.42F, 0.86F);
}

/// A point deep within an outline, where a name can stand.
Punto2 Hondo(const std::vector<Punto2>& contorno) {
  constexpr int kPasos = 14;
  QPolygonF poligono;
  for (const Punto2 p : contorno) poligono << QPointF(p.x, p.y);
  const QRectF caja = poligono.boundingRect();
  Punto2 mejor{caja.center().x(), caja.center().y()};
  double hondura = -1;
  for (int i = 1; i < kPasos; ++i) {
    for (int j = 1; j < kPasos; ++j) {
      const Punto2 p{caja.left() + caja.width() * i / kPasos, caja.top() + caja.height() * j / kPasos};
      if (!poligono.containsPoint({p.x, p.y}, Qt::OddEvenFill)) continue;
      double cerca = 1e300;
      for (std::size_t k = 0; k < contorno.size(); ++k) {
        cerca = std::min(cerca, DistanciaASegmento(p, contorno[k], contorno[(k + 1) % contorno.size()]));
      }
      if (cerca <= hondura) continue;
      hondura = cerca;
      mejor = p;
    }
  }
  return mejor;
}

/// What of the level line through a point lies within the outline, on both sides of the point.
QLineF Renglon(const QPolygonF& contorno, QPointF p) {
  double izquierda = -1e300, derecha = 1e300;
  for (qsizetype i = 0; i < contorno.size(); ++i) {
    const QPointF a = contorno[i], b = contorno[(i + 1) % contorno.size()];
    if ((a.y() > p.y()) == (b.y() > p.y())) continue;
    const double x = a.x() + (p.y() - a.y()) / (b.y() - a.y()) * (b.x() - a.x());
    (x < p.x() ? izquierda : derecha) = x < p.x() ? std::max(izquierda, x) : std::min(derecha, x);
  }
  return {{std::max(izquierda, p.x() - 1e5), p.y()}, {std::min(derecha, p.x() + 1e5), p.y()}};
}

QString Rotulo(std::size_t numero, const Lote& lote, const ChapaPuesta& chapa, const FilaChapa* fila) {
  const Punto2 tamano = lote.encargo.chapas[chapa.chapa].tamano;
  const double uso = fila ? fila->uso : kPorCiento * UsoDe(lote.encargo, chapa);
  QString rotulo = Q(Texto(texto::kUnaChapa))
                       .arg(QString::number(numero), Numero(tamano.x), Numero(tamano.y), Numero(lote.espesor),
                            QString::number(chapa.partes.size()), Decima(uso));
  if (fila) rotulo += ", " + Q(Texto(texto::kResto)).arg(Numero(fila->resto.x), Numero(fila->resto.y));
  return rotulo;
}

}  // namespace

VistaChapas::VistaChapas(QWidget* padre) : QWidget(padre) {
  setObjectName("VistaChapas");
  setFocusPolicy(Qt::StrongFocus);
  setAttribute(Qt::WA_OpaquePaintEvent);
  setMinimumSize(200, 120);
}

void VistaChapas::Muestra(const Reparto& reparto) {
  std::vector<QSizeF> antes, ahora;
  for (const Hoja& hoja : hojas_) antes.push_back(hoja.sitio.size());
  hojas_.clear();
  std::map<std::string, QColor> colores;
  for (const ParteChapa& parte : reparto.lista->partes) colores.emplace(parte.pieza, ColorDe(colores.size()));
  for (std::size_t i = 0; i < reparto.nidos.size(); ++i) {
    const Lote& lote = (*reparto.lotes)[i];
    std::vector<std::optional<Punto2>> hondos(lote.partes.size());
    for (const ChapaPuesta& chapa : reparto.nidos[i].chapas) {
      const Punto2 tamano = lote.encargo.chapas[chapa.chapa].tamano;
      const std::size_t n = hojas_.size();
      Hoja& hoja = hojas_.emplace_back();
      hoja.sitio = {0, 0, tamano.x, tamano.y};
      hoja.rotulo = Rotulo(n + 1, lote, chapa, n < reparto.chapas.size() ? &reparto.chapas[n] : nullptr);
      for (const Colocada& c : chapa.partes) {
        const ParteChapa& que = *lote.partes[c.parte];
        Parte& parte = hoja.partes.emplace_back(Parte{{}, colores[que.pieza], Q(que.pieza), {}, {}});
        parte.nombre = parte.pieza + " - " + Q(que.forma);
        for (const Punto2 p : ContornoEn(lote.encargo.partes[c.parte], c)) parte.contorno << QPointF(p.x, p.y);
        auto& hondo = hondos[c.parte];
        if (!hondo) hondo = Hondo(lote.encargo.partes[c.parte].contorno);
        const Punto2 sitio = Giro(c.grados)(*hondo) + c.sitio;
        parte.renglon = Renglon(parte.contorno, {sitio.x, sitio.y});
      }
      ahora.push_back(hoja.sitio.size());
    }
  }
  Reparte();
  if (ajustado_ || antes != ahora) Encuadra();
  update();
}

// In so many columns that they show largest.
void VistaChapas::Reparte() {
  constexpr double kHueco = 0.06;  // of the largest sheet
  QSizeF celda;
  for (const Hoja& hoja : hojas_) celda = celda.expandedTo(hoja.sitio.size());
  const double hueco = kHueco * celda.width(), pie = 2 * fontMetrics().height();  // of the screen
  const auto n = static_cast<int>(hojas_.size());
  int columnas = 1;
  double mejor = 0;
  for (int c = 1; c <= n; ++c) {
    const int filas = (n + c - 1) / c;
    const double escala =
        std::min(width() / (c * (celda.width() + hueco)), (1.0 * height() / filas - pie) / celda.height());
    if (escala > mejor) columnas = c;
    mejor = std::max(mejor, escala);
  }
  pie_ = mejor > 0 ? pie / mejor : 0;
  for (int i = 0; i < n; ++i) {
    QRectF& sitio = hojas_[static_cast<std::size_t>(i)].sitio;
    sitio.moveTo((i % columnas) * (celda.width() + hueco), -(i / columnas) * (celda.height() + pie_));
  }
}

void VistaChapas::Encuadra() {
  QRectF todo;
  for (const Hoja& hoja : hojas_) todo |= hoja.sitio;
  todo.setTop(todo.top() - pie_);
  encuadre_ = Ajusta(todo, size());
  ajustado_ = true;
  update();
}

void VistaChapas::Amplia(double factor, QPointF sobre) {
  constexpr double kMinima = 1e-4, kMaxima = 1e3;
  const QPointF fijo = encuadre_.DelDispositivo(sobre, size());
  encuadre_.escala = std::clamp(encuadre_.escala * factor, kMinima, kMaxima);
  encuadre_.centro += fijo - encuadre_.DelDispositivo(sobre, size());
  ajustado_ = false;
  update();
}

QPolygonF VistaChapas::EnPantalla(const QPolygonF& contorno) const {
  QPolygonF puntos;
  puntos.reserve(contorno.size());
  for (const QPointF& p : contorno) puntos << encuadre_.AlDispositivo(p, size());
  return puntos;
}

void VistaChapas::PintaNombre(QPainter& pintor, const Parte& parte) const {
  constexpr double kMinimo = 24, kParte = 0.9;
  const QFontMetricsF medidas = pintor.fontMetrics();
  const double ancho = kParte * parte.renglon.length() * encuadre_.escala;
  if (ancho < kMinimo) return;
  const QString texto = medidas.elidedText(parte.pieza, Qt::ElideMiddle, ancho);
  QRectF sitio(0, 0, ancho, medidas.height());
  sitio.moveCenter(encuadre_.AlDispositivo(parte.renglon.center(), size()));
  pintor.drawText(sitio, Qt::AlignCenter | Qt::TextDontClip, texto);
}

void VistaChapas::PintaHoja(QPainter& pintor, const Hoja& hoja) const {
  const QRectF sitio = QRectF(encuadre_.AlDispositivo(hoja.sitio.topLeft(), size()),
                              encuadre_.AlDispositivo(hoja.sitio.bottomRight(), size()))
                           .normalized();
  if (!sitio.adjusted(0, 0, 0, 2 * fontMetrics().height()).intersects(rect())) return;
  pintor.setPen(QPen(kBorde, 0));
  pintor.setBrush(kChapa);
  pintor.drawRect(sitio);
  pintor.setPen(QPen(kCanto, 0));
  const QFont letra = font();
  QFont menuda = letra;
  menuda.setPointSizeF(0.85 * letra.pointSizeF());
  pintor.setFont(menuda);
  for (const Parte& parte : hoja.partes) {
    pintor.setBrush(parte.color);
    pintor.drawPolygon(EnPantalla(parte.contorno.translated(hoja.sitio.topLeft())));
  }
  for (Parte parte : hoja.partes) {
    parte.renglon.translate(hoja.sitio.topLeft());
    PintaNombre(pintor, parte);
  }
  constexpr int kLetras = 8;  // of fewer nothing can be read
  if (pie_ * encuadre_.escala < fontMetrics().height() || sitio.width() < kLetras * fontMetrics().averageCharWidth()) {
    return;
  }
  pintor.setFont(letra);
  pintor.setPen(kLetra);
  const QRectF pie(sitio.left(), sitio.bottom() + 3, sitio.width(), fontMetrics().height());
  pintor.drawText(pie, Qt::AlignLeft | Qt::TextDontClip,
                  fontMetrics().elidedText(hoja.rotulo, Qt::ElideRight, static_cast<int>(sitio.width())));
}

void VistaChapas::paintEvent(QPaintEvent*) {
  QPainter pintor(this);
  pintor.setRenderHint(QPainter::Antialiasing);
  pintor.fillRect(rect(), kFondo);
  for (const Hoja& hoja : hojas_) PintaHoja(pintor, hoja);
}

bool VistaChapas::event(QEvent* suceso) {
  if (suceso->type() != QEvent::ToolTip) return QWidget::event(suceso);
  const auto* ayuda = static_cast<QHelpEvent*>(suceso);
  const QPointF punto = encuadre_.DelDispositivo(ayuda->pos(), size());
  QString texto;
  for (const Hoja& hoja : hojas_) {
    const QPointF suyo = punto - hoja.sitio.topLeft();
    for (const Parte& parte : hoja.partes) {
      if (parte.contorno.containsPoint(suyo, Qt::OddEvenFill)) texto = parte.nombre;
    }
    if (texto.isEmpty() && hoja.sitio.contains(punto)) texto = hoja.rotulo;
  }
  QToolTip::showText(ayuda->globalPos(), texto.toHtmlEscaped(), this);
  return true;
}

void VistaChapas::resizeEvent(QResizeEvent*) {
  if (!ajustado_) return;
  Reparte();
  Encuadra();
}

void VistaChapas::wheelEvent(QWheelEvent* suceso) {
  Amplia(std::pow(kPasoRueda, suceso->angleDelta().y()), suceso->position());
}

void VistaChapas::keyPressEvent(QKeyEvent* suceso) {
  constexpr double kFactor = 1.25, kTrecho = 60;
  const QPointF medio = QRectF(rect()).center();
  QPointF paso;
  switch (suceso->key()) {
    case Qt::Key_0:
    case Qt::Key_Home:
      return Encuadra();
    case Qt::Key_Plus:
      return Amplia(kFactor, medio);
    case Qt::Key_Minus:
      return Amplia(1 / kFactor, medio);
    case Qt::Key_Left:
      paso = {-kTrecho, 0};
      break;
    case Qt::Key_Right:
      paso = {kTrecho, 0};
      break;
    case Qt::Key_Up:
      paso = {0, kTrecho};
      break;
    case Qt::Key_Down:
      paso = {0, -kTrecho};
      break;
    default:
      return QWidget::keyPressEvent(suceso);
  }
  encuadre_.centro += paso / encuadre_.escala;
  ajustado_ = false;
  update();
}

void VistaChapas::mousePressEvent(QMouseEvent* suceso) { raton_ = suceso->position(); }

void VistaChapas::mouseMoveEvent(QMouseEvent* suceso) {
  const QPointF paso = suceso->position() - raton_;
  raton_ = suceso->position();
  encuadre_.centro += QPointF(-paso.x(), paso.y()) / encuadre_.escala;
  ajustado_ = false;
  update();
}

void VistaChapas::mouseDoubleClickEvent(QMouseEvent*) { Encuadra(); }

}  // namespace duktores
