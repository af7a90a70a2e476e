#include "windows/solido_vivo.h"

#include <QMouseEvent>
#include <QPainter>
#include <algorithm>

#include "paint/sombreado.h"
#include "piece/numeros_texto.h"
#include "shell/corrida.h"
#include "state/textos.h"

namespace duktores {

namespace {

constexpr Punto3 kDesdeEsquina{1, -1, 0.8};
constexpr int kDivisionesVivas = 60, kTrozos = 160;

QRectF ExtensionVista(const SolidoVisto& visto) {
  QRectF zona;
  for (const FacetaVista& faceta : visto.facetas) zona |= faceta.plano.boundingRect();
  return zona;
}

}  // namespace

SolidoVivo::SolidoVivo(QWidget* padre) : QWidget(padre), direccion_(kDesdeEsquina), LblReparo_(new QLabel(this)) {
  setObjectName("SolidoVivo");
  setCursor(Qt::OpenHandCursor);
  LblReparo_->setObjectName("LblReparo");
  LblReparo_->setTextFormat(Qt::PlainText);
  LblReparo_->setWordWrap(true);
  LblReparo_->setAlignment(Qt::AlignLeft | Qt::AlignTop);
}

void SolidoVivo::Muestra(const Tecleada& tecleada) {
  solido_ = {};
  if (tecleada.pieza) {
    Pieza pieza = *tecleada.pieza;
    pieza.divisiones = std::min(pieza.divisiones, kDivisionesVivas);
    solido_ = SolidoDe(pieza);
  }
  LblReparo_->setText(QString::fromStdString(tecleada.reparo));
  LblReparo_->setToolTip(LblReparo_->text());
  update();
}

QSize SolidoVivo::Lienzo() const { return {width(), LblReparo_->y() - 4}; }

void SolidoVivo::resizeEvent(QResizeEvent*) {
  constexpr int kAncho = 400;
  const int renglones = width() < kAncho ? 3 : 2;  // room for all names
  const int alto = renglones * LblReparo_->fontMetrics().lineSpacing();
  LblReparo_->setGeometry(0, height() - alto, width(), alto);
}

void SolidoVivo::paintEvent(QPaintEvent*) {
  QPainter pintor(this);
  const QSize lienzo = Lienzo();
  pintor.setClipRect(QRect(QPoint(), lienzo));
  const SolidoVisto visto = Mira(solido_, direccion_, kTrozos);
  PintaSombreado(pintor, visto, Ajusta(ExtensionVista(visto), lienzo), lienzo);
  if (visto.facetas.empty()) return;
  PintaEjes(pintor, direccion_, lienzo);
  PintaLeyenda(pintor);
}

void SolidoVivo::mousePressEvent(QMouseEvent* suceso) { raton_ = suceso->position(); }

void SolidoVivo::mouseMoveEvent(QMouseEvent* suceso) {
  direccion_ = Girada(direccion_, suceso->position() - raton_);
  raton_ = suceso->position();
  update();
}

void SolidoVivo::mouseDoubleClickEvent(QMouseEvent*) {
  direccion_ = kDesdeEsquina;
  update();
}

}  // namespace duktores
