#pragma once
// The one font of all texts. It is large and unhinted and scaled to each text, so that every device shows the same
// widths. Frame of a text: x along the baseline, y up, both in heights of a capital.

#include <QFont>
#include <QFontMetricsF>
#include <QRectF>
#include <QString>

#include "viewer/ewdraw.h"

namespace duktores {

class Letra {
 public:
  Letra();
  const QFont& Fuente() const { return fuente_; }
  double Capital() const { return capital_; }  ///< height of a capital in the font's pixels
  QRectF Tinta(const QString& texto) const;    ///< the box around what is inked

  bool Sabe(const QString& texto) const;  ///< whether the fonts of this machine have all of its characters

  /// The characters of a text entity; control characters, which a picture's format may not hold, become blanks.
  static QString Caracteres(const Entidad& entidad);

 private:
  QFont fuente_;
  QFontMetricsF medidas_;
  double capital_;
};

}  // namespace duktores
