#include "dialogs/eliptico.h"

#include <array>
#include <cmath>
#include <tuple>

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
    Comprobacion{H,        [](const Valores& v) { return v[H] == 0; }, texto::kNoCero},
    Comprobacion{EjeMayor, [](const Valores& v) { return v[EjeMayor] == 0; }, texto::kNoCero},
    Comprobacion{EjeMenor, [](const Valores& v) { return v[EjeMenor] == 0; }, texto::kNoCero},
    Comprobacion{L1,       [](const Valores& v) { return v[L1] == 0; }, texto::kNoCero},
    Comprobacion{L2,       [](const Valores& v) { return v[L2] == 0; }, texto::kNoCero},
    Comprobacion{EjeMayor, [](const Valores& v) { return v[EjeMayor] < v[EjeMenor]; }, texto::kDesde, {EjeMenor},
                 [](const Valores& v) { return v[EjeMenor]; }},
    Comprobacion{Alfa,     [](const Valores& v) { return std::abs(v[Alfa]) > AnguloMayor(v); },
                 texto::kEntreAngulos, {}, AnguloMayor},
};
// clang-format on

// An axis is kept as its text keeps it.
double ComoTexto(double eje) { return NumeroDeTexto(TextoDeNumero(eje)); }

// Without a known surface the sizes stored before stay, and are those of the piece.
void Llena(const Valores& v, Pieza& pieza) {
  const EstadoPrograma& e = estado;
  if (const auto fibra = CorreccionFibra(pieza.fibra, pieza.espesor)) {
    pieza.entradas = {{v[EjeMayor], v[EjeMenor], {}}, {v[L1], v[L2], {}}};
    pieza.corregidas = {{ComoTexto(v[EjeMayor] + fibra->radio), ComoTexto(v[EjeMenor] + fibra->radio), {}},
                        {v[L1] + fibra->lado, v[L2] + fibra->lado, {}}};
  } else {
    pieza.entradas = pieza.corregidas = {{e.dEjeMayorElip, e.dEjeMenorElip, {}}, {e.dL1Elip, e.dL2Elip, {}}};
  }
  pieza.H = v[H];
  pieza.AX = v[AX];
  pieza.AY = v[AY];
  pieza.Alfa = v[Alfa];
  pieza.inicio = EnteroCorto(v[PosIni]);
  pieza.divisiones = EnteroCorto(v[Divi]);
}

void Guarda(const Pieza& pieza) {
  EstadoPrograma& e = estado;
  const auto& [elipse, rectangulo] = pieza.corregidas;
  std::tie(e.dEjeMayorElip, e.dEjeMenorElip) = std::tie(elipse.LX, elipse.LY);
  std::tie(e.dL1Elip, e.dL2Elip) = std::tie(rectangulo.LX, rectangulo.LY);
  e.dAltura = pieza.H;
  e.dAx = pieza.AX;
  e.dAyElip = pieza.AY;
  e.dAlfa = pieza.Alfa;
  e.iPosIniElip = static_cast<std::int16_t>(pieza.inicio);
  e.iDivisiones = static_cast<std::int16_t>(pieza.divisiones);
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
                                          .llena = Llena,
                                          .guarda = Guarda};

}  // namespace duktores
