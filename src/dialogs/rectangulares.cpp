#include "dialogs/rectangulares.h"

#include <algorithm>
#include <array>

#include "dialogs/combos.h"
#include "state/estado.h"
#include "state/fibra.h"
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
      {"TxtAX",      "AX",        Rotulo::longitud,        0,   FiltraNumero,      {}},
      {"TxtAY",      "AY",        Rotulo::longitud,        0,   FiltraNumero,      {}},
      {"TxtAlfa",    "Alfa",      Rotulo::angulo,         67,   FiltraNumeroSigno, {}},
      {"CmbDivi",    "Divisions", Rotulo::texto,          19,   nullptr,           kDivisiones},
      {"CmbPosIni",  "Start",     Rotulo::textoDosPuntos, 27,   nullptr,           kPosiciones},
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

void GuardaComun(const Valores& v, bool dosPiezas, double& lado1, double& lado2, double& radio) {
  estado.dAltura = v[H];
  if (const auto fibra = CorreccionFibra()) {
    lado1 = v[L1] + fibra->lado;
    lado2 = v[L2] + fibra->lado;
    radio = v[R] + fibra->radio;
  }
  estado.dAx = v[AX];
  estado.dAy = v[AY];
  estado.dAlfa = v[Alfa];
  estado.iPosIni = EnteroCorto(v[PosIni]);
  estado.iDivisiones = EnteroCorto(v[Divi]);
  estado.bDosPiezas = dosPiezas;
}

void GuardaCR(const Valores& v, bool dosPiezas) {
  GuardaComun(v, dosPiezas, estado.dL1Base, estado.dL2Base, estado.dRadioAlto);
}

void GuardaRC(const Valores& v, bool dosPiezas) {
  GuardaComun(v, dosPiezas, estado.dL1BaseRC, estado.dL2BaseRC, estado.dRadioRC);
}

}  // namespace

constexpr DefDialogo kFrTransfCR{.nombre = "FrTransfCR",
                                 .clave = "TransCR",
                                 .poneTipo = true,
                                 .textoTitulo = 11,
                                 .textoVacio = 15,
                                 .textoError = 20,
                                 .campos = kCamposCR,
                                 .comprobaciones = kComprobacionesCR,
                                 .opcionPiezas = true,
                                 .olvidaPiezas = false,
                                 .guarda = GuardaCR};
constexpr DefDialogo kFrTransfRC{.nombre = "FrTransfRC",
                                 .clave = "TransRC",
                                 .poneTipo = true,
                                 .textoTitulo = 12,
                                 .textoVacio = 15,
                                 .textoError = 20,
                                 .campos = kCamposRC,
                                 .comprobaciones = kComprobacionesRC,
                                 .opcionPiezas = true,
                                 .olvidaPiezas = false,
                                 .guarda = GuardaRC};

}  // namespace duktores
