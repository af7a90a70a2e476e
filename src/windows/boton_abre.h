#pragma once
// The button that opens a file of pieces. Its menu has those last used.

#include <QToolButton>

namespace duktores {

class BotonAbre : public QToolButton {
  Q_OBJECT
 public:
  explicit BotonAbre(QWidget* padre);
  /// Its text in the language of now.
  void PonTexto();

 signals:
  void elegido(const QString& ruta);

 private:
  void PideFichero();
  void LlenaMenu();
};

}  // namespace duktores
