#include "windows/guarda.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QLineEdit>

#include "piece/numeros_texto.h"
#include "shell/nombre_pieza.h"
#include "shell/visor.h"
#include "state/estado.h"
#include "state/propio.h"
#include "state/textos.h"
#include "windows/proporcion.h"
#include "windows/ventanas.h"

namespace duktores {

namespace {

constexpr std::string_view kSeccion = "SAVE", kCarpeta = "Folder";

QString Q(const std::string& texto) { return QString::fromStdString(texto); }

void RecuerdaCarpeta(const std::string& fichero) {
  estado.sCarpetaGuardada = fichero.substr(0, fichero.rfind('/') + 1);
  PonPropio(kSeccion, kCarpeta, estado.sCarpetaGuardada);
}

// All of it is marked: it is typed over, or accepted by Enter.
void Propone(QFileDialog& dialogo) {
  if (!estado.pieza) return;
  dialogo.selectFile(Q(NombrePropuesto(*estado.pieza)));
  if (auto* nombre = dialogo.findChild<QLineEdit*>("fileNameEdit")) nombre->selectAll();
}

}  // namespace

std::string CarpetaDeGuardado() {
  for (const std::string& carpeta : {estado.sCarpetaGuardada, LeePropio(kSeccion, kCarpeta).value_or("")}) {
    if (!carpeta.empty() && QFileInfo(Q(carpeta)).isDir()) return carpeta;
  }
  return estado.sRutaDuct;
}

std::string GuardaConNombre(QWidget& padre) {
  QFileDialog dialogo(&padre, Q(Texto(texto::kGuarda)), Q(CarpetaDeGuardado()), ".dxf Files (*.dxf)");
  dialogo.setAcceptMode(QFileDialog::AcceptSave);
  dialogo.setDefaultSuffix("dxf");
  dialogo.resize(dialogo.size().boundedTo(SitioLibre(padre)));
  Propone(dialogo);
  while (dialogo.exec() == QDialog::Accepted) {
    const QString elegido = dialogo.selectedFiles().value(0), final = Q(NombreDxf(elegido.toStdString()));
    // The dialog has asked about the name as it was typed.
    const bool otro = final != elegido && QFileInfo::exists(final);
    if (otro && !Confirma(&padre, Q(Texto(texto::kReemplazar)) + " " + final)) continue;
    if (!GuardaDibujo(final.toStdString())) continue;  // another name or folder may do
    RecuerdaCarpeta(final.toStdString());
    return final.toStdString();
  }
  return {};
}

}  // namespace duktores
