#pragma once
// What all windows of the program need.

#include <QEvent>
#include <QString>
#include <string>
#include <utility>
#include <vector>

class QLabel;
class QWidget;

namespace duktores {

/// Goes to every window when the configuration has been read again: texts, unit and all else may have changed.
struct ConfiguracionLeida : QEvent {
  explicit ConfiguracionLeida(std::vector<std::string> lineas) : QEvent(Tipo()), avisos(std::move(lineas)) {}
  static Type Tipo() {
    static const Type tipo = static_cast<Type>(registerEventType());
    return tipo;
  }

  std::vector<std::string> avisos;  ///< what is wrong with it, a line a key
};

/// Brings a window in front of all others without keeping it there.
void TraeAlFrente(QWidget& ventana);

/// What was refused, in a colour that nobody overlooks; hidden at first.
QLabel* EtiquetaError();

/// A question with yes and no; Enter says no. Names of files may stand in it.
bool Confirma(QWidget* padre, const QString& pregunta);

/// Enables the host's window and ends the program. Waiting windows and picks end with it. False if a pattern that was
/// placed by hand isn't saved and the user stays.
bool Termina();

}  // namespace duktores
