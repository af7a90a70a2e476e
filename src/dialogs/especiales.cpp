#include "dialogs/especiales.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <tuple>

#include "special/pieza.h"
#include "special/solido_especial.h"
#include "state/estado.h"
#include "state/fibra.h"
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
    DefCampo{"TxtAX",          "AX",   Rotulo::longitud,  0,  FiltraNumero, {}},
    DefCampo{"TxtAY",          "AY",   Rotulo::longitud,  0,  FiltraNumero, {}},
    DefCampo{"TxtAlfa",        "Alfa", Rotulo::angulo,    67, FiltraNumero, {}},
    DefCampo{"TxtBeta",        "Beta", Rotulo::angulo,    68, FiltraNumero, {}},
    DefCampo{"TxtDivisiones", "Divisions", Rotulo::texto, 19, FiltraEntero, {}, true},
};

constexpr std::array kCampos2{
    DefCampo{"TxtH",           "H",    Rotulo::longitud,  0,  FiltraNumero, {}},
    DefCampo{"TxtR",           "r",    Rotulo::longitud,  0,  FiltraNumero, {}},
    DefCampo{"TxtLX",          "Lx",   Rotulo::longitud,  0,  FiltraNumero, {}},
    DefCampo{"TxtLY",          "Ly",   Rotulo::longitud,  0,  FiltraNumero, {}},
    DefCampo{"TxtAX",          "Ax",   Rotulo::longitud,  0,  FiltraNumero, {}},
    DefCampo{"TxtAY",          "Ay",   Rotulo::longitud,  0,  FiltraNumero, {}},
    DefCampo{"TxtAlfa",        "Alfa", Rotulo::angulo,    67, FiltraNumero, {}},
    DefCampo{"TxtBeta",        "Beta", Rotulo::angulo,    68, FiltraNumero, {}},
    DefCampo{"TxtDivisiones", "Divisions", Rotulo::texto, 19, FiltraEntero, {}, true},
};

