#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <map>

#include "dialogs/dialogo.h"
#include "dialogs/rectangulares.h"
#include "shell/catalogo.h"
#include "state/textos.h"
#include "windows/fr_dialogo.h"
#include "windows/fr_lista_duktores.h"
#include "windows/usuario.h"

namespace duktores {
namespace {

QImage Vista(QWidget& de) { return de.grab().toImage().convertToFormat(QImage::Format_RGB32); }

class Lista : public ConVentanas {
 protected:
  Lista() {
    plataforma_.PonPrincipal(&lista_);
    lista_.show();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&lista_));
  }
  FrListaDuktores lista_;
  QListWidget* filas_ = &Hijo<QListWidget>(lista_, "LstDuktores");
};

TEST_F(Lista, PicturesAndCaptionsByRow) {
  // clang-format off
  constexpr const char* imagenes[]{
      "PresentDuktores.bmp", "", "TransBasRect.bmp", "TransBasCirc.bmp", "", "PresentTransEspeciales.bmp",
      "PresentTransEspeciales.bmp", "", "Transespe1.bmp", "Transespe2.bmp", "Transespe3.bmp", "Transespe4.bmp",
      "Transespe5.bmp", "", "PresentTransElip.bmp", "", "TransBoElip.bmp"};
  // clang-format on
  const std::map<int, std::string> rotulos{
      {0, "DUKTORES"}, {5, "DUKTORES ESPECIALES "}, {6, "DUKTORES ESPECIALES "}, {14, "TRANSF. ELIPTICOS"}};
  auto& imagen = Hijo<Imagen>(lista_, "PicDuktores");
  auto& rotulo = Hijo<QLabel>(lista_, "LblGeneral");
  Imagen esperada(nullptr);
  esperada.resize(imagen.size());
  ASSERT_EQ(filas_->count(), 17);
  EXPECT_EQ(filas_->currentRow(), 0);
  EXPECT_TRUE(filas_->hasFocus());
  for (int fila = 0; fila < 17; ++fila) {
    const std::string fichero = imagenes[fila];
    esperada.Carga(fichero);
    EXPECT_EQ(imagen.Vacia(), fichero.empty()) << fila;
    EXPECT_EQ(Vista(imagen), Vista(esperada)) << fila;
    const std::string visible = rotulo.isVisible() ? rotulo.text().toStdString() : "";
    EXPECT_EQ(visible, rotulos.contains(fila) ? rotulos.at(fila) : "") << fila;
    QTest::keyClick(filas_, Qt::Key_Down);
  }
}

TEST_F(Lista, OnlyRowsWithAnEngineOpenADialog) {
  for (int fila = 0; fila < 17; ++fila) {
    filas_->setCurrentRow(fila);
    const DefDialogo* def = VentanaDe(FilasCatalogo()[static_cast<std::size_t>(fila)].dialogo);
    if (def) usuario_.Cuando(std::string(def->nombre), [](QWidget& dialogo) { Pulsa(dialogo, "CmdCancelar"); });
    QTest::keyClick(filas_, fila % 2 == 0 ? Qt::Key_Return : Qt::Key_Enter);
    EXPECT_EQ(estado.sTipoPieza, filas_->item(fila)->text().toStdString());
  }
  const QPoint segunda = filas_->visualItemRect(filas_->item(2)).center();
  const auto cierra = [](QWidget& dialogo) { dialogo.close(); };
  usuario_.Cuando("FrTransfCR", cierra);
  QTest::mouseClick(filas_->viewport(), Qt::LeftButton, {}, segunda);
  QTest::mouseDClick(filas_->viewport(), Qt::LeftButton, {}, segunda);
  EXPECT_EQ(estado.sTipoPieza, Texto(11));
  usuario_.Cuando("FrTransfCR", cierra);
  Pulsa(lista_, "CmdContinuar");
}

TEST_F(Lista, ChineseLeavesTooltipsAndCaptionsUnset) {
  EXPECT_EQ(lista_.windowTitle(), "Duktores");
  EXPECT_EQ(Hijo(lista_, "CmdSalir").toolTip(), "Salir");
  estado.dIdioma = kChino;
  FrListaDuktores china;
  FrDialogo dialogo(kFrTransfCR, "", nullptr);
  EXPECT_EQ(china.windowTitle(), "duktores");
  EXPECT_EQ(dialogo.windowTitle(), "duktores");
  EXPECT_EQ(Hijo(china, "CmdContinuar").toolTip() + Hijo(china, "CmdSalir").toolTip(), "");
  EXPECT_EQ(Hijo(dialogo, "CmdAceptar").toolTip() + Hijo(dialogo, "CmdCancelar").toolTip(), "");
  EXPECT_EQ(Hijo<QListWidget>(china, "LstDuktores").item(2)->text().toStdString(), Texto(11));
}

TEST_F(Lista, ControlsKeepTheirShareOfTheWindow) {
  auto& boton = Hijo(lista_, "CmdContinuar");
  const QSize diseno = lista_.size();
  const QRect sitio(508, 430, 130, 34);
  ASSERT_EQ(diseno, QSize(790, 476));
  lista_.resize(1000, 600);  // 126.58 and 126.05 percent
  EXPECT_EQ(boton.geometry(), QRect(645, 542, 165, 43));
  for (int ancho = 1000; ancho >= diseno.width(); --ancho) lista_.resize(ancho, 600);
  lista_.resize(diseno);
  EXPECT_EQ(boton.geometry(), sitio);
}

// From the innermost loop, the pick, out through viewer, dialog and catalogue.
TEST_F(Lista, LeavingDuringAPickEndsAllWindows) {
  filas_->setCurrentRow(2);
  usuario_.Cuando("FrTransfCR", [](QWidget& dialogo) {
    for (auto* campo : dialogo.findChildren<QLineEdit*>()) QTest::keyClicks(campo, "90");
    for (auto* combo : dialogo.findChildren<QComboBox*>()) combo->setCurrentIndex(0);
    Hijo<QLineEdit>(dialogo, "TxtRS").setText("40");
    Pulsa(dialogo, "CmdAceptar");
  });
  usuario_.Cuando("FrmViewUnfold", [](QWidget& visor) { Pulsa(visor, "CmdDesplegado"); });
  usuario_.CierraMensaje(Texto(63));
  usuario_.Cuando("pick", [](QWidget& visor) { Pulsa(visor, "CmdExit"); });
  QTimer::singleShot(0, &lista_, [this] { Pulsa(lista_, "CmdContinuar"); });
  EXPECT_EQ(QApplication::exec(), 0);
  EXPECT_FALSE(lista_.isVisible());
  lista_.show();
  QTimer::singleShot(0, &lista_, [this] { Pulsa(lista_, "CmdSalir"); });
  EXPECT_EQ(QApplication::exec(), 0) << "or when nothing is open";
}

}  // namespace
}  // namespace duktores
