#include <gtest/gtest.h>

#include <vector>

#include "plantilla_texto.h"
#include "state/fichero.h"

namespace duktores {
namespace {

TEST(Plantilla, TemplatesAreWhatTheirProgramMakes) {
  const auto exige = [](Plantilla cual, const char* fichero, std::vector<const char*> marcas) {
    const std::string texto = LeeFichero(std::string(DUKTORES_RAIZ "/Template/") + fichero).value();
    EXPECT_TRUE(texto == TextoPlantilla(cual)) << "make it anew with the program plantilla";
    for (const char* marca : {"$EXTMIN", "$EXTMAX", "*Active", "ENTITIES"}) marcas.push_back(marca);
    for (const char* marca : marcas) {
      const std::string linea = "\n" + std::string(marca) + "\r";
      EXPECT_TRUE(texto.find(linea) != texto.npos && texto.find(linea) == texto.rfind(linea)) << marca;
    }
  };
  exige(Plantilla::dibujo, "Template.dxf", {});
  exige(Plantilla::corte, "Cut.dxf", {"$INSUNITS", "$MEASUREMENT", "CUT", "BEND_UP", "BEND_DOWN", "MARK"});
  exige(Plantilla::chapa, "Sheet.dxf", {"$INSUNITS", "$MEASUREMENT", "CUT", "BEND_UP", "BEND_DOWN", "MARK", "SHEET"});
}

}  // namespace
}  // namespace duktores
