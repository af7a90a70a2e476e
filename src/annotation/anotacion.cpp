#include "annotation/anotacion.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <utility>

#include "annotation/finitos.h"
#include "dxf/dibujo.h"
#include "geometry/redondeo.h"
#include "state/caracteres.h"
#include "state/estado.h"
#include "state/numeros.h"
#include "state/textos.h"

namespace duktores {
namespace {

using Canales = std::array<int, 3>;  // red, green, blue, 0..256

// What the colours 1 to 7 look like on the screen: lines and texts differ a little.
// clang-format off
constexpr std::array<Canales, 7> kCanalesLinea{{
    {255, 0, 0}, {256, 256, 0}, {0, 255, 0}, {0, 255, 255}, {0, 0, 255}, {256, 0, 255}, {255, 255, 255}}};
constexpr std::array<Canales, 7> kCanalesTexto{{
    {256, 0, 0}, {256, 256, 0}, {0, 255, 0}, {0, 256, 255}, {0, 0, 255}, {255, 0, 255}, {255, 256, 255}}};
// clang-format on

void PonCanales(EWdraw& axew, std::int32_t id, std::int16_t color, const std::array<Canales, 7>& tabla) {
  if (color < 1 || color > 7) return;
  const auto [r, g, b] = tabla[static_cast<std::size_t>(color - 1)];
  axew.EwSetColor(id, EwRgb(r, g, b));
}

/// A number with a mark of either kind and perhaps an exponent, and nothing else.
bool EsNumero(std::string_view texto) {
  std::string numero(Recorta(texto));
  if (numero.starts_with('+')) numero.erase(0, 1);
  SustituyeCaracter(numero, ',', '.');
  const char* const fin = numero.data() + numero.size();
  double v = 0;
  const auto leido = std::from_chars(numero.data(), fin, v);
  return leido.ec == std::errc() && leido.ptr == fin;
}

bool SinEscape(char16_t c) {
  return (c >= u'0' && c <= u'9') || (c >= u'A' && c <= u'Z') || (c >= u'a' && c <= u'z') ||
         std::u16string_view(u"º /-)(%,.:").find(c) != std::u16string_view::npos;
}

/// A Chinese text for the file. The codes have as many digits as they need, not always four.
std::string TextoEscapado(std::string_view texto) {
  std::u16string escapado;
  for (const char16_t c : Utf16(texto)) {
    if (c == u'^') {
      escapado += u"^ ";
    } else if (SinEscape(c)) {
      escapado += c;
    } else if (c > 1) {
      std::array<char, 8> cifras;
      const auto fin = std::to_chars(cifras.data(), cifras.data() + cifras.size(), static_cast<unsigned>(c), 16).ptr;
      escapado += u"\\U+";
      for (const char cifra : Mayusculas({cifras.data(), fin})) escapado += static_cast<char16_t>(cifra);
    }
  }
  return Utf8(escapado);
}

std::string ConBlancoTrasAcento(std::string_view texto) {
  std::string resultado;
  for (const char c : texto) {
    resultado += c;
    if (c == '^') resultado += ' ';
  }
  return resultado;
}

/// The text as the file takes it.
std::string TextoParaFichero(std::string_view texto) {
  if (estado.dIdioma != kChino) return ConBlancoTrasAcento(texto);
  return EsNumero(texto) ? std::string(texto) : TextoEscapado(texto);
}

}  // namespace

void DibujaLinea(EWdraw& axew, double x1, double y1, double x2, double y2, std::int16_t color) {
  ExigeFinitos({x1, y1, x2, y2});
  if (estado.oDrawing) {
    cLine linea{.x1 = x1, .y1 = y1, .x2 = x2, .y2 = y2, .ColorIndex = color};
    if (estado.oDrawing->Repite(linea)) return;
    estado.oDrawing->InsertLine(&linea);
  }
  const std::int32_t id = axew.EwAddLine({x1, y1, 0}, {x2, y2, 0});
  axew.EwSetColor(id, color);
  PonCanales(axew, id, color, kCanalesLinea);
}

void DibujaArco(EWdraw& axew, double cx, double cy, double radio, double angIni, double angFin, std::int16_t color) {
  ExigeFinitos({cx - radio, cx + radio, cy - radio, cy + radio, angIni, angFin});
  if (estado.oDrawing) {
    cArc arco{.x = cx, .y = cy, .R = radio, .StartAngle = angIni, .EndAngle = angFin, .ColorIndex = color};
    estado.oDrawing->InsertArc(&arco);
  }
  axew.EwSetColor(axew.EwAddArc({cx, cy, 0}, radio, angIni, angFin, {0, 0, 1}), color);
}

void DibujaArcoCota(EWdraw& axew, double cx, double cy, double radio, double angIni, double& angFin, double altura,
                    std::int16_t color) {
  ExigeFinitos({altura, Redondea(angFin - angIni, 1)});
  if (radio > kNivel) DibujaArco(axew, cx, cy, radio, angIni, angFin, color);
  if (angIni > angFin) angFin += 360;
  std::string texto = TextoDeNumero(Redondea(angFin - angIni, 1));
  DibujaTexto(axew, cx, cy - radio, texto, altura, color, 0);
}

void DibujaTexto(EWdraw& axew, double x, double y, std::string& texto, double altura, std::int16_t color,
                 double angulo) {
  std::string enFichero = TextoParaFichero(texto);
  const double radio = LongitudUtf16(enFichero) * altura;
  ExigeFinitos({x - radio, x + radio, y - radio, y + radio, altura, angulo});
  if (estado.dIdioma != kChino) texto = enFichero;
  if (estado.oDrawing) {
    cText entidad{.Text = std::move(enFichero), .x = x, .y = y, .Height = altura, .Angle = angulo, .ColorIndex = color};
    estado.oDrawing->InsertText(&entidad);
  }
  const std::int32_t id = axew.EwAddText(texto, "Arial Unicode MS", {x, y, 0}, altura, angulo);
  PonCanales(axew, id, color, kCanalesTexto);
}

void DibujaPolilinea(EWdraw& axew, const std::vector<Punto2>& vertices) {
  if (vertices.empty()) return;
  cPolyline contorno;
  contorno.ColorIndex = 7;
  for (const Punto2 p : vertices) ExigeFinitos({p.x, p.y});
  for (const Punto2 p : vertices) contorno.InsertVertex(p.x, p.y, 0);
  contorno.InsertVertex(vertices.front().x, vertices.front().y, 0);
  if (estado.oDrawing) estado.oDrawing->InsertPolyLine(&contorno);

  axew.EwBeginPolyline();
  for (const Punto2 p : vertices) axew.EwAddVertex(p.x, p.y, 0);
  axew.EwSetColor(axew.EwEndPolyline(true), 7);
}

void EmpiezaContorno() { estado.PoliContorno.clear(); }

void DibujaContorno(EWdraw& axew, std::vector<Punto2> contorno) {
  estado.PoliContorno = std::move(contorno);
  DibujaPolilinea(axew, estado.PoliContorno);
}

SoloControl::SoloControl() : oDrawing_(std::move(estado.oDrawing)), PoliContorno_(std::move(estado.PoliContorno)) {}

SoloControl::~SoloControl() {
  estado.oDrawing = std::move(oDrawing_);
  estado.PoliContorno = std::move(PoliContorno_);
}

}  // namespace duktores
