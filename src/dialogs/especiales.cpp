#include "dialogs/especiales.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <tuple>

#include "piece/numeros_texto.h"
#include "special/pieza_especial.h"
#include "state/estado.h"
#include "state/numeros.h"

namespace duktores {

namespace {

// clang-format off
//           control           word    label              text filter
constexpr std::array kCampos1{
    DefCampo{"TxtH",           "H",    Rotulo::longitud,  0,  FiltraNumero, {}},
    DefCampo{"TxtR11",         "r11",  Rotulo::longitud,  0,  FiltraNumero, {}},
    DefCampo{"TxtR12",         "r12",  Rotulo::longitud,  0,  FiltraNumero, {}},
    DefCampo{"TxtR13",         "r13",  Rotulo::longitud,  0,  FiltraNumero, {}},
    DefCampo{"TxtR14",         "r14",  Rotulo::longitud,  0,  FiltraNumero, {}},
    DefCampo{"TxtR21",         "r21",  Rotulo::longitud,  0,  FiltraNumero, {}},
    DefCampo{"TxtR22",         "r22",  Rotulo::longitud,  0,  FiltraNumero, {}},
    DefCampo{"TxtR23",         "r23",  Rotulo::longitud,  0,  FiltraNumero, {}},
    DefCampo{"TxtR24",         "r24",  Rotulo::longitud,  0,  FiltraNumero, {}},
    DefCampo{"TxtLX1",         "LX1",  Rotulo::longitud,  0,  FiltraNumero, {}},
    DefCampo{"TxtLY1",         "LY1",  Rotulo::longitud,  0,  FiltraNumero, {}},
    DefCampo{"TxtLX2",         "LX2",  Rotulo::longitud,  0,  FiltraNumero, {}},
    DefCampo{"TxtLY2",         "LY2",  Rotulo::longitud,  0,  FiltraNumero, {}},
    DefCampo{"TxtAX",          "AX",   Rotulo::longitud,  0,  FiltraNumero, {}, Uso::desvio},
    DefCampo{"TxtAY",          "AY",   Rotulo::longitud,  0,  FiltraNumero, {}, Uso::desvio},
    DefCampo{"TxtAlfa",        "Alfa", Rotulo::angulo,    texto::kAlfaChino, FiltraNumero, {}, Uso::desvio},
    DefCampo{"TxtBeta",        "Beta", Rotulo::angulo,    texto::kBetaChino, FiltraNumero, {}, Uso::desvio},
    DefCampo{"TxtDivisiones", "Divisions", Rotulo::texto, texto::kDivisiones, FiltraEntero, {}, Uso::divisiones},
};

constexpr std::array kCampos2{
    DefCampo{"TxtH",           "H",    Rotulo::longitud,  0,  FiltraNumero, {}},
    DefCampo{"TxtR",           "r",    Rotulo::longitud,  0,  FiltraNumero, {}},
    DefCampo{"TxtLX",          "Lx",   Rotulo::longitud,  0,  FiltraNumero, {}},
    DefCampo{"TxtLY",          "Ly",   Rotulo::longitud,  0,  FiltraNumero, {}},
    DefCampo{"TxtAX",          "Ax",   Rotulo::longitud,  0,  FiltraNumero, {}, Uso::desvio},
    DefCampo{"TxtAY",          "Ay",   Rotulo::longitud,  0,  FiltraNumero, {}, Uso::desvio},
    DefCampo{"TxtAlfa",        "Alfa", Rotulo::angulo,    texto::kAlfaChino, FiltraNumero, {}, Uso::desvio},
    DefCampo{"TxtBeta",        "Beta", Rotulo::angulo,    texto::kBetaChino, FiltraNumero, {}, Uso::desvio},
    DefCampo{"TxtDivisiones", "Divisions", Rotulo::texto, texto::kDivisiones, FiltraEntero, {}, Uso::divisiones},
};

constexpr std::array kCampos3{
    DefCampo{"TxtH",           "H",    Rotulo::longitud,  0,  FiltraNumero, {}},
    DefCampo{"TxtR",           "R",    Rotulo::longitud,  0,  FiltraNumero, {}},
    DefCampo{"TxtLX",          "LX",   Rotulo::longitud,  0,  FiltraNumero, {}},
    DefCampo{"TxtLY",          "LY",   Rotulo::longitud,  0,  FiltraNumero, {}},
    DefCampo{"TxtAX",          "AX",   Rotulo::longitud,  0,  FiltraNumero, {}, Uso::desvio},
    DefCampo{"TxtAY",          "AY",   Rotulo::longitud,  0,  FiltraNumero, {}, Uso::desvio},
    DefCampo{"TxtAlfa",        "Alfa", Rotulo::angulo,    texto::kAlfaChino, FiltraNumero, {}, Uso::desvio},
    DefCampo{"TxtBeta",        "Beta", Rotulo::angulo,    texto::kBetaChino, FiltraNumero, {}, Uso::desvio},
    DefCampo{"TxtDivisiones", "Divisions", Rotulo::texto, texto::kDivisiones, FiltraEntero, {}, Uso::divisiones},
};

constexpr std::array kCampos4{
    DefCampo{"TxtH",           "H",    Rotulo::longitud,  0,  FiltraNumero, {}},
    DefCampo{"TxtR1",          "r1",   Rotulo::longitud,  0,  FiltraNumero, {}},
    DefCampo{"TxtR21",         "r21",  Rotulo::longitud,  0,  FiltraNumero, {}},
    DefCampo{"TxtR22",         "r22",  Rotulo::longitud,  0,  FiltraNumero, {}},
    DefCampo{"TxtR23",         "r23",  Rotulo::longitud,  0,  FiltraNumero, {}},
    DefCampo{"TxtR24",         "r24",  Rotulo::longitud,  0,  FiltraNumero, {}},
    DefCampo{"TxtLX",          "Lx",   Rotulo::longitud,  0,  FiltraNumero, {}},
    DefCampo{"TxtLY",          "Ly",   Rotulo::longitud,  0,  FiltraNumero, {}},
    DefCampo{"TxtAX",          "Ax",   Rotulo::longitud,  0,  FiltraNumero, {}, Uso::desvio},
    DefCampo{"TxtAY",          "Ay",   Rotulo::longitud,  0,  FiltraNumero, {}, Uso::desvio},
    DefCampo{"TxtAlfa",        "Alfa", Rotulo::angulo,    texto::kAlfaChino, FiltraNumero, {}, Uso::desvio},
    DefCampo{"TxtBeta",        "Beta", Rotulo::angulo,    texto::kBetaChino, FiltraNumero, {}, Uso::desvio},
    DefCampo{"TxtDivisiones", "Divisions", Rotulo::texto, texto::kDivisiones, FiltraNumero, {}, Uso::divisiones},
};

constexpr std::array kCampos5{
    DefCampo{"TxtH",           "H",    Rotulo::longitud,  0,  FiltraNumero, {}},
    DefCampo{"TxtR11",         "r11",  Rotulo::longitud,  0,  FiltraNumero, {}},
    DefCampo{"TxtR12",         "r12",  Rotulo::longitud,  0,  FiltraNumero, {}},
    DefCampo{"TxtR13",         "r13",  Rotulo::longitud,  0,  FiltraNumero, {}},
    DefCampo{"TxtR14",         "r14",  Rotulo::longitud,  0,  FiltraNumero, {}},
    DefCampo{"TxtLX1",         "Lx1",  Rotulo::longitud,  0,  FiltraNumero, {}},
    DefCampo{"TxtLY1",         "Ly1",  Rotulo::longitud,  0,  FiltraNumero, {}},
    DefCampo{"TxtLX2",         "Lx2",  Rotulo::longitud,  0,  FiltraNumero, {}},
    DefCampo{"TxtLY2",         "Ly2",  Rotulo::longitud,  0,  FiltraNumero, {}},
    DefCampo{"TxtAX",          "Ax",   Rotulo::longitud,  0,  FiltraNumero, {}, Uso::desvio},
    DefCampo{"TxtAY",          "Ay",   Rotulo::longitud,  0,  FiltraNumero, {}, Uso::desvio},
    DefCampo{"TxtAlfa",        "Alfa", Rotulo::angulo,    texto::kAlfaChino, FiltraNumero, {}, Uso::desvio},
    DefCampo{"TxtBeta",        "Beta", Rotulo::angulo,    texto::kBetaChino, FiltraNumero, {}, Uso::desvio},
    DefCampo{"TxtDivisiones", "Divisions", Rotulo::texto, texto::kDivisiones, FiltraEntero, {}, Uso::divisiones},
};

// clang-format on

namespace esp1 {
enum Indice : int { H, R11, R12, R13, R14, R21, R22, R23, R24, LX1, LY1, LX2, LY2, AX, AY, Alfa, Beta, Divisiones };
}
namespace esp2 {
enum Indice : int { H, R, LX, LY, AX, AY, Alfa, Beta, Divisiones };
}
namespace esp4 {
enum Indice : int { H, R1, R21, R22, R23, R24, LX, LY, AX, AY, Alfa, Beta, Divisiones };
}
namespace esp5 {
enum Indice : int { H, R11, R12, R13, R14, LX1, LY1, LX2, LY2, AX, AY, Alfa, Beta, Divisiones };
}

double N(const Valores& v, int campo) { return v[static_cast<std::size_t>(campo)]; }

// Checks as templates over the fields that they compare.
template <int Campo>
double ValorDe(const Valores& v) {
  return N(v, Campo);
}
template <int Campo>
double MitadDe(const Valores& v) {
  return N(v, Campo) / 2;
}
double DivisionMayor(const Valores&) { return kMaximoDivisiones; }

template <int A, int B, int Limite>
constexpr Comprobacion SumaHasta(int campo = A) {
  const auto falla = [](const Valores& v) { return N(v, A) + N(v, B) > ValorDe<Limite>(v); };
  return {campo, falla, texto::kSumaHasta, {A, B, Limite}, ValorDe<Limite>};
}
template <int A, int Limite>
constexpr Comprobacion HastaMitad() {
  const auto falla = [](const Valores& v) { return N(v, A) > MitadDe<Limite>(v); };
  return {A, falla, texto::kHastaMitad, {Limite}, MitadDe<Limite>};
}
template <int Angulo>
constexpr Comprobacion EntreAngulos() {
  const auto falla = [](const Valores& v) { return std::abs(N(v, Angulo)) > AnguloMayor(v); };
  return {Angulo, falla, texto::kEntreAngulos, {}, AnguloMayor};
}
// 36 steps for each division must fit a 16-bit count.
template <int Divisiones>
constexpr Comprobacion Multiplo() {
  const auto falla = [](const Valores& v) {
    const double divisiones = std::nearbyint(N(v, Divisiones));
    return divisiones < 4 || divisiones > DivisionMayor(v) || std::fmod(divisiones, 4) != 0;
  };
  return {Divisiones, falla, texto::kMultiploDe4, {}, DivisionMayor};
}

// Whether the tilt carries the mouth below the base. A fine division is checked with fewer steps.
bool CortaLaBase(const PiezaEspecial& pieza, double divisiones) {
  constexpr int kMuchas = 12, kPasosDeMuchas = 20;
  const int cuantas = static_cast<int>(std::min(std::nearbyint(divisiones), double{kMaximoDivisiones}));
  return !CompruebaValido(pieza, cuantas * (cuantas > kMuchas ? kPasosDeMuchas : kPasosPorDivision));
}

// The first field and the last five are the same in all pieces.
struct Comunes {
  double H, AX, AY, Alfa, Beta, divisiones;
};
Comunes ComunesDe(const Valores& v) {
  const auto n = static_cast<int>(v.size());
  return {N(v, 0), N(v, n - 5), N(v, n - 4), N(v, n - 3), N(v, n - 2), N(v, n - 1)};
}

// Four fields in a row, each with `c` added.
Cuatro CuatroDesde(const Valores& v, int primero, double c = 0) {
  return {N(v, primero) + c, N(v, primero + 1) + c, N(v, primero + 2) + c, N(v, primero + 3) + c};
}

// The mouths that the fields of a dialog give, with `c` added to what the surface corrects.
Bocas Bocas1(const Valores& v, double c) {
  using namespace esp1;
  return {{N(v, LX1) + c, N(v, LY1) + c, CuatroDesde(v, R11, c)},
          {N(v, LX2) + c, N(v, LY2) + c, CuatroDesde(v, R21, c)}};
}
Bocas Bocas2(const Valores& v, double c) {
  using namespace esp2;
  const double LYc = N(v, LY) + c;
  return {Circulo(N(v, R) + c), {N(v, LX) + c, LYc, Cuatro(LYc / 2)}};
}
Bocas Bocas3(const Valores& v, double c) {
  Bocas bocas = Bocas2(v, c);
  bocas.abajo.r(1) = bocas.abajo.r(2) = 0;
  return bocas;
}
Bocas Bocas4(const Valores& v, double c) {
  using namespace esp4;
  return {Circulo(N(v, R1) + c), {N(v, LX) + c, N(v, LY) + c, CuatroDesde(v, R21, c)}};
}
// Only the radii are corrected here.
Bocas Bocas5(const Valores& v, double c) {
  using namespace esp5;
  return {{N(v, LX1), N(v, LY1), CuatroDesde(v, R11, c)}, {N(v, LX2), N(v, LY2), Cuatro(kRoce)}};
}

template <Bocas (*bocas)(const Valores&, double)>
constexpr Comprobacion SobreBase(int campo) {
  const auto falla = [](const Valores& v) {
    const auto [H, AX, AY, Alfa, Beta, divisiones] = ComunesDe(v);
    return CortaLaBase({bocas(v, 0), H, AX, AY, Alfa, Beta}, divisiones);
  };
  return {campo, falla, texto::kBajoBase};
}

namespace esp1 {
constexpr std::array kComprobaciones{
    SumaHasta<R11, R12, LY1>(), SumaHasta<R12, R13, LX1>(), SumaHasta<R13, R14, LY1>(), SumaHasta<R14, R11, LX1>(),
    SumaHasta<R21, R22, LY2>(), SumaHasta<R22, R23, LX2>(), SumaHasta<R23, R24, LY2>(), SumaHasta<R21, R24, LX2>(R24),
    EntreAngulos<Alfa>(),       EntreAngulos<Beta>(),       Multiplo<Divisiones>(),
};
}  // namespace esp1

namespace esp2 {
constexpr std::array kComprobaciones{
    Comprobacion{LY, [](const Valores& v) { return N(v, LY) > N(v, LX); }, texto::kHasta, {LX}, ValorDe<LX>},
    EntreAngulos<Alfa>(),
    EntreAngulos<Beta>(),
    Multiplo<Divisiones>(),
};
constexpr std::array kComprobaciones3{
    SobreBase<Bocas3>(Alfa),
    Comprobacion{LY, [](const Valores& v) { return MitadDe<LY>(v) > N(v, LX); }, texto::kMitadHasta, {LX}, ValorDe<LX>},
    EntreAngulos<Alfa>(),
    EntreAngulos<Beta>(),
    Multiplo<Divisiones>(),
};
}  // namespace esp2

namespace esp4 {
constexpr std::array kComprobaciones{
    SobreBase<Bocas4>(Alfa),      SumaHasta<R21, R22, LY>(), SumaHasta<R22, R23, LX>(), SumaHasta<R23, R24, LY>(),
    SumaHasta<R21, R24, LX>(R24), EntreAngulos<Alfa>(),      EntreAngulos<Beta>(),      Multiplo<Divisiones>(),
};
}  // namespace esp4

namespace esp5 {
constexpr std::array kComprobaciones{
    SobreBase<Bocas5>(Alfa), HastaMitad<R11, LY1>(), HastaMitad<R12, LY1>(), HastaMitad<R13, LY1>(),
    HastaMitad<R14, LY1>(),  HastaMitad<R11, LX1>(), HastaMitad<R12, LX1>(), HastaMitad<R13, LX1>(),
    HastaMitad<R14, LX1>(),  EntreAngulos<Alfa>(),   EntreAngulos<Beta>(),   Multiplo<Divisiones>(),
};
}  // namespace esp5

// Each piece's own names.
void Nombra15(const Bocas& bocas) {
  EstadoPrograma& e = estado;
  const auto& [arriba, abajo] = bocas;
  std::tie(e.dR11, e.dR12, e.dR13, e.dR14) = std::tuple(arriba.r(1), arriba.r(2), arriba.r(3), arriba.r(4));
  std::tie(e.dR21, e.dR22, e.dR23, e.dR24) = std::tuple(abajo.r(1), abajo.r(2), abajo.r(3), abajo.r(4));
}
void Nombra23(const Bocas& bocas) {
  estado.dRadioEsp = bocas.arriba.r(1);
  estado.dRadioEsp2 = bocas.abajo.r(3);
}

// Half a thickness inwards or outwards, for radii and sides alike.
template <Bocas (*bocas)(const Valores&, double)>
void Llena(const Valores& v, Pieza& pieza) {
  const auto fibra = CorreccionFibra(pieza.fibra, pieza.espesor);
  pieza.entradas = bocas(v, 0);
  pieza.corregidas = bocas(v, fibra ? fibra->radio : 0);
  const auto comunes = ComunesDe(v);
  std::tie(pieza.H, pieza.AX, pieza.AY) = std::tie(comunes.H, comunes.AX, comunes.AY);
  std::tie(pieza.Alfa, pieza.Beta) = std::tie(comunes.Alfa, comunes.Beta);
  pieza.divisiones = EnteroCorto(comunes.divisiones);
}

// The angles are held negated.
template <void (*nombra)(const Bocas&)>
void Guarda(const Pieza& pieza) {
  EstadoPrograma& e = estado;
  std::tie(e.dAltura, e.dAx, e.dAy) = std::tie(pieza.H, pieza.AX, pieza.AY);
  e.dAlfa = -pieza.Alfa;
  e.dBeta = -pieza.Beta;
  e.iDivisiones = static_cast<std::int16_t>(pieza.divisiones);
  const auto& [arriba, abajo] = pieza.corregidas;
  std::tie(e.dLX1, e.dLY1, e.dLX2, e.dLY2) = std::tuple(arriba.LX, arriba.LY, abajo.LX, abajo.LY);
  nombra(pieza.corregidas);
}

// All but the texts, tables and the storing is the same in the five.
constexpr DefDialogo Especial(TipoPieza tipo, std::string_view nombre, std::string_view clave, int titulo, int error,
                              std::span<const DefCampo> campos, std::span<const Comprobacion> comprobaciones,
                              void (*llena)(const Valores&, Pieza&), void (*guarda)(const Pieza&)) {
  return {.tipo = tipo,
          .nombre = nombre,
          .clave = clave,
          .poneTipo = true,
          .textoTitulo = titulo,
          .textoVacio = texto::kFaltanDatos,
          .textoError = error,
          .campos = campos,
          .comprobaciones = comprobaciones,
          .opcionPiezas = false,
          .olvidaPiezas = false,
          .llena = llena,
          .guarda = guarda};
}

}  // namespace

// clang-format off
constexpr DefDialogo kFrTransfEsp1 = Especial(TipoPieza::esp1, "FrTransfEsp1", "TransEsp1", texto::kTransEsp1,
    texto::kDatoErroneo,     kCampos1, esp1::kComprobaciones,  Llena<Bocas1>, Guarda<Nombra15>);
constexpr DefDialogo kFrTansfEsp2 = Especial(TipoPieza::esp2, "FrTansfEsp2", "TransEsp2", texto::kTransEsp2,
    texto::kDatoErroneo,     kCampos2, esp2::kComprobaciones,  Llena<Bocas2>, Guarda<Nombra23>);
constexpr DefDialogo kFrTransfEsp3 = Especial(TipoPieza::esp3, "FrTransfEsp3", "TransEsp3", texto::kTransEsp3,
    texto::kDatoErroneoEsp3, kCampos3, esp2::kComprobaciones3, Llena<Bocas3>, Guarda<Nombra23>);
constexpr DefDialogo kFrTransEsp4 = Especial(TipoPieza::esp4, "FrTransEsp4", "TransEsp4", texto::kTransEsp4,
    texto::kDatoErroneo,     kCampos4, esp4::kComprobaciones,  Llena<Bocas4>, Guarda<Nombra15>);
constexpr DefDialogo kFrTransEspe5 = Especial(TipoPieza::esp5, "FrTransEspe5", "TransEsp5", texto::kTransEsp5,
    texto::kDatoErroneo,     kCampos5, esp5::kComprobaciones,  Llena<Bocas5>, Guarda<Nombra15>);
// clang-format on

}  // namespace duktores
