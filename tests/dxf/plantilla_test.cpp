// The template of the drawings: what strict readers ask of it, and that the file is what its program makes.

#include "plantilla_texto.h"

#include <algorithm>
#include <map>

#include "ayudas.h"
#include "state/caracteres.h"
#include "state/fichero.h"

namespace duktores {
namespace {

using Lista = std::vector<std::string>;

/// From one code 0 to the next, in the header from one code 9.
struct Objeto {
  std::string tipo;
  std::map<int, Lista> valores;  // of each code

  Lista Todos(int codigo) const { return valores.contains(codigo) ? valores.at(codigo) : Lista(); }
  std::string operator()(int codigo) const { return valores.contains(codigo) ? valores.at(codigo)[0] : ""; }
  std::string Handle() const { return tipo[0] == '$' ? "" : (*this)(tipo == "DIMSTYLE" ? 105 : 5); }
};

class Plantilla : public testing::Test {
 protected:
  void SetUp() override {
    const Lista lineas = Lineas(texto_);
    for (std::size_t i = 0; i + 1 < lineas.size(); i += 2) {
      const int codigo = std::stoi(lineas[i]);
      const std::string valor(Recorta(lineas[i + 1]));
      if (codigo == 0 || codigo == 9) objetos_.push_back({valor, {}});
      objetos_.back().valores[codigo].push_back(valor);
    }
    for (const Objeto& o : objetos_) {
      EXPECT_TRUE(o.Handle().empty() || porHandle_.emplace(o.Handle(), o).second) << o.Handle() << " twice";
    }
  }
  std::vector<Objeto> De(const std::string& tipo) const {
    std::vector<Objeto> lista = objetos_;
    std::erase_if(lista, [&](const Objeto& o) { return o.tipo != tipo; });
    return lista;
  }
  /// The values of a code in all objects of a type.
  Lista Valores(const std::string& tipo, int codigo) const {
    Lista lista;
    for (const Objeto& o : De(tipo)) std::ranges::copy(o.Todos(codigo), std::back_inserter(lista));
    return lista;
  }

