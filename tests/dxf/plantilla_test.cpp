// The template of the drawings: what strict readers ask of it, and that the file is what its program makes.

#include "plantilla_texto.h"

#include <algorithm>
#include <cstdlib>
#include <map>
#include <set>

#include "ayudas.h"
#include "dxf/anotacion.h"
#include "dxf/escritor.h"
#include "state/caracteres.h"
#include "state/textos.h"

namespace duktores {
namespace {

using Lista = std::vector<std::string>;
using Conjunto = std::set<std::string>;

/// From one code 0 to the next (in the header from one code 9), with the section that it stands in.
struct Objeto {
  std::string seccion, tipo;
  std::vector<std::pair<int, std::string>> pares;

  Lista Todos(int codigo) const {
    Lista valores;
    for (const auto& [c, valor] : pares) {
      if (c == codigo) valores.push_back(valor);
    }
    return valores;
  }
  std::string operator()(int codigo) const { return Todos(codigo).empty() ? "" : Todos(codigo).front(); }
  std::string Handle() const { return (*this)(tipo == "DIMSTYLE" ? 105 : 5); }
};

class Plantilla : public testing::Test {
 protected:
  void SetUp() override {
    const Lista lineas = Lineas(texto_);
    ASSERT_EQ(lineas.size() % 2, 0U);
    for (std::size_t i = 0; i < lineas.size(); i += 2) {
      const std::string codigo(Recorta(lineas[i])), valor(Recorta(lineas[i + 1]));
      ASSERT_TRUE(!codigo.empty() && codigo.find_first_not_of("0123456789") == std::string::npos) << "line " << i + 1;
      Recibe(std::stoi(codigo), valor);
    }
    for (const Objeto& o : objetos_) {
      if (o.seccion == "HEADER" || o.Handle().empty()) continue;
      EXPECT_TRUE(porHandle_.emplace(o.Handle(), &o).second) << o.Handle() << " twice";
    }
  }
  void Recibe(int codigo, const std::string& valor) {
    if (codigo == 2 && objetos_.back().tipo == "SECTION") secciones_.push_back(valor);
    const std::string seccion = secciones_.empty() ? "" : secciones_.back();
    if (codigo == 0 || codigo == 9) objetos_.push_back({seccion, valor, {}});
    objetos_.back().pares.emplace_back(codigo, valor);
  }
  std::vector<Objeto> De(const std::string& seccion, const std::string& tipo) const {
    std::vector<Objeto> lista;
    std::ranges::copy_if(objetos_, std::back_inserter(lista),
                         [&](const Objeto& o) { return o.seccion == seccion && o.tipo == tipo; });
    return lista;
  }
  /// The object with that handle; one without anything if there is none.
  const Objeto& En(const std::string& handle) const {
    static const Objeto nada;
    return porHandle_.contains(handle) ? *porHandle_.at(handle) : nada;
  }
  Conjunto Nombres(const std::string& tabla) const {
    Conjunto nombres;
    for (const Objeto& o : De("TABLES", tabla)) nombres.insert(Mayusculas(o(2)));
    return nombres;
  }

