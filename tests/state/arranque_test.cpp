#include "state/arranque.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <thread>
#include <tuple>

#include "state/ajustes.h"
#include "state/caracteres.h"
#include "state/estado.h"
#include "state/fichero.h"
#include "state/guardado.h"
#include "state/ini.h"
#include "state/propio.h"

namespace duktores {
namespace {

namespace fs = std::filesystem;

class Arranque : public testing::Test {
 protected:
  void SetUp() override {
    estado = EstadoPrograma{};
    fs::create_directories(raiz_ / "Config");
    setenv("LC_ALL", "C", 1);
  }
  void TearDown() override { fs::remove_all(raiz_); }
  /// The configuration as it is read, language and unit first.
  std::string Lanza(const std::string& contenido = "") {
    EXPECT_TRUE(contenido.empty() || EscribeFichero(ini_, contenido));
    lectura_ = Arranca((raiz_ / "Duct/duktores").string());
    const EstadoPrograma& e = estado;
    std::ostringstream s;
    s.precision(16);
    s << e.dIdioma << ' ' << e.iUnidad << ' ' << e.sRutaDuct << ' ' << e.dEspesor << ' ' << e.dTamanoTexto << ' ';
    s << e.iFibra << ' ' << e.iColorDoblez << ' ' << e.sDimensiones << ' ' << e.sDensidad << ' ' << e.iDivisiones;
    s << ' ' << e.iBox << ' ' << e.iExacto;
    return s.str();
  }
  fs::path raiz_ = fs::temp_directory_path() / ("duktores_state_" + std::to_string(getpid()));
  std::string ini_ = raiz_ / "Config/Config.ini";
  LecturaConfiguracion lectura_;
};

TEST_F(Arranque, PlacesAndConfiguration) {
  struct VentanaSiete : Plataforma {
    Ventana VentanaActiva() override { return 7; }
  } plataforma;
  estado.plataforma = &plataforma;
  estado.sTipoPieza = "TransCR";
  EXPECT_EQ(
      Lanza(
          "[DUCT]\r\nPath=/cut/new\r\nThickness=1.25\r\nSizetxt=6\r\nFiber=3\r\nBendColour=2.5\r\nDimensions=1.0\r\n"
          "Density=7.85\r\nNDivi=70000\r\nBox=-1\r\nExact=2\r\n[UNIT]\r\nUnit=0\r\n[LANGUAGE]\r\nLanguage=CHINESE\r\n"),
      "60000 1 /cut/new 1.25 6 3 2 1 7.85 0 -1 2");
  EXPECT_EQ(estado.sRutaBase + " " + estado.sRutaPrograma, raiz_.string() + "/ " + raiz_.string() + "/Duct/");
  EXPECT_TRUE(estado.hVentanaHost == 7 && estado.plataforma == &plataforma && estado.sTipoPieza.empty());

  EscribeFichero(raiz_ / "other.ini", "[DUCT]\nNDivi=24\n");
  Arranca("duktores", (raiz_ / "other.ini").string());
  EXPECT_TRUE(estado.iDivisiones == 24 && estado.dIdioma == 0 && estado.sRutaBase.empty());
  EXPECT_EQ(fs::path(RutaEjecutable()).filename(), "test_state");
}

TEST_F(Arranque, UnitLanguageAndThickness) {
  // clang-format off
  const std::pair<const char*, const char*> casos[] = {
      {"Unit=0", "0 1  0 6"}, {"Unit=1", "0 2  0 2"}, {"Unit=2", "0 3  0 6"}, {"Unit=mm", "0 1  0 6"},
      {"Unit=1.5", "0 2  0 2"}, {"Unit=99999", "0 0  0 6"}, {"Language= english ", "10000 1  0 6"},
      {"Language=German", "20000 1  0 6"}, {"Language=FRENCH", "30000 1  0 6"},
      {"Language=\" portuguese \"", "40000 1  0 6"}, {"Language=bAsQuE", "50000 1  0 6"},
      {"Language=SPANISH", "0 1  0 6"}, {"Language=ENGLISH.", "0 1  0 6"}, {"Thickness=1,5", "0 1  1 6"},
      {"Thickness=0.12345678901234567", "0 1  0.123456789012346 6"}};
  // clang-format on
  for (const auto& [clave, leido] : casos) {
    const std::string linea = std::string(clave) + "\n";
    const std::string todo = Lanza("[UNIT]\n" + linea + "[LANGUAGE]\n" + linea + "[DUCT]\nSizetxt=6\n" + linea);
    EXPECT_TRUE(todo.starts_with(leido)) << clave << ": " << todo;
  }
}

TEST_F(Arranque, AFileThatIsNoneReadsAsEmpty) {
  const auto expectVacia = [&](std::errc fallo) {
    EXPECT_EQ(Lanza(), "0 1  0 0 0 0 0 0 0 0 0");
    EXPECT_EQ(lectura_.fallo, fallo);
  };
  expectVacia(std::errc::no_such_file_or_directory);
  ASSERT_EQ(mkfifo(ini_.c_str(), 0600), 0);
  expectVacia(std::errc::no_such_device);  // one could wait for ever
  fs::remove(ini_);
  EscribeFichero(ini_, std::string((1 << 20) + 1, ' '));
  expectVacia(std::errc::file_too_large);
}

TEST_F(Arranque, NonsenseIsToldAKeyALine) {
  const std::string sanas =
      "[LANGUAGE]\nLanguage=english\n[UNIT]\nUnit=1\nTime=5\n[DUCT]\nThickness=+1.5e0 \nSizetxt=6\nFiber=3\n"
      "BendColour=256\nDimensions=1.0\nDensity=0\nNDivi=16\nBox=-1\nExact=0\nPath=x\nMachine=a\nMax=3\nLast=q\n[HOST]\n"
      "Thicknes=1\n";
  Lanza(sanas);
  EXPECT_EQ(lectura_.avisos, std::vector<std::string>());
  // What is changed, and what is told of it.
  const std::tuple<const char*, const char*, const char*> casos[] = {
      {"Thickness=+1.5e0 ", "Thickness=1,5", "DUCT Thickness=1,5: no valid value, used is: 1"},
      {"Thickness=+1.5e0 ", "Thickness=-1", "DUCT Thickness=-1: no valid value, used is: -1"},
      {"Thickness", "tihckness", "DUCT tihckness=+1.5e0: unknown key, what counts is: Thickness=0"},
      {"Fiber", "Fibre", "DUCT Fibre=3: unknown key, what counts is: Fiber=0"},
      {"[UNIT]", "[UNITS]", "UNITS Unit=1: unknown key, what counts is: Unit=0"},
      {"Box", "Bix", "DUCT Bix=-1: unknown key, what counts is: Box=0"},
      {"english", "Englisch", "LANGUAGE Language=Englisch: valor no válido, se usa: SPANISH"},
      {"Unit=1", "Unit=5", "UNIT Unit=5: no valid value, used is: 5"},
      {"Sizetxt=6", "Sizetxt=0", "DUCT Sizetxt=0: no valid value, used is: 0"},
      {"Fiber=3", "Fiber=9", "DUCT Fiber=9: no valid value, used is: 9"},
      {"BendColour=256", "BendColour=257", "DUCT BendColour=257: no valid value, used is: 0"},
      {"Density=0", "Density=abc", "DUCT Density=abc: no valid value, used is: 0"},
      {"NDivi=16", "NDivi=18", "DUCT NDivi=18: no valid value, used is: 18"},
      {"Box=-1", "Box=70000", "DUCT Box=70000: no valid value, used is: 0"},
      {"Exact=0", "Exact=", "DUCT Exact=: no valid value, used is: 0"}};
  for (const auto& [sana, mala, aviso] : casos) {
    std::string contenido = sanas;
    Lanza(contenido.replace(contenido.find(sana), std::string(sana).size(), mala));
    EXPECT_EQ(lectura_.avisos, std::vector<std::string>{aviso});
  }
}

TEST_F(Arranque, TheMachinesKeysHaveTheirOwnDefaults) {
  const auto lee = [&](const std::string& claves) {
    Lanza("[LANGUAGE]\nLanguage=ENGLISH\n[MACHINE]\n" + claves);
    const Maquina& m = estado.maquina;
    std::ostringstream s;
    s << m.capaCorte << ' ' << m.capaArriba << ' ' << m.capaAbajo << ' ' << m.capaMarca << ' '
      << static_cast<int>(m.dobleces) << m.marcas << m.arcos << m.juntas << ' ' << m.tolerancia << ' ' << m.anguloMinimo
      << ' ' << lectura_.avisos.size();
    return s.str();
  };
  EXPECT_EQ(lee(""), "CUT BEND_UP BEND_DOWN MARK 1100 0.02 0.5 0");
  EXPECT_EQ(lee("CutLayer=MARK\nMarkLayer=text\nBends=2\nMarks=0\nArcs=1\nTogether=1\nTolerance=0.1\nLeastAngle=0\n"),
            "MARK BEND_UP BEND_DOWN text 2011 0.1 0 0");
  EXPECT_EQ(
      lee("CutLayer=mark\nBendUpLayer=a b\nBendDownLayer=0\nBends=3\nMarks=\nTolerance=-1\nLeastAngle=x\nArcs=2\n"),
      "CUT BEND_UP BEND_DOWN MARK 1100 0.02 0.5 8");
}

TEST_F(Arranque, AConfigurationThatIsBeingWrittenIsReadWhole) {
  const std::string contenido = "[LANGUAGE]\nLanguage=ENGLISH\n" + std::string(50000, ';') + "\n[DUCT]\nFiber=3\n";
  const std::string antes = Lanza(contenido);
  std::jthread otro([&](const std::stop_token& basta) {
    while (!basta.stop_requested()) {
      std::ofstream(ini_) << contenido;
      std::this_thread::sleep_for(std::chrono::milliseconds(60));
    }
  });
  for (int i = 0; i < 20; ++i) EXPECT_EQ(Lanza(), antes);
}

TEST_F(Arranque, DecimalMarkOfTheEnvironment) {
  for (const char* local : {"C", "no_such_LOCALE"}) {
    setenv("LC_ALL", local, 1);
    EXPECT_EQ(Lanza("[DUCT]\nThickness=1.5\nDensity=7.85\n"), "0 1  1.5 0 0 0 0 7.85 0 0 0") << local;
  }
  const std::string local = raiz_ / "es_ES";
  EscribeFichero(local + ".def", "LC_NUMERIC\ndecimal_point \",\"\nthousands_sep \"\"\ngrouping -1\nEND LC_NUMERIC\n");
  const int aviso = std::system(("localedef -c -f UTF-8 -i " + local + ".def " + local + " 2>/dev/null").c_str());
  if (!fs::exists(local)) GTEST_SKIP() << "no localedef to make a locale with a comma: " << aviso;
  const auto enEspanol = [&] {
    setenv("LOCPATH", raiz_.c_str(), 1);
    setenv("LC_ALL", "es_ES", 1);
    return Lanza() == "0 1  1.5 0 0 0 0 7,85 0 0 0";
  };
  // In a process of its own: the C library keeps what it allocates for LOCPATH.
  EXPECT_EXIT(std::_Exit(enEspanol() ? 0 : 1), testing::ExitedWithCode(0), "");
}

TEST(Ini, Values) {
  const auto Valor = [](const std::string& ini) { return LeeIni(EntradasIni(ini), "S", "K").value_or(""); };
  // clang-format off
  const std::pair<const char*, const char*> casos[] = {
      {"[S]\r\nK=1\r\n", "1"}, {"[S]\nK=1", "1"}, {"\xEF\xBB\xBF[S]\nK=1\n", "1"},
      {" [ s ] \n\t k \t=\t a b \t\n", "a b"}, {"[s]\nK=a=b;c\n", "a=b;c"}, {"[s]\nK=\n", ""},
      {"[s]\nK=\"  x \"\n", "  x "}, {"[s]\nK='x'\n", "x"}, {"[s]\nK=\"x\n", "\"x"}, {"[s]\nK=\"\n", "\""},
      {"[s]\nK=1\nk=2\n", "1"}, {"[s]\nX=1\n[t]\nK=3\n[S]\nK=2\n", "2"}, {"[s]\n;K=1\n ;K=2\nK=3\n", "3"},
      {"K=1\n[t]\nK=2\n", ""}, {"[s]\nK\n=1\nK2=1\n", ""}, {"[s", ""}, {"[s\nK=1\n", "1"}, {"[]\nK=1\n", ""},
      {"[s]\nK=Espa\xF1" "a \x80\n", "España €"}, {"[s]\nK=España €\n", "España €"}};
  // clang-format on
  for (const auto& [contenido, valor] : casos) EXPECT_EQ(Valor(contenido), valor) << contenido;
  const std::string casi(126, 'a');  // one character short of the longest value
  for (const char* cola : {"", "b"}) EXPECT_EQ(Valor("[s]\nk=" + casi + "é" + cola), casi + "é");
  EXPECT_EQ(Valor("[s]\nk=" + casi + "𝄞"), casi);
}

TEST_F(Arranque, SettingsGoToTheInstallationElseToTheUsersOwnFileWhichWins) {
  const std::string propia = estado.sRutaPropia = (raiz_ / "home/duktores.ini").string();
  Lanza("; host's\r\n[duct]\r\nFIBER = 2\r\nHost=\xF1\r\nNDivi=16");
  estado.iDivisiones = 24;
  EXPECT_EQ(RutaAjustes(), ini_);
  EXPECT_TRUE(GuardaAjustes({{"DUCT", "Fiber", "3"}, {"LANGUAGE", "Language", "GERMAN"}, {"DUCT", "Box", "1"}}));
  EXPECT_EQ(LeeFichero(ini_),
            "; host's\r\n[duct]\r\nFiber=3\r\nHost=\xF1\r\nNDivi=16\r\nBox=1\r\n[LANGUAGE]\r\n"
            "Language=GERMAN\r\n");
  EXPECT_FALSE(fs::exists(propia));
  EXPECT_EQ(AvisosDe(ReleeConfiguracion(false)), std::vector<std::string>());
  EXPECT_TRUE(estado.dIdioma == 20000 && estado.iFibra == 3 && estado.iDivisiones == 24);
  ReleeConfiguracion(true);
  EXPECT_EQ(estado.iDivisiones, 16);

  fs::remove_all(raiz_ / "Config");
  EXPECT_EQ(AvisosDe(ReleeConfiguracion(true)),
            std::vector{"No hay configuración. Pulse aquí para ajustarla: " + ini_});
  EXPECT_EQ(RutaAjustes(), propia);
  EXPECT_TRUE(
      GuardaAjustes({{"DUCT", "Fiber", "1"}, {"DUCT", "NDivi", "18"}, {"SAVE", "Fibr", "x"}, {"DUCT", "Fibr", "3"}}));
  EXPECT_EQ(AvisosDe(ReleeConfiguracion(true)),
            (std::vector<std::string>{"DUCT NDivi=18: valor no válido, se usa: 18",
                                      "DUCT Fibr=3: clave desconocida, vale: Fiber=1"}));

  fs::create_directories(raiz_ / "Config");
  EXPECT_TRUE(Lanza("[DUCT]\nFiber=2\nBox=1\n").ends_with(" 1 0 0 0 18 1 0"));
  // What the user's own file hides there is changed in both.
  EXPECT_TRUE(GuardaAjustes({{"DUCT", "Fiber", "3"}, {"DUCT", "Box", "0"}}));
  EXPECT_EQ(*LeeFichero(ini_) + *LeeFichero(propia),
            "[DUCT]\nFiber=3\nBox=0\n[DUCT]\nFiber=3\nNDivi=18\nFibr=3\n[SAVE]\nFibr=x\n");
  estado.sRutaPropia.clear();  // as in the batch program
  EXPECT_TRUE(Lanza().ends_with(" 3 0 0 0 0 0 0"));
  fs::remove_all(raiz_ / "Config");
  EXPECT_FALSE(GuardaAjustes({{"DUCT", "Fiber", "1"}}));
}

TEST_F(Arranque, TheUsersOwnFileKeepsValuesAndAllThatStandsBesideThem) {
  EXPECT_EQ(LeePropio("SAVE", "Folder"), std::nullopt);
  EXPECT_FALSE(PonPropio("SAVE", "Folder", "x"));  // a program without such a file
  estado.sRutaPropia = (raiz_ / "home/duktores/duktores.ini").string();
  const std::string carpeta = "/home/\xC3\xB1/" + std::string(200, 'a') + "/ \"b\" ";
  ASSERT_TRUE(PonPropio("SAVE", "Folder", carpeta));
  EXPECT_EQ(LeePropio("save", "FOLDER"), carpeta);
  const std::string antes = "; mine\r\n[SAVE]\r\nFolder = a ; b\r\nOther=1\r\n\r\n[DUCT]\r\nBox=1";
  ASSERT_TRUE(EscribeFichero(estado.sRutaPropia, antes));
  EXPECT_TRUE(PonPropio("SAVE", "Folder", "c\nd") && PonPropio("SAVE", "New", "") && PonPropio("TransCR", "H", "'1'"));
  EXPECT_EQ(LeeFichero(estado.sRutaPropia),
            "; mine\r\n[SAVE]\r\nFolder=c d\r\nOther=1\r\nNew=\r\n\r\n[DUCT]\r\nBox=1\r\n[TransCR]\r\nH=\"'1'\"\r\n");
  EXPECT_EQ(LeePropio("TransCR", "H"), "'1'");
  EXPECT_FALSE((estado.sRutaPropia = raiz_.string(), PonPropio("SAVE", "Folder", "x")));
}

}  // namespace
}  // namespace duktores
