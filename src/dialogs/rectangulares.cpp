#include "dialogs/rectangulares.h"

#include <algorithm>
#include <array>

#include "dialogs/combos.h"
#include "piece/numeros_texto.h"
#include "state/estado.h"
#include "state/numeros.h"

namespace duktores {

namespace {

enum Indice : std::size_t { H, R, L1, L2, AX, AY, Alfa, Divi, PosIni };

using Campos = std::array<DefCampo, 9>;
using Comprobaciones = std::array<Comprobacion, 6>;

// The twins differ in the names of three fields.
constexpr Campos CamposDe(std::array<std::string_view, 3> nombres, std::array<std::string_view, 3> palabras) {
  // clang-format off
  return {{
      // control     word         label                   text  filter             combo
      {"TxtH",       "H",         Rotulo::longitud,        0,   FiltraNumero,      {}},
      {nombres[0],   palabras[0], Rotulo::longitud,        0,   FiltraNumero,      {}},
      {nombres[1],   palabras[1], Rotulo::longitud,        0,   FiltraNumero,      {}},
      {nombres[2],   palabras[2], Rotulo::longitud,        0,   FiltraNumero,      {}},
      {"TxtAX",      "AX",        Rotulo::longitud,        0,   FiltraNumero,      {}, Uso::desvio},
      {"TxtAY",      "AY",        Rotulo::longitud,        0,   FiltraNumero,      {}, Uso::desvio},
      {"TxtAlfa",    "Alfa",      Rotulo::angulo,         texto::kAlfaChino,      FiltraNumeroSigno, {}, Uso::desvio},
      {"CmbDivi",    "Divisions", Rotulo::texto,          texto::kDivisiones,     nullptr,           kDivisiones},
      {"CmbPosIni",  "Start",     Rotulo::textoDosPuntos, texto::kPosicionInicio, nullptr,           kPosiciones},
  }};
  // clang-format on
}
constexpr Campos kCamposCR = CamposDe({"TxtRS", "TxtLI", "TxtAI"}, {"RS", "LI", "AI"});
constexpr Campos kCamposRC = CamposDe({"TxtRI", "TxtLS", "TxtAS"}, {"RI", "LS", "AS"});

constexpr Comprobaciones ComprobacionesDe(bool (*circuloFalla)(const Valores& v)) {
  return {{
      {H, [](const Valores& v) { return v[H] == 0; }},
      {R, [](const Valores& v) { return v[R] == 0; }},
      {L1, [](const Valores& v) { return v[L1] == 0; }},
      {L2, [](const Valores& v) { return v[L2] == 0; }},
      {R, circuloFalla},
      {Alfa, [](const Valores& v) { return v[Alfa] < -90 || v[Alfa] > 90; }},
  }};
}
constexpr Comprobaciones kComprobacionesCR =
    ComprobacionesDe([](const Valores& v) { return 2 * v[R] > std::max(v[L1], v[L2]); });
constexpr Comprobaciones kComprobacionesRC =
    ComprobacionesDe([](const Valores& v) { return 2 * v[R] < std::min(v[L1], v[L2]); });

// The names of `estado` that a dialog stores its rectangle and its circle under.
struct Nombres {
  double &lado1, &lado2, &radio;
};

// Without a known surface the sizes stored before stay, and are those of the piece.
void Guarda(const Valores& v, Pieza& pieza, Nombres nombres, Boca Bocas::*rectangulo, Boca Bocas::*circulo) {
  const auto pon = [&](Bocas& bocas, double lado1, double lado2, double radio) {
    bocas.*rectangulo = {lado1, lado2, {}};
    bocas.*circulo = Circulo(radio);
  };
  pon(pieza.entradas, nombres.lado1, nombres.lado2, nombres.radio);
  if (const auto fibra = CorreccionFibra(pieza.fibra, pieza.espesor)) {
    pon(pieza.entradas, v[L1], v[L2], v[R]);
    nombres.lado1 = v[L1] + fibra->lado;
    nombres.lado2 = v[L2] + fibra->lado;
    nombres.radio = v[R] + fibra->radio;
  }
  pon(pieza.corregidas, nombres.lado1, nombres.lado2, nombres.radio);
  pieza.H = estado.dAltura = v[H];
  pieza.AX = estado.dAx = v[AX];
  pieza.AY = estado.dAy = v[AY];
  pieza.Alfa = estado.dAlfa = v[Alfa];
  pieza.inicio = estado.iPosIni = EnteroCorto(v[PosIni]);
  pieza.divisiones = estado.iDivisiones = EnteroCorto(v[Divi]);
  estado.bDosPiezas = pieza.dosPiezas;
}

void GuardaCR(const Valores& v, Pieza& pieza) {
  Guarda(v, pieza, {estado.dL1Base, estado.dL2Base, estado.dRadioAlto}, &Bocas::abajo, &Bocas::arriba);
}

void GuardaRC(const Valores& v, Pieza& pieza) {
  Guarda(v, pieza, {estado.dL1BaseRC, estado.dL2BaseRC, estado.dRadioRC}, &Bocas::arriba, &Bocas::abajo);
}

}  // namespace

constexpr DefDialogo kFrTransfCR{.tipo = TipoPieza::cr,
                                 .nombre = "FrTransfCR",
                                 .clave = "TransCR",
                                 .poneTipo = true,
                                 .textoTitulo = texto::kTransCR,
                                 .textoVacio = texto::kFaltanDatos,
                                 .textoError = texto::kDatoErroneo,
                                 .campos = kCamposCR,
                                 .comprobaciones = kComprobacionesCR,
                                 .opcionPiezas = true,
                                 .olvidaPiezas = false,
                                 .guarda = GuardaCR};
constexpr DefDialogo kFrTransfRC{.tipo = TipoPieza::rc,
                                 .nombre = "FrTransfRC",
                                 .clave = "TransRC",
                                 .poneTipo = true,
                                 .textoTitulo = texto::kTransRC,
                                 .textoVacio = texto::kFaltanDatos,
                                 .textoError = texto::kDatoErroneo,
                                 .campos = kCamposRC,
                                 .comprobaciones = kComprobacionesRC,
                                 .opcionPiezas = true,
                                 .olvidaPiezas = false,
                                 .guarda = GuardaRC};

}  // namespace duktores
