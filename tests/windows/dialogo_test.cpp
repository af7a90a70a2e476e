#include <QAbstractItemView>
#include <QClipboard>
#include <QComboBox>
#include <QDropEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>
#include <QRadioButton>

#include "dialogs/rectangulares.h"
#include "state/textos.h"
#include "windows/fr_dialogo.h"
#include "windows/usuario.h"

namespace duktores {
namespace {

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

  FrDialogo dialogo_{kFrTransfCR, "TransBasRect.bmp", nullptr};
};

TEST_F(VentanaCR, KeysPassTheFilterAndEnterGoesOn) {
  QLineEdit& h = Texto_("TxtH");
  EXPECT_EQ(Foco(), "TxtH");
  QTest::keyClicks(&h, "-1a2,3.456");
  // Beyond the first plane, of private use, without a form of its own: keys that a line edit takes besides printable
  // ones.
  for (const char16_t* tecla : {u"\U0001F600", u"\uE000", u"\u200D", u"\u4E00"}) {
    QTest::sendKeyEvent(QTest::Click, &h, Qt::Key_unknown, QString::fromUtf16(tecla), Qt::NoModifier);
  }
  EXPECT_EQ(h.text(), "12.34");
  QTest::keyClick(&h, Qt::Key_Backspace);
  EXPECT_EQ(h.text(), "12.3");
  QTest::keyClick(&h, Qt::Key_Return);
  EXPECT_EQ(Foco(), "TxtRS");
  QTest::keyClick(&Texto_("TxtRS"), Qt::Key_Enter);
  EXPECT_EQ(Foco(), "TxtLI");
}

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
  QApplication::clipboard()->setText(" 4,5x\n67-");
  QTest::keyClick(&h, Qt::Key_V, Qt::ControlModifier);
  expectToma("4.56");
  QTest::keyClick(&h, Qt::Key_Insert, Qt::ShiftModifier);
  expectToma("4.56");

  QContextMenuEvent menu(QContextMenuEvent::Mouse, {5, 5}, h.mapToGlobal(QPoint(5, 5)));
  QApplication::sendEvent(&h, &menu);
  QWidget* abierto = QApplication::activePopupWidget();
  ASSERT_NE(abierto, nullptr);
  for (QAction* accion : abierto->actions()) {
    if (accion->text().startsWith("&Paste")) accion->trigger();
  }
  abierto->close();
  expectToma("4.56");

  QInputMethodEvent metodo;
  metodo.setCommitString("8一,9");
  QApplication::sendEvent(&h, &metodo);
  expectToma("8.9");

  QMimeData datos;
  datos.setText("a1,234");
  QDragEnterEvent entra({5, 5}, Qt::CopyAction, &datos, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(&h, &entra);
  QDropEvent suelta(QPointF(5, 5), Qt::CopyAction, &datos, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(&h, &suelta);
  expectToma("1.23");
}

TEST_F(VentanaCR, AMisplacedMinusKeepsTheFocus) {
  Teclea("TxtAlfa", "3-");
  QTest::keyClick(&Texto_("TxtAlfa"), Qt::Key_Tab);
  EXPECT_EQ(Foco(), "TxtAlfa");
  QTest::mouseClick(&Texto_("TxtH"), Qt::LeftButton);
  EXPECT_EQ(Foco(), "TxtAlfa");
  QTest::keyClicks(&Texto_("TxtAlfa"), "-3");
  QTest::keyClick(&Texto_("TxtAlfa"), Qt::Key_Tab);
  EXPECT_EQ(Foco(), "CmbDivi");
  EXPECT_EQ(Texto_("TxtAlfa").text(), "-3");

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
  EXPECT_TRUE(lblerror.isVisible());
  Teclea("TxtRS", "100");

  usuario_.Cuando("FrmViewUnfold", [](QWidget& visor) { Pulsa(visor, "CmdCancelar"); });
  Pulsa(dialogo_, "CmdAceptar");
  EXPECT_FALSE(lblerror.isVisible());
  EXPECT_EQ(estado.sTipoPieza, "TransCR");
  const EstadoPrograma& e = estado;
  const std::vector<double> valores{e.dAltura, e.dL1Base, e.dL2Base, e.dRadioAlto, e.dAx, e.dAy, e.dAlfa};
  EXPECT_EQ(valores, (std::vector<double>{300, 396, 296, 99, 0, 25.5, -10}));
  EXPECT_EQ(e.iDivisiones, 24);
  EXPECT_EQ(e.iPosIni, 3);
  EXPECT_FALSE(e.bDosPiezas);
  EXPECT_TRUE(dialogo_.isVisible());
  EXPECT_EQ(Foco(), "TxtH");
  EXPECT_EQ(Texto_("TxtAY").text(), "25.5");
  EXPECT_EQ(Hijo<QComboBox>(dialogo_, "CmbPosIni").currentText(), "3");
}

}  // namespace
}  // namespace duktores
