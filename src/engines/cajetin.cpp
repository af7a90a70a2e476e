#include "engines/cajetin.h"

#include <utility>

#include "state/estado.h"
#include "state/numeros.h"
#include "state/textos.h"

namespace duktores {

namespace {

using Valor = std::optional<std::string>;
using Dato = double EstadoPrograma::*;
using Cuenta = std::int16_t EstadoPrograma::*;

template <int kTexto>
Valor Nombre() {
  return Texto(kTexto);
}
Valor Fibra() { return TextoFibra(); }
template <Dato dato>
Valor Longitud() {
  return TextoLongitud(estado.*dato);
}
template <Dato dato>
Valor Desvio() {
  return estado.*dato == 0 ? std::nullopt : Longitud<dato>();
}
template <Dato dato>
Valor Lado() {
  return TextoLongitud(LadoEntrado(estado.*dato));
}
template <Dato dato>
Valor Radio() {
  return TextoLongitud(RadioEntrado(estado.*dato));
}
// This radius stands for a base that is a point.
template <Dato dato>
Valor RadioSiHay() {
  return estado.*dato == 0.00001 ? std::nullopt : Radio<dato>();
}
template <Dato dato>
Valor Angulo() {
  return TextoDeNumero(estado.*dato) + "º";
}
template <Cuenta dato>
Valor Entero() {
  return std::to_string(estado.*dato);
}

constexpr FilaPieza PorNumero(int texto, Valor (*valor)()) { return {nullptr, texto, false, valor}; }
constexpr FilaPieza Comun(int texto, Valor (*valor)()) { return {nullptr, texto, true, valor}; }
constexpr FilaPieza Literal(const char* rotulo, Valor (*valor)()) { return {rotulo, 0, false, valor}; }

using E = EstadoPrograma;
constexpr FilaPieza kFilasCR[]{
    PorNumero(26, Nombre<11>),
    PorNumero(24, Fibra),
    PorNumero(25, Longitud<&E::dEspesor>),
    Literal("H:", Longitud<&E::dAltura>),
    Literal("RS:", Radio<&E::dRadioAlto>),
    Literal("LI:", Lado<&E::dL1Base>),
    Literal("AI:", Lado<&E::dL2Base>),
    Literal("Alfa:", Angulo<&E::dAlfa>),
    Literal("AX:", Desvio<&E::dAx>),
    Literal("AY:", Desvio<&E::dAy>),
    PorNumero(19, Entero<&E::iDivisiones>),
    PorNumero(27, Entero<&E::iPosIni>),
};
constexpr FilaPieza kFilasRC[]{
    PorNumero(26, Nombre<12>),
    PorNumero(24, Fibra),
    PorNumero(25, Longitud<&E::dEspesor>),
    Literal("H:", Longitud<&E::dAltura>),
    Literal("LS:", Lado<&E::dL1BaseRC>),
    Literal("AS:", Lado<&E::dL2BaseRC>),
    Literal("Alfa:", Angulo<&E::dAlfa>),
    Literal("RI:", RadioSiHay<&E::dRadioRC>),
    Literal("AX:", Desvio<&E::dAx>),
    Literal("AY:", Desvio<&E::dAy>),
    PorNumero(19, Entero<&E::iDivisiones>),
    PorNumero(27, Entero<&E::iPosIni>),
};
constexpr FilaPieza kFilasElip[]{
    PorNumero(26, Nombre<50>),
    PorNumero(24, Fibra),
    PorNumero(25, Longitud<&E::dEspesor>),
    Comun(51, Longitud<&E::dAltura>),
    Comun(52, Radio<&E::dEjeMayorElip>),
    Comun(53, Radio<&E::dEjeMenorElip>),
    Comun(59, Lado<&E::dL1Elip>),
    Comun(60, Lado<&E::dL2Elip>),
    Comun(56, Angulo<&E::dAlfa>),
    Comun(54, Desvio<&E::dAx>),
    Comun(55, Desvio<&E::dAyElip>),
    PorNumero(57, Entero<&E::inumDoblado>),
    PorNumero(58, Entero<&E::iPosIniElip>),
};

constexpr EstiloCajetin Estilo(double letraPrimera) {
  return {.cabeza = 450,
          .alto = 1200,
          .yIzquierda = 80,
          .pasoIzquierda = 30,
          .yDerecha = 110,
          .yLista = 500,
          .letra = 10,
          .letraPrimera = letraPrimera,
          .desvioUltimo = 0,
          .siempreMilimetros = false,
          .decimalesRectangulo = 2,
          .finDesperdicio = "  "};
}

// A column may end before each row but those that go on from the point of the row before: a side line, and the bend
// line after it. The edges start where the bend lines end.
void DibujaTabla(EWdraw& axew, const EstiloCajetin& estilo, Punto2 esquina, const std::vector<LineaNumerada>& lineas) {
  ListaLargos lista(axew, estilo, esquina);
  Clase anterior = Clase::doblez;
  for (const auto& [p, q, clase] : lineas) {
    const bool sigue = clase == Clase::lado || anterior == Clase::lado || (clase == Clase::borde && anterior != clase);
    lista.Fila(Distancia(p, q), clase != Clase::borde, sigue ? Salto::nunca : Salto::siLlena);
    anterior = clase;
  }
}

std::string Rotulo(const FilaPieza& fila) {
  if (fila.rotulo) return fila.rotulo;
  return fila.comun ? TextoIdioma(fila.texto) : Texto(fila.texto);
}

}  // namespace

constexpr CajetinMotor kCajetinCR{Estilo(10), kFilasCR};
constexpr CajetinMotor kCajetinRC{Estilo(10), kFilasRC};
constexpr CajetinMotor kCajetinElip{Estilo(9), kFilasElip};

void ColocaCajetin(EWdraw& axew, const CajetinMotor& cajetin, std::int16_t inumDoblado, Parte parte,
                   const std::vector<LineaNumerada>& lineas) {
  std::vector<Renglon> pieza;
  for (const FilaPieza& fila : cajetin.filas) {
    if (auto valor = fila.valor()) pieza.push_back({Rotulo(fila), *std::move(valor)});
  }
  const int entera = 2 * inumDoblado + 2, media = inumDoblado + 2;
  const Punto2 esquina = DibujaCajetin(axew, cajetin.estilo, {entera, parte == Parte::entera ? entera : media}, pieza);
  DibujaTabla(axew, cajetin.estilo, esquina, lineas);
}

}  // namespace duktores
