#pragma once
// A drawing on paper as large as it is: a millimetre or inch of the model is one of the page, however large the page
// gets. Below the drawing stands a bar that says how long it is, for whoever wants to know whether a print came out so.

#include <QSizeF>

#include "paint/pintura.h"
#include "viewer/ewdraw.h"

class QPainter;

namespace duktores {

class Papel {
 public:
  /// `axew` has to live as long.
  Papel(const EWdraw& axew, bool milimetros);

  bool Milimetros() const { return milimetros_; }
  double UnidadesPorPulgada() const;
  QSizeF Tamano() const { return {ancho_, altoDibujo_ + altoRegla_}; }  ///< of the page, in millimetres or inches
  const EWdraw& Regla() const { return regla_; }                        ///< the bar

  /// With `porPulgada` units of the device to an inch.
  void Pinta(QPainter& pintor, double porPulgada) const;

 private:
  const EWdraw& axew_;
  bool milimetros_;
  EWdraw regla_;
  Encuadre dibujo_, enRegla_;  // one device unit to a unit of the page
  double ancho_ = 0, altoDibujo_ = 0, altoRegla_ = 0;
};

}  // namespace duktores
