#include "plantilla_texto.h"

#include <initializer_list>
#include <span>
#include <string_view>

#include "plantilla_cabecera.h"
#include "state/estado.h"

namespace duktores {
namespace {

struct Par {
  int codigo;
  std::string_view valor;
};
using Pares = std::span<const Par>;

/// A record: what follows on its name.
struct Registro {
  std::string_view handle, nombre;
  Pares datos;
};

struct Tabla {
  std::string_view nombre, handle, subclase;  // the subclass marker is that of the records
  std::span<const Registro> registros;
};

// Handles that others point at.
constexpr std::string_view kRegistrosBloque = "1", kEstilo = "11", kMarcador = "F", kEspacioModelo = "6B",
                           kEspacioPapel = "1B", kLayoutModelo = "22", kLayoutPapel = "1E", kRaiz = "C";

// clang-format off
constexpr Par kClases[] = {
    {0, "CLASS"}, {1, "ACDBDICTIONARYWDFLT"}, {2, "AcDbDictionaryWithDefault"}, {3, "ObjectDBX Classes"},
    {90, "0"}, {280, "0"}, {281, "0"},
    {0, "CLASS"}, {1, "ACDBPLACEHOLDER"}, {2, "AcDbPlaceHolder"}, {3, "ObjectDBX Classes"},
    {90, "0"}, {280, "0"}, {281, "0"},
    {0, "CLASS"}, {1, "LAYOUT"}, {2, "AcDbLayout"}, {3, "ObjectDBX Classes"},
    {90, "0"}, {280, "0"}, {281, "0"}};

constexpr Par kLineaVacia[]    = {{70, "0"}, {3, ""}, {72, "65"}, {73, "0"}, {40, "0.0"}};
constexpr Par kLineaContinua[] = {{70, "0"}, {3, "Solid line"}, {72, "65"}, {73, "0"}, {40, "0.0"}};
constexpr Registro kTiposLinea[] = {
    {"14", "ByBlock", kLineaVacia}, {"15", "ByLayer", kLineaVacia}, {"16", "Continuous", kLineaContinua}};
// Lengths in millimetres; a file in inches scales them.
constexpr Par kLineaTrazos[] = {{70, "0"}, {3, "Dashed __ __ __"}, {72, "65"}, {73, "2"}, {40, "7.5"},
    {49, "5.0"}, {74, "0"}, {49, "-2.5"}, {74, "0"}};
constexpr Registro kTiposLineaCorte[] = {
    kTiposLinea[0], kTiposLinea[1], kTiposLinea[2], {"17A", "Dashed", kLineaTrazos}};

// Colour 7 shows on a light and on a dark background.
constexpr Par kCapa[] = {{70, "0"}, {62, "7"}, {6, "Continuous"}, {370, "-3"}, {390, kMarcador}};
constexpr Registro kCapas[] = {{"10", "0", kCapa}, {"30", "DUCT", kCapa}};
constexpr Par kCapaDoblez[] = {{70, "0"}, {62, "3"}, {6, "Dashed"}, {370, "-3"}, {390, kMarcador}};
constexpr Par kCapaMarca[]  = {{70, "0"}, {62, "1"}, {6, "Continuous"}, {370, "-3"}, {390, kMarcador}};
constexpr Registro kCapasCorte[] = {{"10", "0", kCapa}, {"30", "CUT", kCapa}, {"32", "BEND_UP", kCapaDoblez},
    {"33", "BEND_DOWN", kCapaDoblez}, {"34", "MARK", kCapaMarca}};
constexpr Par kCapaBorde[] = {{70, "0"}, {62, "8"}, {6, "Continuous"}, {370, "-3"}, {390, kMarcador}};
constexpr Registro kCapasChapa[] = {kCapasCorte[0], kCapasCorte[1], kCapasCorte[2], kCapasCorte[3], kCapasCorte[4],
    {"35", "SHEET", kCapaBorde}};

constexpr Par kEstiloArial[] = {
    {70, "0"}, {40, "0.0"}, {41, "1.0"}, {50, "0.0"}, {71, "0"}, {42, "2.5"}, {3, "Arial.ttf"}, {4, ""},
    {1001, "ACAD"}, {1000, "Arial"}, {1071, "34"}};
constexpr Registro kEstilos[] = {{kEstilo, "Standard", kEstiloArial}};

constexpr Par kAplicacion[] = {{70, "0"}};
constexpr Registro kAplicaciones[] = {{"12", "ACAD", kAplicacion}, {"31", "ACAD_NAV_VCDISPLAY", kAplicacion}};

constexpr Par kCota[] = {{70, "0"}, {340, kEstilo}};
constexpr Registro kEstilosCota[] = {{"27", "Standard", kCota}};

constexpr Par kBloqueModelo[] = {{340, kLayoutModelo}};
constexpr Par kBloquePapel[]  = {{340, kLayoutPapel}};
constexpr Registro kBloques[] = {
    {kEspacioModelo, "*Model_Space", kBloqueModelo}, {kEspacioPapel, "*Paper_Space", kBloquePapel}};

constexpr Tabla kTablas[] = {
    // name          handle            records' subclass           records
    {"LTYPE",        "5",              "AcDbLinetypeTableRecord",  kTiposLinea},
    {"LAYER",        "2",              "AcDbLayerTableRecord",     kCapas},
    {"STYLE",        "3",              "AcDbTextStyleTableRecord", kEstilos},
    {"VIEW",         "6",              "",                         {}},
    {"UCS",          "7",              "",                         {}},
    {"APPID",        "9",              "AcDbRegAppTableRecord",    kAplicaciones},
    {"DIMSTYLE",     "A",              "AcDbDimStyleTableRecord",  kEstilosCota},
    {"BLOCK_RECORD", kRegistrosBloque, "AcDbBlockTableRecord",     kBloques}};

constexpr Par kDefinicionBloques[] = {
    {0, "BLOCK"}, {5, "20"}, {330, kEspacioModelo}, {100, "AcDbEntity"}, {8, "0"},
    {100, "AcDbBlockBegin"}, {2, "*Model_Space"}, {70, "0"}, {10, "0.0"}, {20, "0.0"}, {30, "0.0"},
    {3, "*Model_Space"}, {1, ""},
    {0, "ENDBLK"}, {5, "21"}, {330, kEspacioModelo}, {100, "AcDbEntity"}, {8, "0"}, {100, "AcDbBlockEnd"},
    {0, "BLOCK"}, {5, "1C"}, {330, kEspacioPapel}, {100, "AcDbEntity"}, {67, "1"}, {8, "0"},
    {100, "AcDbBlockBegin"}, {2, "*Paper_Space"}, {70, "0"}, {10, "0.0"}, {20, "0.0"}, {30, "0.0"},
    {3, "*Paper_Space"}, {1, ""},
    {0, "ENDBLK"}, {5, "1D"}, {330, kEspacioPapel}, {100, "AcDbEntity"}, {67, "1"}, {8, "0"}, {100, "AcDbBlockEnd"}};

constexpr Par kDiccionarios[] = {
    {0, "DICTIONARY"}, {5, kRaiz}, {330, "0"}, {100, "AcDbDictionary"}, {281, "1"},
    {3, "ACAD_GROUP"}, {350, "D"}, {3, "ACAD_LAYOUT"}, {350, "1A"}, {3, "ACAD_MLINESTYLE"}, {350, "17"},
    {3, "ACAD_PLOTSETTINGS"}, {350, "19"}, {3, "ACAD_PLOTSTYLENAME"}, {350, "E"},
    {0, "DICTIONARY"}, {5, "D"}, {330, kRaiz}, {100, "AcDbDictionary"}, {281, "1"},
    {0, "DICTIONARY"}, {5, "1A"}, {330, kRaiz}, {100, "AcDbDictionary"}, {281, "1"},
    {3, "Layout1"}, {350, kLayoutPapel}, {3, "Model"}, {350, kLayoutModelo},
    {0, "DICTIONARY"}, {5, "17"}, {330, kRaiz}, {100, "AcDbDictionary"}, {281, "1"}, {3, "Standard"}, {350, "18"},
    {0, "DICTIONARY"}, {5, "19"}, {330, kRaiz}, {100, "AcDbDictionary"}, {281, "1"},
    {0, "ACDBDICTIONARYWDFLT"}, {5, "E"}, {330, kRaiz}, {100, "AcDbDictionary"}, {281, "1"},
    {3, "Normal"}, {350, kMarcador}, {100, "AcDbDictionaryWithDefault"}, {340, kMarcador},
    {0, "ACDBPLACEHOLDER"}, {5, kMarcador}, {330, "E"},
    {0, "MLINESTYLE"}, {5, "18"}, {330, "17"}, {100, "AcDbMlineStyle"}, {2, "Standard"}, {70, "0"}, {3, ""},
    {62, "256"}, {51, "90.0"}, {52, "90.0"}, {71, "2"},
    {49, "0.5"}, {62, "256"}, {6, "BYLAYER"}, {49, "-0.5"}, {62, "256"}, {6, "BYLAYER"}};

// Plot settings: no printer, A4 on its side, scale 1 to 1.
constexpr Par kImpresion[] = {
    {100, "AcDbPlotSettings"}, {1, ""}, {2, "none_device"}, {4, "ISO_A4_(297.00_x_210.00_MM)"}, {6, ""},
    {40, "0.0"}, {41, "0.0"}, {42, "0.0"}, {43, "0.0"}, {44, "297.0"}, {45, "210.0"}, {46, "0.0"}, {47, "0.0"},
    {48, "0.0"}, {49, "0.0"}, {140, "0.0"}, {141, "0.0"}, {142, "1.0"}, {143, "1.0"}};
constexpr Par kImpresionModelo[] = {{70, "1024"}, {72, "1"}, {73, "0"}, {74, "0"}};  // the window of the model
constexpr Par kImpresionPapel[]  = {{70, "0"}, {72, "1"}, {73, "0"}, {74, "5"}};     // the layout's sheet
constexpr Par kImpresionEscala[] = {{7, ""}, {75, "16"}, {147, "1.0"}, {148, "0.0"}, {149, "0.0"}};

constexpr Par kNombreModelo[] = {{100, "AcDbLayout"}, {1, "Model"}, {70, "1"}, {71, "0"}};
constexpr Par kNombrePapel[]  = {{100, "AcDbLayout"}, {1, "Layout1"}, {70, "1"}, {71, "1"}};
constexpr Par kHoja[] = {
    {10, "0.0"}, {20, "0.0"}, {11, "12.0"}, {21, "9.0"},                          // limits
    {12, "0.0"}, {22, "0.0"}, {32, "0.0"},                                        // insertion base
    {14, "1.000000000000000E+20"}, {24, "1.000000000000000E+20"}, {34, "1.000000000000000E+20"},
    {15, "-1.000000000000000E+20"}, {25, "-1.000000000000000E+20"}, {35, "-1.000000000000000E+20"},
    {146, "0.0"}, {13, "0.0"}, {23, "0.0"}, {33, "0.0"},                          // elevation, UCS
    {16, "1.0"}, {26, "0.0"}, {36, "0.0"}, {17, "0.0"}, {27, "1.0"}, {37, "0.0"}, {76, "0"}};
// clang-format on

class Escritor {
 public:
  void Anade(int codigo, std::string_view valor) {
    const std::string cifras = std::to_string(codigo);
    texto_.append(cifras.size() < 3 ? 3 - cifras.size() : 0, ' ').append(cifras).append("\r\n");
    texto_.append(valor).append("\r\n");
  }
  void Anade(Pares pares) {
    for (const Par& par : pares) Anade(par.codigo, par.valor);
  }
  void AnadeTexto(std::string_view texto) { texto_ += texto; }
  void AbreSeccion(std::string_view nombre) {
    Anade(0, "SECTION");
    Anade(2, nombre);
  }
  void CierraSeccion() { Anade(0, "ENDSEC"); }
  void AnadeTabla(const Tabla& tabla);
  void AnadeLayout(std::string_view handle, Pares impresion, Pares nombre, std::string_view bloque);
  const std::string& Texto() const { return texto_; }

