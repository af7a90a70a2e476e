#pragma once
// The export button of the viewer: a menu of what can be written beside the drawing, and printing. What was chosen and
// the folder are remembered.

#include <QMenu>
#include <QPushButton>
#include <functional>

#include "check/veredicto.h"
#include "piece/solido.h"
#include "viewer/ewdraw.h"

class QPrinter;

namespace duktores {

/// A pattern that is on the control, with the solid of the accepted piece and the verdict on it.
struct Exportable {
  const EWdraw& axew;
  const Solido& solido;
  const Veredicto& veredicto;
};

/// An overview on one page.
bool Imprime(QPrinter& impresora, const EWdraw& axew);

class Exportador : public QPushButton {
  Q_OBJECT
 public:
  /// `que` gives what there is to export when the user asks for it.
  Exportador(std::function<Exportable()> que, QWidget* padre);

 signals:
  /// What was written, in one line.
  void escrito(QString linea);

 private:
  void Exporta();
  void ImprimeEnPapel();

  std::function<Exportable()> que_;
};

}  // namespace duktores
