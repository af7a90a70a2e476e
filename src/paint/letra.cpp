#include "paint/letra.h"

#include <QList>
#include <QStringList>
#include <algorithm>

namespace duktores {

namespace {

QFont FuenteGrande() {
  QFont fuente;
  // Named one by one, because the system's choice for Chinese depends on the locale and may have Japanese shapes.
  fuente.setFamilies({"DejaVu Sans", "Noto Sans CJK SC", "WenQuanYi Micro Hei"});
  fuente.setPixelSize(100);
  fuente.setHintingPreference(QFont::PreferNoHinting);
  return fuente;
}

}  // namespace

Letra::Letra() : fuente_(FuenteGrande()), medidas_(fuente_), capital_(medidas_.capHeight()) {
  if (!(capital_ > 0)) capital_ = 0.7 * fuente_.pixelSize();
}

QRectF Letra::Tinta(const QString& texto) const {
  const QRectF caja = medidas_.tightBoundingRect(texto);
  return {caja.left() / capital_, -caja.bottom() / capital_, caja.width() / capital_, caja.height() / capital_};
}

bool Letra::Sabe(const QString& texto) const {
  const auto letras = texto.toUcs4();
  return std::all_of(letras.begin(), letras.end(), [this](uint letra) { return medidas_.inFontUcs4(letra); });
}

QString Letra::Caracteres(const Entidad& entidad) {
  QString texto = QString::fromStdString(entidad.texto);
  for (QChar& c : texto) {
    if (c.category() == QChar::Other_Control) c = QChar::Space;
  }
  return texto;
}

}  // namespace duktores
