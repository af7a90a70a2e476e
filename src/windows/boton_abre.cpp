#include "windows/boton_abre.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QMenu>

#include "jobs/memoria.h"
#include "piece/numeros_texto.h"
#include "state/textos.h"
#include "windows/ficheros_pieza.h"
#include "windows/iconos.h"

namespace duktores {

BotonAbre::BotonAbre(QWidget* padre) : QToolButton(padre) {
  PonTexto();
  setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
  setPopupMode(QToolButton::MenuButtonPopup);
  setMenu(new QMenu(this));
  connect(menu(), &QMenu::aboutToShow, this, &BotonAbre::LlenaMenu);
  connect(this, &QToolButton::clicked, this, &BotonAbre::PideFichero);
}

void BotonAbre::PonTexto() {
  setText(QString::fromStdString(Texto(texto::kAbrePieza)));
  PonBoton(*this, "CmdAbre", text());
}

void BotonAbre::PideFichero() {
  const QString ruta =
      QFileDialog::getOpenFileName(this, text(), QString::fromStdString(CarpetaPiezas()), ".json (*.json);;(*)");
  if (!ruta.isEmpty()) emit elegido(ruta);
}

// A path may hold the character that marks a key of a menu; of a long one the file's name must be seen.
void BotonAbre::LlenaMenu() {
  constexpr int kAncho = 420;
  menu()->clear();
  menu()->setToolTipsVisible(true);
  for (const std::string& reciente : Recientes()) {
    const QString ruta = QString::fromStdString(reciente);
    if (!QFileInfo::exists(ruta)) continue;
    const QString corta = menu()->fontMetrics().elidedText(ruta, Qt::ElideMiddle, kAncho);
    QAction* accion = menu()->addAction(QString(corta).replace('&', "&&"));
    accion->setToolTip(ruta);
    connect(accion, &QAction::triggered, this, [this, ruta] { emit elegido(ruta); });
  }
}

}  // namespace duktores
