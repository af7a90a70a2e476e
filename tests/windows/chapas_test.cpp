#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <fstream>
#include <regex>

#include "jobs/piezas.h"
#include "piece/numeros_texto.h"
#include "state/fichero.h"
#include "state/propio.h"
#include "state/textos.h"
#include "windows/fr_chapas.h"
#include "windows/fr_elige_pieza.h"
#include "windows/usuario.h"

namespace duktores {
namespace {

constexpr const char* kLista = R"([
  {"name": "a", "piece": "TransCR", "quantity": 6, "H": 300, "RS": 100, "LI": 400, "AI": 400, "AX": 0, "AY": 0,
   "Alfa": 0, "Divisions": 12, "Start": 1},
  {"name": "fat", "piece": "TransCR", "thickness": 3, "H": 300, "RS": 100, "LI": 400, "AI": 400, "AX": 0, "AY": 0,
   "Alfa": 0, "Divisions": 12, "Start": 1, "Pieces": 1},
  {"name": "big", "piece": "TransCR", "H": 3000, "RS": 1000, "LI": 4000, "AI": 4000, "AX": 0, "AY": 0,
   "Alfa": 0, "Divisions": 12, "Start": 1},
  {"name": "empty", "piece": "TransCR", "H": 300},
  {"name": "bad", "piece": "TransCR", "quantity": 0}])";

class Chapas : public ConVentanas {
 protected:
  Chapas() {
    estado.sRutaPropia = Ruta("propio/duktores.ini");
    PonPropio("SHEETS_MM", "Seconds", "1");
  }
  static bool Espera(FrChapas& ventana, const char* boton) {
    return QTest::qWaitFor([&] { return Hijo(ventana, boton).isEnabled(); }, 20000);
  }
  static std::string Estado(FrChapas& ventana) { return Hijo<QLabel>(ventana, "LblEstado").text().toStdString(); }
  static void Escribe(QWidget& ventana, const char* campo, const char* texto) {
    Hijo<QLineEdit>(ventana, campo).setText(texto);
  }

  const std::vector<Trabajo> trabajos_ = LeePiezasDe(kLista).trabajos;
};

TEST_F(Chapas, AListIsLaidStoppedWrittenAndNothingIsLost) {
  FrChapas ventana(nullptr, trabajos_);
  ventana.show();
  ASSERT_TRUE(Espera(ventana, "CmdExport"));
  Escribe(ventana, "TxtSeconds", "1000");
  Escribe(ventana, "TxtWidth2", "1000");
  Escribe(ventana, "TxtHeight2", "700,5");
  Escribe(ventana, "TxtCount2", "1");
  Pulsa(ventana, "CmdDistribuye");
  EXPECT_FALSE(Hijo(ventana, "CmdExport").isEnabled());
  QTest::qWait(300);
  Pulsa(ventana, "CmdPara");
  ASSERT_TRUE(Espera(ventana, "CmdExport"));
  EXPECT_TRUE(std::regex_match(Estado(ventana), std::regex("Chapas: \\d+, piezas: 13, uso: .*"))) << Estado(ventana);
  const auto& faltan = Hijo<QListWidget>(ventana, "LstFaltan");
  std::string textos;
  for (int i = 0; i < faltan.count(); ++i) textos += faltan.item(i)->text().toStdString() + "\n";
  for (const char* falta : {"big - Pieza 1: mayor que", "big - Pieza 2: mayor que", "empty: RS: ", "bad: quantity"}) {
    EXPECT_TRUE(std::regex_search(textos, std::regex(falta))) << falta << " in\n" << textos;
  }
  EXPECT_EQ(faltan.count(), 4) << textos;

  std::ofstream(Ruta("sheet-9.dxf")) << "other";
  const auto exporta = [&] {
    usuario_.Cuando("QFileDialog", [this](QWidget& dialogo) {
      Hijo<QLineEdit>(dialogo, "fileNameEdit").setText(carpeta_.path());
      QTest::keyClick(&Hijo(dialogo, "fileNameEdit"), Qt::Key_Return);
    });
  };
  exporta();
  Pulsa(ventana, "CmdExport");
  ASSERT_TRUE(Espera(ventana, "CmdExport"));
  EXPECT_TRUE(Estado(ventana).starts_with(Texto(texto::kEscrito))) << Estado(ventana);
  int contornos = 0, chapas = 0;
  for (; LeeFichero(Ruta(("sheet-" + std::to_string(chapas + 1) + ".dxf").c_str())); ++chapas) {
    const std::string base = Ruta(("sheet-" + std::to_string(chapas + 1)).c_str());
    const std::string dxf = *LeeFichero(base + ".dxf");
    const std::regex contorno("LWPOLYLINE\r?\n[^$]{0,120}?\r?\nCUT\r?\n");
    contornos += static_cast<int>(std::distance(std::sregex_iterator(dxf.begin(), dxf.end(), contorno), {}));
    EXPECT_FALSE(QImage(QString::fromStdString(base + ".png")).isNull());
  }
  EXPECT_EQ(contornos, 13);
  const std::string tabla = LeeFichero(Ruta("sheets.csv")).value_or("");
  EXPECT_EQ(std::ranges::count(tabla, '\n'), 1 + chapas + 4) << tabla;

  // What stands is replaced only if the user says so.
  std::ofstream(Ruta("sheet-1.png")) << "mine";
  exporta();
  usuario_.Cuando("QMessageBox", [](QWidget& caja) { QTest::keyClick(&caja, Qt::Key_Escape); });
  Pulsa(ventana, "CmdExport");
  EXPECT_EQ(LeeFichero(Ruta("sheet-1.png")), "mine");
}

