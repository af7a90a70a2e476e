#include "dialogs/eliptico.h"

#include <array>

#include "dialogs/combos.h"
#include "piece/numeros_texto.h"
#include "state/estado.h"
#include "state/numeros.h"

namespace duktores {

namespace {

enum Indice : std::size_t { H, EjeMayor, EjeMenor, L1, L2, AX, AY, Alfa, Divi, PosIni };

// No field takes a sign here: neither tilt nor offsets can be negative.
// clang-format off
constexpr std::array kCampos{
    //       control      word         label                  text                         filter        combo
    DefCampo{"TxtH",      "H",         Rotulo::textoLongitud, texto::kH,                   FiltraNumero, {}},
    DefCampo{"TxteMaS",   "eMaS",      Rotulo::textoLongitud, texto::kEjeMayor,            FiltraNumero, {}},
    DefCampo{"TxteMeS",   "eMeS",      Rotulo::textoLongitud, texto::kEjeMenor,            FiltraNumero, {}},
    DefCampo{"TxtL",      "Li",        Rotulo::textoLongitud, texto::kLi,                  FiltraNumero, {}},
    DefCampo{"TxtA",      "Ai",        Rotulo::textoLongitud, texto::kAi,                  FiltraNumero, {}},
    DefCampo{"TxtAX",     "AX",        Rotulo::textoLongitud, texto::kAX, FiltraNumero, {}, Uso::desvio},
    DefCampo{"TxtAY",     "AY",        Rotulo::textoLongitud, texto::kAY, FiltraNumero, {}, Uso::desvio},
    DefCampo{"TxtAlfa",   "Alfa",      Rotulo::angulo,        texto::kAlfaChino, FiltraNumero, {}, Uso::desvio},
    DefCampo{"CmbDivi",   "Divisions", Rotulo::texto,         texto::kDivisionesElip,      nullptr,      kDivisiones},
    DefCampo{"CmbPosIni", "Start",     Rotulo::texto,         texto::kPosicionInicioElip,  nullptr,      kPosiciones},
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

// Without a known surface the sizes stored before stay, and are those of the piece.
void Guarda(const Valores& v, Pieza& pieza) {
  EstadoPrograma& e = estado;
  const auto guardadas = [&] { return Bocas{{e.dEjeMayorElip, e.dEjeMenorElip, {}}, {e.dL1Elip, e.dL2Elip, {}}}; };
  pieza.entradas = guardadas();
  if (const auto fibra = CorreccionFibra(pieza.fibra, pieza.espesor)) {
    pieza.entradas = {{v[EjeMayor], v[EjeMenor], {}}, {v[L1], v[L2], {}}};
    e.dL1Elip = v[L1] + fibra->lado;
    e.dL2Elip = v[L2] + fibra->lado;
    e.dEjeMayorElip = ComoTexto(v[EjeMayor] + fibra->radio);
    e.dEjeMenorElip = ComoTexto(v[EjeMenor] + fibra->radio);
  }
  pieza.corregidas = guardadas();
  pieza.H = e.dAltura = v[H];
  pieza.AX = e.dAx = v[AX];
  pieza.AY = e.dAyElip = v[AY];
  pieza.Alfa = e.dAlfa = v[Alfa];
  pieza.inicio = e.iPosIniElip = EnteroCorto(v[PosIni]);
  pieza.divisiones = e.iDivisiones = EnteroCorto(v[Divi]);
  e.bDosPiezas = pieza.dosPiezas;
}

}  // namespace

constexpr DefDialogo kFrTransBaRectBoElip{.tipo = TipoPieza::elip,
                                          .nombre = "FrTransBaRectBoElip",
                                          .clave = "TransElip",
                                          .poneTipo = false,
                                          .textoTitulo = texto::kTransElip,
                                          .textoVacio = texto::kFaltanDatosElip,
                                          .textoError = texto::kDatoErroneo,
                                          .campos = kCampos,
                                          .comprobaciones = kComprobaciones,
                                          .opcionPiezas = true,
                                          .olvidaPiezas = true,
                                          .guarda = Guarda};

}  // namespace duktores
