#include <QAbstractItemView>
#include <QClipboard>
#include <QComboBox>
#include <QDropEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMimeData>
#include <QRadioButton>

#include "shell/lista.h"
#include "state/textos.h"
#include "windows/fr_dialogo.h"
#include "windows/fr_lista_duktores.h"
#include "windows/usuario.h"
#include "windows/ventanas.h"

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

// clang-format off
const struct {
  const char *texto, *rotulo, *imagen, *ventana, *campos;
} kRenglones[]{
    {"DUKTORES", "DUKTORES", "PresentDuktores.bmp", "", ""},
    {"", "", "", "", ""},
    {"Transf. Rect. Circ.", "", "TransBasRect.bmp", "FrTransfCR", "H RS LI AI AX AY Alfa "},
    {"Transf. Circ. Rect.", "", "TransBasCirc.bmp", "FrTransfRC", "H RI LS AS AX AY Alfa "},
    {" ", "", "", "", ""},
    {"DUKTORES", "DUKTORES ESPECIALES ", "PresentTransEspeciales.bmp", "", ""},
    {"ESPECIALES", "DUKTORES ESPECIALES ", "PresentTransEspeciales.bmp", "", ""},
    {" ", "", "", "", ""},
    {"Transf. 4 Vert. Redond.", "", "Transespe1.bmp", "FrTransfEsp1",
     "H R11 R12 R13 R14 R21 R22 R23 R24 LX1 LY1 LX2 LY2 AX AY Alfa Beta Divisiones "},
    {"Transf. Base 2 Semicir.", "", "Transespe2.bmp", "FrTansfEsp2", "H R LX LY AX AY Alfa Beta Divisiones "},
    {"Transf. Rect. Semicirc.", "", "Transespe3.bmp", "FrTransfEsp3", "H R LX LY AX AY Alfa Beta Divisiones "},
    {"Transf.4-2 Vert.Redond.", "", "Transespe4.bmp", "FrTransEsp4",
     "H R1 R21 R22 R23 R24 LX LY AX AY Alfa Beta Divisiones "},
    {"Transf. Base 4 Vert.", "", "Transespe5.bmp", "FrTransEspe5",
     "H R11 R12 R13 R14 LX1 LY1 LX2 LY2 AX AY Alfa Beta Divisiones "},
    {" ", "", "", "", ""},
    {"TRANSF. ELIPTICOS", "TRANSF. ELIPTICOS", "PresentTransElip.bmp", "", ""},
    {" ", "", "", "", ""},
    {"Transf. Ba. Rect. Bo. Elip.", "", "TransBoElip.bmp", "FrTransBaRectBoElip", "H eMaS eMeS L A AX AY Alfa "},
};
// clang-format on

// Row by row: its text, caption and picture, and the window that it opens, with its fields.
TEST_F(Lista, EachRowShowsAndOpensItsOwn) {
  auto& imagen = Hijo<Imagen>(lista_, "PicDuktores");
  auto& rotulo = Hijo<QLabel>(lista_, "LblGeneral");
  Imagen esperada(nullptr);
  esperada.resize(imagen.size());
  ASSERT_EQ(filas_->count(), static_cast<int>(std::size(kRenglones)));
  EXPECT_TRUE(filas_->hasFocus());
  for (int fila = 0; fila < filas_->count(); ++fila) {
    const auto& [texto, titulo, fichero, ventana, campos] = kRenglones[fila];
    SCOPED_TRACE(fila);
    EXPECT_EQ(filas_->currentRow(), fila);
    EXPECT_EQ(filas_->item(fila)->text().toStdString(), texto);
    EXPECT_EQ(rotulo.isVisible() ? rotulo.text().toStdString() : "", titulo);
    esperada.Carga(fichero);
    EXPECT_EQ(imagen.Vacia(), *fichero == 0);
    EXPECT_EQ(Vista(imagen), Vista(esperada));
    std::string abierta;
    if (*ventana != 0) {
      usuario_.Cuando(ventana, [&](QWidget& dialogo) {
        abierta = dialogo.windowTitle().toStdString() + ":";
        for (auto* campo : dialogo.findChildren<QLineEdit*>())
          abierta += campo->objectName().mid(3).toStdString() + " ";
        esperada.resize(Hijo(dialogo, "Image1").size());
        EXPECT_EQ(Vista(Hijo(dialogo, "Image1")), Vista(esperada));
        esperada.resize(imagen.size());
        Pulsa(dialogo, "CmdCancelar");
      });
    }
    QTest::keyClick(filas_, fila % 2 == 0 ? Qt::Key_Return : Qt::Key_Enter);
    EXPECT_EQ(abierta, *ventana == 0 ? "" : std::string(texto) + ":" + campos);
    EXPECT_EQ(estado.sTipoPieza, texto);
    QTest::keyClick(filas_, Qt::Key_Down);
  }
  const QPoint segunda = filas_->visualItemRect(filas_->item(2)).center();
  const auto cierra = [](QWidget& dialogo) { dialogo.close(); };
  usuario_.Cuando("FrTransfCR", cierra);
  QTest::mouseClick(filas_->viewport(), Qt::LeftButton, {}, segunda);
  QTest::mouseDClick(filas_->viewport(), Qt::LeftButton, {}, segunda);
  EXPECT_EQ(estado.sTipoPieza, Texto(11));
  usuario_.Cuando("FrTransfCR", cierra);
  Hijo(lista_, "CmdContinuar").setFocus();
  QTest::keyClick(&Hijo(lista_, "CmdContinuar"), Qt::Key_Return);
}

