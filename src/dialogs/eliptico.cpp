#include "dialogs/eliptico.h"

#include <array>

#include "dialogs/combos.h"
#include "state/estado.h"
#include "state/fibra.h"
#include "state/numeros.h"

namespace duktores {

namespace {

enum Indice : std::size_t { H, EjeMayor, EjeMenor, L1, L2, AX, AY, Alfa, Divi, PosIni };

// No field takes a sign here: neither tilt nor offsets can be negative.
// clang-format off
constexpr std::array kCampos{
    //       control      word         label                  text  filter        combo
    DefCampo{"TxtH",      "H",         Rotulo::textoLongitud, 51,   FiltraNumero, {}},
    DefCampo{"TxteMaS",   "eMaS",      Rotulo::textoLongitud, 52,   FiltraNumero, {}},
    DefCampo{"TxteMeS",   "eMeS",      Rotulo::textoLongitud, 53,   FiltraNumero, {}},
    DefCampo{"TxtL",      "Li",        Rotulo::textoLongitud, 59,   FiltraNumero, {}},
    DefCampo{"TxtA",      "Ai",        Rotulo::textoLongitud, 60,   FiltraNumero, {}},
    DefCampo{"TxtAX",     "AX",        Rotulo::textoLongitud, 54,   FiltraNumero, {}},
    DefCampo{"TxtAY",     "AY",        Rotulo::textoLongitud, 55,   FiltraNumero, {}},
    DefCampo{"TxtAlfa",   "Alfa",      Rotulo::angulo,        67,   FiltraNumero, {}},
    DefCampo{"CmbDivi",   "Divisions", Rotulo::texto,         57,   nullptr,      kDivisiones},
    DefCampo{"CmbPosIni", "Start",     Rotulo::texto,         58,   nullptr,      kPosiciones},
};

constexpr std::array kComprobaciones{
    Comprobacion{H,        [](const Valores& v) { return v[H] == 0; }},
    Comprobacion{EjeMayor, [](const Valores& v) { return v[EjeMayor] == 0; }},
    Comprobacion{EjeMenor, [](const Valores& v) { return v[EjeMenor] == 0; }},
    Comprobacion{L1,       [](const Valores& v) { return v[L1] == 0; }},
    Comprobacion{L2,       [](const Valores& v) { return v[L2] == 0; }},
    Comprobacion{EjeMayor, [](const Valores& v) { return v[EjeMayor] < v[EjeMenor]; }},
    Comprobacion{Alfa,     [](const Valores& v) { return v[Alfa] < -90 || v[Alfa] > 90; }},
};
// clang-format on

// An axis is kept as its text keeps it.
double ComoTexto(double eje) { return NumeroDeTexto(TextoDeNumero(eje)); }

void Guarda(const Valores& v, bool dosPiezas) {
  estado.dAltura = v[H];
  if (const auto fibra = CorreccionFibra()) {
    estado.dL1Elip = v[L1] + fibra->lado;
    estado.dL2Elip = v[L2] + fibra->lado;
    estado.dEjeMayorElip = ComoTexto(v[EjeMayor] + fibra->radio);
    estado.dEjeMenorElip = ComoTexto(v[EjeMenor] + fibra->radio);
  }
  estado.dAx = v[AX];
  estado.dAyElip = v[AY];
  estado.dAlfa = v[Alfa];
  estado.iPosIniElip = EnteroCorto(v[PosIni]);
  estado.iDivisiones = EnteroCorto(v[Divi]);
  estado.bDosPiezas = dosPiezas;
}

}  // namespace

constexpr DefDialogo kFrTransBaRectBoElip{.nombre = "FrTransBaRectBoElip",
                                          .clave = "TransElip",
                                          .poneTipo = false,
                                          .textoTitulo = 50,
                                          .textoVacio = 61,
                                          .textoError = 20,
                                          .campos = kCampos,
                                          .comprobaciones = kComprobaciones,
                                          .opcionPiezas = true,
                                          .olvidaPiezas = true,
                                          .guarda = Guarda};

}  // namespace duktores
