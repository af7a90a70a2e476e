#include "windows/proporcion.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWidget>
#include <cmath>

#include "geometry/redondeo.h"

namespace duktores {

namespace {

int Porcentaje(int nuevo, int diseno) { return static_cast<int>(std::nearbyint(Redondea(100.0 * nuevo / diseno, 2))); }

int Parte(int largo, int porcentaje) { return static_cast<int>(std::nearbyint(largo * porcentaje / 100.0)); }

}  // namespace

Proporcion::Proporcion(QWidget& ventana, QSize diseno) : diseno_(diseno) {
  const QSize cabe = diseno.boundedTo(ventana.screen()->availableGeometry().size());
  ventana.setMinimumSize(cabe);
  ventana.resize(cabe);
}

void Proporcion::Coloca(QWidget& control, QRect lugar) {
  control.setGeometry(lugar);
  controles_.emplace_back(&control, lugar);
}

void Proporcion::Escala(QSize nuevo) {
  const int ancho = Porcentaje(nuevo.width(), diseno_.width()), alto = Porcentaje(nuevo.height(), diseno_.height());
  for (const auto& [control, lugar] : controles_) {
    control->setGeometry(Parte(lugar.x(), ancho), Parte(lugar.y(), alto), Parte(lugar.width(), ancho),
                         Parte(lugar.height(), alto));
  }
}

}  // namespace duktores