TEST_F(Lista, FaultyKeysAreToldAtTheFoot) {
  FrListaDuktores con({"one", "<two>"});
  const auto& aviso = Hijo<QLabel>(con, "LblAviso");
  EXPECT_EQ(aviso.text() + aviso.toolTip(), "one (1/2)<p>one</p><p>&lt;two&gt;</p>");
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

class VentanaCR : public ConVentanas {
 protected:
  VentanaCR() {
    dialogo_.show();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&dialogo_));
  }
  QLineEdit& Texto_(const char* nombre) { return Hijo<QLineEdit>(dialogo_, nombre); }
  std::string Foco() const {
    QCoreApplication::processEvents();
    return dialogo_.focusWidget()->objectName().toStdString();
  }
  /// As a person does: into the field, which marks all, then the keys.
  void Teclea(const char* campo, const char* teclas) {
    QTest::mouseClick(&Texto_(campo), Qt::LeftButton);
    QTest::keyClicks(&Texto_(campo), teclas);
  }
  void Elige(const char* combo, int bajadas) {
    auto& lista = Hijo<QComboBox>(dialogo_, combo);
    QTest::keyClick(&lista, Qt::Key_F4);
    QTest::keyClick(lista.view(), Qt::Key_Home);
    for (int i = 0; i < bajadas; ++i) QTest::keyClick(lista.view(), Qt::Key_Down);
    QTest::keyClick(lista.view(), Qt::Key_Return);
  }
  void Llena() {
    constexpr const char* valores[][2]{{"TxtH", "300"}, {"TxtRS", "100"},  {"TxtLI", "400"},  {"TxtAI", "300"},
                                       {"TxtAX", "0"},  {"TxtAY", "25.5"}, {"TxtAlfa", "-10"}};
    for (const auto& [campo, valor] : valores) Teclea(campo, valor);
    Elige("CmbDivi", 1);
    Elige("CmbPosIni", 2);
  }

  FrDialogo dialogo_{FilaDe(TipoPieza::cr), nullptr};
};

TEST_F(VentanaCR, FocusAndClickMarkAll) {
  QLineEdit &h = Texto_("TxtH"), &rs = Texto_("TxtRS");
  Teclea("TxtH", "12.34");
  QTest::keyClick(&h, Qt::Key_Tab);
  QTest::keyClick(&rs, Qt::Key_Backtab);
  EXPECT_EQ(h.selectedText(), "12.34");
  QTest::keyClick(&h, Qt::Key_End);
  // A hand that isn't steady still clicks.
  Arrastra(h, Qt::LeftButton, {10, 10}, {12, 11});
  EXPECT_EQ(h.selectedText(), "12.34");
  QTest::keyClicks(&h, "7");
  EXPECT_EQ(h.text(), "7");
}