  std::string texto_ = LeeTodo(DUKTORES_RAIZ "/Template/Template.dxf");
  std::vector<Objeto> objetos_;
  Lista secciones_;
  std::map<std::string, const Objeto*> porHandle_;
};

TEST_F(Plantilla, FileIsWhatItsProgramMakes) {
  EXPECT_TRUE(texto_ == TextoPlantilla()) << "make it anew with the program plantilla";
}

TEST_F(Plantilla, SectionsAndLines) {
  EXPECT_EQ(secciones_, (Lista{"HEADER", "CLASSES", "TABLES", "BLOCKS", "ENTITIES", "OBJECTS"}));
  EXPECT_EQ(objetos_.back().tipo, "EOF");
  EXPECT_EQ(std::ranges::count(texto_, '\n'), std::ranges::count(texto_, '\r'));
  Lista lineas = Lineas(texto_);
  std::ranges::transform(lineas, lineas.begin(), Mayusculas);
  for (const char* marca : {"$EXTMIN", "$EXTMAX", "*ACTIVE", "ENTITIES"}) {
    EXPECT_EQ(std::ranges::count(lineas, marca), 1) << marca;
  }
  for (const Objeto& o : objetos_) {
    for (const auto& [codigo, valor] : o.pares) {
      const bool real = (codigo >= 10 && codigo < 60) || (codigo >= 110 && codigo < 150);
      EXPECT_TRUE(!real || valor.find_first_not_of("+-.0123456789E") == std::string::npos) << codigo << " " << valor;
    }
  }
}

TEST_F(Plantilla, HeaderNamesWhatTheTablesHold) {
  const auto variable = [&](const char* nombre) {
    const auto lista = De("HEADER", nombre);
    return lista.empty() || lista[0].pares.size() < 2 ? "" : Mayusculas(lista[0].pares[1].second);
  };
  EXPECT_EQ(variable("$ACADVER"), "AC1015");
  EXPECT_GT(std::strtoul(variable("$HANDSEED").c_str(), nullptr, 16), 0x32767U);
  EXPECT_TRUE(Nombres("STYLE").contains(variable("$TEXTSTYLE")) && Nombres("STYLE").contains(variable("$DIMTXSTY")));
  EXPECT_TRUE(Nombres("LAYER").contains(variable("$CLAYER")) && Nombres("LTYPE").contains(variable("$CELTYPE")));
  EXPECT_TRUE(Nombres("DIMSTYLE").contains(variable("$DIMSTYLE")));
  const auto multilinea = De("OBJECTS", "MLINESTYLE");
  ASSERT_EQ(multilinea.size(), 1U);
  EXPECT_EQ(Mayusculas(multilinea[0](2)), variable("$CMLSTYLE"));
}

TEST_F(Plantilla, Classes) {
  Lista nombres;
  for (const Objeto& o : De("CLASSES", "CLASS")) {
    nombres.push_back(o(1));
    EXPECT_TRUE(!o(280).empty() && !o(281).empty() && o(91).empty() && o(92).empty() && o(93).empty());
  }
  EXPECT_EQ(nombres, (Lista{"ACDBDICTIONARYWDFLT", "ACDBPLACEHOLDER", "LAYOUT"}));
}

TEST_F(Plantilla, Tables) {
  Lista nombres;
  for (const Objeto& cabeza : De("TABLES", "TABLE")) {
    const std::string tabla = cabeza(2);
    nombres.push_back(tabla);
    EXPECT_TRUE(cabeza(330) == "0" && !cabeza(5).empty()) << tabla;
    Lista subclases{"AcDbSymbolTable"};
    if (tabla == "DIMSTYLE") subclases.push_back("AcDbDimStyleTable");
    EXPECT_EQ(cabeza.Todos(100), subclases);
    const auto registros = De("TABLES", tabla);
    EXPECT_EQ(cabeza(70), std::to_string(registros.size()));
    for (const Objeto& r : registros) {
      EXPECT_TRUE(r(330) == cabeza(5) && !r.Handle().empty()) << tabla;
      EXPECT_TRUE(r(100) == "AcDbSymbolTableRecord" && r.Todos(100).size() == 2) << tabla;
      for (const std::string& aplicacion : r.Todos(1001)) EXPECT_TRUE(Nombres("APPID").contains(aplicacion));
    }
  }
  EXPECT_EQ(nombres, (Lista{"VPORT", "LTYPE", "LAYER", "STYLE", "VIEW", "UCS", "APPID", "DIMSTYLE", "BLOCK_RECORD"}));
  EXPECT_EQ(Nombres("LTYPE"), (Conjunto{"BYBLOCK", "BYLAYER", "CONTINUOUS"}));
  EXPECT_EQ(Nombres("LAYER"), (Conjunto{"0", "DUCT"}));
  EXPECT_TRUE(Nombres("APPID").contains("ACAD") && Nombres("APPID").contains("ACAD_NAV_VCDISPLAY"));
  for (const Objeto& capa : De("TABLES", "LAYER")) {
    EXPECT_TRUE(capa(62) == "7" && !capa(370).empty() && En(capa(390)).tipo == "ACDBPLACEHOLDER") << capa(2);
  }
}

TEST_F(Plantilla, BlocksAndTheirLayouts) {
  const auto registros = De("TABLES", "BLOCK_RECORD"), bloques = De("BLOCKS", "BLOCK"),
             finales = De("BLOCKS", "ENDBLK");
  ASSERT_TRUE(registros.size() == 2 && bloques.size() == 2 && finales.size() == 2);
  for (std::size_t i = 0; i < 2; ++i) {
    const std::string handle = registros[i].Handle();
    EXPECT_EQ(registros[i](2), i == 0 ? "*Model_Space" : "*Paper_Space");
    EXPECT_EQ(bloques[i](2), registros[i](2));
    EXPECT_TRUE(bloques[i](330) == handle && finales[i](330) == handle);
    EXPECT_TRUE(!bloques[i].Handle().empty() && !finales[i].Handle().empty());
    ASSERT_EQ(En(registros[i](340)).tipo, "LAYOUT");
    EXPECT_EQ(En(registros[i](340)).Todos(330).back(), handle);
  }
  EXPECT_EQ(registros[0].Handle(), "6B");
}

TEST_F(Plantilla, EveryDictionaryOwnsItsEntries) {
  const auto raiz = std::ranges::find_if(objetos_, [](const Objeto& o) { return o.seccion == "OBJECTS"; });
  ASSERT_TRUE(raiz != objetos_.end() && raiz->tipo == "DICTIONARY" && (*raiz)(330) == "0");
  EXPECT_EQ(raiz->Todos(3),
            (Lista{"ACAD_GROUP", "ACAD_LAYOUT", "ACAD_MLINESTYLE", "ACAD_PLOTSETTINGS", "ACAD_PLOTSTYLENAME"}));
  for (const Objeto& o : objetos_) {
    if (o.tipo.find("DICTIONARY") == std::string::npos) continue;
    EXPECT_EQ(o.Todos(3).size(), o.Todos(350).size());
    for (const std::string& entrada : o.Todos(350)) EXPECT_EQ(En(entrada)(330), o.Handle()) << entrada;
  }
  const auto estilos = De("OBJECTS", "ACDBDICTIONARYWDFLT");
  ASSERT_EQ(estilos.size(), 1U);
  EXPECT_TRUE(estilos[0](3) == "Normal" && estilos[0](340) == estilos[0](350));
}

TEST_F(Plantilla, HandlesAreLowAndNoPointerDangles) {
  EXPECT_GT(porHandle_.size(), 30U);
  for (const auto& [handle, objeto] : porHandle_) {
    const unsigned long numero = std::strtoul(handle.c_str(), nullptr, 16);
    EXPECT_TRUE(numero > 0 && numero < 0x500 && handle[0] != '0') << handle;
    for (const int codigo : {330, 340, 350, 360, 390}) {
      for (const std::string& fin : objeto->Todos(codigo)) EXPECT_TRUE(fin == "0" || porHandle_.contains(fin)) << fin;
    }
  }
}

using Lector = PruebaFichero;

TEST_F(Lector, IndependentReaderFindsNothingToMend) {
  if (std::system("/usr/bin/python3 -c 'import ezdxf' 2>/dev/null") != 0) GTEST_SKIP() << "no ezdxf";
  EWdraw axew;
  DibujaLinea(axew, -10, 0.1, 1e6, 1.0 / 3, 6);
  DibujaArco(axew, 5, 5, 2.5, 10, 350, 1);
  DibujaPolilinea(axew, {{0, 0}, {10, 0}, {10, 5}});
  estado.dIdioma = kChino;
  std::string texto = "\u4E2D\u6587 12.5";
  DibujaTexto(axew, 1, 1, texto, 6, 1, 30);
  cDXF dxf;
  dxf.InsertEntities(estado.oDrawing);
  const std::string ruta = carpeta_ / "dibujo.dxf", lector = "/usr/bin/python3 " DUKTORES_RAIZ "/tests/lector.py ";
  ASSERT_TRUE(dxf.Save(ruta));
  EXPECT_EQ(std::system((lector + ruta + " LINE=1 ARC=1 LWPOLYLINE=1 TEXT=1 >/dev/null").c_str()), 0);
  EXPECT_NE(std::system((lector + ruta + " LINE=2 >/dev/null 2>&1").c_str()), 0);
  EXPECT_EQ(std::system((lector + Plantilla().string() + " >/dev/null").c_str()), 0);
}

}  // namespace
}  // namespace duktores
