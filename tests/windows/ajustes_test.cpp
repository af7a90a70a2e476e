#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QTabBar>

#include "shell/lista.h"
#include "state/ajustes.h"
#include "state/fichero.h"
#include "state/textos.h"
#include "windows/filas_ajuste.h"
#include "windows/fr_ajustes.h"
#include "windows/fr_dialogo.h"
#include "windows/fr_lista_duktores.h"
#include "windows/usuario.h"

namespace duktores {
namespace {

class Ajustes : public ConVentanas {
 protected:
  void Configura(const std::string& contenido) {
    estado.sRutaIni = Ruta("Config.ini");
    EXPECT_TRUE(contenido.empty() || EscribeFichero(estado.sRutaIni, contenido));
    ReleeConfiguracion(true);
  }
  static std::string Dice(QWidget& ventana, const char* nombre) {
    return Hijo<QLabel>(ventana, nombre).text().toStdString();
  }
  static void Teclea(QWidget& ventana, const char* campo, const char* texto) {
    auto& linea = Hijo<QLineEdit>(ventana, campo);
    linea.clear();
    QTest::keyClicks(&linea, texto);
  }
};

TEST_F(Ajustes, WhatIsChangedIsInForceAtOnceAndNothingElseIsWritten) {
  Configura(
      "; host's\n[DUCT]\nFiber=1 \nThickness = "
      "1.0\nSizetxt=10\nNDivi=16\nBox=-1\nHost=x\n[LANGUAGE]\nLanguage=english\n");
  FrListaDuktores lista;
  FrDialogo abierto(FilaDe(TipoPieza::esp1), nullptr), oculto(FilaDe(TipoPieza::cr), nullptr);
  abierto.show();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&abierto));
  Teclea(abierto, "TxtH", "12.34");
  EXPECT_EQ(Hijo<QPushButton>(abierto, "CmdAjustes").text().toStdString(), "1 mm, inner surface, mm");
  estado.iDivisiones = 24;
  usuario_.Cuando("FrAjustes", [&](QWidget& ventana) {
    const std::tuple<const char*, const char*, const char*> malos[] = {
        {"Thickness", "-1", "Thickness: a number from 0 to 100"},
        {"Sizetxt", "0", "Text height: a number from 0.01 to 1000"},
        {"BendColour", "2.5", "Bend colour: a whole number from 0 to 256"},
        {"NDivi", "18", "Divisions: a multiple of 4, from 4 to 908"},
        {"Path", "/no/such/folder", "Save folder: a folder that exists, or nothing"},
        {"CutLayer", "MY LAYER/..", "Layer of the cut: 1 to 31 letters (A-Z), digits, _ - $; not just 0, no two alike"},
        {"BendUpLayer", "", "Layer of the bends up: 1 to 31 letters (A-Z), digits, _ - $; not just 0, no two alike"},
        {"MarkLayer", "bend_up", "Layer of the marks: 1 to 31 letters (A-Z), digits, _ - $; not just 0, no two alike"}};
    for (const auto& [campo, mal, dice] : malos) {
      const QString antes = Hijo<QLineEdit>(ventana, campo).text();
      Teclea(ventana, campo, mal);
      QTest::keyClick(&Hijo(ventana, campo), Qt::Key_Return);
      EXPECT_EQ(Dice(ventana, "lblerror"), dice);
      EXPECT_TRUE(ventana.focusWidget() == &Hijo(ventana, campo) && Hijo(ventana, "lblerror").isVisible());
      Hijo<QLineEdit>(ventana, campo).setText(antes);
      EXPECT_FALSE(Hijo(ventana, "lblerror").isVisible());
    }
    QTest::keyClick(ventana.focusWidget(), Qt::Key_Backtab, Qt::ControlModifier);
    EXPECT_TRUE(Hijo<QCheckBox>(ventana, "Box").isChecked());
    Teclea(ventana, "Thickness", "0,04");
    for (const auto& [combo, texto] :
         {std::pair("Language", "Deutsch"), {"Unit", "inches"}, {"Fiber", "outer surface"}})
      Hijo<QComboBox>(ventana, combo).setCurrentText(texto);
    QTest::keyClick(ventana.focusWidget(), Qt::Key_Return);
  });
  QTest::keyClick(&Hijo(abierto, "TxtH"), Qt::Key_Comma, Qt::ControlModifier);
  EXPECT_EQ(LeeFichero(estado.sRutaIni),
            "; host's\n[DUCT]\nFiber=3\nThickness=0.04\nSizetxt=10\nNDivi=16\nBox=-1\nHost=x\n[LANGUAGE]\n"
            "Language=GERMAN\n[UNIT]\nUnit=1\n");
  EXPECT_TRUE(estado.iFibra == 3 && estado.dEspesor == 0.04 && estado.iDivisiones == 24);
  EXPECT_EQ(Hijo<QPushButton>(abierto, "CmdAjustes").text().toStdString(), "0.04 Zoll, Außenfläche, Zoll");
  EXPECT_EQ(abierto.windowTitle().toStdString() + oculto.windowTitle().toStdString(), Texto(42) + Texto(11));
  EXPECT_EQ(Hijo<QPushButton>(lista, "CmdSalir").text().toStdString(), Texto(2));
  EXPECT_EQ(Hijo<QPushButton>(abierto, "CmdCancelar").text(), "Abbrechen");
  QStringList rotulos;
  for (const auto* rotulo : oculto.findChildren<QLabel*>()) rotulos += rotulo->text();
  EXPECT_TRUE(rotulos.contains("H (inches):") && rotulos.contains("Anzahl Teilungen:"));
  Teclea(oculto, "TxtH", "1.2345");
  EXPECT_EQ(Hijo<QLineEdit>(abierto, "TxtH").text() + Hijo<QLineEdit>(oculto, "TxtH").text(), "12.341.234");
}

