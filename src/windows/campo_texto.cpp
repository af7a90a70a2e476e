#include "windows/campo_texto.h"

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QDropEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QMimeData>
#include <QTimer>

namespace duktores {

TextoFiltrado::TextoFiltrado(Filtro filtro, QWidget* padre) : QLineEdit(padre), filtro_(filtro) {
  setInputMethodHints(Qt::ImhFormattedNumbersOnly);
}

Campo TextoFiltrado::ComoCampo() const {
  const QString seleccion = selectedText();
  return {text().toStdString(), static_cast<std::size_t>(seleccion.isEmpty() ? cursorPosition() : selectionStart()),
          static_cast<std::size_t>(seleccion.size())};
}

void TextoFiltrado::Inserta(const QString& texto) {
  constexpr qsizetype kMaximo = 400;  // no number needs more, and each character looks at all those before it
  Campo campo = ComoCampo();
  bool pasa = false;
  for (const char32_t tecla : texto.left(kMaximo).toStdU32String()) {
    if (tecla >= U' ' && Teclea(tecla, campo, filtro_)) pasa = true;
  }
  if (!pasa) return;
  selectAll();
  insert(QString::fromStdString(campo.texto));  // one step for an undo
  setCursorPosition(static_cast<int>(campo.inicioSeleccion));
}

void TextoFiltrado::Pega() { Inserta(QApplication::clipboard()->text()); }

void TextoFiltrado::keyPressEvent(QKeyEvent* suceso) {
  const bool orden =
      suceso->modifiers().testFlag(Qt::ControlModifier) && !suceso->modifiers().testFlag(Qt::AltModifier);
  if (suceso->key() == Qt::Key_Return || suceso->key() == Qt::Key_Enter) {
    focusNextPrevChild(true);
  } else if (suceso->matches(QKeySequence::Paste)) {
    Pega();
  } else if (const QString texto = suceso->text();
             !orden && !texto.isEmpty() && texto[0].category() != QChar::Other_Control) {
    Inserta(texto);
  } else {
    QLineEdit::keyPressEvent(suceso);
  }
}

// A click marks all, so that the next key replaces the text.
void TextoFiltrado::mousePressEvent(QMouseEvent* suceso) {
  QLineEdit::mousePressEvent(suceso);
  if (suceso->button() == Qt::LeftButton) selectAll();
  pulsado_ = suceso->pos();
}

// A drag selects a part, a hand that trembles doesn't.
void TextoFiltrado::mouseMoveEvent(QMouseEvent* suceso) {
  if ((suceso->pos() - pulsado_).manhattanLength() >= QApplication::startDragDistance()) {
    QLineEdit::mouseMoveEvent(suceso);
  }
}

void TextoFiltrado::mouseReleaseEvent(QMouseEvent* suceso) {
  // The line edit itself would paste the marked text of the X server here, past the filter.
  if (suceso->button() == Qt::MiddleButton) {
    Inserta(QApplication::clipboard()->text(QClipboard::Selection));
  } else {
    QLineEdit::mouseReleaseEvent(suceso);
  }
}

void TextoFiltrado::focusInEvent(QFocusEvent* suceso) {
  QLineEdit::focusInEvent(suceso);
  if (suceso->reason() != Qt::PopupFocusReason) selectAll();  // the context menu works on what is selected
}

// A minus sign in the wrong place keeps the focus. Only a move within the window asks: the user may look at another
// one, and may always cancel.
void TextoFiltrado::focusOutEvent(QFocusEvent* suceso) {
  QLineEdit::focusOutEvent(suceso);
  const bool dentro = suceso->reason() == Qt::TabFocusReason || suceso->reason() == Qt::BacktabFocusReason ||
                      suceso->reason() == Qt::MouseFocusReason || suceso->reason() == Qt::OtherFocusReason;
  if (!dentro || filtro_ != FiltraNumeroSigno || SignoEnSuSitio(ComoCampo())) return;
  QTimer::singleShot(0, this, [this] {
    const QWidget* ahora = QApplication::focusWidget();
    // A reason of its own, so that two such fields don't take the focus from each other for ever.
    if (isVisible() && !(ahora && ahora->objectName() == "CmdCancelar")) setFocus(Qt::ShortcutFocusReason);
  });
}

void TextoFiltrado::inputMethodEvent(QInputMethodEvent* suceso) {
  Inserta(suceso->commitString());
  suceso->accept();
}

// The standard menu's paste would go past the filter.
void TextoFiltrado::contextMenuEvent(QContextMenuEvent* suceso) {
  auto* menu = new QMenu(this);
  menu->setAttribute(Qt::WA_DeleteOnClose);
  menu->addAction(QLineEdit::tr("Cu&t"), this, &QLineEdit::cut);
  menu->addAction(QLineEdit::tr("&Copy"), this, &QLineEdit::copy);
  menu->addAction(QLineEdit::tr("&Paste"), this, &TextoFiltrado::Pega);
  menu->addAction(QLineEdit::tr("Select All"), this, &QLineEdit::selectAll);
  menu->popup(suceso->globalPos());
}

void TextoFiltrado::dropEvent(QDropEvent* suceso) {
  setCursorPosition(cursorPositionAt(suceso->position().toPoint()));
  Inserta(suceso->mimeData()->text());
  suceso->setDropAction(Qt::CopyAction);
  suceso->accept();
}

void ListaFija::keyPressEvent(QKeyEvent* suceso) {
  const bool flechas = suceso->key() == Qt::Key_Down || suceso->key() == Qt::Key_Up;
  if (suceso->key() == Qt::Key_F4 || (flechas && (suceso->modifiers() & Qt::AltModifier))) showPopup();
  // Escape still leaves the dialog.
  suceso->setAccepted(suceso->key() != Qt::Key_Escape);
}

void ListaFija::wheelEvent(QWheelEvent* suceso) { suceso->ignore(); }

}  // namespace duktores
