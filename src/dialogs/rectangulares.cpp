#include "dialogs/rectangulares.h"

#include <algorithm>
#include <array>

#include "dialogs/fibra.h"
#include "state/estado.h"
#include "state/numeros.h"

namespace duktores {

namespace {

enum Indice : std::size_t { H, R, L1, L2, AX, AY, Alfa, Divi, PosIni };

constexpr std::array<std::string_view, 10> kDivisiones{"12", "24", "36", "48", "60", "72", "84", "96", "108", "120"};
constexpr std::array<std::string_view, 4> kPosiciones{"1", "2", "3", "4"};

// clang-format off
constexpr std::array kCamposCR{
    // control            word         label                     text  filter             combo
    DefCampo{"TxtH",      "H",         Rotulo::longitud,          0,   FiltraNumero,      {}},
    DefCampo{"TxtRS",     "RS",        Rotulo::longitud,          0,   FiltraNumero,      {}},
    DefCampo{"TxtLI",     "LI",        Rotulo::longitud,          0,   FiltraNumero,      {}},
    DefCampo{"TxtAI",     "AI",        Rotulo::longitud,          0,   FiltraNumero,      {}},
    DefCampo{"TxtAX",     "AX",        Rotulo::longitud,          0,   FiltraNumero,      {}},
    DefCampo{"TxtAY",     "AY",        Rotulo::longitud,          0,   FiltraNumero,      {}},
    DefCampo{"TxtAlfa",   "Alfa",      Rotulo::angulo,           67,   FiltraNumeroSigno, {}},
    DefCampo{"CmbDivi",   "Divisions", Rotulo::texto,            19,   nullptr,           kDivisiones},
    DefCampo{"CmbPosIni", "Start",     Rotulo::textoDosPuntos,   27,   nullptr,           kPosiciones},
};

constexpr std::array kComprobacionesCR{
    Comprobacion{H,    [](const Valores& v) { return v[H] == 0; }},
    Comprobacion{R,    [](const Valores& v) { return v[R] == 0; }},
    Comprobacion{L1,   [](const Valores& v) { return v[L1] == 0; }},
    Comprobacion{L2,   [](const Valores& v) { return v[L2] == 0; }},
    Comprobacion{R,    [](const Valores& v) { return 2 * v[R] > std::max(v[L1], v[L2]); }},
    Comprobacion{Alfa, [](const Valores& v) { return v[Alfa] < -90 || v[Alfa] > 90; }},
};
// clang-format on

void GuardaCR(const Valores& v, bool dosPiezas) {
  estado.dAltura = v[H];
  if (const auto fibra = CorreccionFibra()) {
    estado.dL1Base = v[L1] + fibra->lado;
    estado.dL2Base = v[L2] + fibra->lado;
    estado.dRadioAlto = v[R] + fibra->radio;
  }
  estado.dAx = v[AX];
  estado.dAy = v[AY];
  estado.dAlfa = v[Alfa];
  estado.iPosIni = EnteroCorto(v[PosIni]);
  estado.iDivisiones = EnteroCorto(v[Divi]);
  estado.bDosPiezas = dosPiezas;
}

}  // namespace

constexpr DefDialogo kFrTransfCR{"FrTransfCR", "TransCR", 11, 15, 20, kCamposCR, kComprobacionesCR, true, GuardaCR};

}  // namespace duktores
