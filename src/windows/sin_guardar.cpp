#include "windows/sin_guardar.h"

#include <QApplication>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <vector>

#include "piece/numeros_texto.h"
#include "state/textos.h"
#include "windows/frm_view_unfold.h"

namespace duktores {

namespace {

QString Q(int texto) { return QString::fromStdString(Texto(texto)); }

// What is still being placed can't be saved.
bool Deja(FrmViewUnfold& visor) {
  QWidget* encima = QApplication::activeModalWidget();
  QMessageBox caja(QMessageBox::Question, {}, Q(texto::kSinGuardar) + " " + visor.windowTitle(), {},
                   encima ? encima : QApplication::activeWindow());
  caja.setTextFormat(Qt::PlainText);
  const bool entero = visor.SinGuardar() == FrmViewUnfold::Pendiente::patron;
  auto* guarda = entero ? caja.addButton(Q(texto::kGuardaYSale), QMessageBox::AcceptRole) : nullptr;
  auto* descarta = caja.addButton(Q(texto::kDescarta), QMessageBox::DestructiveRole);
  auto* queda = caja.addButton(Q(texto::kSeQueda), QMessageBox::RejectRole);
  caja.setDefaultButton(guarda ? guarda : queda);
  caja.setEscapeButton(queda);
  const QPointer<FrmViewUnfold> vivo(&visor);
  caja.exec();
  if (!vivo || caja.clickedButton() == descarta) {
    if (vivo) visor.Descarta();
    return true;
  }
  return guarda && caja.clickedButton() == guarda && visor.CmdSave();
}

}  // namespace

bool PuedeTerminar() {
  std::vector<QPointer<FrmViewUnfold>> visores;
  for (QWidget* ventana : QApplication::allWidgets()) {
    if (auto* visor = qobject_cast<FrmViewUnfold*>(ventana)) visores.emplace_back(visor);
  }
  for (const auto& visor : visores) {
    if (visor && visor->SinGuardar() != FrmViewUnfold::Pendiente::nada && !Deja(*visor)) return false;
  }
  return true;
}

}  // namespace duktores
