#include "state/arranque.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <clocale>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <random>

#include "state/estado.h"

namespace duktores {
namespace {

namespace fs = std::filesystem;

class VentanaSiete : public Plataforma {
  Ventana VentanaActiva() override { return 7; }
};

class Arranque : public testing::Test {
 protected:
  void SetUp() override {
    estado = EstadoPrograma{};
    raiz_ = fs::temp_directory_path() / ("duktores_" + std::to_string(std::random_device{}()));
    fs::create_directories(raiz_ / "Config");
    setenv("LC_ALL", "C", 1);
  }
  void TearDown() override { fs::remove_all(raiz_); }

  void Escribe(std::string_view contenido) { std::ofstream(Ini(), std::ios::binary) << contenido; }
  std::string Ini() const { return (raiz_ / "Config/Config.ini").string(); }
  void Lanza() { Arranca((raiz_ / "Duct/duktores").string()); }
  void Lanza(std::string_view contenido) {
    Escribe(contenido);
    Lanza();
  }

  fs::path raiz_;
};

TEST_F(Arranque, PlacesAndConfiguration) {
  VentanaSiete plataforma;
  estado.plataforma = &plataforma;
  estado.sTipoPieza = "TransCR";
  Lanza(
      "[DUCT]\r\nPath=/cut/new\r\nThickness=1.25\r\nSizetxt=6\r\nFiber=3\r\nBendColour=2.5\r\nDimensions=1.0\r\n"
      "Density=7.85\r\nNDivi=70000\r\nBox=-1\r\n[UNIT]\r\nUnit=0\r\n[LANGUAGE]\r\nLanguage=CHINESE\r\n");
  EXPECT_EQ(estado.sRutaBase, raiz_.string() + "/");
  EXPECT_EQ(estado.sRutaPrograma, raiz_.string() + "/Duct/");
  EXPECT_EQ(estado.sRutaIni, Ini());
  EXPECT_EQ(estado.hVentanaHost, 7U);
  EXPECT_EQ(estado.plataforma, &plataforma);
  EXPECT_EQ(estado.sTipoPieza, "");
  EXPECT_EQ(estado.dIdioma, 60000.0);
  EXPECT_EQ(estado.iUnidad, 1);
  EXPECT_EQ(estado.sRutaDuct, "/cut/new");
  EXPECT_EQ(estado.dEspesor, 1.25);
  EXPECT_EQ(estado.dTamanoTexto, 6.0);
  EXPECT_EQ(estado.iFibra, 3);
  EXPECT_EQ(estado.iColorDoblez, 2);
  EXPECT_EQ(estado.sDimensiones, "1");
  EXPECT_EQ(estado.sDensidad, "7.85");
  EXPECT_EQ(estado.iDivisiones, 0);
  EXPECT_EQ(estado.iBox, -1);

  const std::string otro = (raiz_ / "other.ini").string();
  std::ofstream(otro) << "[DUCT]\nNDivi=24\n";
  Arranca((raiz_ / "Duct/duktores").string(), otro);
  EXPECT_EQ(estado.iDivisiones, 24);
  EXPECT_EQ(estado.dIdioma, 0.0);
}

TEST_F(Arranque, SingleKeys) {
  const struct {
    const char* unidad;
    int iUnidad;
    double altura;
  } unidades[] = {{"0", 1, 6}, {"1", 2, 2}, {"2", 3, 6}, {"mm", 1, 6}, {"1.5", 2, 2}, {"99999", 0, 6}};
  for (const auto& [unidad, iUnidad, altura] : unidades) {
    Lanza("[UNIT]\nUnit=" + std::string(unidad) + "\n[DUCT]\nSizetxt=6\n");
    EXPECT_EQ(estado.iUnidad, iUnidad) << unidad;
    EXPECT_EQ(estado.dTamanoTexto, altura) << unidad;
  }
  const std::pair<const char*, double> idiomas[] = {{" english ", 10000}, {"German", 20000},
                                                    {"FRENCH", 30000},    {"\" portuguese \"", 40000},
                                                    {"bAsQuE", 50000},    {"CHINESE", 60000},
                                                    {"SPANISH", 0},       {"ITALIAN", 0},
                                                    {"ENGLISH.", 0},      {"", 0}};
  for (const auto& [nombre, base] : idiomas) {
    Lanza("[LANGUAGE]\nLanguage=" + std::string(nombre) + "\n");
    EXPECT_EQ(estado.dIdioma, base) << nombre;
  }
  Lanza("[DUCT]\nThickness=1,5\n");
  EXPECT_EQ(estado.dEspesor, 1.0);
  Lanza("[DUCT]\nThickness=0.12345678901234567\n");
  EXPECT_EQ(estado.dEspesor, 0.123456789012346);
}

TEST_F(Arranque, AFileThatIsNoneReadsAsEmpty) {
  const auto vacio = [&](const char* caso) {
    Lanza();
    EXPECT_EQ(estado.dIdioma, 0.0) << caso;
    EXPECT_EQ(estado.iUnidad, 1) << caso;
    EXPECT_EQ(estado.dEspesor, 0.0) << caso;
    EXPECT_EQ(estado.sDensidad, "0") << caso;
    EXPECT_EQ(estado.sRutaDuct, "") << caso;
  };
  vacio("missing");
  fs::create_directory(Ini());
  vacio("folder");
  fs::remove(Ini());
  ASSERT_EQ(mkfifo(Ini().c_str(), 0600), 0);
  vacio("pipe");
  fs::remove(Ini());
  Escribe(std::string(3 << 20, 'x') + "\n[DUCT]\nThickness=2\n");
  vacio("huge");
  std::mt19937 azar(1);
  std::string bytes(100000, '\0');
  for (char& c : bytes) c = static_cast<char>(azar());
  Escribe(bytes);
  vacio("random");
  Arranca("duktores");
  EXPECT_EQ(estado.sRutaBase, "");
}

TEST_F(Arranque, DecimalMarkOfTheEnvironment) {
  Lanza("[DUCT]\nThickness=1.5\nDensity=7.85\n");
  EXPECT_FALSE(estado.bComaDecimal);
  setenv("LC_ALL", "no_such_LOCALE", 1);
  DetectaComa();
  EXPECT_FALSE(estado.bComaDecimal);

  const std::string crea = "localedef -i es_ES -f UTF-8 '" + (raiz_ / "es_ES.UTF-8").string() + "' >/dev/null 2>&1";
  if (std::system(crea.c_str()) != 0) GTEST_SKIP() << "no localedef to make a locale with a comma";
  const auto enEspanol = [&] {
    setenv("LOCPATH", raiz_.c_str(), 1);
    setenv("LC_ALL", "es_ES.UTF-8", 1);
    Lanza();
    return estado.bComaDecimal && estado.dEspesor == 1.5 && estado.sDensidad == "7,85" &&
           std::string_view(std::setlocale(LC_NUMERIC, nullptr)) == "C";
  };
  // In a process of its own: the C library keeps what it allocates for LOCPATH.
  EXPECT_EXIT(std::_Exit(enEspanol() ? 0 : 1), testing::ExitedWithCode(0), "");
}

TEST_F(Arranque, KnowsItsOwnPlace) { EXPECT_EQ(fs::path(RutaEjecutable()).filename(), "test_state"); }

}  // namespace
}  // namespace duktores