  std::string texto_ = LeeFichero(DUKTORES_RAIZ "/Template/Template.dxf").value();
  std::vector<Objeto> objetos_;
  std::map<std::string, Objeto> porHandle_;
};

TEST_F(Plantilla, FileIsWhatItsProgramMakesAndComplete) {
  EXPECT_TRUE(texto_ == TextoPlantilla()) << "make it anew with the program plantilla";
  EXPECT_EQ(objetos_.back().tipo, "EOF");
  const std::string lineas = Mayusculas(texto_);
  for (const char* marca : {"\n$EXTMIN\r", "\n$EXTMAX\r", "\n*ACTIVE\r", "\nENTITIES\r"}) {
    EXPECT_TRUE(lineas.find(marca) != lineas.npos && lineas.find(marca) == lineas.rfind(marca)) << marca;
  }
  // clang-format off
  const std::tuple<const char*, int, Lista> casos[] = {
      {"$ACADVER", 1, {"AC1015"}}, {"SECTION", 2, {"HEADER", "CLASSES", "TABLES", "BLOCKS", "ENTITIES", "OBJECTS"}},
      {"CLASS", 1, {"ACDBDICTIONARYWDFLT", "ACDBPLACEHOLDER", "LAYOUT"}},
      {"CLASS", 280, {"0", "0", "0"}}, {"CLASS", 281, {"0", "0", "0"}},
      {"CLASS", 91, {}}, {"CLASS", 92, {}}, {"CLASS", 93, {}},
      {"TABLE", 2, {"VPORT", "LTYPE", "LAYER", "STYLE", "VIEW", "UCS", "APPID", "DIMSTYLE", "BLOCK_RECORD"}},
      {"LTYPE", 2, {"ByBlock", "ByLayer", "Continuous"}},
      {"LAYER", 2, {"0", "DUCT"}}, {"LAYER", 62, {"7", "7"}}, {"LAYER", 370, {"-3", "-3"}}, {"LAYER", 390, {"F", "F"}},
      {"ACDBPLACEHOLDER", 5, {"F"}}, {"APPID", 2, {"ACAD", "ACAD_NAV_VCDISPLAY"}},
      {"BLOCK_RECORD", 2, {"*Model_Space", "*Paper_Space"}}, {"BLOCK", 2, {"*Model_Space", "*Paper_Space"}},
      {"BLOCK_RECORD", 5, {"6B", "1B"}}, {"BLOCK", 330, {"6B", "1B"}}, {"ENDBLK", 330, {"6B", "1B"}},
      {"BLOCK", 5, {"20", "1C"}}, {"ENDBLK", 5, {"21", "1D"}},
      {"BLOCK_RECORD", 340, {"22", "1E"}}, {"LAYOUT", 5, {"22", "1E"}}, {"LAYOUT", 330, {"1A", "6B", "1A", "1B"}},
      {"DICTIONARY", 3, {"ACAD_GROUP", "ACAD_LAYOUT", "ACAD_MLINESTYLE", "ACAD_PLOTSETTINGS", "ACAD_PLOTSTYLENAME",
                         "Layout1", "Model", "Standard"}},
      {"ACDBDICTIONARYWDFLT", 3, {"Normal"}}, {"ACDBDICTIONARYWDFLT", 340, {"F"}}};
  // clang-format on
  for (const auto& [tipo, codigo, valores] : casos) EXPECT_EQ(Valores(tipo, codigo), valores) << tipo << codigo;
}

TEST_F(Plantilla, HeaderNamesWhatTheTablesHold) {
  const auto variable = [&](const char* nombre) { return De(nombre).at(0).valores.begin()->second[0]; };
  EXPECT_GT(std::stoul(variable("$HANDSEED"), nullptr, 16), 0x32767U);
  const std::pair<const char*, const char*> casos[] = {{"$TEXTSTYLE", "STYLE"},   {"$DIMTXSTY", "STYLE"},
                                                       {"$CLAYER", "LAYER"},      {"$CELTYPE", "LTYPE"},
                                                       {"$DIMSTYLE", "DIMSTYLE"}, {"$CMLSTYLE", "MLINESTYLE"}};
  for (const auto& [nombre, tabla] : casos) {
    Lista nombres = Valores(tabla, 2);
    std::ranges::transform(nombres, nombres.begin(), Mayusculas);
    EXPECT_EQ(std::ranges::count(nombres, Mayusculas(variable(nombre))), 1) << nombre;
  }
}

TEST_F(Plantilla, TablesOwnTheirRecords) {
  for (const Objeto& cabeza : De("TABLE")) {
    const std::string tabla = cabeza(2);
    EXPECT_TRUE(cabeza(330) == "0" && !cabeza(5).empty() && cabeza(100) == "AcDbSymbolTable") << tabla;
    EXPECT_EQ(cabeza.Todos(100).back() == "AcDbDimStyleTable", tabla == "DIMSTYLE");
    EXPECT_EQ(cabeza(70), std::to_string(De(tabla).size()));
    for (const Objeto& r : De(tabla)) {
      EXPECT_TRUE(r(330) == cabeza(5) && !r.Handle().empty() && r(100) == "AcDbSymbolTableRecord") << tabla;
      EXPECT_EQ(r.Todos(100).size(), 2U);
      for (const std::string& a : r.Todos(1001)) EXPECT_EQ(std::ranges::count(Valores("APPID", 2), a), 1) << a;
    }
  }
}

TEST_F(Plantilla, HandlesAreLowAndEveryPointerHasItsObject) {
  EXPECT_NE(texto_.find("OBJECTS\r\n  0\r\nDICTIONARY\r\n  5\r\nC\r\n330\r\n0\r\n"), texto_.npos);
  for (const auto& [handle, objeto] : porHandle_) {
    const unsigned long numero = std::stoul(handle, nullptr, 16);
    EXPECT_TRUE(numero > 0 && numero < 0x500 && handle[0] != '0') << handle;
    for (const int codigo : {330, 340, 350, 360, 390}) {
      for (const std::string& fin : objeto.Todos(codigo)) EXPECT_TRUE(fin == "0" || porHandle_.contains(fin)) << fin;
    }
    for (const std::string& entrada : objeto.Todos(350)) EXPECT_EQ(porHandle_[entrada](330), handle) << entrada;
  }
}

}  // namespace
}  // namespace duktores
