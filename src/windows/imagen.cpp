#include "windows/imagen.h"

#include <QPainter>

#include "state/estado.h"

namespace duktores {

void Imagen::Carga(std::string_view fichero) {
  mapa_ = {};
  if (!fichero.empty()) mapa_.load(QString::fromStdString(estado.sRutaPrograma + "Images/" + std::string(fichero)));
  update();
}

void Imagen::paintEvent(QPaintEvent*) {
  if (mapa_.isNull()) return;
  // Scaled in device pixels: at a scale of 2 the bitmap's own pixels are shown.
  const qreal puntos = devicePixelRatioF();
  QPixmap escalado = mapa_.scaled(size() * puntos, Qt::KeepAspectRatio, Qt::SmoothTransformation);
  escalado.setDevicePixelRatio(puntos);
  QPainter pintor(this);
  const QSizeF tamano = escalado.deviceIndependentSize();
  pintor.drawPixmap(QPointF((width() - tamano.width()) / 2, (height() - tamano.height()) / 2), escalado);
}

}  // namespace duktores
