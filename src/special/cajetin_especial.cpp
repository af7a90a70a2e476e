#include "special/cajetin_especial.h"

#include <algorithm>
#include <span>
#include <string>
#include <vector>

#include "dxf/cajetin.h"
#include "state/estado.h"
#include "state/numeros.h"
#include "state/textos.h"

namespace duktores {

namespace {

using E = EstadoPrograma;

enum class Bloque { cono, panel };

// Entered radii were corrected for the fibre, and sides like radii, by half a thickness; heights, offsets and the sides
// of TransEsp5 were not.
struct FilaMedida {
  const char* rotulo;
  double E::*dato;
  bool corregida;
};

// clang-format off
constexpr FilaMedida kFilas1[]{
    {"r11:", &E::dR11Ini, true}, {"r12:", &E::dR12Ini, true}, {"r13:", &E::dR13Ini, true}, {"r14:", &E::dR14Ini, true},
    {"r21:", &E::dR21Ini, true}, {"r22:", &E::dR22Ini, true}, {"r23:", &E::dR23Ini, true}, {"r24:", &E::dR24Ini, true},
    {"H:",   &E::dAltura, false}, {"AX:",  &E::dAx,  false}, {"AY:",  &E::dAy,  false},
    {"LX1:", &E::dLX1,    true},  {"LY1:", &E::dLY1, true},  {"LX2:", &E::dLX2, true},  {"LY2:", &E::dLY2, true},
};
constexpr FilaMedida kFilas23[]{
    {"r:",   &E::dRadioEspIni, true},
    {"H:",   &E::dAltura, false}, {"AX:",  &E::dAx,  false}, {"AY:",  &E::dAy,  false},
    {"LY:",  &E::dLY2,    true},  {"LX:",  &E::dLX2, true},
};
constexpr FilaMedida kFilas4[]{
    {"r1:",  &E::dR11Ini, true},
    {"r21:", &E::dR21Ini, true}, {"r22:", &E::dR22Ini, true}, {"r23:", &E::dR23Ini, true}, {"r24:", &E::dR24Ini, true},
    {"H:",   &E::dAltura, false}, {"AX:",  &E::dAx,  false}, {"AY:",  &E::dAy,  false},
    {"LY:",  &E::dLY2,    true},  {"LX:",  &E::dLX2, true},
};
constexpr FilaMedida kFilas5Cono[]{
    {"r11:", &E::dR11Ini, true}, {"r12:", &E::dR12Ini, true}, {"r13:", &E::dR13Ini, true}, {"r14:", &E::dR14Ini, true},
    {"H:",   &E::dAltura, false}, {"AX:",  &E::dAx,  false}, {"AY:",  &E::dAy,  false},
    {"LY1:", &E::dLY1,    false}, {"LX1:", &E::dLX1, false}, {"LY2:", &E::dLY2, false}, {"LX2:", &E::dLX2, false},
};
constexpr FilaMedida kFilas5Panel[]{
    {"r11:", &E::dR11Ini, true}, {"r12:", &E::dR12Ini, true}, {"r13:", &E::dR13Ini, true}, {"r14:", &E::dR14Ini, true},
    {"H:",   &E::dAltura, false}, {"AX:",  &E::dAx,  false}, {"AY:",  &E::dAy,  false},
    {"LX1:", &E::dLX1,    false}, {"LY1:", &E::dLY1, false}, {"LY2:", &E::dLY2, false}, {"LX2:", &E::dLX2, false},
};

struct Denominacion {
  const char* tipo;
  int texto;
  std::span<const FilaMedida> cono, panel;
};
constexpr Denominacion kDenominaciones[]{
    {"TransEsp1", 42, kFilas1,     kFilas1},
    {"TransEsp2", 43, kFilas23,    kFilas23},
    {"TransEsp3", 44, kFilas23,    kFilas23},
    {"TransEsp4", 45, kFilas4,     kFilas4},
    {"TransEsp5", 46, kFilas5Cono, kFilas5Panel},
};
// clang-format on

constexpr EstiloCajetin kEstiloPanel{.cabeza = 510,
                                     .alto = 1260,
                                     .yIzquierda = 30,
                                     .pasoIzquierda = 22,
                                     .yDerecha = 30,
                                     .yLista = 540,
                                     .letra = 10,
                                     .letraPrimera = 9,
                                     .desvioUltimo = 10,
                                     .siempreMilimetros = false,
                                     .decimalesRectangulo = 3,
                                     .finDesperdicio = ""};
constexpr EstiloCajetin EstiloCono() {
  EstiloCajetin estilo = kEstiloPanel;
  estilo.letra = estilo.letraPrimera = 11;
  estilo.siempreMilimetros = true;
  return estilo;
}
constexpr EstiloCajetin kEstiloCono = EstiloCono();

// A sector's block shows bare numbers.
std::vector<Renglon> Renglones(Bloque bloque) {
  const bool cono = bloque == Bloque::cono;
  const auto longitud = [&](double v) { return cono ? TextoDeNumero(v) : TextoLongitud(v); };
  const auto angulo = [&](double v) { return TextoDeNumero(-v) + (cono ? "" : "º"); };
  const auto* const pieza = std::ranges::find(kDenominaciones, estado.sTipoPieza, &Denominacion::tipo);
  std::vector<Renglon> renglones{{Texto(26), Texto(pieza->texto)},
                                 {Texto(24), TextoFibra()},
                                 {Texto(25), longitud(estado.dEspesor)},
                                 {"Alfa:", angulo(estado.dAlfa)},
                                 {cono ? "Beta" : "Beta:", angulo(estado.dBeta)}};
  for (const auto& [rotulo, dato, corregida] : cono ? pieza->cono : pieza->panel) {
    renglones.push_back({rotulo, longitud(corregida ? RadioEntrado(estado.*dato) : estado.*dato)});
  }
  renglones.push_back({Texto(19), std::to_string(estado.iDivisiones)});
  return renglones;
}

template <class Filas>
void GeneraCajetin(EWdraw& axew, Bloque bloque, Filas filas) {
  const EstiloCajetin& estilo = bloque == Bloque::cono ? kEstiloCono : kEstiloPanel;
  const int largos = 3 * estado.iDivisiones;
  axew.EwRegen();
  const Punto2 esquina = DibujaCajetin(axew, estilo, {largos, largos}, Renglones(bloque));
  ListaLargos lista(axew, estilo, esquina);
  filas(lista);
  axew.EwRegen();
}

}  // namespace

void GeneraCajetinCono(EWdraw& axew, const Sector& sector) {
  GeneraCajetin(axew, Bloque::cono, [&](ListaLargos& lista) {
    for (std::size_t i = 0; i <= sector.Ultimo(); ++i) {
      if (sector.Marcado(i)) lista.Fila(Distancia(sector.base[i], sector.boca[i]), false);
    }
  });
}

void GeneraCajetinPanel(EWdraw& axew, const std::array<Punto2, 4>& panel) {
  const auto& [A, B, C, D] = panel;
  const std::array lados{Distancia(A, D), Distancia(B, C), Distancia(C, D), Distancia(A, B)};
  GeneraCajetin(axew, Bloque::panel, [&](ListaLargos& lista) {
    for (const double lado : lados) lista.Fila(lado, true);
  });
}

}  // namespace duktores
