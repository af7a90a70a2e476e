#include "engines/marcas.h"

#include <algorithm>
#include <cmath>
#include <string>

#include "dxf/anotacion.h"
#include "state/estado.h"

namespace duktores {

namespace {

constexpr std::int16_t kColorLado = 6;

// A number at the middle of the line p-q.
void NumerosSoldadura(EWdraw& axew, std::size_t numero, Punto2 p, Punto2 q) {
  const double x = std::min(p.x, q.x) + std::abs(q.x - p.x) / 2, y = std::min(p.y, q.y) + std::abs(q.y - p.y) / 2;
  std::string texto = std::to_string(numero);
  DibujaTexto(axew, x, y, texto, estado.dTamanoTexto, kColorNumero, 0);
}

}  // namespace

std::vector<LineaNumerada> LineasNumeradas(const Transicion& t, Parte parte) {
  const auto& F = t.dPuntosPlano;
  const auto& C = t.dVerticesPlano;
  const bool primera = parte == Parte::primera, segunda = parte == Parte::segunda;
  const int N = F.Cuenta() - 1, h = N / 2, q = N / 4;
  const int primero = segunda ? 2 : 0, ultimo = primera ? 1 : 3;
  std::vector<LineaNumerada> lineas;
  lineas.reserve(2 * static_cast<std::size_t>(N) + 17);
  // The edges below the fans, from left to right: corners and feet of the side lines.
  std::vector<Punto2> cadena = segunda ? std::vector{t.dCorteBajo2, C(4)} : std::vector{C(1), C(2)};
  for (int abanico = primero; abanico <= ultimo; ++abanico) {
    if (abanico > primero) {
      const LineaLado lado = LineaDeLado(t, abanico);
      lineas.push_back({lado.alto, lado.bajo, Clase::lado});
      cadena.insert(cadena.end(), {lado.Pie(), C(abanico + 2)});
    }
    for (int k = abanico * q + 1; k <= (abanico + 1) * q + 1; ++k) {
      lineas.push_back({F(k), C(abanico + 2), Clase::doblez});
    }
  }
  cadena.push_back(primera ? t.dCorteBajo2 : C(6));
  const auto borde = [&](Punto2 a, Punto2 b) { lineas.push_back({a, b, Clase::borde}); };
  for (std::size_t i = 1; i < cadena.size(); ++i) borde(cadena[i - 1], cadena[i]);
  for (int k = primero * q + 1; k <= (ultimo + 1) * q; ++k) borde(F(k), F(k + 1));
  if (segunda) {
    borde(t.dCorteBajo2, F(h + 1));
  } else {
    borde(F(1), C(1));
  }
  if (primera) {
    borde(F(h + 1), t.dCorteBajo);
  } else {
    borde(F(N + 1), C(6));
  }
  return lineas;
}

void GeneraDoblados(EWdraw& axew, const std::vector<LineaNumerada>& lineas, Punto2 base) {
  for (std::size_t i = 0; i < lineas.size() && lineas[i].clase != Clase::borde; ++i) {
    const Punto2 p = lineas[i].p + base, q = lineas[i].q + base;
    DibujaLinea(axew, p, q, lineas[i].clase == Clase::lado ? kColorLado : estado.iColorDoblez);
    NumerosSoldadura(axew, i + 1, p, q);
  }
}

void GeneraRestoNumeros(EWdraw& axew, const std::vector<LineaNumerada>& lineas, Punto2 base) {
  for (std::size_t i = 0; i < lineas.size(); ++i) {
    if (lineas[i].clase == Clase::borde) NumerosSoldadura(axew, i + 1, lineas[i].p + base, lineas[i].q + base);
  }
}

}  // namespace duktores
