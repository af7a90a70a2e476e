#include "dxf/composicion.h"
#include "dxf/escritor.h"

#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <locale>

#include "annotation/anotacion.h"
#include "ayudas.h"
#include "state/fichero.h"
#include "state/guardado.h"
#include "state/textos.h"

namespace duktores {
namespace {

namespace fs = std::filesystem;

/// With a program folder of its own that holds a copy of the template.
class Escritor : public PruebaCorrida {
 protected:
  void SetUp() override {
    PruebaCorrida::SetUp();
    fs::create_directories(carpeta_ / "Template");
    fs::copy_file(DUKTORES_RAIZ "/Template/Template.dxf", plantilla_);
    estado.sRutaPrograma = carpeta_.string() + "/";
    dxf_.InsertEntities(estado.oDrawing);
  }
  void TearDown() override { fs::remove_all(carpeta_); }
  /// Saves over a file of before and expects it untouched and nothing beside it.
  void EsperaRechazo(const std::string& motivo) {
    EscribeFichero(destino_, "antes");
    EXPECT_FALSE(dxf_.Save(destino_)) << motivo;
    EXPECT_EQ(LeeFichero(destino_), "antes") << motivo;
    EXPECT_EQ(std::distance(fs::directory_iterator(carpeta_), {}), 2) << motivo;
  }
  std::vector<std::string> Guarda() {
    EXPECT_TRUE(dxf_.Save(destino_));
    return Lineas(LeeFichero(destino_).value());
  }
  fs::path carpeta_ = fs::temp_directory_path() / ("duktores_dxf_" + std::to_string(getpid()));
  std::string plantilla_ = carpeta_ / "Template/Template.dxf", destino_ = carpeta_ / "salida.dxf";
  cDXF dxf_;
  EWdraw axew_;
};

TEST_F(Escritor, ChangesWhatItMustUnderACommaLocale) {
  struct Coma : std::numpunct<char> {
    char do_decimal_point() const override { return ','; }
    std::string do_grouping() const override { return "\3"; }
  };
  const std::locale anterior = std::locale::global(std::locale(std::locale(), new Coma));
  estado.bComaDecimal = true;
  estado.dIdioma = kChino;
  std::string texto = "\u4E2D\u6587 12.5";
  DibujaLinea(axew_, -100.5, -200.25, 1234.5, 400, 7);
  DibujaArco(axew_, 5, 5, 2.5, 10, 350, 1);
  DibujaPolilinea(axew_, {{0, 0}, {10, 0}, {10, 5}});
  DibujaTexto(axew_, 1, 1, texto, 3, 1, 30);
  auto esperadas = Lineas(LeeFichero(plantilla_).value());
  const auto despues = Guarda(), entidades = LineasDibujo();
  EXPECT_EQ(Guarda(), despues) << "a second save";
  std::locale::global(anterior);
  EXPECT_EQ(LeeFichero(destino_)->find(','), std::string::npos);
  // All lines are the template's but the entities and these, counted from their markers.
  const std::tuple<const char*, int, const char*> cambios[] = {
      {"$EXTMIN", 2, "-100.5"}, {"$EXTMIN", 4, "-200.25"}, {"$EXTMAX", 2, "1234.5"}, {"$EXTMAX", 4, "400"},
      {"*Active", 12, "567"},   {"*Active", 14, "99.875"}, {"*Active", 40, "1234.5"}};
  for (const auto& [marca, n, valor] : cambios) std::ranges::find(esperadas, marca)[n] = valor;
  esperadas.insert(std::ranges::find(esperadas, "ENTITIES") + 1, entidades.begin(), entidades.end());
  EXPECT_EQ(despues, esperadas) << std::ranges::mismatch(despues, esperadas).in1 - despues.begin();
}

TEST_F(Escritor, TemplatesOfOtherHandsAreTakenAsTheyAre) {
  // Bare line feeds, bytes of code page 1252, a marker with a blank in front, one in lower case, no last line end.
  EscribeFichero(
      plantilla_,
      "\xD8\n $EXTMIN\n10\nold\n$ExtMin\n10\nold\n20\nold\n30\nz\n\nentities\n$EXTMAX\n10\nold\nENDSEC\nEOF");
  std::string texto = "\u00D8\u20AC\u0411";
  DibujaLinea(axew_, 1, 2, 3, 4, 7);
  DibujaTexto(axew_, 1, 2, texto, 0, 7, 0);
  Guarda();
  const std::string fila = Fila(LeeFichero(destino_).value());
  EXPECT_TRUE(fila.starts_with("\xD8| $EXTMIN|10|old|$ExtMin|10|1|20|2|30|z||entities|  0|LINE|")) << fila;
  EXPECT_TRUE(fila.ends_with("|\xD8\x80\\U+0411|  50|0.0|100|AcDbText|$EXTMAX|10|old|ENDSEC|EOF|"))
      << "no marker counts any more";
}

TEST_F(Escritor, RefusalsLeaveWhatStoodThere) {
  DibujaLinea(axew_, 1, 2, 3, 4, 7);
  const std::string plantilla = LeeFichero(plantilla_).value();
  for (const std::size_t largo : {plantilla.find("*Active") + 9, plantilla.find("BLOCKS"), std::size_t{0},
                                  plantilla.rfind("ENDSEC"), plantilla.rfind("EOF")}) {
    EscribeFichero(plantilla_, plantilla.substr(0, largo));
    EsperaRechazo("template cut at " + std::to_string(largo));
    EXPECT_FALSE(RevisaPlantilla());
  }
  EscribeFichero(plantilla_, plantilla);
  EXPECT_TRUE(RevisaPlantilla());
  EXPECT_FALSE(dxf_.Save(carpeta_ / "Template") || dxf_.Save(carpeta_ / "no/salida.dxf")) << "a folder, and none";
  EXPECT_FALSE(cDXF().Save(destino_) || cDXF().InsertEntities(nullptr)) << "no entities";
  cLine lejos{.x1 = -1.7e308, .x2 = 1.7e308};
  estado.oDrawing->InsertLine(&lejos);
  EsperaRechazo("a view without a centre");
}

}  // namespace
}  // namespace duktores
