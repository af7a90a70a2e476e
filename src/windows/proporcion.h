#pragma once
// Proportional resize: the controls of a window keep their share of it. The percentages, whole numbers, are taken of
// the window's design size and applied to the controls' design rectangles, so that a drag in many steps loses nothing.
// On a screen that is smaller than the design letters and icons shrink along, so that nothing is cut off.

#include <QFont>
#include <QRect>
#include <QSize>
#include <vector>

class QWidget;

namespace duktores {

/// Room for a window on its screen, within its frame.
QSize SitioLibre(const QWidget& ventana);

class Proporcion {
 public:
  /// Gives the window its design size, as its smallest one too, or what the screen has room for: also when it moves to
  /// another screen.
  Proporcion(QWidget& ventana, QSize diseno);

  /// Puts a control at its design rectangle, within its parent.
  void Coloca(QWidget& control, QRect lugar);
  /// To be called with each new size.
  void Escala(QSize nuevo);

 private:
  struct Control {
    QWidget* control;
    QRect lugar;
    QFont letra{};  // at the design size
    QSize icono{};
  };
  void Encoge(double parte);

  QSize diseno_;
  std::vector<Control> controles_;
  double parte_ = 1;  // of the letters' design size
};

}  // namespace duktores
