// A storm of random jobs over all dialogs, of wild values that can be typed, on the whole road from the fields to the
// file. Prints what goes wrong with the number of its job, and fails if anything does:
//   tormenta PROGRAM-FOLDER [JOBS] [SEED] [FIRST JOB]

#include <malloc.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <cmath>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <map>
#include <random>
#include <string>
#include <tuple>
#include <vector>

#include "dxf/dibujo.h"
#include "dxf/escritor.h"
#include "mancha.h"
#include "piezas_azar.h"
#include "shell/juicio.h"
#include "shell/lista.h"
#include "shell/texto_veredicto.h"
#include "shell/visor.h"
#include "state/estado.h"
#include "state/fichero.h"

namespace {

using namespace duktores;

constexpr unsigned kPaciencia = 60;       // seconds for one piece
constexpr std::size_t kHolgura = 131072;  // what the allocator keeps of freed memory, in bytes

struct Azar {
  std::mt19937 fuente;
  unsigned Hasta(std::size_t n) { return static_cast<unsigned>(fuente() % n); }
  bool Una(unsigned deCuantas) { return Hasta(deCuantas) == 0; }
  double Entre(double a, double b) { return std::uniform_real_distribution<double>(a, b)(fuente); }
  template <class T, std::size_t n>
  T Uno(const T (&deEstos)[n]) {
    return deEstos[Hasta(n)];
  }
};

// Answers the picks, near and far away, and refuses some. Counts the messages that ask for none.
struct Mesa : VistaEWdraw, Plataforma {
  explicit Mesa(Azar& a) : azar(a) {}
  std::optional<Punto3> EligePunto(EWdraw& axew) override {
    --mensajes;
    dibujado.push_back(axew.Entidades().size());
    if (azar.Una(200)) return std::nullopt;
    const double lejos = azar.Una(2) ? 0 : std::pow(10, azar.Entre(0, 9));
    return Punto3{azar.Entre(-lejos, lejos), azar.Entre(-lejos, lejos), 0};
  }
  void CajaMensaje(std::string_view, EstiloMensaje, std::string_view) override { ++mensajes; }
  void VentanaMensaje(std::string_view) override { ++mensajes; }
  Azar& azar;
  std::vector<std::size_t> dibujado;
  int mensajes = 0;
};

void Configura(Azar& azar) {
  estado.dIdioma = 10000.0 * azar.Hasta(7);
  estado.iUnidad = azar.Uno<std::int16_t>({0, 1});
  estado.dEspesor = azar.Uno({0.0, 0.01, 0.5, 1.0, 3.0, 25.0, 1000.0});
  estado.dTamanoTexto = azar.Uno({0.0, 0.01, 1.0, 10.0, 10.0, 500.0});
  estado.iFibra = azar.Uno<std::int16_t>({1, 2, 3});
  estado.iColorDoblez = azar.Uno<std::int16_t>({0, 3, 7, 255});
  estado.sDimensiones = azar.Uno({"0", "1"});
  estado.sDensidad = azar.Uno({"7.85", "0", "", "99999.99"});
  estado.iBox = azar.Uno<std::int16_t>({0, 1});
  estado.iExacto = azar.Uno<std::int16_t>({0, 1});
  estado.bComaDecimal = azar.Una(2);
}

// From 0.01 to 99999.99, what stands already in another field, or an edge.
std::string Salvaje(Azar& azar, const Dialogo& dialogo, std::size_t campo) {
  if (dialogo.Definicion().campos[campo].uso == Uso::divisiones)
    return std::to_string(azar.Una(20) ? azar.Hasta(1000) : 4 + 4 * azar.Hasta(azar.Una(8) ? 30 : 6));
  const std::string signo = azar.Una(3) ? "-" : "";
  if (azar.Una(4)) return signo + azar.Uno({"0", "0.01", "99999.99", "90", "89.99", "45", "1", "0.005", "180", "5."});
  if (azar.Una(2)) return dialogo.CampoDe(static_cast<int>(azar.Hasta(campo + 1))).texto;
  std::array<char, 32> letras{};
  const double v = azar.Una(2) ? std::pow(10, azar.Entre(-2, 5)) : azar.Entre(0, 1000);
  std::snprintf(letras.data(), letras.size(), "%.*f", static_cast<int>(azar.Hasta(4)), v);
  return signo + letras.data();
}

void Escribe(Azar& azar, Dialogo& dialogo, std::size_t campo) {
  const DefCampo& def = dialogo.Definicion().campos[campo];
  const auto i = static_cast<int>(campo);
  if (!def.filtro) return void(dialogo.Elige(i, def.valores[azar.Hasta(def.valores.size())]));
  SeleccionaTodo(dialogo.CampoDe(i));
  for (const char tecla : Salvaje(azar, dialogo, campo))
    Teclea(static_cast<unsigned char>(tecla), dialogo.CampoDe(i), def.filtro);
}

// Everyday values of which some have gone wild, or wild ones throughout.
void Llena(Azar& azar, Dialogo& dialogo) {
  const std::size_t campos = dialogo.Definicion().campos.size();
  TecleaPieza(dialogo, azar.fuente);
  if (azar.Una(4)) {
    for (std::size_t i = 0; i < campos; ++i) Escribe(azar, dialogo, i);
  } else {
    for (unsigned n = azar.Hasta(4); n > 0; --n) Escribe(azar, dialogo, azar.Hasta(campos));
  }
}

// A shape of the solid that is neither on the sheet nor named as missing.
std::string Callada(const Solido& solido, const Patron& hoja, const Veredicto& veredicto) {
  for (const Cara& cara : solido.caras) {
    const auto en = [&](int i) { return solido.puntos[static_cast<std::size_t>(i)]; };
    const double ancho = std::max(Distancia(en(cara.bajo.front()), en(cara.bajo.back())),
                                  Distancia(en(cara.alto.front()), en(cara.alto.back())));
    const auto esta = [&](const FormaPatron& f) { return f.nombre == cara.forma && !f.contorno.empty(); };
    const auto dicha = [&](const Defecto& d) { return d.falta == Falta::falta && d.donde.forma == cara.forma; };
    const bool callada = !(ancho <= ToleranciaPatron()) && std::ranges::none_of(hoja.formas, esta) &&
                         std::ranges::none_of(veredicto.defectos, dicha);
    if (callada) return "not told of " + TextoForma(cara.forma);
  }
  return "";
}

// What was drawn between two picks is a shape from its outline on, the title block of the shape before, or nothing.
bool SinContorno(const EWdraw& axew, std::vector<std::size_t> dibujado) {
  const auto& todo = axew.Entidades();
  dibujado.push_back(todo.size());
  bool trasForma = false;
  for (std::size_t i = 0; i + 1 < dibujado.size(); ++i) {
    if (dibujado[i] == dibujado[i + 1]) continue;
    const bool forma = todo[dibujado[i]].tipo == TipoEntidad::contorno;
    if (!forma && !(trasForma && estado.iBox != 0)) return true;
    trasForma = forma;
  }
  return false;
}

struct Cuenta {
  unsigned aceptados = 0, rechazados = 0, completos = 0, ciertos = 0, sinForma = 0, sinPunto = 0, errores = 0;
  double peor = 0;
  unsigned cual = 0;
  std::map<std::string, unsigned> hallazgos;
};

// What is wrong with the piece in `estado`.
std::string Trabaja(EWdraw& axew, const Mesa& mesa, Cuenta& cuenta, const std::string& fichero) {
  Dibuja3D(axew);
  const Solido solido = SolidoDe(*estado.pieza);
  const auto [fin, hoja, dados] = Desplegado(axew);
  cuenta.sinPunto += fin == FinCorrida::eleccionRechazada;
  cuenta.errores += fin == FinCorrida::error;
  if (fin == FinCorrida::error && mesa.mensajes != 1) return "ended, but not told once";
  if (fin == FinCorrida::completo) {
    const Veredicto veredicto = Juzga(*estado.pieza, solido, hoja);
    ++cuenta.completos;
    cuenta.ciertos += veredicto.Cierto();
    cuenta.sinForma += std::ranges::count(veredicto.defectos, Falta::falta, &Defecto::falta) > 0;
    if (DiceNoFinito(TextoVeredicto(veredicto))) return "verdict: " + TextoVeredicto(veredicto);
    if (mesa.mensajes != 0) return "a message beside the verdict";
    if (hoja.sigueTrasFallo && SinContorno(axew, mesa.dibujado)) return "drawn without an outline";
    if (std::string callada = Callada(solido, hoja, veredicto); !callada.empty()) return callada;
  }
  if (!estado.oDXF->InsertEntities(estado.oDrawing) || !estado.oDXF->Save(fichero)) return "not saved";
  return Mancha(LeeFichero(fichero).value_or("no file"));
}

void UnTrabajo(Azar& azar, const std::string& carpeta, unsigned n, Cuenta& cuenta, const std::string& fichero) {
  estado = {};
  estado.sRutaPrograma = carpeta;
  Configura(azar);
  Mesa mesa(azar);
  EWdraw axew;
  estado.plataforma = &mesa;
  axew.PonVista(&mesa);
  Dialogo dialogo(FilasPieza()[azar.Hasta(kTiposPieza)].dialogo);
  Llena(azar, dialogo);
  const auto empieza = std::chrono::steady_clock::now();
  const bool aceptado = dialogo.CmdAceptar() == Respuesta::aceptado;
  const bool dicho = (mesa.mensajes == 1) != !dialogo.lblerror().empty();
  const std::string mal = aceptado ? Trabaja(axew, mesa, cuenta, fichero) : dicho ? "" : "refused, but not told once";
  estado.plataforma = nullptr;
  const double tardo = std::chrono::duration<double>(std::chrono::steady_clock::now() - empieza).count();
  ++(aceptado ? cuenta.aceptados : cuenta.rechazados);
  if (tardo > cuenta.peor) std::tie(cuenta.peor, cuenta.cual) = std::pair(tardo, n);
  constexpr unsigned kBastan = 5;  // of one kind
  if (mal.empty() || ++cuenta.hallazgos[mal.substr(0, 16)] > kBastan) return;
  std::printf("job %u: %s: %s", n, mal.c_str(), dialogo.Definicion().clave.data());
  for (int i = 0; const DefCampo& campo : dialogo.Definicion().campos)
    std::printf(" %s=%s", campo.palabra.data(), dialogo.CampoDe(i++).texto.c_str());
  std::printf(" Exact=%d\n", estado.iExacto);
}

char enCurso[64];

extern "C" void AlMorir(int senal) {
  [[maybe_unused]] const auto escrito = write(STDOUT_FILENO, enCurso, std::strlen(enCurso));
  std::signal(senal, SIG_DFL);
  std::raise(senal);
}

std::size_t Memoria() {
  estado = {};
  const auto m = mallinfo2();
  return m.uordblks + m.hblkhd;
}

}  // namespace

