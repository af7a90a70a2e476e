#include "windows/campo_texto.h"

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QDropEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QMimeData>
#include <QTimer>

#include "piece/numeros_texto.h"
#include "state/textos.h"

namespace duktores {

namespace {

constexpr int kLargoMaximo = 400;  // no number needs more, and each character looks at all those before it

}  // namespace

TextoFiltrado::TextoFiltrado(Filtro filtro, QWidget* padre) : QLineEdit(padre), filtro_(filtro) {
  setInputMethodHints(Qt::ImhFormattedNumbersOnly);
}

Campo TextoFiltrado::ComoCampo() const {
  const QString seleccion = selectedText();
  return {text().toStdString(), static_cast<std::size_t>(seleccion.isEmpty() ? cursorPosition() : selectionStart()),
          static_cast<std::size_t>(seleccion.size())};
}

void TextoFiltrado::Pon(const Campo& campo) {
  selectAll();
  insert(QString::fromStdString(campo.texto));  // one step for an undo
  setCursorPosition(static_cast<int>(campo.inicioSeleccion));
}

// For a moment, so that nobody believes that the key has arrived.
void TextoFiltrado::Parpadea() {
  constexpr int kParpadeo = 150;
  QPalette roja;
  const QColor fondo = roja.color(QPalette::Base), aviso(198, 40, 40);
  roja.setColor(QPalette::Base, QColor((fondo.red() + aviso.red()) / 2, (fondo.green() + aviso.green()) / 2,
                                       (fondo.blue() + aviso.blue()) / 2));
  setPalette(roja);
  QTimer::singleShot(kParpadeo, this, [this] { setPalette({}); });
}

// Typed, key by key.
void TextoFiltrado::Escribe(const QString& texto) {
  Campo campo = ComoCampo();
  bool pasa = false, cae = false;
  for (const char32_t tecla : texto.left(kLargoMaximo).toStdU32String()) {
    (tecla >= U' ' && Teclea(tecla, campo, filtro_) ? pasa : cae) = true;
  }
  if (pasa) Pon(campo);
  if (cae) Parpadea();
}

// Copied elsewhere. "300 x 400" is none of the numbers that its digits would make.
void TextoFiltrado::Pega(const QString& texto) {
  const QString todo = texto.trimmed();
  if (todo.isEmpty()) return;
  Campo campo = ComoCampo();
  const int falta = TecleaTodo(todo.toStdU32String(), campo, filtro_);
  if (falta == 0) return Pon(campo);
  constexpr int kMuestra = 24;
  const QString muestra = todo.left(kLargoMaximo).simplified();
  QString motivo = QString::fromStdString(Texto(falta));
  if (motivo.contains("%1")) motivo = motivo.arg(Decimales());
  Parpadea();
  emit rechazado((muestra.size() > kMuestra ? muestra.left(kMuestra) + "..." : muestra) + ": " + motivo);
}

void TextoFiltrado::PegaPortapapeles() { Pega(QApplication::clipboard()->text()); }

// A line edit claims all that can be typed. A question mark is none of a number's: it is left to the window.
bool TextoFiltrado::event(QEvent* suceso) {
  const bool tecla = suceso->type() == QEvent::ShortcutOverride;
  return (!tecla || static_cast<QKeyEvent*>(suceso)->text() != "?") && QLineEdit::event(suceso);
}

void TextoFiltrado::keyPressEvent(QKeyEvent* suceso) {
  const bool orden =
      suceso->modifiers().testFlag(Qt::ControlModifier) && !suceso->modifiers().testFlag(Qt::AltModifier);
  if (suceso->key() == Qt::Key_Return || suceso->key() == Qt::Key_Enter) {
    focusNextPrevChild(true);
  } else if (suceso->matches(QKeySequence::Paste)) {
    PegaPortapapeles();
  } else if (const QString texto = suceso->text();
             !orden && !texto.isEmpty() && texto[0].category() != QChar::Other_Control) {
    Escribe(texto);
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
    Pega(QApplication::clipboard()->text(QClipboard::Selection));
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
    if (!isVisible() || (ahora && ahora->objectName() == "CmdCancelar")) return;
    setFocus(Qt::ShortcutFocusReason);
    emit rechazado(QString::fromStdString(Texto(texto::kSignoDelante)));
  });
}

void TextoFiltrado::inputMethodEvent(QInputMethodEvent* suceso) {
  Escribe(suceso->commitString());
  suceso->accept();
}

// The standard menu's paste would go past the filter.
void TextoFiltrado::contextMenuEvent(QContextMenuEvent* suceso) {
  auto* menu = new QMenu(this);
  menu->setAttribute(Qt::WA_DeleteOnClose);
  menu->addAction(QLineEdit::tr("Cu&t"), this, &QLineEdit::cut);
  menu->addAction(QLineEdit::tr("&Copy"), this, &QLineEdit::copy);
  menu->addAction(QLineEdit::tr("&Paste"), this, &TextoFiltrado::PegaPortapapeles);
  menu->addAction(QLineEdit::tr("Select All"), this, &QLineEdit::selectAll);
  menu->popup(suceso->globalPos());
}

void TextoFiltrado::dropEvent(QDropEvent* suceso) {
  setCursorPosition(cursorPositionAt(suceso->position().toPoint()));
  Pega(suceso->mimeData()->text());
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
