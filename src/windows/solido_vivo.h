#pragma once
// The solid of what a dialog's fields hold so far, shaded, to be turned by a drag of the mouse; a double click turns it
// back. Below it stands what keeps the fields from being a piece.

#include <QLabel>
#include <QWidget>
#include <optional>

#include "dialogs/dialogo.h"
#include "piece/solido.h"

namespace duktores {

class SolidoVivo : public QWidget {
 public:
  explicit SolidoVivo(QWidget* padre);
  /// A fine division is shown in fewer steps, so that it keeps up with the keys.
  void Muestra(const Tecleada& tecleada);

 protected:
  void paintEvent(QPaintEvent* suceso) override;
  void resizeEvent(QResizeEvent* suceso) override;
  void mousePressEvent(QMouseEvent* suceso) override;
  void mouseMoveEvent(QMouseEvent* suceso) override;
  void mouseDoubleClickEvent(QMouseEvent* suceso) override;

 private:
  QSize Lienzo() const;

  Solido solido_;  // empty without a piece
  Punto3 direccion_;
  QPointF raton_;
  QLabel* LblReparo_;
};

}  // namespace duktores
