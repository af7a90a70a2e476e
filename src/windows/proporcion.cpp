#include "windows/proporcion.h"

#include <QAbstractButton>
#include <QScreen>
#include <QWindow>
#include <algorithm>
#include <cmath>
#include <utility>

#include "geometry/redondeo.h"

namespace duktores {

namespace {

int Porcentaje(int nuevo, int diseno) { return static_cast<int>(std::nearbyint(Redondea(100.0 * nuevo / diseno, 2))); }

int Parte(int largo, int porcentaje) { return static_cast<int>(std::nearbyint(largo * porcentaje / 100.0)); }

void Cabe(QWidget& ventana, QSize diseno, QSize tamano) {
  const QSize libre = SitioLibre(ventana);
  ventana.setMinimumSize(diseno.boundedTo(libre));
  ventana.resize(tamano.boundedTo(libre));
}

// Looks after a window that is moved to a smaller screen.
class Vigia : public QObject {
 public:
  Vigia(QWidget& ventana, QSize diseno) : QObject(&ventana), ventana_(ventana), diseno_(diseno) {
    ventana.installEventFilter(this);
  }
  bool eventFilter(QObject* objeto, QEvent* suceso) override {
    if (suceso->type() == QEvent::Show && ventana_.windowHandle() != vista_) {
      vista_ = ventana_.windowHandle();
      connect(vista_, &QWindow::screenChanged, this, [this] { Cabe(ventana_, diseno_, ventana_.size()); });
    }
    return QObject::eventFilter(objeto, suceso);
  }

 private:
  QWidget& ventana_;
  QSize diseno_;
  QWindow* vista_ = nullptr;
};

}  // namespace

QSize SitioLibre(const QWidget& ventana) {
  constexpr QSize kMarco{8, 36};  // of the window manager
  return ventana.screen()->availableSize() - kMarco;
}

Proporcion::Proporcion(QWidget& ventana, QSize diseno) : diseno_(diseno) {
  Cabe(ventana, diseno, diseno);
  new Vigia(ventana, diseno);  // lives with the window
}

void Proporcion::Coloca(QWidget& control, QRect lugar) {
  control.setGeometry(lugar);
  controles_.push_back({&control, lugar});
}

void Proporcion::Escala(QSize nuevo) {
  const int ancho = Porcentaje(nuevo.width(), diseno_.width()), alto = Porcentaje(nuevo.height(), diseno_.height());
  for (const Control& c : controles_) {
    c.control->setGeometry(Parte(c.lugar.x(), ancho), Parte(c.lugar.y(), alto), Parte(c.lugar.width(), ancho),
                           Parte(c.lugar.height(), alto));
  }
  Encoge(std::min({1.0, ancho / 100.0, alto / 100.0}));
}

void Proporcion::Encoge(double parte) {
  if (parte == parte_) return;
  const bool primera = std::exchange(parte_, parte) == 1;
  for (Control& c : controles_) {
    auto* boton = qobject_cast<QAbstractButton*>(c.control);
    if (primera) c.letra = c.control->font();
    if (primera && boton) c.icono = boton->iconSize();
    QFont letra = c.letra;
    letra.setPointSizeF(letra.pointSizeF() * parte);
    c.control->setFont(letra);
    if (boton) boton->setIconSize(c.icono * parte);
  }
}

}  // namespace duktores
