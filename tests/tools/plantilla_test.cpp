#include <gtest/gtest.h>

#include "plantilla_texto.h"
#include "state/fichero.h"

namespace duktores {
namespace {

TEST(Plantilla, TemplateIsWhatItsProgramMakes) {
  const std::string texto = LeeFichero(DUKTORES_RAIZ "/Template/Template.dxf").value();
  EXPECT_TRUE(texto == TextoPlantilla()) << "make it anew with the program plantilla";
  for (const char* marca : {"\n$EXTMIN\r", "\n$EXTMAX\r", "\n*Active\r", "\nENTITIES\r"}) {
    EXPECT_TRUE(texto.find(marca) != texto.npos && texto.find(marca) == texto.rfind(marca)) << marca;
  }
}

}  // namespace
}  // namespace duktores
