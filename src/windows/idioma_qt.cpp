#include "windows/idioma_qt.h"

#include <QApplication>
#include <QLibraryInfo>
#include <QTranslator>
#include <array>

#include "state/estado.h"

namespace duktores {

void PonIdiomaQt() {
  // In the order of the language bases. What Qt lacks has its nearest: Brazilian, and Spanish for Basque.
  constexpr std::array kIdiomas{"es", "en", "de", "fr", "pt_BR", "es", "zh_CN"};
  static QTranslator traductor;
  QApplication::removeTranslator(&traductor);
  const auto idioma = static_cast<std::size_t>(estado.dIdioma / 10000);
  const QString fichero = QString("qtbase_") + kIdiomas.at(idioma);
  if (traductor.load(fichero, QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
    QApplication::installTranslator(&traductor);
  }
}

}  // namespace duktores
