#include "windows/tecla_sostenida.h"

#include <QCoreApplication>
#include <QKeyEvent>

namespace duktores {

TeclaSostenida::TeclaSostenida(QObject* padre) : QObject(padre) {
  QCoreApplication::instance()->installEventFilter(this);
}

bool TeclaSostenida::eventFilter(QObject*, QEvent* suceso) {
  if (suceso->type() == QEvent::KeyRelease) {
    suelta_ = static_cast<QKeyEvent*>(suceso)->timestamp();
  } else if (suceso->type() == QEvent::ShortcutOverride) {
    const auto* tecla = static_cast<QKeyEvent*>(suceso);
    repite_ = tecla->isAutoRepeat() || (suelta_ != 0 && tecla->timestamp() == suelta_);
  }
  return false;
}

}  // namespace duktores
