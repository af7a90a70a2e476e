#pragma once
// Proportional resize: the controls of a window keep their share of it. The percentages, whole numbers, are taken of
// the window's design size and applied to the controls' design rectangles, so that a drag in many steps loses nothing.

#include <QRect>
#include <QSize>
#include <utility>
#include <vector>

class QWidget;

namespace duktores {

class Proporcion {
 public:
  /// Gives the window its design size, as its smallest one too where the screen is not smaller still.
  Proporcion(QWidget& ventana, QSize diseno);

  /// Puts a control at its design rectangle, within its parent.
  void Coloca(QWidget& control, QRect lugar);
  /// To be called with each new size.
  void Escala(QSize nuevo);

 private:
  QSize diseno_;
  std::vector<std::pair<QWidget*, QRect>> controles_;
};

}  // namespace duktores
