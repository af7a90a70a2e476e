#include "special/bloque_especial.h"

#include <algorithm>
#include <iterator>
#include <span>

#include "piece/numeros_texto.h"

namespace duktores {

namespace {

struct FilaMedida {
  const char* rotulo;
  double (*valor)(const Pieza&);
};

template <Boca Bocas::*boca, int c>
double Radio(const Pieza& p) {
  return (p.entradas.*boca).r(c);
}
template <Boca Bocas::*boca, double Boca::*lado>
double Medida(const Pieza& p) {
  return p.entradas.*boca.*lado;
}
template <double Pieza::*dato>
double Dato(const Pieza& p) {
  return p.*dato;
}
constexpr auto kArriba = &Bocas::arriba, kAbajo = &Bocas::abajo;
constexpr auto kLX = &Boca::LX, kLY = &Boca::LY;

// clang-format off
constexpr FilaMedida kH{"H:", Dato<&Pieza::H>}, kAX{"AX:", Dato<&Pieza::AX>}, kAY{"AY:", Dato<&Pieza::AY>},
                     kLX1{"LX1:", Medida<kArriba, kLX>}, kLY1{"LY1:", Medida<kArriba, kLY>},
                     kLX2{"LX2:", Medida<kAbajo, kLX>},  kLY2{"LY2:", Medida<kAbajo, kLY>},
                     kBaseY{"LY:", Medida<kAbajo, kLY>}, kBaseX{"LX:", Medida<kAbajo, kLX>},
                     kR11{"r11:", Radio<kArriba, 1>}, kR12{"r12:", Radio<kArriba, 2>},
                     kR13{"r13:", Radio<kArriba, 3>}, kR14{"r14:", Radio<kArriba, 4>},
                     kR21{"r21:", Radio<kAbajo, 1>},  kR22{"r22:", Radio<kAbajo, 2>},
                     kR23{"r23:", Radio<kAbajo, 3>},  kR24{"r24:", Radio<kAbajo, 4>},
                     kR{"r:", Radio<kArriba, 1>},     kR1{"r1:", Radio<kArriba, 1>};

constexpr FilaMedida kFilas1[]{kR11, kR12, kR13, kR14, kR21, kR22, kR23, kR24, kH, kAX, kAY, kLX1, kLY1, kLX2, kLY2};
constexpr FilaMedida kFilas23[]{kR, kH, kAX, kAY, kBaseY, kBaseX};
constexpr FilaMedida kFilas4[]{kR1, kR21, kR22, kR23, kR24, kH, kAX, kAY, kBaseY, kBaseX};
constexpr FilaMedida kFilas5Cono[]{kR11, kR12, kR13, kR14, kH, kAX, kAY, kLY1, kLX1, kLY2, kLX2};
constexpr FilaMedida kFilas5Panel[]{kR11, kR12, kR13, kR14, kH, kAX, kAY, kLX1, kLY1, kLY2, kLX2};

struct Denominacion {
  TipoPieza tipo;
  int texto;
  std::span<const FilaMedida> cono, panel;
};
constexpr Denominacion kDenominaciones[]{
    {TipoPieza::esp1, texto::kTransEsp1, kFilas1,     kFilas1},
    {TipoPieza::esp2, texto::kTransEsp2, kFilas23,    kFilas23},
    {TipoPieza::esp3, texto::kTransEsp3, kFilas23,    kFilas23},
    {TipoPieza::esp4, texto::kTransEsp4, kFilas4,     kFilas4},
    {TipoPieza::esp5, texto::kTransEsp5, kFilas5Cono, kFilas5Panel},
};
// clang-format on

}  // namespace

Bloque BloqueEspecial(const Pieza& pieza, Forma forma) {
  const bool cono = forma == Forma::esquina;
  const int largos = 3 * pieza.divisiones;
  const auto* const nombre = std::ranges::find(kDenominaciones, pieza.tipo, &Denominacion::tipo);
  Bloque bloque{cono ? EstiloBloque::sector : EstiloBloque::panel, largos, largos, {}};
  bloque.pieza = {{{.texto = texto::kDenominacion}, TextoNumero{nombre->texto}},
                  {{.texto = texto::kFibra}, pieza.fibra},
                  {{.texto = texto::kEspesor}, Longitud{pieza.espesor}},
                  {{.literal = "Alfa:"}, Angulo{pieza.Alfa}},
                  {{.literal = cono ? "Beta" : "Beta:"}, Angulo{pieza.Beta}}};
  for (const auto& [rotulo, valor] : cono ? nombre->cono : nombre->panel) {
    bloque.pieza.push_back({{.literal = rotulo}, Longitud{valor(pieza)}});
  }
  bloque.pieza.push_back({{.texto = texto::kDivisiones}, pieza.divisiones});
  return bloque;
}

}  // namespace duktores
