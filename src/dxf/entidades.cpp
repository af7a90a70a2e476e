#include "dxf/entidades.h"

#include <algorithm>
#include <array>
#include <charconv>

#include "dxf/numero_dxf.h"
#include "piece/numeros_texto.h"
#include "state/error_corrida.h"
#include "state/estado.h"

namespace duktores {
namespace {

constexpr std::int32_t kUltimoHandle = 32767;
constexpr std::size_t kReserva = 400;  // what a line or an arc needs at most, but for its layer's name

void AnadeLineaEntera(std::string& s, std::int32_t n) {
  std::array<char, 16> cifras;
  s.append(cifras.data(), std::to_chars(cifras.data(), cifras.data() + cifras.size(), n).ptr);
  s += "\r\n";
}

void AnadePunto(std::string& s, int codigo, double x, double y, double z) {
  AnadeDxfPar(s, codigo, x);
  AnadeDxfPar(s, codigo + 10, y);
  AnadeDxfPar(s, codigo + 20, z);
}

void AnadeCapa(std::string& s, std::string& capa) {
  if (capa.empty()) capa = "0";
  s += "  8\r\n";
  s += capa;
  s += "\r\n";
}

void AnadeColor(std::string& s, std::int16_t color) {
  s += " 62\r\n";
  AnadeLineaEntera(s, color);
}

/// The lines up to the layer. `comienzo` holds those before the handle.
std::string Cabeza(std::string_view comienzo, std::string& capa, std::size_t reserva) {
  if (estado.iHandleDxf > kUltimoHandle) throw ErrorCorrida(texto::kDemasiadas);
  std::string s;
  s.reserve(kReserva + reserva + capa.size());
  s += comienzo;
  AnadeLineaEntera(s, estado.iHandleDxf);
  s += "330\r\n6B\r\n100\r\nAcDbEntity\r\n";
  AnadeCapa(s, capa);
  return s;
}

/// The short form of circle and point: without handle, owner and markers.
std::string CabezaCorta(std::string_view comienzo, std::string& capa, std::int16_t color, std::string& tipoLinea) {
  if (tipoLinea.empty()) tipoLinea = "CONTINUOUS";
  std::string s(comienzo);
  AnadeCapa(s, capa);
  AnadeColor(s, color);
  s += "  6\r\n";
  s += tipoLinea;
  s += "\r\n";
  return s;
}

}  // namespace

std::string cLine::DxfEntity() {
  std::string s = Cabeza("  0\r\nLINE\r\n5\r\n", LayerName, 0);
  AnadeColor(s, ColorIndex);
  s += "100\r\nAcDbLine\r\n";
  AnadePunto(s, 10, x1, y1, z1);
  AnadePunto(s, 11, x2, y2, z2);
  ++estado.iHandleDxf;
  return s;
}

std::string cArc::DxfEntity() {
  std::string s = Cabeza("  0\r\nARC\r\n5\r\n", LayerName, 0);
  AnadeColor(s, ColorIndex);
  s += "100\r\nAcDbCircle\r\n";
  AnadePunto(s, 10, x, y, z);
  AnadeDxfPar(s, 40, R);
  s += "100\r\nAcDbArc\r\n";
  AnadeDxfPar(s, 50, StartAngle);
  AnadeDxfPar(s, 51, EndAngle);
  ++estado.iHandleDxf;
  return s;
}

std::string cText::DxfEntity() {
  std::string s = Cabeza("  0\r\nTEXT\r\n5\r\n", LayerName, Text.size());
  AnadeColor(s, ColorIndex);
  s += "100\r\nAcDbText\r\n";
  AnadePunto(s, 10, x, y, z);
  AnadeDxfPar(s, 40, Height);
  s += "  1\r\n";
  s += Text;
  s += "\r\n";
  AnadeDxfPar(s, 50, Angle);
  s += "100\r\nAcDbText\r\n";
  ++estado.iHandleDxf;
  return s;
}

std::string cCircle::DxfEntity() {
  std::string s = CabezaCorta("  0\r\nCIRCLE\r\n", LayerName, ColorIndex, LineTypeName);
  AnadePunto(s, 10, x, y, z);
  AnadeDxfPar(s, 40, R);
  return s;
}

std::string cPoint::DxfEntity() {
  std::string s = CabezaCorta("  0\r\nPOINT\r\n", LayerName, ColorIndex, LineTypeName);
  AnadePunto(s, 10, x, y, z);
  return s;
}

void cPolyline::InsertVertex(double x, double y, double z) {
  if (++iVertices == 1) {
    xMin = xMax = x;
    yMin = yMax = y;
    zMin = zMax = z;
  }
  xMin = std::min(xMin, x);
  yMin = std::min(yMin, y);
  zMin = std::min(zMin, z);
  xMax = std::max(xMax, x);
  yMax = std::max(yMax, y);
  zMax = std::max(zMax, z);
  AnadeDxfPar(vertices_, 10, x);
  AnadeDxfPar(vertices_, 20, y);
}

std::string cPolyline::DxfEntity() {
  if (iVertices == 0) return {};
  std::string s = Cabeza("  0\r\nLWPOLYLINE\r\n  5\r\n", LayerName, vertices_.size());
  s += "100\r\nAcDbPolyline\r\n 90\r\n";
  AnadeLineaEntera(s, iVertices);
  s += " 70\r\n    0\r\n 43\r\n0.0\r\n";
  s += vertices_;
  ++estado.iHandleDxf;
  return s;
}

}  // namespace duktores
