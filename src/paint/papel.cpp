#include "paint/papel.h"

#include <QPainter>
#include <algorithm>

namespace duktores {

namespace {

struct Medidas {
  double porPulgada;
  double margen;             // round the drawing and round the bar: no printer reaches the edge
  double largo, paso, alto;  // of the bar, between its marks, of its text and its ends
  const char* texto;
};
constexpr Medidas kMilimetros{25.4, 8, 100, 10, 4, "100 mm"}, kPulgadas{1, 0.3, 4, 0.5, 0.15, "4 in"};
const Medidas& MedidasDe(bool milimetros) { return milimetros ? kMilimetros : kPulgadas; }

// A pattern that has gone astray is cut off here.
constexpr double kLadoMaximo = 1e6;

void DibujaRegla(EWdraw& regla, const Medidas& m) {
  regla.EwAddLine({}, {m.largo, 0, 0});
  for (double x = 0; x <= m.largo; x += m.paso) {
    regla.EwAddLine({x, 0, 0}, {x, x == 0 || x == m.largo ? m.alto : m.alto / 2, 0});
  }
  regla.EwAddText(m.texto, "", {m.largo + m.alto, 0, 0}, m.alto, 0);
}

}  // namespace

Papel::Papel(const EWdraw& axew, bool milimetros) : axew_(axew), milimetros_(milimetros) {
  const Medidas& m = MedidasDe(milimetros);
  DibujaRegla(regla_, m);
  const QRectF zona = ExtensionPintada(axew);
  const auto lado = [&](double largo) { return std::min(largo, kLadoMaximo) + 2 * m.margen; };
  ancho_ = std::max(lado(zona.width()), lado(ExtensionPintada(regla_).width()));
  altoDibujo_ = lado(zona.height());
  altoRegla_ = m.alto + m.margen;
  dibujo_.centro = {zona.left() + zona.width() / 2, zona.top() + zona.height() / 2};
  enRegla_.centro = {ancho_ / 2 - m.margen, altoRegla_ / 2 - m.margen};
}

double Papel::UnidadesPorPulgada() const { return MedidasDe(milimetros_).porPulgada; }

void Papel::Pinta(QPainter& pintor, double porPulgada) const {
  const double escala = porPulgada / UnidadesPorPulgada();
  const auto pinta = [&](const EWdraw& axew, Encuadre encuadre, double alto) {
    encuadre.escala = escala;
    duktores::Pinta(pintor, axew, encuadre, escala * QSizeF(ancho_, alto), Fondo::claro, porPulgada);
  };
  pintor.save();
  pinta(axew_, dibujo_, altoDibujo_);
  pintor.translate(0, escala * altoDibujo_);
  pinta(regla_, enRegla_, altoRegla_);
  pintor.restore();
}

}  // namespace duktores