TEST_F(VentanaCR, WhatIsNotTypedPassesTheFilterToo) {
  QLineEdit& h = Texto_("TxtH");
  const auto expectToma = [&](const char* texto) {
    EXPECT_EQ(h.text().toStdString(), texto);
    h.clear();
  };
  // Copied texts are taken whole or not at all, by whichever road.
  auto& lblerror = Hijo<QLabel>(dialogo_, "lblerror");
  const std::function<void()> caminos[]{
      [&] { QTest::keyClick(&h, Qt::Key_V, Qt::ControlModifier); },
      [&] { QTest::keyClick(&h, Qt::Key_Insert, Qt::ShiftModifier); },
      [&] {
        QMimeData datos;
        datos.setText(QApplication::clipboard()->text());
        QDragEnterEvent entra({5, 5}, Qt::CopyAction, &datos, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&h, &entra);
        QDropEvent suelta(QPointF(5, 5), Qt::CopyAction, &datos, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&h, &suelta);
      }};
  for (const auto& pega : caminos) {
    QApplication::clipboard()->setText(" 4,56\n");
    pega();
    EXPECT_FALSE(lblerror.isVisible());
    QApplication::clipboard()->setText("300 x 400");
    pega();
    EXPECT_TRUE(lblerror.isVisible() && lblerror.text().startsWith("300 x 400: "));
    expectToma("4.56");
    EXPECT_FALSE(lblerror.isVisible()) << "the field has changed";
  }

  // Beyond the first plane, of private use, without a form of its own: keys that a line edit takes besides printable
  // ones.
  for (const char16_t* tecla : {u"\U0001F600", u"\uE000", u"3", u"\u200D", u"\u4E00"}) {
    QTest::sendKeyEvent(QTest::Click, &h, Qt::Key_unknown, QString::fromUtf16(tecla), Qt::NoModifier);
  }
  const QPalette roja = h.palette();
  EXPECT_NE(roja, dialogo_.palette()) << "a dropped key shows";
  EXPECT_TRUE(QTest::qWaitFor([&] { return h.palette() != roja; }));
  expectToma("3");

  QInputMethodEvent metodo;
  metodo.setCommitString("8一,9");
  QApplication::sendEvent(&h, &metodo);
  expectToma("8.9");
}

TEST_F(VentanaCR, AMisplacedMinusKeepsTheFocus) {
  Teclea("TxtAlfa", "3-");
  QTest::keyClick(&Texto_("TxtAlfa"), Qt::Key_Tab);
  EXPECT_EQ(Foco(), "TxtAlfa");
  EXPECT_EQ(Hijo<QLabel>(dialogo_, "lblerror").text().toStdString(), Texto(323));
  QTest::mouseClick(&Texto_("TxtH"), Qt::LeftButton);
  EXPECT_EQ(Foco(), "TxtAlfa");
  QTest::keyClicks(&Texto_("TxtAlfa"), "-3");
  QTest::keyClick(&Texto_("TxtAlfa"), Qt::Key_Tab);
  EXPECT_EQ(Foco(), "CmbDivi");
  EXPECT_EQ(Texto_("TxtAlfa").text(), "-3");

  // What no field takes is the window's, and the tooltips say so.
  usuario_.Cuando("FrAyuda", [](QWidget& teclas) { teclas.close(); });
  QTest::keyClicks(&Texto_("TxtH"), "?");
  EXPECT_EQ(Hijo(dialogo_, "CmdManual").toolTip(), "Manual - Teclas (F12, ?)");
  EXPECT_TRUE(Hijo(dialogo_, "CmdCancelar").toolTip().startsWith("Cancelar (Esc"));

  // Cancelling is always possible, also with the time of a hand between press and release.
  Teclea("TxtAlfa", "3-");
  auto& cancelar = Hijo<QPushButton>(dialogo_, "CmdCancelar");
  QTest::mousePress(&cancelar, Qt::LeftButton);
  QTest::qWait(20);
  QTest::mouseRelease(&cancelar, Qt::LeftButton);
  EXPECT_FALSE(dialogo_.isVisible());
}

TEST_F(VentanaCR, OnlyItsListSetsACombo) {
  auto& divi = Hijo<QComboBox>(dialogo_, "CmbDivi");
  divi.setFocus();
  for (const Qt::Key tecla : {Qt::Key_2, Qt::Key_Down, Qt::Key_PageDown, Qt::Key_End, Qt::Key_Return}) {
    QTest::keyClick(&divi, tecla);
  }
  Rueda(divi, {5, 5}, -120);
  EXPECT_EQ(divi.currentIndex(), -1);
  Elige("CmbDivi", 9);
  EXPECT_EQ(divi.currentText(), "120");
  QTest::keyClick(&divi, Qt::Key_Escape);
  EXPECT_FALSE(dialogo_.isVisible());
}

