#include "dxf/ayudas.h"
#include "plantilla_cabecera.h"
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

TEST(Plantilla, HeaderTablesFollowTheirSettings) {
  cHeader cabecera;
  std::vector<std::string> tipos;
  EXPECT_EQ(cabecera.GetLineTypes(tipos), 24);
  cabecera.SetLineTypes({"SOLO", "DOT, 0, -0.25"});
  EXPECT_EQ(Fila(cabecera.DxfLineTypes()),
            "  0|TABLE|  2|LTYPE| 70|    25|  0|LTYPE|5|5|330|0|100|AcDbSymbolTable|70|1|"
            "0|LTYPE|5|14|330|5|100|AcDbSymbolTableRecord|100|AcDbLinetypeTableRecord|"
            "  2|ByBlock|  70|    0|  3||  72|    65|  73|    0|  40| 0.0|"
            "  0|LTYPE|5|16|330|5|100|AcDbSymbolTableRecord|100|AcDbLinetypeTableRecord|"
            "  2|Continuous|  70|     0|  3||  72|     65|  73|     0|  40|0.0|  0|ENDTAB|");
  EXPECT_EQ(
      Fila(cabecera.DxfFonts()),
      "0|TABLE|2|LAYER|5|2|102|{ACAD_XDICTIONARY|360|1FF|102|}|330|0|100|AcDbSymbolTable|70|1|"
      "0|LAYER|5|10|102|{ACAD_XDICTIONARY|360|13c|102|}|330|2|100|AcDbSymbolTableRecord|100|AcDbLayerTableRecord|"
      "2|0|70|0|62|7|6|Continuous|370|-3|390|F|0|ENDTAB|"
      "0|TABLE|2|STYLE|5|3|330|0|100|AcDbSymbolTable|70|2|"
      "0|STYLE|5|11|330|3|100|AcDbSymbolTableRecord|100|AcDbTextStyleTableRecord|"
      "2|Standard|70|0|40|0|41|1|50|0|71|0|42|2.5|3|Arial.ttf|4||1001|ACAD|1000|Arial|1071|34|"
      "0|STYLE|5|132|330|3|100|AcDbSymbolTableRecord|100|AcDbTextStyleTableRecord|"
      "2|Anotativo|70|0|40|0|41|1|50|0|71|0|42|2.5|3|Arial.ttf|4||"
      "1001|AcadAnnotative|1000|AnnotativeData|1002|{|1070|1|1070|1|1002|}|1001|ACAD|1000|Arial|1071|34|0|ENDTAB|");
  cabecera.SetLayers({"A", "", "B"}, {1, 2, 3}, {7, 8, 9}, {"DOT", "DOT", ""});
  EXPECT_EQ(Fila(cabecera.DxfLayers()),
            "  0|TABLE|  2|LAYER| 70|    0|  0|LAYER|  2|A|  70|   1|  62|7|  6|DOT|"
            "  0|LAYER|  2|B|  70|   3|  62|9|  6|CONTINUOUS|  0|ENDTAB|");
  EXPECT_EQ(Fila(cabecera.DxfTables()), "  0|SECTION|2|TABLES|" + Fila(cabecera.DxfTableVPORT()) +
                                            Fila(cabecera.DxfLineTypes() + cabecera.DxfFonts() + cabecera.DxfLayers()) +
                                            "  0|ENDSEC|");
  cabecera.LineTypeScale(0);
  EXPECT_NE(Fila(cabecera.DxfHeader()).find("|$LTSCALE| 40|1|"), std::string::npos);
}

}  // namespace
}  // namespace duktores