 private:
  std::string texto_;
};

void Escritor::AnadeTabla(const Tabla& tabla) {
  const bool cotas = tabla.nombre == "DIMSTYLE";
  Anade(0, "TABLE");
  Anade(2, tabla.nombre);
  Anade(5, tabla.handle);
  Anade(330, "0");
  Anade(100, "AcDbSymbolTable");
  Anade(70, std::to_string(tabla.registros.size()));
  if (cotas) Anade(100, "AcDbDimStyleTable");
  for (const Registro& registro : tabla.registros) {
    Anade(0, tabla.nombre);
    Anade(cotas ? 105 : 5, registro.handle);
    Anade(330, tabla.handle);
    Anade(100, "AcDbSymbolTableRecord");
    Anade(100, tabla.subclase);
    Anade(2, registro.nombre);
    Anade(registro.datos);
  }
  Anade(0, "ENDTAB");
}

void Escritor::AnadeLayout(std::string_view handle, Pares impresion, Pares nombre, std::string_view bloque) {
  Anade(0, "LAYOUT");
  Anade(5, handle);
  Anade(330, "1A");
  for (const Pares pares : std::initializer_list<Pares>{kImpresion, impresion, kImpresionEscala, nombre, kHoja}) {
    Anade(pares);
  }
  Anade(330, bloque);
}

/// The generated header and, before its end, the next free handle: above the last one that an entity can have.
std::string CabeceraConSemilla() {
  constexpr std::string_view kFinSeccion = "  0\r\nENDSEC\r\n", kSemilla = "  9\r\n$HANDSEED\r\n  5\r\n40000\r\n";
  std::string cabecera = cHeader().DxfHeader();
  return cabecera.insert(cabecera.size() - kFinSeccion.size(), kSemilla);
}

}  // namespace

std::string TextoPlantilla(Plantilla cual) {
  const bool corte = cual != Plantilla::dibujo;
  estado.ExtMinX = estado.ExtMinY = estado.ExtMinZ = estado.ExtMaxZ = 0;
  estado.ExtMaxX = 12;
  estado.ExtMaxY = 9;
  Escritor e;
  e.AnadeTexto(CabeceraConSemilla());
  e.AbreSeccion("CLASSES");
  e.Anade(kClases);
  e.CierraSeccion();
  e.AbreSeccion("TABLES");
  e.AnadeTexto(cHeader().DxfTableVPORT());
  for (Tabla tabla : kTablas) {
    if (corte && tabla.nombre == "LTYPE") tabla.registros = kTiposLineaCorte;
    if (corte && tabla.nombre == "LAYER") tabla.registros = kCapasCorte;
    if (cual == Plantilla::chapa && tabla.nombre == "LAYER") tabla.registros = kCapasChapa;
    e.AnadeTabla(tabla);
  }
  e.CierraSeccion();
  e.AbreSeccion("BLOCKS");
  e.Anade(kDefinicionBloques);
  e.CierraSeccion();
  e.AbreSeccion("ENTITIES");
  e.CierraSeccion();
  e.AbreSeccion("OBJECTS");
  e.Anade(kDiccionarios);
  e.AnadeLayout(kLayoutModelo, kImpresionModelo, kNombreModelo, kEspacioModelo);
  e.AnadeLayout(kLayoutPapel, kImpresionPapel, kNombrePapel, kEspacioPapel);
  e.CierraSeccion();
  e.Anade(0, "EOF");
  return e.Texto();
}

}  // namespace duktores