// What is refused and what is stored is the dialog's own; the window shows it.
TEST_F(VentanaCR, RefusalsAreShownAndAcceptedValuesStay) {
  auto& lblerror = Hijo<QLabel>(dialogo_, "lblerror");
  EXPECT_TRUE(Hijo<QRadioButton>(dialogo_, "OpDosPiezas").isChecked());
  Llena();
  QTest::mouseClick(&Hijo(dialogo_, "OpUnapieza"), Qt::LeftButton, {}, {8, 13});
  Texto_("TxtAY").clear();
  usuario_.CierraMensaje(Texto(15));
  Pulsa(dialogo_, "CmdAceptar");
  EXPECT_EQ(Foco(), "TxtAY");
  EXPECT_FALSE(lblerror.isVisible());
  Teclea("TxtAY", "25.5");
  Teclea("TxtRS", "200.01");
  Pulsa(dialogo_, "CmdAceptar");
  EXPECT_EQ(Foco(), "TxtRS");
  EXPECT_EQ(lblerror.text().toStdString(), Texto(20));
  EXPECT_EQ(lblerror.toolTip(), "RS: el doble del radio es como mucho el mayor de LI y AI, 400");
  EXPECT_TRUE(lblerror.isVisible());
  estado.dIdioma = 10000;
  ConfiguracionLeida suceso({});
  QApplication::sendEvent(&dialogo_, &suceso);
  EXPECT_EQ(lblerror.toolTip(), "RS: twice the radius is at most the larger of LI and AI, 400");
  estado.dIdioma = 0;
  Teclea("TxtAY", "25.5");
  EXPECT_TRUE(lblerror.isVisible());
  Teclea("TxtRS", "100");
  EXPECT_FALSE(lblerror.isVisible()) << "the field that it names has changed";

  usuario_.Cuando("FrmViewUnfold", [](QWidget& visor) { Pulsa(visor, "CmdCancelar"); });
  Pulsa(dialogo_, "CmdAceptar");
  EXPECT_FALSE(lblerror.isVisible());
  EXPECT_TRUE(estado.sTipoPieza == "TransCR" && estado.dAlfa == -10 && estado.iPosIni == 3);
  EXPECT_FALSE(estado.bDosPiezas);
  EXPECT_TRUE(dialogo_.isVisible());
  EXPECT_EQ(Foco(), "TxtH");
  EXPECT_EQ(Texto_("TxtAY").text(), "25.5");
  EXPECT_EQ(Hijo<QComboBox>(dialogo_, "CmbPosIni").currentText(), "3");
}

// From the moment on that the fields make a piece, which nothing is stored of.
TEST_F(VentanaCR, TheSolidOfWhatIsTypedShowsAndTurns) {
  auto& vivo = Hijo(dialogo_, "SolidoVivo");
  auto& reparo = Hijo<QLabel>(dialogo_, "LblReparo");
  const QImage sin = Vista(vivo).copy(0, 0, vivo.width(), reparo.y() - 4);
  EXPECT_TRUE(reparo.text().startsWith("Falta: H, RS, LI"));
  const auto solido = [&] { return Vista(vivo).copy(0, 0, vivo.width(), reparo.y() - 4); };
  Llena();
  const QImage con = solido();
  EXPECT_TRUE(reparo.text().isEmpty() && con != sin && !estado.pieza && estado.sTipoPieza.empty());
  Teclea("TxtRS", "200.01");
  EXPECT_EQ(reparo.text(), "RS: el doble del radio es como mucho el mayor de LI y AI, 400");
  EXPECT_EQ(solido(), sin);
  EXPECT_FALSE(Hijo(dialogo_, "lblerror").isVisible());
  Teclea("TxtRS", "100");
  EXPECT_EQ(solido(), con);
  Arrastra(vivo, Qt::LeftButton, {100, 100}, {160, 80});
  EXPECT_NE(solido(), con);
  QTest::mouseDClick(&vivo, Qt::LeftButton);
  EXPECT_EQ(solido(), con);
}

}  // namespace
}  // namespace duktores
