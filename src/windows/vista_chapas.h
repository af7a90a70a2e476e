#pragma once
// Sheets side by side, each with its parts and a line of figures below it. The wheel zooms about the pointer, a drag of
// any button pans, a double click shows all again; so do the keys of the viewer. The pointer tells a part's name.

#include <QPolygonF>
#include <QString>
#include <QWidget>
#include <vector>

#include "paint/pintura.h"
#include "windows/obra_chapas.h"

namespace duktores {

class VistaChapas : public QWidget {
 public:
  explicit VistaChapas(QWidget* padre);
  /// What was zoomed stays so while the sheets stand as they stood.
  void Muestra(const Reparto& reparto);

 protected:
  bool event(QEvent* suceso) override;
  void paintEvent(QPaintEvent* suceso) override;
  void resizeEvent(QResizeEvent* suceso) override;
  void wheelEvent(QWheelEvent* suceso) override;
  void keyPressEvent(QKeyEvent* suceso) override;
  void mousePressEvent(QMouseEvent* suceso) override;
  void mouseMoveEvent(QMouseEvent* suceso) override;
  void mouseDoubleClickEvent(QMouseEvent* suceso) override;

 private:
  struct Parte {
    QPolygonF contorno;
    QColor color;
    QString pieza, nombre;
    QLineF renglon;  // where its name stands
  };
  struct Hoja {
    QRectF sitio;
    QString rotulo;
    std::vector<Parte> partes;
  };

  void Reparte();
  void Encuadra();
  void Amplia(double factor, QPointF sobre);
  void PintaHoja(QPainter& pintor, const Hoja& hoja) const;
  void PintaNombre(QPainter& pintor, const Parte& parte) const;
  QPolygonF EnPantalla(const QPolygonF& contorno) const;

  std::vector<Hoja> hojas_;  // in model coordinates, y up
  double pie_ = 0;           // room below each sheet for its figures
  Encuadre encuadre_;
  bool ajustado_ = true;  // all is shown
  QPointF raton_;
};

}  // namespace duktores