TEST_F(Chapas, TheWindowClosesWhileItWorksAndKnowsItsValuesAgain) {
  {
    FrChapas ventana(nullptr, trabajos_);
    ventana.show();
    Pulsa(ventana, "CmdPara");
    ASSERT_TRUE(Espera(ventana, "CmdDistribuye"));
    const std::pair<const char*, const char*> malos[]{{"TxtWidth1", "0"}, {"TxtHeight1", ""}, {"TxtCount1", "1.5"},
                                                      {"TxtGap", "-1"},   {"TxtMargin", "x"}, {"TxtSeconds", ""}};
    for (const auto& [campo, valor] : malos) {
      auto& escrito = Hijo<QLineEdit>(ventana, campo);
      const QString antes = escrito.text();
      escrito.setText(valor);
      Pulsa(ventana, "CmdDistribuye");
      EXPECT_TRUE(Hijo(ventana, "lblerror").isVisible() && !Hijo(ventana, "CmdPara").isEnabled()) << campo;
      escrito.setText(antes);
    }
    Escribe(ventana, "TxtSeconds", "1000");
    Escribe(ventana, "TxtGap", "7.5");
    Pulsa(ventana, "CmdDistribuye");
    EXPECT_FALSE(Hijo(ventana, "lblerror").isVisible());
    QTest::qWait(200);
    QElapsedTimer reloj;
    reloj.start();
    ventana.close();
    EXPECT_LT(reloj.elapsed(), 2000);
  }
  // By the button of the list, where the last values count.
  QWidget sobre;
  usuario_.Cuando("FrEligePieza", [](QWidget& lista) {
    Pulsa(lista, "CmdChapas");
    lista.close();
  });
  usuario_.Cuando("FrChapas", [](QWidget& ventana) {
    EXPECT_EQ(Hijo<QLineEdit>(ventana, "TxtGap").text(), "7.5");
    EXPECT_TRUE(Hijo(ventana, "CmdPara").isEnabled()) << "it has begun";
    ventana.close();
  });
  EXPECT_EQ(EligePieza(sobre, trabajos_), trabajos_.size());
  estado.iUnidad = 2;
  FormaChapas pulgadas(nullptr);
  EXPECT_EQ(Hijo<QLineEdit>(pulgadas, "TxtGap").text(), "0.2");
}

}  // namespace
}  // namespace duktores
