#include "windows/exportador.h"

#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPrinter>

#include "pieza_tecleada.h"
#include "shell/cortes.h"
#include "state/fichero.h"
#include "state/textos.h"
#include "windows/frm_view_unfold.h"
#include "windows/usuario.h"

namespace duktores {
namespace {

class Exporta : public ConVentanas {
 protected:
  void SetUp() override {
    estado.iBox = 0;
    estado.sRutaPropia = Ruta("home/duktores.ini");
  }
  /// Chooses a name, then answers the questions in turn.
  void Elige(QWidget& visor, const QString& nombre,
             std::initializer_list<QMessageBox::StandardButton> respuestas = {}) {
    usuario_.Cuando("QFileDialog", [this, nombre](QWidget& dialogo) {
      Hijo<QLineEdit>(dialogo, "fileNameEdit").setText(salida_ + "/" + nombre);
      dynamic_cast<QDialog&>(dialogo).accept();
    });
    for (const auto respuesta : respuestas) {
      usuario_.Cuando("QMessageBox",
                      [respuesta](QWidget& caja) { dynamic_cast<QMessageBox&>(caja).button(respuesta)->click(); });
    }
    const auto acciones = Hijo<QMenu>(visor, "MenuExport").actions();
    acciones[acciones.size() - 2]->trigger();
  }
  QStringList Ficheros() { return QDir(salida_).entryList(QDir::Files, QDir::Name); }

  const QString salida_ = QDir(carpeta_.path()).mkpath("out") ? carpeta_.filePath("out") : QString();
  EWdraw axew_;
};

// By the usual rules a leaning ellipse is false, exactly it is true.
TEST_F(Exporta, WritesWhatIsChosenAndAsksBeforeItCutsAFalsePattern) {
  Aceptada(TipoPieza::elip, "300 200 150 400 300 30 0 20 12 1");
  FrmViewUnfold visor(nullptr);
  visor.show();
  EXPECT_FALSE(Hijo(visor, "CmdExport").isEnabled()) << "there is no pattern";
  Pulsa(visor, "CmdDesplegado");
  const QString nombre = QString::fromUtf8("pieza \xC3\xB1");
  Elige(visor, nombre, {QMessageBox::No});
  EXPECT_EQ(Ficheros(), QStringList{"pieza_n-bends.csv"});
  Elige(visor, nombre, {QMessageBox::Yes, QMessageBox::Yes});
  EXPECT_EQ(Ficheros(), (QStringList{"pieza_n-1of1.dxf", "pieza_n-bends.csv"}));

  Pulsa(visor, "CmdExacto");
  for (QAction* accion : Hijo<QMenu>(visor, "MenuExport").actions().mid(2, 3)) accion->trigger();
  Elige(visor, "otra");
  EXPECT_EQ(Ficheros().filter("otra"),
            (QStringList{"otra-1of1.dxf", "otra-bends.csv", "otra.pdf", "otra.png", "otra.svg"}));
  const QString linea = Hijo<QLabel>(visor, "LblEstado").toolTip();
  EXPECT_TRUE(linea.contains(salida_) && linea.contains("otra.svg")) << linea.toStdString();
  const Solido solido = SolidoDe(*estado.pieza);
  const Cortes cortes = CortesDe("otra", solido, DesarrolloDe(*estado.pieza, solido).patron);
  ASSERT_TRUE(GuardaCorte(estado.sRutaPropia + ".dxf", cortes.partes, estado.maquina, true));
  EXPECT_EQ(LeeFichero((salida_ + "/otra-1of1.dxf").toStdString()), LeeFichero(estado.sRutaPropia + ".dxf"));

  QPrinter impresora;
  impresora.setOutputFileName(salida_ + "/papel.pdf");
  Dibuja3D(axew_);
  EXPECT_TRUE(Imprime(impresora, axew_) && LeeFichero((salida_ + "/papel.pdf").toStdString())->starts_with("%PDF"));
  const FrmViewUnfold siguiente(nullptr);
  EXPECT_TRUE(siguiente.findChild<QMenu*>("MenuExport")->actions()[3]->isChecked()) << "the choice is remembered";
}

}  // namespace
}  // namespace duktores
