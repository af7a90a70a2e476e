#pragma once
// The name of a shape, painted over it: as large as the shape allows, and never too small to be read.

#include <QString>
#include <vector>

#include "geometry/puntos.h"
#include "paint/pintura.h"

namespace duktores {

class RotuloForma {
 public:
  RotuloForma() = default;
  RotuloForma(const QString& nombre, const std::vector<Punto2>& contorno);
  void Pinta(QPainter& pintor, const Encuadre& encuadre, QSizeF lienzo) const;

 private:
  QString nombre_;     // empty: nothing is painted
  Punto2 centro_;      // in the widest place of the shape half way up
  QRectF tinta_;       // in heights of a capital
  double altura_ = 0;  // of a capital
  bool sube_ = false;  // upright, where it would get small otherwise
};

}  // namespace duktores
