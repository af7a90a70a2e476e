#pragma once
// The settings: the keys of the configuration with their meaning and limits, on a tab a section. What has changed is
// kept at OK and in force at once.

#include <QDialog>
#include <deque>

#include "state/configuracion.h"
#include "windows/renglon_ajuste.h"

class QLabel;
class QPushButton;
class QTabWidget;

namespace duktores {

class FrAjustes : public QDialog {
  Q_OBJECT
 public:
  /// Reads the configuration again, so that what the files hold now is what is shown.
  explicit FrAjustes(QWidget* padre);

  /// A value that won't do is named, and takes the focus; so is a file that can't be written.
  void accept() override;

  /// Of the configuration that is in force.
  const LecturaConfiguracion& Lectura() const { return lectura_; }

 private:
  QWidget* Pagina(int pagina);
  QWidget* Pie();
  bool Repetido(const RenglonAjuste& renglon) const;
  void Rechaza(const QString& porque);
  void Enfoca(QWidget& control);

  LecturaConfiguracion lectura_;
  std::deque<RenglonAjuste> renglones_;
  QTabWidget* paginas_;
  QLabel* lblerror_;
};

/// Shows the settings, and tells all windows what is in force afterwards.
void AbreAjustes(QWidget& padre);

/// Makes a button, and Ctrl+, in its window, open the settings. The focus stays where it is.
void ConectaAjustes(QPushButton& boton);

/// What a piece is made of, in a line: thickness, surface, unit.
QString ResumenAjustes();

}  // namespace duktores
