#include <QLabel>
#include <QLineEdit>

#include "dialogs/especiales.h"
#include "dxf/dibujo.h"
#include "state/textos.h"
#include "windows/fr_dialogo.h"
#include "windows/usuario.h"

namespace duktores {
namespace {

class VentanasEspeciales : public ConVentanas {
 protected:
  // Places what hangs on the pointer under the name `rotulo`.
  void Coloca(int mensaje, const std::string& rotulo) {
    usuario_.CierraMensaje(Texto(mensaje));
    usuario_.Cuando("pick", [rotulo](QWidget& visor) {
      const auto estadoVisor = Hijo<QLabel>(visor, "LblEstado").text().toStdString();
      EXPECT_TRUE(estadoVisor.starts_with(rotulo + ": ")) << estadoVisor;
      QTest::mouseClick(visor.findChild<Lienzo*>(), Qt::LeftButton, {}, {300, 200});
    });
  }
  // Types the values field by field, accepts, unfolds, places each shape and its block, and goes all the way back.
  void Recorre(const DefDialogo& def, const std::vector<const char*>& valores, const std::vector<std::string>& formas,
               bool cierto) {
    estado.iDivisiones = 16;
    const std::string nombre(def.nombre);
    FrDialogo dialogo(def, "", nullptr);
    usuario_.Cuando(nombre, [&](QWidget& ventana) {
      EXPECT_TRUE(QTest::qWaitForWindowActive(&ventana));
      EXPECT_EQ(Hijo<QLineEdit>(ventana, "TxtDivisiones").text(), "16");
      for (const char* valor : valores) {
        QTest::keyClicks(ventana.focusWidget(), valor);
        QTest::keyClick(ventana.focusWidget(), Qt::Key_Return);
      }
      Pulsa(ventana, "CmdAceptar");
      EXPECT_EQ(Hijo<QLabel>(ventana, "lblerror").text(), "");
      EXPECT_EQ(estado.iDivisiones, 8) << "typed over what stood there";
    });
    usuario_.Cuando("FrmViewUnfold", [](QWidget& visor) { Pulsa(visor, "CmdDesplegado"); });
    for (const std::string& forma : formas) {
      Coloca(63, forma);
      Coloca(65, Texto(106));
    }
    usuario_.Cuando("FrmViewUnfold", [=](QWidget& visor) {
      EXPECT_TRUE(Hijo(visor, "CmdSave").isEnabled());
      const auto& veredicto = Hijo<QLabel>(visor, "LblEstado");
      EXPECT_TRUE(veredicto.text().startsWith(QString::fromStdString(Texto(cierto ? 107 : 108))))
          << veredicto.text().toStdString();
      EXPECT_EQ(veredicto.styleSheet().contains("background"), !cierto);
      Pulsa(visor, "CmdCancelar");
    });
    usuario_.Cuando(nombre, [](QWidget& ventana) { Pulsa(ventana, "CmdCancelar"); });
    dialogo.exec();
    const std::string dxf = estado.oDrawing->GetEntities();
    std::size_t contornos = 0;
    for (std::size_t i = dxf.find("LWPOLYLINE"); i != std::string::npos; i = dxf.find("LWPOLYLINE", i + 1)) ++contornos;
    EXPECT_EQ(contornos, formas.size());
  }
};

TEST_F(VentanasEspeciales, SixteenClicksPlaceThePieceOfRoundedCorners) {
  Recorre(
      kFrTransfEsp1,
      {"300", "40", "50", "60", "45", "80", "90", "100", "85", "300", "250", "500", "400", "30", "20", "10", "5", "8"},
      {"Esquina 1", "Lado 1", "Esquina 2", "Lado 2", "Esquina 3", "Lado 3", "Esquina 4", "Lado 4"}, true);
  EXPECT_EQ(estado.dAlfa, -10);
}

// The usual rules unfold its sharp corners badly, and the window says so.
TEST_F(VentanasEspeciales, TheHalfCircleHasNoSide) {
  Recorre(kFrTransfEsp3, {"320", "90", "480", "300", "20", "10", "0", "0", "8"},
          {"Esquina 1", "Lado 1", "Esquina 2", "Lado 2", "Esquina 3", "Esquina 4", "Lado 4"}, false);
}

}  // namespace
}  // namespace duktores
