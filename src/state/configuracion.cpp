#include "state/configuracion.h"

#include <langinfo.h>
#include <locale.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <chrono>
#include <cmath>
#include <filesystem>
#include <new>
#include <thread>
#include <type_traits>

#include "piece/numeros_texto.h"
#include "state/caracteres.h"
#include "state/estado.h"
#include "state/fichero.h"
#include "state/ini.h"
#include "state/numeros.h"
#include "state/propio.h"
#include "state/textos.h"

namespace duktores {

namespace {

namespace fs = std::filesystem;

constexpr std::int16_t kUltimoColor = 256;  // a drawing with another colour index doesn't open

// The language bases are the places in this list, times 10000.
constexpr std::array<std::string_view, 7> kIdiomas{"SPANISH",    "ENGLISH", "GERMAN", "FRENCH",
                                                   "PORTUGUESE", "BASQUE",  "CHINESE"};

/// A key with a number: the numbers that make sense (multiples of `paso`, if there is one) and where its value goes.
/// `pone` gives back the value that counts from then on. Of the machine's keys one that is missing or makes no sense
/// counts as `defecto`.
struct Clave {
  std::string_view seccion, nombre;
  double minimo, maximo, paso;
  double (*pone)(double);
  double defecto = 0;
};
constexpr std::string_view kMaquina = "MACHINE";

constexpr double kCorto = std::numeric_limits<std::int16_t>::max();

template <std::int16_t EstadoPrograma::*valor>
double PonEntero(double v) {
  return estado.*valor = EnteroCorto(v);
}

template <std::string EstadoPrograma::*valor>
double PonTexto(double v) {
  estado.*valor = TextoDeNumero(v);
  return v;
}

template <auto Maquina::*valor>
double PonMaquina(double v) {
  estado.maquina.*valor = static_cast<std::remove_reference_t<decltype(estado.maquina.*valor)>>(v);
  return v;
}

// Read in this order: the height of texts depends on the unit.
constexpr std::array kClaves{
    Clave{"UNIT", "Unit", 0, 1, 1, [](double v) { return (estado.iUnidad = EnteroCorto(v + 1)) - 1.0; }},
    Clave{"DUCT", "Thickness", 0, kSinTope, 0,
          [](double v) { return estado.dEspesor = NumeroDeTexto(TextoDeNumero(v)); }},
    Clave{"DUCT", "Sizetxt", kMasQueCero, kSinTope, 0,
          [](double v) { return estado.dTamanoTexto = estado.iUnidad == 2 ? v / 3.0 : v; }},
    Clave{"DUCT", "Fiber", 1, 3, 1, PonEntero<&EstadoPrograma::iFibra>},
    Clave{"DUCT", "BendColour", 0, kUltimoColor, 1,
          [](double v) {
            const std::int16_t color = EnteroCorto(v);
            estado.iColorDoblez = color < 0 || color > kUltimoColor ? std::int16_t{0} : color;
            return static_cast<double>(estado.iColorDoblez);
          }},
    Clave{"DUCT", "Dimensions", 0, 1, 1, PonTexto<&EstadoPrograma::sDimensiones>},
    Clave{"DUCT", "Density", 0, kSinTope, 0, PonTexto<&EstadoPrograma::sDensidad>},
    Clave{"DUCT", "NDivi", 4, 908, 4, PonEntero<&EstadoPrograma::iDivisiones>},
    Clave{"DUCT", "Box", -kCorto, kCorto, 1, PonEntero<&EstadoPrograma::iBox>},
    Clave{"DUCT", "Exact", -kCorto, kCorto, 1, PonEntero<&EstadoPrograma::iExacto>},
    Clave{kMaquina, "Bends", 0, 2, 1, PonMaquina<&Maquina::dobleces>, 1},
    Clave{kMaquina, "Marks", 0, 1, 1, PonMaquina<&Maquina::marcas>, 1},
    Clave{kMaquina, "Tolerance", 0, 1, 0, PonMaquina<&Maquina::tolerancia>, 0.02},
    Clave{kMaquina, "LeastAngle", 0, 180, 0, PonMaquina<&Maquina::anguloMinimo>, 0.5},
    Clave{kMaquina, "Arcs", 0, 1, 1, PonMaquina<&Maquina::arcos>, 0},
    Clave{kMaquina, "Together", 0, 1, 1, PonMaquina<&Maquina::juntas>, 0},
};

/// A key with the name of a layer of the cut files.
struct ClaveCapa {
  std::string_view nombre;
  std::string Maquina::*capa;
};
constexpr ClaveCapa kCapas[]{{"CutLayer", &Maquina::capaCorte},
                             {"BendUpLayer", &Maquina::capaArriba},
                             {"BendDownLayer", &Maquina::capaAbajo},
                             {"MarkLayer", &Maquina::capaMarca}};

/// The language base; an unlisted language is Spanish.
double LeeIdioma(const std::string& nombre) {
  const auto* idioma = std::ranges::find(kIdiomas, Mayusculas(Recorta(nombre)));
  return idioma == kIdiomas.end() ? 0.0 : 10000.0 * static_cast<double>(idioma - kIdiomas.begin());
}

std::string Aviso(std::string_view seccion, std::string_view clave, const std::string& texto, int motivo,
                  const std::string& vale) {
  return TextoIni(seccion) + " " + TextoIni(clave) + "=" + texto + ": " + Texto(motivo) + " " + vale;
}

/// The key of ours that stands there with a slip of the pen or two, names of few letters with one at most.
const ClaveLeida* Parecida(const std::vector<ClaveLeida>& nuestras, const EntradaIni& escrita) {
  constexpr std::size_t kCorta = 4;
  const ClaveLeida* parecida = nullptr;
  for (const ClaveLeida& nuestra : nuestras) {
    const int erratas = Erratas(escrita.seccion, nuestra.seccion) + Erratas(escrita.clave, nuestra.clave);
    if (erratas == 0) return nullptr;
    if (erratas <= (nuestra.clave.size() > kCorta ? 2 : 1)) parecida = &nuestra;
  }
  return parecida;
}

/// Two layers of one name would be one to the machine: of such names the first counts, and of a layer whose name
/// doesn't the usual one.
void LeeCapas(const std::vector<EntradaIni>& entradas, LecturaConfiguracion& lectura) {
  const Maquina usual;
  std::vector<std::string> ocupadas;
  for (const auto& [nombre, capa] : kCapas) {
    if (!LeeIni(entradas, kMaquina, nombre)) ocupadas.push_back(Mayusculas(usual.*capa));
  }
  for (const auto& [nombre, capa] : kCapas) {
    std::string& queda = estado.maquina.*capa = usual.*capa;
    const auto texto = LeeIni(entradas, kMaquina, nombre);
    const bool libre = texto && std::ranges::find(ocupadas, Mayusculas(*texto)) == ocupadas.end();
    if (libre && EsCapa(*texto)) {
      queda = *texto;
    } else if (texto) {
      while (std::ranges::find(ocupadas, Mayusculas(queda)) != ocupadas.end()) queda += '_';
      lectura.avisos.push_back(Aviso(kMaquina, nombre, *texto, texto::kValorMalo, queda));
    }
    if (texto) ocupadas.push_back(Mayusculas(queda));
    lectura.claves.push_back({kMaquina, nombre, texto, queda, {}});
  }
}

void Lee(const std::string& contenido, const std::string& propio, LecturaConfiguracion& lectura) {
  auto entradas = EntradasIni(propio);
  const auto deInstalacion = EntradasIni(contenido);
  entradas.insert(entradas.end(), deInstalacion.begin(), deInstalacion.end());
  const auto idioma = LeeIni(entradas, "LANGUAGE", "Language");
  estado.dIdioma = LeeIdioma(idioma.value_or(""));
  if (idioma && std::ranges::find(kIdiomas, Mayusculas(Recorta(*idioma))) == kIdiomas.end()) {
    lectura.avisos.push_back(Aviso("LANGUAGE", "Language", *idioma, texto::kValorMalo, std::string(kIdiomas[0])));
  }
  DetectaComa();
  const auto carpeta = LeeIni(entradas, "DUCT", "Path");
  estado.sRutaDuct = carpeta.value_or("");
  const auto enIdioma = static_cast<std::size_t>(estado.dIdioma / 10000);
  lectura.claves = {{"LANGUAGE", "Language", idioma, std::string(kIdiomas[enIdioma]), {}},
                    {"DUCT", "Path", carpeta, estado.sRutaDuct, {}}};
  LeeCapas(entradas, lectura);
  for (const Clave& clave : kClaves) {
    const auto texto = LeeIni(entradas, clave.seccion, clave.nombre);
    const Limites limites{clave.minimo, clave.maximo, clave.paso};
    const bool sano = texto && TieneSentido(limites, *texto), deMaquina = clave.seccion == kMaquina;
    const double v = !texto || (deMaquina && !sano) ? clave.defecto : NumeroIzquierda(*texto);
    const std::string vale = TextoDeNumero(clave.pone(v));
    lectura.claves.push_back({clave.seccion, clave.nombre, texto, vale, limites});
    if (texto && !sano) {
      lectura.avisos.push_back(Aviso(clave.seccion, clave.nombre, *texto, texto::kValorMalo, vale));
    }
  }
  for (const EntradaIni& entrada : entradas) {
    if (const ClaveLeida* nuestra = Parecida(lectura.claves, entrada)) {
      const std::string vale = std::string(nuestra->clave) + "=" + nuestra->vale;
      lectura.avisos.push_back(Aviso(entrada.seccion, entrada.clave, TextoIni(entrada.valor), texto::kClaveMala, vale));
    }
  }
}

}  // namespace

bool TieneSentido(const Limites& limites, std::string_view texto) {
  const auto v = NumeroEntero(texto);
  return v && *v >= limites.minimo && *v <= limites.maximo && (limites.paso == 0 || std::fmod(*v, limites.paso) == 0);
}

bool EsCapa(std::string_view nombre) {
  constexpr std::size_t kLargo = 31;
  const auto vale = [](char c) {
    return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_' || c == '-' ||
           c == '$';
  };
  return !nombre.empty() && nombre.size() <= kLargo && nombre != "0" && std::ranges::all_of(nombre, vale);
}

std::span<const std::string_view> Idiomas() { return kIdiomas; }

// A program that writes the file anew empties it first: what has just changed is read again until it has come to rest.
// A file is empty a little before it is newer.
std::string TextoConfiguracion(std::error_code& fallo) {
  using std::chrono_literals::operator""ms;
  constexpr std::size_t kMaximo = 1 << 20;
  constexpr int kIntentos = 100;
  for (int i = 0; i < kIntentos; ++i) {
    const auto escrita = fs::last_write_time(estado.sRutaIni, fallo);
    if (fallo) return {};
    const auto edad = fs::file_time_type::clock::now() - escrita;
    const auto largo = fs::file_size(estado.sRutaIni, fallo);
    auto contenido = LeeFichero(estado.sRutaIni, fallo, kMaximo);
    if (!contenido) return {};
    const bool quieta = (edad > 20ms || edad < -20ms) && contenido->size() == largo && (largo > 0 || i > 0);
    if (quieta && fs::last_write_time(estado.sRutaIni, fallo) == escrita && !fallo) return std::move(*contenido);
    std::this_thread::sleep_for(10ms);
  }
  fallo = std::make_error_code(std::errc::text_file_busy);
  return {};
}

LecturaConfiguracion LeeConfiguracion() {
  LecturaConfiguracion lectura;
  const std::string contenido = TextoConfiguracion(lectura.fallo);
  Lee(contenido, LeePropio(), lectura);
  return lectura;
}

void DetectaComa() {
  // A locale object of its own: the process's locale is shared by all threads and stays as it is.
  errno = 0;
  const locale_t local = newlocale(LC_NUMERIC_MASK, "", nullptr);
  if (local == nullptr && errno == ENOMEM) throw std::bad_alloc();
  estado.bComaDecimal = local != nullptr && std::string_view(nl_langinfo_l(RADIXCHAR, local)) == ",";
  if (local != nullptr) freelocale(local);
}

}  // namespace duktores
