#include "engines/marcas.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <string>

#include "dxf/anotacion.h"
#include "state/estado.h"

namespace duktores {

namespace {

constexpr std::int16_t kColorNumero = 1, kColorLado = 6;

// The number of the line p-q at its middle.
void NumerosSoldadura(Transicion& t, EWdraw& axew, Punto2 p, Punto2 q) {
  const double x = std::min(p.x, q.x) + std::abs(q.x - p.x) / 2, y = std::min(p.y, q.y) + std::abs(q.y - p.y) / 2;
  std::string numero = std::to_string(t.iNumSoldadura++);
  DibujaTexto(axew, x, y, numero, estado.dTamanoTexto, kColorNumero, 0);
}

void DibujaNumerada(Transicion& t, EWdraw& axew, Punto2 p, Punto2 q, std::int16_t color) {
  DibujaLinea(axew, p, q, color);
  NumerosSoldadura(t, axew, p, q);
}

// A pattern of one piece keeps all three side lines, a piece of two its only one.
void Anota(Transicion& t, Punto2 pie, double largo, int turno, Parte parte) {
  const std::array pies{&t.dPieLado1, &t.dPieInicio, &t.dPieLado2};
  const std::array largos{&t.dLongLado1, &t.dLongInicio, &t.dLongLado2};
  const auto sitio = static_cast<std::size_t>(parte == Parte::entera ? turno - 1 : 0);
  *pies[sitio] = pie;
  *largos[sitio] = largo;
}

// Numbers the edges F(desde)-F(desde+1) up to F(hasta).
void NumeraCirculo(Transicion& t, EWdraw& axew, int desde, int hasta) {
  for (int k = desde; k < hasta; ++k) {
    NumerosSoldadura(t, axew, t.dPuntosPlano(k) + t.dPtoBase, t.dPuntosPlano(k + 1) + t.dPtoBase);
  }
}

// Numbers the edges of a chain of points, already translated.
void NumeraCadena(Transicion& t, EWdraw& axew, std::initializer_list<Punto2> cadena) {
  for (const Punto2* p = cadena.begin(); p + 1 < cadena.end(); ++p) NumerosSoldadura(t, axew, p[0], p[1]);
}

}  // namespace

void GeneraDoblados(Transicion& t, EWdraw& axew, Parte parte) {
  const int q = (t.dPuntosPlano.Cuenta() - 1) / 4;
  const int primero = parte == Parte::segunda ? 2 : 0, ultimo = parte == Parte::primera ? 1 : 3;
  t.iNumSoldadura = 1;
  for (int abanico = primero; abanico <= ultimo; ++abanico) {
    if (abanico > primero) {
      const LineaLado plana = LineaDeLado(t, abanico);
      const LineaLado lado{plana.alto + t.dPtoBase, plana.bajo + t.dPtoBase};
      DibujaNumerada(t, axew, lado.alto, lado.bajo, kColorLado);
      Anota(t, lado.Pie(), lado.Largo(), abanico, parte);
    }
    const Punto2 esquina = t.dVerticesPlano(abanico + 2) + t.dPtoBase;
    for (int k = abanico * q + 1; k <= (abanico + 1) * q + 1; ++k) {
      DibujaNumerada(t, axew, t.dPuntosPlano(k) + t.dPtoBase, esquina, estado.iColorDoblez);
    }
  }
}

void GeneraRestoNumeros(Transicion& t, EWdraw& axew) {
  const auto& F = t.dPuntosPlano;
  const auto& C = t.dVerticesPlano;
  const int N = F.Cuenta() - 1;
  NumeraCadena(t, axew, {C(1), C(2), t.dPieLado1, C(3), t.dPieInicio, C(4), t.dPieLado2, C(5), C(6)});
  NumeraCirculo(t, axew, 1, N + 1);
  NumeraCadena(t, axew, {F(1), C(1)});
  NumeraCadena(t, axew, {F(N + 1), C(6)});
}

void GeneraRestoNumerosPieza1(Transicion& t, EWdraw& axew) {
  const auto& F = t.dPuntosPlano;
  const auto& C = t.dVerticesPlano;
  const int h = (F.Cuenta() - 1) / 2;
  const Punto2 b = t.dPtoBase;
  NumeraCadena(t, axew, {C(1) + b, C(2) + b, t.dPieLado1P1 + b, C(3) + b, t.dCorteBajo2 + b});
  NumeraCirculo(t, axew, 1, h + 1);
  NumeraCadena(t, axew, {F(1) + b, C(1) + b});
  NumeraCadena(t, axew, {t.dCorteAlto + b, t.dCorteBajo + b});
}

void GeneraRestoNumerosPieza2(Transicion& t, EWdraw& axew) {
  const auto& F = t.dPuntosPlano;
  const auto& C = t.dVerticesPlano;
  const int N = F.Cuenta() - 1, h = N / 2;
  const Punto2 b = t.dPtoBase;
  NumeraCadena(t, axew, {t.dCorteBajo2 + b, C(4) + b, t.dPieLado1, C(5) + b, C(6) + b});
  NumeraCirculo(t, axew, h + 1, N + 1);
  NumeraCadena(t, axew, {t.dCorteBajo2 + b, F(h + 1) + b});
  NumeraCadena(t, axew, {F(N + 1) + b, C(6) + b});
}

}  // namespace duktores