TEST_F(Ajustes, WithoutAConfigurationTheFootLeadsToTheSettings) {
  Configura("");
  FrListaDuktores lista(AvisosDe(ReleeConfiguracion(true)));
  lista.show();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&lista));
  EXPECT_EQ(Dice(lista, "LblAviso"), "No hay configuración. Pulse aquí para ajustarla: " + estado.sRutaIni);
  // Nothing is written where the user cancels.
  usuario_.Cuando("FrAjustes", [](QWidget& ventana) { QTest::keyClick(&ventana, Qt::Key_Escape); });
  Pulsa(lista, "CmdAjustes");
  EXPECT_TRUE(Hijo(lista, "LblAviso").isVisible() && !LeeFichero(estado.sRutaIni));
  usuario_.Cuando("FrAjustes", [](QWidget& ventana) {
    ASSERT_TRUE(QTest::qWaitForWindowActive(&ventana));
    Hijo<QComboBox>(ventana, "Fiber").setCurrentIndex(-1);
    auto* pestanas = ventana.findChild<QTabBar*>();
    QTest::mouseClick(pestanas, Qt::LeftButton, {}, pestanas->tabRect(1).center());
    QTest::keyClick(ventana.focusWidget(), Qt::Key_Return);
    EXPECT_EQ(Dice(ventana, "lblerror"), "Superficie: elija un valor de la lista");
    Hijo<QComboBox>(ventana, "Fiber").setCurrentIndex(1);
    QTest::mouseClick(&Hijo(ventana, "Dimensions"), Qt::LeftButton, {}, {8, Hijo(ventana, "Dimensions").height() / 2});
    Pulsa(ventana, "CmdAceptar");
  });
  Pulsa(lista, "LblAviso");
  EXPECT_EQ(LeeFichero(estado.sRutaIni),
            "[DUCT]\nThickness=1\nFiber=2\nDensity=7.85\nSizetxt=10\nBox=1\nBendColour=3\nNDivi=16\n");
  EXPECT_FALSE(Hijo(lista, "LblAviso").isVisible());
}

// Each row is a key that the configuration has, and its choices are what that key takes.
TEST_F(Ajustes, RowsAndKeysMatch) {
  Configura("[DUCT]\nFiber=1\n");
  std::size_t mostradas = 0;
  const auto claves = ReleeConfiguracion(true).claves;
  for (const FilaAjuste& fila : FilasAjuste()) {
    for (const ClaveLeida& clave : claves) {
      if (clave.seccion != fila.seccion || clave.clave != fila.clave) continue;
      ++mostradas;
      EXPECT_EQ(clave.limites.has_value(), fila.clase == ClaseAjuste::lista || fila.clase == ClaseAjuste::siNo ||
                                               fila.clase == ClaseAjuste::numero)
          << clave.clave;
      if (fila.clase != ClaseAjuste::lista) continue;
      EXPECT_EQ(clave.limites->minimo, fila.primera) << clave.clave;
      EXPECT_EQ(clave.limites->maximo - clave.limites->minimo + 1, static_cast<double>(fila.opciones.size()))
          << clave.clave;
    }
  }
  EXPECT_EQ(mostradas, claves.size());
}

}  // namespace
}  // namespace duktores
