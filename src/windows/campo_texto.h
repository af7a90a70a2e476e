#pragma once
// The fields of the dialogs as widgets. Whatever brings text into a TextoFiltrado passes the field's filter: keys and
// input methods character by character, what was copied elsewhere (the clipboard, a drop) whole or not at all.

#include <QComboBox>
#include <QLineEdit>

#include "dialogs/campo.h"

namespace duktores {

class TextoFiltrado : public QLineEdit {
  Q_OBJECT
 public:
  TextoFiltrado(Filtro filtro, QWidget* padre);

 signals:
  /// A text was not taken, or the focus not let go; `motivo` says why, in words.
  void rechazado(const QString& motivo);

 protected:
  bool event(QEvent* suceso) override;
  void keyPressEvent(QKeyEvent* suceso) override;
  void mousePressEvent(QMouseEvent* suceso) override;
  void mouseMoveEvent(QMouseEvent* suceso) override;
  void mouseReleaseEvent(QMouseEvent* suceso) override;
  void focusInEvent(QFocusEvent* suceso) override;
  void focusOutEvent(QFocusEvent* suceso) override;
  void inputMethodEvent(QInputMethodEvent* suceso) override;
  void contextMenuEvent(QContextMenuEvent* suceso) override;
  void dropEvent(QDropEvent* suceso) override;

 private:
  Campo ComoCampo() const;
  void Escribe(const QString& texto);
  void Pega(const QString& texto);
  void PegaPortapapeles();
  void Pon(const Campo& campo);
  void Parpadea();

  Filtro filtro_;
  QPoint pulsado_;
};

/// Only the drop-down list can set it: every key but those that open the list is swallowed.
class ListaFija : public QComboBox {
 public:
  using QComboBox::QComboBox;

 protected:
  void keyPressEvent(QKeyEvent* suceso) override;
  void wheelEvent(QWheelEvent* suceso) override;
};

}  // namespace duktores
