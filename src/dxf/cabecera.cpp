#include "dxf/cabecera.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <initializer_list>
#include <iterator>
#include <string_view>

#include "annotation/anotacion.h"
#include "dxf/numero_dxf.h"
#include "state/estado.h"

namespace duktores {
namespace {

/// A header variable. A point has its y and z at the codes 20 and 30; what it lacks is empty.
struct Variable {
  std::string_view nombre;
  int codigo;
  std::string_view valor, y = {}, z = {};
};

// clang-format off
constexpr Variable kVariables[] = {
    // name         code  value; $EXTMIN, $EXTMAX and $LTSCALE take theirs from the drawing
    {"$ACADVER",         1, "AC1015"},
    {"$ACADMAINTVER",   70, "6"},
    {"$DWGCODEPAGE",     3, "ANSI_1252"},
    {"$INSBASE",        10, "0.0", "0.0", "0.0"},
    {"$EXTMIN",         10, ""},
    {"$EXTMAX",         10, ""},
    {"$LIMMIN",         10, "0.0", "0.0"},
    {"$LIMMAX",         10, "12.0", "9.0"},
    {"$ORTHOMODE",      70, "0"},
    {"$REGENMODE",      70, "1"},
    {"$FILLMODE",       70, "1"},
    {"$QTEXTMODE",      70, "0"},
    {"$MIRRTEXT",       70, "1"},
    {"$LTSCALE",        40, ""},
    {"$ATTMODE",        70, "1"},
    {"$TEXTSIZE",       40, "0.2"},
    {"$TRACEWID",       40, "0.05"},
    {"$TEXTSTYLE",       7, "STANDARD"},
    {"$CLAYER",          8, "0"},
    {"$CELTYPE",         6, "CONTINUOUS"},
    {"$CECOLOR",        62, "256"},
    {"$CELTSCALE",      40, "1.0"},
    {"$DISPSILH",       70, "0"},
    {"$DIMSCALE",       40, "3.229813999999999"},
    {"$DIMASZ",         40, "0.09"},
    {"$DIMEXO",         40, "0.03125"},
    {"$DIMDLI",         40, "0.38"},
    {"$DIMRND",         40, "0.0"},
    {"$DIMDLE",         40, "0.0"},
    {"$DIMEXE",         40, "0.05"},
    {"$DIMTP",          40, "0.0"},
    {"$DIMTM",          40, "0.0"},
    {"$DIMTXT",         40, "0.1"},
    {"$DIMCEN",         40, "0.09"},
    {"$DIMTSZ",         40, "0.0"},
    {"$DIMTOL",         70, "0"},
    {"$DIMLIM",         70, "0"},
    {"$DIMTIH",         70, "1"},
    {"$DIMTOH",         70, "1"},
    {"$DIMSE1",         70, "0"},
    {"$DIMSE2",         70, "0"},
    {"$DIMTAD",         70, "0"},
    {"$DIMZIN",         70, "8"},
    {"$DIMBLK",          1, ""},
    {"$DIMASO",         70, "1"},
    {"$DIMSHO",         70, "1"},
    {"$DIMPOST",         1, ""},
    {"$DIMAPOST",        1, ""},
    {"$DIMALT",         70, "0"},
    {"$DIMALTD",        70, "2"},
    {"$DIMALTF",        40, "25.4"},
    {"$DIMLFAC",        40, "1.0"},
    {"$DIMTOFL",        70, "0"},
    {"$DIMTVP",         40, "0.0"},
    {"$DIMTIX",         70, "0"},
    {"$DIMSOXD",        70, "0"},
    {"$DIMSAH",         70, "0"},
    {"$DIMBLK1",         1, ""},
    {"$DIMBLK2",         1, ""},
    {"$DIMSTYLE",        2, "STANDARD"},
    {"$DIMCLRD",        70, "5"},
    {"$DIMCLRE",        70, "5"},
    {"$DIMCLRT",        70, "7"},
    {"$DIMTFAC",        40, "1.0"},
    {"$DIMGAP",         40, "0.09"},
    {"$DIMJUST",        70, "0"},
    {"$DIMSD1",         70, "0"},
    {"$DIMSD2",         70, "0"},
    {"$DIMTOLJ",        70, "1"},
    {"$DIMTZIN",        70, "0"},
    {"$DIMALTZ",        70, "0"},
    {"$DIMALTTZ",       70, "0"},
    {"$DIMUPT",         70, "0"},
    {"$DIMDEC",         70, "3"},
    {"$DIMTDEC",        70, "4"},
    {"$DIMALTU",        70, "2"},
    {"$DIMALTTD",       70, "2"},
    {"$DIMTXSTY",        7, "STANDARD"},
    {"$DIMAUNIT",       70, "0"},
    {"$DIMADEC",        70, "0"},
    {"$DIMALTRND",      40, "0.0"},
    {"$DIMAZIN",        70, "0"},
    {"$DIMDSEP",        70, "46"},
    {"$DIMATFIT",       70, "3"},
    {"$DIMFRAC",        70, "0"},
    {"$DIMLDRBLK",       1, ""},
    {"$DIMLUNIT",       70, "2"},
    {"$DIMLWD",         70, "-2"},
    {"$DIMLWE",         70, "-2"},
    {"$DIMTMOVE",       70, "0"},
    {"$LUNITS",         70, "2"},
    {"$LUPREC",         70, "4"},
    {"$SKETCHINC",      40, "0.1"},
    {"$FILLETRAD",      40, "0.0"},
    {"$AUNITS",         70, "0"},
    {"$AUPREC",         70, "0"},
    {"$MENU",            1, "."},
    {"$ELEVATION",      40, "0.0"},
    {"$PELEVATION",     40, "0.0"},
    {"$THICKNESS",      40, "0.0"},
    {"$LIMCHECK",       70, "0"},
    {"$CHAMFERA",       40, "0.0"},
    {"$CHAMFERB",       40, "0.0"},
    {"$CHAMFERC",       40, "0.0"},
    {"$CHAMFERD",       40, "0.0"},
    {"$SKPOLY",         70, "0"},
    {"$TDCREATE",       40, "2452514.408270833"},
    {"$TDUCREATE",      40, "2452514.574937500"},
    {"$TDUPDATE",       40, "2452514.408283680"},
    {"$TDUUPDATE",      40, "2452514.574950347"},
    {"$TDINDWG",        40, "0.0000130208"},
    {"$TDUSRTIMER",     40, "0.0000130208"},
    {"$USRTIMER",       70, "1"},
    {"$ANGBASE",        50, "0.0"},
    {"$ANGDIR",         70, "0"},
    {"$PDMODE",         70, "0"},
    {"$PDSIZE",         40, "0.0"},
    {"$PLINEWID",       40, "0.0"},
    {"$SPLFRAME",       70, "0"},
    {"$SPLINETYPE",     70, "6"},
    {"$SPLINESEGS",     70, "8"},
    {"$SURFTAB1",       70, "6"},
    {"$SURFTAB2",       70, "6"},
    {"$SURFTYPE",       70, "6"},
    {"$SURFU",          70, "6"},
    {"$SURFV",          70, "6"},
    {"$UCSBASE",         2, ""},
    {"$UCSNAME",         2, ""},
    {"$UCSORG",         10, "0.0", "0.0", "0.0"},
    {"$UCSXDIR",        10, "1.0", "0.0", "0.0"},
    {"$UCSYDIR",        10, "0.0", "1.0", "0.0"},
    {"$UCSORTHOREF",     2, ""},
    {"$UCSORTHOVIEW",   70, "0"},
    {"$UCSORGTOP",      10, "0.0", "0.0", "0.0"},
    {"$UCSORGBOTTOM",   10, "0.0", "0.0", "0.0"},
    {"$UCSORGLEFT",     10, "0.0", "0.0", "0.0"},
    {"$UCSORGRIGHT",    10, "0.0", "0.0", "0.0"},
    {"$UCSORGFRONT",    10, "0.0", "0.0", "0.0"},
    {"$UCSORGBACK",     10, "0.0", "0.0", "0.0"},
    {"$PUCSBASE",        2, ""},
    {"$PUCSNAME",        2, ""},
    {"$PUCSORG",        10, "0.0", "0.0", "0.0"},
    {"$PUCSXDIR",       10, "1.0", "0.0", "0.0"},
    {"$PUCSYDIR",       10, "0.0", "1.0", "0.0"},
    {"$PUCSORTHOREF",    2, ""},
    {"$PUCSORTHOVIEW",  70, "0"},
    {"$PUCSORGTOP",     10, "0.0", "0.0", "0.0"},
    {"$PUCSORGBOTTOM",  10, "0.0", "0.0", "0.0"},
    {"$PUCSORGLEFT",    10, "0.0", "0.0", "0.0"},
    {"$PUCSORGRIGHT",   10, "0.0", "0.0", "0.0"},
    {"$PUCSORGFRONT",   10, "0.0", "0.0", "0.0"},
    {"$PUCSORGBACK",    10, "0.0", "0.0", "0.0"},
    {"$USERI1",         70, "0"},
    {"$USERI2",         70, "0"},
    {"$USERI3",         70, "0"},
    {"$USERI4",         70, "0"},
    {"$USERI5",         70, "0"},
    {"$USERR1",         40, "0.0"},
    {"$USERR2",         40, "0.0"},
    {"$USERR3",         40, "0.0"},
    {"$USERR4",         40, "0.0"},
    {"$USERR5",         40, "0.0"},
    {"$WORLDVIEW",      70, "1"},
    {"$SHADEDGE",       70, "3"},
    {"$SHADEDIF",       70, "70"},
    {"$TILEMODE",       70, "1"},
    {"$MAXACTVP",       70, "64"},
    {"$PINSBASE",       10, "0.0", "0.0", "0.0"},
    {"$PLIMCHECK",      70, "0"},
    {"$PEXTMIN",        10, "1.000000000000000E+20", "1.000000000000000E+20", "1.000000000000000E+20"},
    {"$PEXTMAX",        10, "-1.000000000000000E+20", "-1.000000000000000E+20", "-1.000000000000000E+20"},
    {"$PLIMMIN",        10, "0.0", "0.0"},
    {"$PLIMMAX",        10, "12.0", "9.0"},
    {"$UNITMODE",       70, "0"},
    {"$VISRETAIN",      70, "1"},
    {"$PLINEGEN",       70, "0"},
    {"$PSLTSCALE",      70, "1"},
    {"$TREEDEPTH",      70, "3020"},
    {"$CMLSTYLE",        2, "STANDARD"},
    {"$CMLJUST",        70, "0"},
    {"$CMLSCALE",       40, "1.0"},
    {"$PROXYGRAPHICS",  70, "1"},
    {"$MEASUREMENT",    70, "0"},
    {"$CELWEIGHT",     370, "-1"},
    {"$ENDCAPS",       280, "0"},
    {"$JOINSTYLE",     280, "0"},
    {"$LWDISPLAY",     290, "0"},
    {"$INSUNITS",       70, "0"},
    {"$HYPERLINKBASE",   1, ""},
    {"$STYLESHEET",      1, ""},
    {"$XEDIT",         290, "1"},
    {"$CEPSNTYPE",     380, "0"},
    {"$PSTYLEMODE",    290, "1"},
    {"$EXTNAMES",      290, "1"},
    {"$PSVPSCALE",      40, "0.0"},
    {"$OLESTARTUP",    290, "0"},
};

constexpr std::string_view kTiposLinea[] = {
    // name, then dashes (above 0), gaps (below 0) and dots (0) in drawing units
    "BORDER, 0.5, -0.25, 0.5, -0.25, 0, -0.25",
    "BORDER2, 0.25, -0.125, 0.25, -0.125, 0, -0.125",
    "BORDERX2, 1, -0.5, 1, -0.5, 0, -0.5",
    "CENTER, 1.25, -0.25, 0.25, -0.25",
    "CENTER2, 0.75, -0.125, 0.125, -0.125",
    "CENTERX2, 2.5, -0.5, 0.5, -0.5",
    "DASHDOT, 0.5, -0.25, 0, -0.25",
    "DASHDOT2, 0.25, -0.125, 0, -0.125",
    "DASHDOTX2, 1, -0.5, 0, -0.5",
    "DASHED, 0.5, -0.25",
    "DASHED2, 0.25, -0.125",
    "DASHEDX2, 1, -0.5",
    "DIVIDE, 0.5, -0.25, 0, -0.25, 0, -0.25",
    "DIVIDE2, 0.25, -0.125, 0, -0.125, 0, -0.125",
    "DIVIDEX2, 1, -0.5, 0, -0.5, 0, -0.5",
    "DOT, 0, -0.25",
    "DOT2, 0, -0.125",
    "DOTX2, 0, -0.5",
    "HIDDEN, 0.25, -0.125",
    "HIDDEN2, 0.125, -0.0625",
    "HIDDENX2, 0.5, -0.25",
    "PHANTOM, 1.25, -0.25, 0.25, -0.25, 0.25, -0.25",
    "PHANTOM2, 0.625, -0.125, 0.125, -0.125, 0.125, -0.125",
    "PHANTOMX2, 2.5, -0.5, 0.5, -0.5, 0.5, -0.5",
};

constexpr std::string_view kViewport[] = {
    "  0", "TABLE", "  2", "VPORT", " 5", "8", "330", "0", "100", "AcDbSymbolTable", " 70", "     1",
    "  0", "VPORT", "  5", "EA", "330", "8", "100", "AcDbSymbolTableRecord", "100", "AcDbViewportTableRecord",
    "  2", "*Active", " 70", "     0",
    " 10", "0.0", " 20", "0.0", " 11", "1.0", " 21", "1.0",  // lower left and upper right
    " 12", "CX", " 22", "CY",                                // view centre
    " 13", "0.0", " 23", "0.0", " 14", "1.0", " 24", "1.0", " 15", "0.0", " 25", "0.0",  // snap base, spacing, grid
    " 16", "0.0", " 26", "0.0", " 36", "1.0", " 17", "0.0", " 27", "0.0", " 37", "0.0",  // direction and target
    " 40", "ALTO",                                                                       // view height
    " 41", "2.0", " 42", "0.0", " 43", "0.0", " 44", "0.0", " 50", "0.0", " 51", "0.0",
    " 71", "     0", " 72", "  1000", " 73", "     1", " 74", "     2",
    " 75", "     0", " 76", "     0", " 77", "     0", " 78", "     0",
    "281", "0", "65", "1",
    "110", "0.0", "120", "0.0", "130", "0.0", "111", "1.0", "121", "0.0", "131", "0.0",
    "112", "0.0", "122", "1.0", "132", "0.0",
    "79", "0", "146", "0.0",
    "1001", "ACAD_NAV_VCDISPLAY", "1070", "3",
    "  0", "ENDTAB"};

constexpr std::string_view kComienzoTiposLinea[] = {
    "  0", "TABLE", "  2", "LTYPE", " 70", "    25",
    "  0", "LTYPE", "5", "5", "330", "0", "100", "AcDbSymbolTable", "70", "1",
    "0", "LTYPE", "5", "14", "330", "5", "100", "AcDbSymbolTableRecord", "100", "AcDbLinetypeTableRecord",
    "  2", "ByBlock", "  70", "    0", "  3", "", "  72", "    65", "  73", "    0", "  40", " 0.0"};

constexpr std::string_view kTipoLineaContinua[] = {
    "  0", "LTYPE", "5", "16", "330", "5", "100", "AcDbSymbolTableRecord", "100", "AcDbLinetypeTableRecord",
    "  2", "Continuous", "  70", "     0", "  3", "", "  72", "     65", "  73", "     0", "  40", "0.0"};

constexpr std::string_view kFuentes[] = {
    "0", "TABLE", "2", "LAYER", "5", "2", "102", "{ACAD_XDICTIONARY", "360", "1FF", "102", "}", "330", "0",
    "100", "AcDbSymbolTable", "70", "1",
    "0", "LAYER", "5", "10", "102", "{ACAD_XDICTIONARY", "360", "13c", "102", "}", "330", "2",
    "100", "AcDbSymbolTableRecord", "100", "AcDbLayerTableRecord",
    "2", "0", "70", "0", "62", "7", "6", "Continuous", "370", "-3", "390", "F",
    "0", "ENDTAB",
    "0", "TABLE", "2", "STYLE", "5", "3", "330", "0", "100", "AcDbSymbolTable", "70", "2",
    "0", "STYLE", "5", "11", "330", "3", "100", "AcDbSymbolTableRecord", "100", "AcDbTextStyleTableRecord",
    "2", "Standard", "70", "0", "40", "0", "41", "1", "50", "0", "71", "0", "42", "2.5", "3", "Arial.ttf", "4", "",
    "1001", "ACAD", "1000", "Arial", "1071", "34",
    "0", "STYLE", "5", "132", "330", "3", "100", "AcDbSymbolTableRecord", "100", "AcDbTextStyleTableRecord",
    "2", "Anotativo", "70", "0", "40", "0", "41", "1", "50", "0", "71", "0", "42", "2.5", "3", "Arial.ttf", "4", "",
    "1001", "AcadAnnotative", "1000", "AnnotativeData", "1002", "{", "1070", "1", "1070", "1", "1002", "}",
    "1001", "ACAD", "1000", "Arial", "1071", "34",
    "0", "ENDTAB"};
// clang-format on

static_assert(std::size(kVariables) == 196);

void AnadeLinea(std::string& s, std::string_view linea) {
  s += linea;
  s += "\r\n";
}

template <class Lista>
void AnadeLineas(std::string& s, const Lista& lineas) {
  for (const std::string_view linea : lineas) AnadeLinea(s, linea);
}

std::string ADerecha(std::string_view texto, std::size_t ancho) {
  return std::string(ancho - std::min(ancho, texto.size()), ' ').append(texto);
}

using Textos = std::initializer_list<std::string_view>;

/// From code 60 up the values of the header are whole numbers.
void AnadePar(std::string& s, int codigo, std::string_view valor) {
  AnadeLinea(s, ADerecha(std::to_string(codigo), 3));
  AnadeLinea(s, codigo < 60 ? std::string(valor) : ADerecha(valor, 6));
}

std::array<std::string, 3> Numeros(double x, double y, double z) {
  return {DxfNumeroTexto(x), DxfNumeroTexto(y), DxfNumeroTexto(z)};
}

std::array<std::string, 3> Valores(const Variable& v, double escalaLinea) {
  if (v.nombre == "$EXTMIN") return Numeros(estado.ExtMinX, estado.ExtMinY, estado.ExtMinZ);
  if (v.nombre == "$EXTMAX") return Numeros(estado.ExtMaxX, estado.ExtMaxY, estado.ExtMaxZ);
  if (v.nombre == "$LTSCALE") return {DxfNumeroTexto(escalaLinea)};
  return {std::string(v.valor), std::string(v.y), std::string(v.z)};
}

}  // namespace

VistaDxf VistaDeExtension() {
  const EstadoPrograma& e = estado;
  return {(e.ExtMaxX - e.ExtMinX) / 2 + e.ExtMinX, (e.ExtMaxY - e.ExtMinY) / 2 + e.ExtMinY,
          std::max({std::abs(e.ExtMaxX), std::abs(e.ExtMaxY), std::abs(e.ExtMinX), std::abs(e.ExtMinY)})};
}

std::string cHeader::DxfHeader() const {
  std::string s;
  AnadeLineas(s, Textos{"  0", "SECTION", "  2", "HEADER"});
  for (const Variable& v : kVariables) {
    AnadeLinea(s, "  9");
    AnadeLinea(s, v.nombre);
    const auto [x, y, z] = Valores(v, dLineTypeScale_);
    AnadePar(s, v.codigo, x);
    if (!y.empty()) AnadePar(s, v.codigo + 10, y);
    if (!z.empty()) AnadePar(s, v.codigo + 20, z);
  }
  AnadeLineas(s, Textos{"  0", "ENDSEC"});
  return s;
}

std::string cHeader::DxfTables() {
  std::string s;
  AnadeLineas(s, Textos{"  0", "SECTION", "2", "TABLES"});
  s += DxfTableVPORT() + DxfLineTypes() + DxfFonts() + DxfLayers();
  AnadeLineas(s, Textos{"  0", "ENDSEC"});
  return s;
}

std::string cHeader::DxfTableVPORT() const {
  const VistaDxf vista = VistaDeExtension();
  std::string s;
  for (const std::string_view linea : kViewport) {
    if (linea == "CX") {
      AnadeLinea(s, DxfNumeroTexto(vista.x));
    } else if (linea == "CY") {
      AnadeLinea(s, DxfNumeroTexto(vista.y));
    } else if (linea == "ALTO") {
      AnadeLinea(s, DxfNumeroTexto(vista.altura));
    } else {
      AnadeLinea(s, linea);
    }
  }
  return s;
}

std::string cHeader::DxfLineTypes() const {
  std::string s;
  AnadeLineas(s, kComienzoTiposLinea);
  std::vector<std::string> campos;
  for (const std::string& fila : LineTypes_) {
    if (DivideCadena(fila, campos, ',') > 1) AnadeLineas(s, kTipoLineaContinua);
  }
  AnadeLineas(s, Textos{"  0", "ENDTAB"});
  return s;
}

std::string cHeader::DxfFonts() const {
  std::string s;
  AnadeLineas(s, kFuentes);
  return s;
}

std::string cHeader::DxfLayers() {
  std::string s;
  AnadeLineas(s, Textos{"  0", "TABLE", "  2", "LAYER", " 70", "    0"});
  for (std::size_t i = 0; i < LayerNames_.size(); ++i) {
    if (LayerNames_[i].empty()) continue;
    if (LayerLineTypeName_[i].empty()) LayerLineTypeName_[i] = "CONTINUOUS";
    const std::string indicador = "   " + std::to_string(LayerFlags_[i]), color = std::to_string(LayerColorIndex_[i]);
    AnadeLineas(s, Textos{"  0", "LAYER", "  2", LayerNames_[i], "  70", indicador, "  62", color, "  6",
                          LayerLineTypeName_[i]});
  }
  AnadeLineas(s, Textos{"  0", "ENDTAB"});
  return s;
}

void cHeader::InitLineType() { LineTypes_.assign(std::begin(kTiposLinea), std::end(kTiposLinea)); }

void cHeader::LineTypeScale(double v) { dLineTypeScale_ = v > 0 ? v : 1.0; }

bool cHeader::SetLineTypes(std::vector<std::string> LineTypes) {
  LineTypes_ = std::move(LineTypes);
  return true;
}

bool cHeader::SetFonts(std::vector<std::string> Fonts) {
  Fonts_ = std::move(Fonts);
  return true;
}

bool cHeader::SetLayers(std::vector<std::string> LayerNames, std::vector<std::int16_t> LayerFlags,
                        std::vector<std::int16_t> LayerColorIndex, std::vector<std::string> LayerLineTypeName) {
  LayerNames_ = std::move(LayerNames);
  LayerFlags_ = std::move(LayerFlags);
  LayerColorIndex_ = std::move(LayerColorIndex);
  LayerLineTypeName_ = std::move(LayerLineTypeName);
  LayerFlags_.resize(LayerNames_.size());
  LayerColorIndex_.resize(LayerNames_.size());
  LayerLineTypeName_.resize(LayerNames_.size());
  return true;
}

int cHeader::GetLineTypes(std::vector<std::string>& LineTypes) const {
  LineTypes = LineTypes_;
  return static_cast<int>(LineTypes_.size());
}

int cHeader::GetFonts(std::vector<std::string>& Fonts) const {
  Fonts = Fonts_;
  return static_cast<int>(Fonts_.size());
}

int cHeader::GetLayers(std::vector<std::string>& LayerNames, std::vector<std::int16_t>& LayerFlags,
                       std::vector<std::int16_t>& LayerColorIndex, std::vector<std::string>& LayerLineTypeName) const {
  LayerNames = LayerNames_;
  LayerFlags = LayerFlags_;
  LayerColorIndex = LayerColorIndex_;
  LayerLineTypeName = LayerLineTypeName_;
  return static_cast<int>(LayerNames_.size());
}

}  // namespace duktores