constexpr std::array kCampos3{
    DefCampo{"TxtH",           "H",    Rotulo::longitud,  0,  FiltraNumero, {}},
    DefCampo{"TxtR",           "R",    Rotulo::longitud,  0,  FiltraNumero, {}},
    DefCampo{"TxtLX",          "LX",   Rotulo::longitud,  0,  FiltraNumero, {}},
    DefCampo{"TxtLY",          "LY",   Rotulo::longitud,  0,  FiltraNumero, {}},
    DefCampo{"TxtAX",          "AX",   Rotulo::longitud,  0,  FiltraNumero, {}},
    DefCampo{"TxtAY",          "AY",   Rotulo::longitud,  0,  FiltraNumero, {}},
    DefCampo{"TxtAlfa",        "Alfa", Rotulo::angulo,    67, FiltraNumero, {}},
    DefCampo{"TxtBeta",        "Beta", Rotulo::angulo,    68, FiltraNumero, {}},
    DefCampo{"TxtDivisiones", "Divisions", Rotulo::texto, 19, FiltraEntero, {}, true},
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
    DefCampo{"TxtAX",          "Ax",   Rotulo::longitud,  0,  FiltraNumero, {}},
    DefCampo{"TxtAY",          "Ay",   Rotulo::longitud,  0,  FiltraNumero, {}},
    DefCampo{"TxtAlfa",        "Alfa", Rotulo::angulo,    67, FiltraNumero, {}},
    DefCampo{"TxtBeta",        "Beta", Rotulo::angulo,    68, FiltraNumero, {}},
    DefCampo{"TxtDivisiones", "Divisions", Rotulo::texto, 19, FiltraNumero, {}, true},
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
    DefCampo{"TxtAX",          "Ax",   Rotulo::longitud,  0,  FiltraNumero, {}},
    DefCampo{"TxtAY",          "Ay",   Rotulo::longitud,  0,  FiltraNumero, {}},
    DefCampo{"TxtAlfa",        "Alfa", Rotulo::angulo,    67, FiltraNumero, {}},
    DefCampo{"TxtBeta",        "Beta", Rotulo::angulo,    68, FiltraNumero, {}},
    DefCampo{"TxtDivisiones", "Divisions", Rotulo::texto, 19, FiltraEntero, {}, true},
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
template <int A, int B, int Limite>
bool SumaExcede(const Valores& v) {
  return N(v, A) + N(v, B) > N(v, Limite);
}
template <int A, int Limite>
bool ExcedeMitad(const Valores& v) {
  return N(v, A) > N(v, Limite) / 2;
}
template <int Angulo>
bool FueraDeAngulo(const Valores& v) {
  return N(v, Angulo) < -90 || N(v, Angulo) > 90;
}
// 36 steps for each division must fit a 16-bit count.
template <int Divisiones>
bool MalasDivisiones(const Valores& v) {
  constexpr double kMaximo = 908;
  const double divisiones = std::nearbyint(N(v, Divisiones));
  return divisiones < 4 || divisiones > kMaximo || std::fmod(divisiones, 4) != 0;
}

// Whether the tilt carries the mouth below the base. A fine division is checked with fewer steps.
bool CortaLaBase(const PiezaEspecial& pieza, double divisiones) {
  constexpr int kMuchas = 12, kMaximo = 908;
  const int cuantas = static_cast<int>(std::min(std::nearbyint(divisiones), double{kMaximo}));
  return !CompruebaValido(pieza, cuantas * (cuantas > kMuchas ? 20 : 36));
}
bool CortaLaBase3(const Valores& v) {
  using namespace esp2;
  const double mitad = N(v, LY) / 2, lado = 2 * N(v, R);
  return CortaLaBase({Cuatro(N(v, R)), Cuatro(0, 0, mitad, mitad), lado, lado, N(v, LX), N(v, LY), N(v, H), N(v, AX),
                      N(v, AY), -N(v, Alfa), -N(v, Beta)},
                     N(v, Divisiones));
}
bool CortaLaBase4(const Valores& v) {
  using namespace esp4;
  return CortaLaBase({Cuatro(N(v, R1)), Cuatro(N(v, R21), N(v, R22), N(v, R23), N(v, R24)), 2 * N(v, R1), 2 * N(v, R1),
                      N(v, LX), N(v, LY), N(v, H), N(v, AX), N(v, AY), -N(v, Alfa), -N(v, Beta)},
                     N(v, Divisiones));
}
bool CortaLaBase5(const Valores& v) {
  using namespace esp5;
  return CortaLaBase({Cuatro(N(v, R11), N(v, R12), N(v, R13), N(v, R14)), Cuatro(0.005), N(v, LX1), N(v, LY1),
                      N(v, LX2), N(v, LY2), N(v, H), N(v, AX), N(v, AY), -N(v, Alfa), -N(v, Beta)},
                     N(v, Divisiones));
}

namespace esp1 {
constexpr std::array kComprobaciones{
    Comprobacion{R11, SumaExcede<R11, R12, LY1>},
    Comprobacion{R12, SumaExcede<R12, R13, LX1>},
    Comprobacion{R13, SumaExcede<R13, R14, LY1>},
    Comprobacion{R14, SumaExcede<R14, R11, LX1>},
    Comprobacion{R21, SumaExcede<R21, R22, LY2>},
    Comprobacion{R22, SumaExcede<R22, R23, LX2>},
    Comprobacion{R23, SumaExcede<R23, R24, LY2>},
    Comprobacion{R24, SumaExcede<R21, R24, LX2>},
    Comprobacion{Alfa, FueraDeAngulo<Alfa>},
    Comprobacion{Beta, FueraDeAngulo<Beta>},
    Comprobacion{Divisiones, MalasDivisiones<Divisiones>},
};
}  // namespace esp1

namespace esp2 {
constexpr std::array kComprobaciones{
    Comprobacion{LY, [](const Valores& v) { return N(v, LY) > N(v, LX); }},
    Comprobacion{Alfa, FueraDeAngulo<Alfa>},
    Comprobacion{Beta, FueraDeAngulo<Beta>},
    Comprobacion{Divisiones, MalasDivisiones<Divisiones>},
};
constexpr std::array kComprobaciones3{
    Comprobacion{Alfa, CortaLaBase3},
    Comprobacion{LY, [](const Valores& v) { return N(v, LY) / 2 > N(v, LX); }},
    Comprobacion{Alfa, FueraDeAngulo<Alfa>},
    Comprobacion{Beta, FueraDeAngulo<Beta>},
    Comprobacion{Divisiones, MalasDivisiones<Divisiones>},
};
}  // namespace esp2

namespace esp4 {
constexpr std::array kComprobaciones{
    Comprobacion{Alfa, CortaLaBase4},
    Comprobacion{R21, SumaExcede<R21, R22, LY>},
    Comprobacion{R22, SumaExcede<R22, R23, LX>},
    Comprobacion{R23, SumaExcede<R23, R24, LY>},
    Comprobacion{R24, SumaExcede<R21, R24, LX>},
    Comprobacion{Alfa, FueraDeAngulo<Alfa>},
    Comprobacion{Beta, FueraDeAngulo<Beta>},
    Comprobacion{Divisiones, MalasDivisiones<Divisiones>},
};
}  // namespace esp4

namespace esp5 {
constexpr std::array kComprobaciones{
    Comprobacion{Alfa, CortaLaBase5},         Comprobacion{R11, ExcedeMitad<R11, LY1>},
    Comprobacion{R12, ExcedeMitad<R12, LY1>}, Comprobacion{R13, ExcedeMitad<R13, LY1>},
    Comprobacion{R14, ExcedeMitad<R14, LY1>}, Comprobacion{R11, ExcedeMitad<R11, LX1>},
    Comprobacion{R12, ExcedeMitad<R12, LX1>}, Comprobacion{R13, ExcedeMitad<R13, LX1>},
    Comprobacion{R14, ExcedeMitad<R14, LX1>}, Comprobacion{Alfa, FueraDeAngulo<Alfa>},
    Comprobacion{Beta, FueraDeAngulo<Beta>},  Comprobacion{Divisiones, MalasDivisiones<Divisiones>},
};
}  // namespace esp5

// Half a thickness inwards or outwards, for all radii and sides alike.
double Fibra() {
  const auto fibra = CorreccionFibra();
  return fibra ? fibra->radio : 0;
}

// The first field and the last five are the same in all pieces. The angles are held negated.
void GuardaComun(const Valores& v) {
  const auto n = static_cast<int>(v.size());
  estado.dAltura = N(v, 0);
  estado.dAx = N(v, n - 5);
  estado.dAy = N(v, n - 4);
  estado.dAlfa = -N(v, n - 3);
  estado.dBeta = -N(v, n - 2);
  estado.iDivisiones = EnteroCorto(N(v, n - 1));
}

// Four fields in a row, corrected.
auto CuatroDesde(const Valores& v, int primero, double c) {
  return std::tuple(N(v, primero) + c, N(v, primero + 1) + c, N(v, primero + 2) + c, N(v, primero + 3) + c);
}

void Guarda1(const Valores& v, bool) {
  using namespace esp1;
  const double c = Fibra();
  EstadoPrograma& e = estado;
  std::tie(e.dR11, e.dR12, e.dR13, e.dR14) = CuatroDesde(v, R11, c);
  std::tie(e.dR21, e.dR22, e.dR23, e.dR24) = CuatroDesde(v, R21, c);
  std::tie(e.dLX1, e.dLY1, e.dLX2, e.dLY2) = CuatroDesde(v, LX1, c);
  GuardaComun(v);
}

void Guarda23(const Valores& v, bool) {
  using namespace esp2;
  const double c = Fibra();
  estado.dRadioEsp = N(v, R) + c;
  estado.dLX2 = N(v, LX) + c;
  estado.dLY2 = N(v, LY) + c;
  estado.dLX1 = estado.dLY1 = 2 * estado.dRadioEsp;
  estado.dRadioEsp2 = estado.dLY2 / 2;
  GuardaComun(v);
}

void Guarda4(const Valores& v, bool) {
  using namespace esp4;
  const double c = Fibra();
  EstadoPrograma& e = estado;
  std::tie(e.dR21, e.dR22, e.dR23, e.dR24) = CuatroDesde(v, R21, c);
  e.dR11 = e.dR12 = e.dR13 = e.dR14 = N(v, R1) + c;
  e.dLX2 = N(v, LX) + c;
  e.dLY2 = N(v, LY) + c;
  e.dLX1 = e.dLY1 = 2 * e.dR11;
  GuardaComun(v);
}

// Only the radii are corrected here.
void Guarda5(const Valores& v, bool) {
  using namespace esp5;
  const double c = Fibra();
  EstadoPrograma& e = estado;
  std::tie(e.dR11, e.dR12, e.dR13, e.dR14) = CuatroDesde(v, R11, c);
  e.dR21 = e.dR22 = e.dR23 = e.dR24 = 0.005;
  std::tie(e.dLX1, e.dLY1, e.dLX2, e.dLY2) = CuatroDesde(v, LX1, 0);
  GuardaComun(v);
}

// All but the texts, tables and the storing is the same in the five.
constexpr DefDialogo Especial(std::string_view nombre, std::string_view clave, int titulo, int error,
                              std::span<const DefCampo> campos, std::span<const Comprobacion> comprobaciones,
                              void (*guarda)(const Valores&, bool)) {
  return {.nombre = nombre,
          .clave = clave,
          .poneTipo = true,
          .textoTitulo = titulo,
          .textoVacio = 15,
          .textoError = error,
          .campos = campos,
          .comprobaciones = comprobaciones,
          .opcionPiezas = false,
          .olvidaPiezas = false,
          .guarda = guarda};
}

}  // namespace

constexpr DefDialogo kFrTransfEsp1 =
    Especial("FrTransfEsp1", "TransEsp1", 42, 20, kCampos1, esp1::kComprobaciones, Guarda1);
constexpr DefDialogo kFrTansfEsp2 =
    Especial("FrTansfEsp2", "TransEsp2", 43, 20, kCampos2, esp2::kComprobaciones, Guarda23);
constexpr DefDialogo kFrTransfEsp3 =
    Especial("FrTransfEsp3", "TransEsp3", 44, 40, kCampos3, esp2::kComprobaciones3, Guarda23);
constexpr DefDialogo kFrTransEsp4 =
    Especial("FrTransEsp4", "TransEsp4", 45, 20, kCampos4, esp4::kComprobaciones, Guarda4);
constexpr DefDialogo kFrTransEspe5 =
    Especial("FrTransEspe5", "TransEsp5", 46, 20, kCampos5, esp5::kComprobaciones, Guarda5);

}  // namespace duktores