int main(int argc, char** argv) {
  const auto numero = [&](int i, unsigned sino) {
    return argc > i ? unsigned(std::strtoul(argv[i], nullptr, 10)) : sino;
  };
  if (argc < 2) return 2;
  const std::string carpeta = std::string(argv[1]) + "/";
  const unsigned trabajos = numero(2, 1000), semilla = numero(3, 1), primero = numero(4, 0), caliente = trabajos / 10;
  const std::string fichero = std::filesystem::temp_directory_path() / ("tormenta-" + std::to_string(getpid()));
  for (const int senal : {SIGALRM, SIGABRT, SIGSEGV, SIGFPE}) std::signal(senal, AlMorir);
  std::setvbuf(stdout, nullptr, _IOLBF, BUFSIZ);
  Azar azar;
  Cuenta c;
  std::size_t antes = 0;
  for (unsigned i = 0, n = primero; i < trabajos; ++i, ++n) {
    if (i == caliente) antes = Memoria();
    std::snprintf(enCurso, sizeof enCurso, "ended in job %u of seed %u\n", n, semilla);
    alarm(kPaciencia);
    std::seed_seq mezcla{semilla, n};
    azar.fuente.seed(mezcla);
    UnTrabajo(azar, carpeta, n, c, fichero);
  }
  const std::size_t despues = Memoria();
  std::filesystem::remove(fichero);
  std::printf(
      "%u jobs of seed %u: accepted %u, refused %u; unfolded %u, true %u, without a shape %u; without a place %u, "
      "ended by an error %u\nlongest %.3f s, job %u; bytes held after %u jobs %zu, at the end %zu\n",
      trabajos, semilla, c.aceptados, c.rechazados, c.completos, c.ciertos, c.sinForma, c.sinPunto, c.errores, c.peor,
      c.cual, caliente, antes, despues);
  for (const auto& [mal, veces] : c.hallazgos) std::printf("%u times: %s\n", veces, mal.c_str());
  return c.hallazgos.empty() && despues < antes + kHolgura ? 0 : 1;
}
