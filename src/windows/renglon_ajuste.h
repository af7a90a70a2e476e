#pragma once
// A row of the settings window: the control of a key, what it holds, and whether that will do.

#include <QString>
#include <optional>
#include <string>

#include "state/configuracion.h"
#include "windows/filas_ajuste.h"

class QCheckBox;
class QComboBox;
class QLineEdit;
class QWidget;

namespace duktores {

class RenglonAjuste {
 public:
  /// Shows what the key holds or, with `propone`, what the row proposes if no file has the key. The controls get the
  /// key's name, and belong to `padre`.
  RenglonAjuste(const FilaAjuste& fila, const ClaveLeida& clave, bool propone, QWidget& padre);

  const FilaAjuste& Fila() const { return *fila_; }
  /// What stands in the window, and what of it takes the focus.
  QWidget* Control() const { return control_; }
  QWidget* Foco() const;

  /// As a file holds it.
  std::string Valor() const;
  /// Whether it is to be written: it isn't what counts already.
  bool Cambiado() const;
  bool Sirve() const;

  QString Rotulo() const;
  /// What it takes, in words; empty if nothing can be wrong.
  QString Regla() const;

 private:
  void HazLista(const std::string& mostrado, QWidget& padre);
  void HazTexto(const std::string& mostrado, QWidget& padre);
  /// Whether a number switches it on.
  bool Encendido(const std::string& valor) const;

  const FilaAjuste* fila_;
  ClaveLeida clave_;
  std::optional<std::string> cuenta_;  // what counts; none if that makes no sense
  QWidget* control_ = nullptr;
  QComboBox* lista_ = nullptr;
  QCheckBox* marca_ = nullptr;
  QLineEdit* texto_ = nullptr;
};

}  // namespace duktores
