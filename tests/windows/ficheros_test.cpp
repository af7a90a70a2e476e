#include <QComboBox>
#include <QDropEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMimeData>
#include <QRadioButton>
#include <QToolButton>
#include <QTreeWidget>
#include <fstream>

#include "jobs/piezas.h"
#include "state/fichero.h"
#include "state/textos.h"
#include "windows/boton_abre.h"
#include "windows/fr_lista_duktores.h"
#include "windows/usuario.h"

namespace duktores {
namespace {

std::string Textos(QWidget& dialogo) {
  std::string textos;
  for (const auto* campo : dialogo.findChildren<QLineEdit*>()) textos += campo->text().toStdString() + " ";
  for (const auto* combo : dialogo.findChildren<QComboBox*>()) textos += combo->currentText().toStdString() + " ";
  return textos + (Hijo<QRadioButton>(dialogo, "OpDosPiezas").isChecked() ? "2" : "1");
}
const std::string kLleno = "300 100 400 300 0 25.5 -10 12 2 1", kVacio = "         2";

void Llena(QWidget& dialogo) {
  const QStringList textos = QString("300 100 400 300 0 25.5 -10").split(' ');
  const auto campos = dialogo.findChildren<QLineEdit*>();
  for (int i = 0; i < textos.size(); ++i) campos[i]->setText(textos[i]);
  Hijo<QComboBox>(dialogo, "CmbDivi").setCurrentIndex(0);
  Hijo<QComboBox>(dialogo, "CmbPosIni").setCurrentIndex(1);
  Hijo<QRadioButton>(dialogo, "OpUnapieza").setChecked(true);
}
void LlenaYAcepta(QWidget& dialogo) {
  Llena(dialogo);
  Pulsa(dialogo, "CmdAceptar");
}
const auto kCierra = [](QWidget& ventana) { ventana.close(); };

class Ficheros : public ConVentanas {
 protected:
  Ficheros() {
    estado.sRutaPropia = Ruta("propio/duktores.ini");
    estado.sRutaDuct = carpeta_.path().toStdString();
    Arranca();
  }
  /// A new run of the program.
  void Arranca() {
    lista_ = std::make_unique<FrListaDuktores>();
    lista_->show();
    EXPECT_TRUE(QTest::qWaitForWindowActive(lista_.get()));
    Hijo<QListWidget>(*lista_, "LstDuktores").setCurrentRow(2);
  }
  void EnDialogo(std::function<void(QWidget&)> hace) { usuario_.Cuando("FrTransfCR", std::move(hace)); }
  void Abre() { Pulsa(*lista_, "CmdContinuar"); }
  void Elige(const std::string& ruta) {
    usuario_.Cuando("QFileDialog", [ruta](QWidget& dialogo) {
      Hijo<QLineEdit>(dialogo, "fileNameEdit").setText(QString::fromStdString(ruta));
      QTest::keyClick(&Hijo(dialogo, "fileNameEdit"), Qt::Key_Return);
    });
  }
  /// The button is that of a text; Return without one.
  void Contesta(int texto, int boton = 0) {
    usuario_.Cuando("QMessageBox", [=](QWidget& caja) {
      const std::string dicho = dynamic_cast<QMessageBox&>(caja).text().toStdString();
      EXPECT_TRUE(dicho.starts_with(Texto(texto))) << dicho;
      for (auto* b : caja.findChildren<QPushButton*>()) {
        if (boton != 0 && b->text().remove('&').toStdString() == Texto(boton)) return b->click();
      }
      QTest::keyClick(&caja, Qt::Key_Return);
    });
  }
  /// Places the title block of a piece in one, which has a place of its own.
  void Coloca() {
    usuario_.CierraMensaje(Texto(65));
    usuario_.Cuando("pick", [](QWidget& visor) {
      QTest::mouseClick(visor.findChild<Lienzo*>(), Qt::LeftButton, {}, {700, 60});
    });
  }
  std::string Escribe(const char* nombre, const std::string& contenido) const {
    std::ofstream(Ruta(nombre)) << contenido;
    return Ruta(nombre);
  }
  void Suelta(const std::string& ruta) {
    QMimeData datos;
    datos.setUrls({QUrl::fromLocalFile(QString::fromStdString(ruta))});
    QDragEnterEvent entra({50, 50}, Qt::CopyAction, &datos, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(lista_.get(), &entra);
    EXPECT_TRUE(entra.isAccepted());
    QDropEvent suelta(QPointF(50, 50), Qt::CopyAction, &datos, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(lista_.get(), &suelta);
    QApplication::processEvents();
  }

  std::unique_ptr<FrListaDuktores> lista_;
};

TEST_F(Ficheros, ADialogKeepsItsValuesAndANewRunKnowsTheLastOnes) {
  const auto ultimos = [](QWidget& dialogo) {
    EXPECT_TRUE(QTest::qWaitFor([&] { return dialogo.isActiveWindow(); }));
    QTest::keyClick(&dialogo, Qt::Key_L, Qt::ControlModifier);
    return Textos(dialogo);
  };
  EnDialogo([&](QWidget& dialogo) {
    EXPECT_EQ(ultimos(dialogo), kVacio) << "nothing has been accepted yet";
    Llena(dialogo);
    Pulsa(dialogo, "CmdCancelar");
  });
  Abre();
  for (const char* boton : {"", "CmdAceptar"}) {
    EnDialogo([boton](QWidget& dialogo) {
      EXPECT_EQ(Textos(dialogo), kLleno);
      *boton == 0 ? QTest::keyClick(&dialogo, Qt::Key_Escape) : Pulsa(dialogo, boton);
    });
    if (*boton == 0) Abre();
  }
  usuario_.Cuando("FrmViewUnfold", kCierra);
  EnDialogo(kCierra);
  Abre();

  Arranca();
  EnDialogo([&](QWidget& dialogo) {
    EXPECT_EQ(Textos(dialogo), kVacio);
    Hijo<QLineEdit>(dialogo, "TxtAX").setText("7");
    Pulsa(dialogo, "CmdCeros");
    EXPECT_EQ(Textos(dialogo), "    7 0 0   2");
    EXPECT_EQ(ultimos(dialogo), kLleno);
    dialogo.close();
  });
  Abre();
}

// And so do its places, in files too; the end of the program asks. A list grows in the window; a file that isn't one is
// not written over unasked.
TEST_F(Ficheros, ThePatternStaysAsLongAsTheValues) {
  const std::string lista = Ruta("taller.json"), ajeno = Escribe("ajeno.json", "mine");
  QImage colocado;
  QString veredicto;
  const auto despliegaYGuarda = [&](QWidget& visor) {
    Pulsa(visor, "CmdDesplegado");
    colocado = visor.findChild<Lienzo*>()->grab().toImage();
    veredicto = Hijo<QLabel>(visor, "LblEstado").text();
    Pulsa(visor, "CmdSave");
    visor.close();
  };
  const auto guardaDxf = [&](const char* nombre) {
    Elige(Ruta(nombre));
    usuario_.CierraMensaje("OK");
  };
  EnDialogo(LlenaYAcepta);
  usuario_.Cuando("FrmViewUnfold", despliegaYGuarda);
  Coloca();
  guardaDxf("a.dxf");
  EnDialogo([&](QWidget& dialogo) {
    for (const char* altura : {"300", "310", "300"}) {
      Hijo<QLineEdit>(dialogo, "TxtH").setText(altura);
      Pulsa(dialogo, "CmdGuardaPieza");
    }
    estado.oDrawing.reset();  // as another piece would do
    Pulsa(dialogo, "CmdAceptar");
  });
  Elige(lista);
  Elige(lista);
  Contesta(302, 300);
  usuario_.Cuando("QInputDialog", [](QWidget& pregunta) { QTest::keyClick(&pregunta, Qt::Key_Return); });
  Elige(ajeno);
  Contesta(105);
  usuario_.Cuando("QFileDialog", kCierra);
  usuario_.Cuando("FrmViewUnfold", [&](QWidget& visor) {
    EXPECT_EQ(visor.findChild<Lienzo*>()->grab().toImage(), colocado);
    EXPECT_TRUE(Hijo<QLabel>(visor, "LblEstado").toolTip().endsWith("/a.dxf - " + veredicto));
    Pulsa(visor, "CmdSave");
    visor.close();
  });
  guardaDxf("b.dxf");
  // Other settings draw the pattern anew in its places.
  EnDialogo([](QWidget& dialogo) {
    estado.dTamanoTexto = 12;
    Pulsa(dialogo, "CmdAceptar");
  });
  usuario_.Cuando("FrmViewUnfold", [&](QWidget& visor) {
    EXPECT_TRUE(QTest::qWaitFor([&] { return Hijo(visor, "CmdSave").isEnabled(); }));
    EXPECT_NE(visor.findChild<Lienzo*>()->grab().toImage(), colocado);
    EXPECT_EQ(Hijo<QLabel>(visor, "LblEstado").text(), veredicto);
    visor.close();
  });
  EnDialogo([](QWidget& dialogo) {
    estado.dTamanoTexto = 10;
    Hijo<QLineEdit>(dialogo, "TxtH").setText("301");
    Pulsa(dialogo, "CmdAceptar");
  });
  usuario_.Cuando("FrmViewUnfold", [](QWidget& visor) {
    EXPECT_FALSE(Hijo(visor, "CmdSave").isEnabled()) << "other values show their own solid";
    Pulsa(visor, "CmdDesplegado");
    Pulsa(visor, "CmdExit");
    EXPECT_TRUE(visor.isVisible()) << "stayed";
    visor.close();
  });
  Coloca();
  Contesta(305, 307);
  EnDialogo(kCierra);
  Abre();
  Contesta(305, 310);
  guardaDxf("fin.dxf");
  QTimer::singleShot(0, lista_.get(), [&] { Pulsa(*lista_, "CmdSalir"); });
  EXPECT_EQ(QApplication::exec(), 0);
  EXPECT_TRUE(LeeFichero(Ruta("fin.dxf"))) << "saved from behind";
  EXPECT_EQ(LeeFichero(ajeno).value(), "mine");
  const auto trabajos = LeePiezas(lista).trabajos;
  ASSERT_EQ(trabajos.size(), 2U);
  EXPECT_EQ(trabajos[0].nombre + " " + trabajos[1].nombre, "taller taller-2");
  EXPECT_TRUE(trabajos[0].puntos && !trabajos[1].puntos) << "places are those of the values that they were chosen for";

  Arranca();
  usuario_.Cuando("FrEligePieza", [](QWidget& ventana) { Pulsa(ventana, "CmdAceptar"); });
  EnDialogo([](QWidget& dialogo) { Pulsa(dialogo, "CmdAceptar"); });
  usuario_.Cuando("FrmViewUnfold", despliegaYGuarda);
  guardaDxf("c.dxf");
  EnDialogo(kCierra);
  Suelta(lista);
  for (const char* otro : {"b.dxf", "c.dxf"}) EXPECT_TRUE(LeeFichero(Ruta(otro)) == LeeFichero(Ruta("a.dxf"))) << otro;
}

TEST_F(Ficheros, FilesOpenAndWhatIsBrokenChangesNothing) {
  EnDialogo([&](QWidget& dialogo) {
    Llena(dialogo);
    const std::pair<int, std::string> malos[]{
        {297, Ruta("nada")},
        {295, Escribe("a.json", "[{")},
        {296, Escribe("b.json", std::string(9 << 20, ' '))},
        {308, Escribe("c.json", R"([{"name": "x", "piece": "TransCR", "H": [1]}])")},
        {299, Escribe("d.json", R"({"name": "x", "piece": "TransXX"})")},
        {298, Escribe("e.json", R"({"name": "x", "piece": "TransCR", "H": 5, "RS": -5})")}};
    for (const auto& [texto, ruta] : malos) {
      Contesta(texto);
      emit dynamic_cast<BotonAbre&>(Hijo(dialogo, "CmdAbre")).elegido(QString::fromStdString(ruta));
      EXPECT_EQ(Textos(dialogo), kLleno) << ruta;
    }
    Elige(Escribe("f.json", R"({"name": "x", "piece": "TransCR", "H": 5, "Start": 4, "Pieces": 2})"));
    QTest::mouseClick(&Hijo(dialogo, "CmdAbre"), Qt::LeftButton, {}, {10, 10});
    EXPECT_EQ(Textos(dialogo), "5        4 2");
    // The second one of a list, which is of another type.
    Elige(Escribe("g.json", R"([{"name": "x", "piece": "TransCR"}, {"name": "y", "piece": "TransRC", "RI": 6}])"));
    usuario_.Cuando("FrEligePieza", [](QWidget& ventana) {
      QTest::keyClick(&Hijo(ventana, "LstPiezas"), Qt::Key_Down);
      Pulsa(ventana, "CmdAceptar");
    });
    usuario_.Cuando("FrTransfRC", [](QWidget& otro) {
      EXPECT_EQ(Textos(otro), " 6        2");
      otro.close();
    });
    QTest::mouseClick(&Hijo(dialogo, "CmdAbre"), Qt::LeftButton, {}, {10, 10});
  });
  Abre();
  EXPECT_EQ(estado.sTipoPieza, Texto(12));
  EnDialogo([](QWidget& dialogo) {
    EXPECT_EQ(Textos(dialogo), "5        4 2");
    dialogo.close();
  });
  Suelta(Ruta("f.json"));
  usuario_.Cuando("FrTransBaRectBoElip", [](QWidget& dialogo) {
    EXPECT_EQ(Textos(dialogo), "         3 1") << "a file's choice outlives the activation";
    dialogo.close();
  });
  Suelta(Escribe("h.json", R"({"name": "x", "piece": "TransElip", "Start": 3, "Pieces": 1})"));
  auto& menu = *Hijo<QToolButton>(*lista_, "CmdAbre").menu();
  emit menu.aboutToShow();
  ASSERT_EQ(menu.actions().size(), 3);
  EXPECT_EQ(menu.actions()[1]->text().toStdString(), Ruta("f.json"));
}

}  // namespace
}  // namespace duktores
