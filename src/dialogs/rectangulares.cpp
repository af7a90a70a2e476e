#include "dialogs/rectangulares.h"

#include <algorithm>
#include <array>
#include <cmath>

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

double LadoMayor(const Valores& v) { return std::max(v[L1], v[L2]); }
double LadoMenor(const Valores& v) { return std::min(v[L1], v[L2]); }

constexpr Comprobaciones ComprobacionesDe(bool (*circuloFalla)(const Valores& v), int texto,
                                          double (*limite)(const Valores& v)) {
  return {{
      {H, [](const Valores& v) { return v[H] == 0; }, texto::kNoCero},
      {R, [](const Valores& v) { return v[R] == 0; }, texto::kNoCero},
      {L1, [](const Valores& v) { return v[L1] == 0; }, texto::kNoCero},
      {L2, [](const Valores& v) { return v[L2] == 0; }, texto::kNoCero},
      {R, circuloFalla, texto, {L1, L2}, limite},
      {Alfa,
       [](const Valores& v) { return std::abs(v[Alfa]) > AnguloMayor(v); },
       texto::kEntreAngulos,
       {},
       AnguloMayor},
  }};
}
constexpr Comprobaciones kComprobacionesCR =
    ComprobacionesDe([](const Valores& v) { return 2 * v[R] > LadoMayor(v); }, texto::kDobleHastaMayor, LadoMayor);
constexpr Comprobaciones kComprobacionesRC =
    ComprobacionesDe([](const Valores& v) { return 2 * v[R] < LadoMenor(v); }, texto::kDobleDesdeMenor, LadoMenor);

// The names of `estado` that a dialog stores its rectangle and its circle under.
struct Nombres {
  double EstadoPrograma::*lado1, EstadoPrograma::*lado2, EstadoPrograma::*radio;
  Boca Bocas::*rectangulo, Bocas::*circulo;
};
constexpr Nombres kNombresCR{&EstadoPrograma::dL1Base, &EstadoPrograma::dL2Base, &EstadoPrograma::dRadioAlto,
                             &Bocas::abajo, &Bocas::arriba};
constexpr Nombres kNombresRC{&EstadoPrograma::dL1BaseRC, &EstadoPrograma::dL2BaseRC, &EstadoPrograma::dRadioRC,
                             &Bocas::arriba, &Bocas::abajo};

// Without a known surface the sizes stored before stay, and are those of the piece.
template <const Nombres& nombres>
void Llena(const Valores& v, Pieza& pieza) {
  const auto pon = [&](Bocas& bocas, double lado1, double lado2, double radio) {
    bocas.*nombres.rectangulo = {lado1, lado2, {}};
    bocas.*nombres.circulo = Circulo(radio);
  };
  if (const auto fibra = CorreccionFibra(pieza.fibra, pieza.espesor)) {
    pon(pieza.entradas, v[L1], v[L2], v[R]);
    pon(pieza.corregidas, v[L1] + fibra->lado, v[L2] + fibra->lado, v[R] + fibra->radio);
  } else {
    pon(pieza.corregidas, estado.*nombres.lado1, estado.*nombres.lado2, estado.*nombres.radio);
    pieza.entradas = pieza.corregidas;
  }
  pieza.H = v[H];
  pieza.AX = v[AX];
  pieza.AY = v[AY];
  pieza.Alfa = v[Alfa];
  pieza.inicio = EnteroCorto(v[PosIni]);
  pieza.divisiones = EnteroCorto(v[Divi]);
}

template <const Nombres& nombres>
void Guarda(const Pieza& pieza) {
  const Boca& rectangulo = pieza.corregidas.*nombres.rectangulo;
  estado.*nombres.lado1 = rectangulo.LX;
  estado.*nombres.lado2 = rectangulo.LY;
  estado.*nombres.radio = (pieza.corregidas.*nombres.circulo).r(1);
  estado.dAltura = pieza.H;
  estado.dAx = pieza.AX;
  estado.dAy = pieza.AY;
  estado.dAlfa = pieza.Alfa;
  estado.iPosIni = static_cast<std::int16_t>(pieza.inicio);
  estado.iDivisiones = static_cast<std::int16_t>(pieza.divisiones);
  estado.bDosPiezas = pieza.dosPiezas;
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
                                 .llena = Llena<kNombresCR>,
                                 .guarda = Guarda<kNombresCR>};
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
                                 .llena = Llena<kNombresRC>,
                                 .guarda = Guarda<kNombresRC>};

}  // namespace duktores
