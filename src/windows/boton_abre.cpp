#include "windows/boton_abre.h"

#include <QFileDialog>
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

// A path may hold the character that marks a key of a menu.
void BotonAbre::LlenaMenu() {
  menu()->clear();
  for (const std::string& reciente : Recientes()) {
    const QString ruta = QString::fromStdString(reciente);
    connect(menu()->addAction(QString(ruta).replace('&', "&&")), &QAction::triggered, this,
            [this, ruta] { emit elegido(ruta); });
  }
}

}  // namespace duktores
