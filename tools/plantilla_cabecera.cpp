#include "plantilla_cabecera.h"

#include <algorithm>
#include <array>
#include <initializer_list>
#include <iterator>
#include <string_view>

#include "annotation/anotacion.h"
#include "dxf/escritor.h"
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

constexpr Variable kVariables[] = {
#include "plantilla_variables.inc"
};

// clang-format off
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

}  // namespace duktores
