#include "dxf/escritor.h"

#include <sys/resource.h>

#include <algorithm>
#include <clocale>
#include <csignal>
#include <locale>
#include <set>

#include "ayudas.h"
#include "dxf/anotacion.h"

namespace duktores {
namespace {

namespace fs = std::filesystem;

class Escritor : public PruebaFichero {
 protected:
  void SetUp() override {
    PruebaFichero::SetUp();
    dxf_.InsertEntities(estado.oDrawing);
  }
  std::string Destino() const { return (carpeta_ / "salida.dxf").string(); }
  /// Saves over a file of before and expects it untouched and nothing beside it.
  void EsperaRechazo(const std::string& motivo) {
    EscribeTodo(Destino(), "antes");
    EXPECT_FALSE(dxf_.Save(Destino())) << motivo;
    EXPECT_EQ(LeeTodo(Destino()), "antes") << motivo;
    std::set<std::string> nombres;
    for (const auto& entrada : fs::directory_iterator(carpeta_)) nombres.insert(entrada.path().filename());
    EXPECT_EQ(nombres, (std::set<std::string>{"Template", "salida.dxf"})) << motivo;
  }
  std::vector<std::string> Guarda() {
    EXPECT_TRUE(dxf_.Save(Destino()));
    return Lineas(LeeTodo(Destino()));
  }
  cDXF dxf_;
  EWdraw axew_;
};

std::size_t Lugar(const std::vector<std::string>& lineas, const std::string& linea) {
  return static_cast<std::size_t>(std::find(lineas.begin(), lineas.end(), linea) - lineas.begin());
}

TEST_F(Escritor, ExtentViewAndEntitiesTakeTheirPlaces) {
  DibujaLinea(axew_, -10, -20, 30, 40, 7);
  const auto antes = Lineas(LeeTodo(Plantilla())), despues = Guarda();
  const auto entidades = LineasDibujo();
  const std::size_t corte = Lugar(antes, "ENTITIES") + 1, n = entidades.size();
  ASSERT_EQ(despues.size(), antes.size() + n);
  EXPECT_TRUE(std::equal(entidades.begin(), entidades.end(), despues.begin() + static_cast<std::ptrdiff_t>(corte)));
  // Every other line is the template's but these, counted from their markers.
  const std::size_t minimo = Lugar(antes, "$EXTMIN"), maximo = Lugar(antes, "$EXTMAX"), vista = Lugar(antes, "*Active");
  std::vector<std::pair<std::size_t, std::string>> cambiadas{
      {minimo + 2, "-10"}, {minimo + 4, "-20"}, {maximo + 2, "30"}, {maximo + 4, "40"},
      {vista + 12, "10"},  {vista + 14, "10"},  {vista + 40, "40"}};
  for (std::size_t i = 0; i < antes.size(); ++i) {
    const auto cambiada = std::ranges::find(cambiadas, i, &std::pair<std::size_t, std::string>::first);
    EXPECT_EQ(despues[i < corte ? i : i + n], cambiada == cambiadas.end() ? antes[i] : cambiada->second) << i;
  }
  EXPECT_TRUE(antes[vista + 11] == " 12" && antes[vista + 39] == " 40");
  const std::string primero = LeeTodo(Destino());
  Guarda();
  EXPECT_EQ(LeeTodo(Destino()), primero) << "a second save";
}

TEST_F(Escritor, TemplatesOfOtherHandsAreTakenAsTheyAre) {
  // Bare line feeds, bytes of code page 1252, a marker with a blank in front, one in lower case, no last line end.
  EscribeTodo(Plantilla(), "\xD8\n $EXTMIN\n10\nold\n$ExtMin\n10\nold\n20\nold\n30\nz\n\nentities\n$EXTMAX\n10\nold");
  DibujaLinea(axew_, 1, 2, 3, 4, 7);
  std::string texto = "\u00D8\u20AC\u0411";
  DibujaTexto(axew_, 1, 2, texto, 0, 7, 0);
  const auto lineas = Guarda();
  const std::string comienzo = "\xD8| $EXTMIN|10|old|$ExtMin|10|1|20|2|30|z||entities|  0|LINE|";
  EXPECT_EQ(Fila(LeeTodo(Destino())).substr(0, comienzo.size()), comienzo);
  EXPECT_EQ(lineas.back(), "old") << "nothing is a marker behind the entities";
  EXPECT_EQ(std::count(lineas.begin(), lineas.end(), "\xD8\x80\\U+0411"), 1);
}

TEST_F(Escritor, NumbersKeepTheirPointUnderACommaLocale) {
  struct Coma : std::numpunct<char> {
    char do_decimal_point() const override { return ','; }
    std::string do_grouping() const override { return "\3"; }
  };
  estado.bComaDecimal = true;
  const std::locale anterior = std::locale::global(std::locale(std::locale(), new Coma));
  std::setlocale(LC_NUMERIC, "de_DE.UTF-8");  // where the system has it
  DibujaLinea(axew_, 0.5, 1234.5, 12345.25, -0.125, 7);
  const auto lineas = Guarda();
  std::setlocale(LC_NUMERIC, "C");
  std::locale::global(anterior);
  for (const char* numero : {"0.5", "1234.5", "12345.25", "-0.125"}) EXPECT_LT(Lugar(lineas, numero), lineas.size());
  EXPECT_EQ(std::ranges::count_if(lineas, [](const auto& l) { return l.find(',') != std::string::npos; }), 0);
}

TEST_F(Escritor, RefusalsLeaveWhatStoodThere) {
  DibujaLinea(axew_, 1, 2, 3, 4, 7);
  const std::string plantilla = LeeTodo(Plantilla());
  for (const char* marca : {"$EXTMIN", "*Active", "ENDTAB", "BLOCKS"}) {
    EscribeTodo(Plantilla(), plantilla.substr(0, plantilla.find(marca)) + marca);
    EsperaRechazo(std::string("cut short behind ") + marca);
  }
  EscribeTodo(Plantilla(), "");
  EsperaRechazo("empty template");
  fs::remove(Plantilla());
  EsperaRechazo("missing template");
  EscribeTodo(Plantilla(), plantilla);

  EXPECT_FALSE(dxf_.Save((carpeta_ / "Template").string())) << "a folder";
  EXPECT_FALSE(dxf_.Save((carpeta_ / "no/salida.dxf").string())) << "no such folder";
  EXPECT_FALSE(cDXF().Save(Destino())) << "no entities";
  EXPECT_FALSE(dxf_.InsertEntities(nullptr));

  cLine lejos{.x1 = -1.7e308, .x2 = 1.7e308};  // the view has no centre
  estado.oDrawing->InsertLine(&lejos);
  EsperaRechazo("extent without a middle");
}

TEST_F(Escritor, FullDiskLeavesTheOldFile) {
  DibujaLinea(axew_, 1, 2, 3, 4, 7);
  rlimit limite{};
  getrlimit(RLIMIT_FSIZE, &limite);
  const auto accion = std::signal(SIGXFSZ, SIG_IGN);
  const rlimit poco{4096, limite.rlim_max};
  setrlimit(RLIMIT_FSIZE, &poco);
  EsperaRechazo("full disk");
  setrlimit(RLIMIT_FSIZE, &limite);
  std::signal(SIGXFSZ, accion);
  Guarda();
}

TEST_F(Escritor, ReadOnlyFolderLeavesTheOldFile) {
  DibujaLinea(axew_, 1, 2, 3, 4, 7);
  EscribeTodo(Destino(), "antes");
  fs::permissions(carpeta_, static_cast<fs::perms>(0555));
  const bool raiz = geteuid() == 0;
  ASSERT_TRUE(!raiz || seteuid(65534) == 0) << "root writes everywhere";
  EsperaRechazo("read-only folder");
  ASSERT_TRUE(!raiz || seteuid(0) == 0);
  fs::permissions(carpeta_, fs::perms::owner_all);
}

TEST_F(Escritor, BlocksAreFoundByTheirName) {
  const auto bloque = std::make_shared<cDrawing>();
  bloque->Name = " Marco ";
  cLine linea{.x1 = 1, .y1 = 2, .z1 = 3, .x2 = 4, .y2 = 5, .z2 = 6};
  bloque->InsertLine(&linea);
  dxf_.InsertBlocks({nullptr, bloque});
  dxf_.InsertBlocks({});
  double v[6] = {};
  EXPECT_FALSE(dxf_.Globals().GetBlockBorder("otro", v[0], v[1], v[2], v[3], v[4], v[5]));
  EXPECT_TRUE(dxf_.Globals().GetBlockBorder("MARCO", v[0], v[1], v[2], v[3], v[4], v[5]));
  EXPECT_EQ(std::vector(v, v + 6), (std::vector<double>{1, 2, 3, 4, 5, 6}));
}

TEST(Cabecera, TablesFollowTheirSettings) {
  cHeader cabecera;
  std::vector<std::string> nombres;
  cabecera.SetLayers({"A", "", "B"}, {1, 2, 3}, {7, 8, 9}, {"DOT", "DOT", ""});
  EXPECT_EQ(Fila(cabecera.DxfLayers()),
            "  0|TABLE|  2|LAYER| 70|    0|  0|LAYER|  2|A|  70|   1|  62|7|  6|DOT|"
            "  0|LAYER|  2|B|  70|   3|  62|9|  6|CONTINUOUS|  0|ENDTAB");
  cabecera.SetLineTypes({"SOLO", "DOT, 0, -0.25"});
  const auto tipos = Lineas(cabecera.DxfLineTypes());
  EXPECT_EQ(std::count(tipos.begin(), tipos.end(), "Continuous"), 1);
  cabecera.LineTypeScale(0);
  const auto lineas = Lineas(cabecera.DxfHeader());
  EXPECT_EQ(lineas[Lugar(lineas, "$LTSCALE") + 2], "1");
  EXPECT_EQ(std::count(lineas.begin(), lineas.end(), "  9"), 196);
  EXPECT_EQ(lineas[Lugar(lineas, "$MAXACTVP") + 2], "    64");
  EXPECT_EQ(lineas[Lugar(lineas, "$DIMSCALE") + 2], "3.229813999999999");
  EXPECT_EQ(cabecera.GetLineTypes(nombres), 2);
  cabecera.InitLineType();
  EXPECT_EQ(cabecera.GetLineTypes(nombres), 24);
}

}  // namespace
}  // namespace duktores
