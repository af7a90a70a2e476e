#pragma once
// The fields of the dialogs as widgets. Whatever brings text into a TextoFiltrado, keys, input methods, the clipboard,
// a drop or the context menu, passes the field's filter character by character.

#include <QComboBox>
#include <QLineEdit>

#include "dialogs/campo.h"

namespace duktores {

class TextoFiltrado : public QLineEdit {
 public:
  TextoFiltrado(Filtro filtro, QWidget* padre);

 protected:
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
  void Inserta(const QString& texto);
  void Pega();

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
