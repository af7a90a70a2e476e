#include "state/arranque.h"

#include <fcntl.h>
#include <langinfo.h>
#include <locale.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <csignal>
#include <cstddef>
#include <filesystem>
#include <fstream>
#include <system_error>

#include "state/caracteres.h"
#include "state/estado.h"
#include "state/ini.h"
#include "state/numeros.h"

namespace duktores {

namespace {

constexpr std::size_t kMaximoIni = 1 << 20;
constexpr std::int16_t kUltimoColor = 256;  // a drawing with another colour index doesn't open

// The language bases are the places in this list, times 10000.
constexpr std::array<std::string_view, 7> kIdiomas{"SPANISH",    "ENGLISH", "GERMAN", "FRENCH",
                                                   "PORTUGUESE", "BASQUE",  "CHINESE"};

double LeeNumero(std::string_view seccion, std::string_view clave) { return NumeroIzquierda(LeeIni(seccion, clave)); }

void LeeConfiguracion() {
  estado.iUnidad = EnteroCorto(LeeNumero("UNIT", "Unit") + 1);
  estado.sRutaDuct = LeeIni("DUCT", "Path");
  estado.dEspesor = NumeroDeTexto(TextoDeNumero(LeeNumero("DUCT", "Thickness")));
  estado.dTamanoTexto = LeeNumero("DUCT", "Sizetxt");
  if (estado.iUnidad == 2) estado.dTamanoTexto /= 3.0;
  estado.iFibra = EnteroCorto(LeeNumero("DUCT", "Fiber"));
  estado.iColorDoblez = EnteroCorto(LeeNumero("DUCT", "BendColour"));
  if (estado.iColorDoblez < 0 || estado.iColorDoblez > kUltimoColor) estado.iColorDoblez = 0;
  estado.sDimensiones = TextoDeNumero(LeeNumero("DUCT", "Dimensions"));
  estado.sDensidad = TextoDeNumero(LeeNumero("DUCT", "Density"));
  estado.iDivisiones = EnteroCorto(LeeNumero("DUCT", "NDivi"));
  estado.iBox = EnteroCorto(LeeNumero("DUCT", "Box"));
  estado.iExacto = EnteroCorto(LeeNumero("DUCT", "Exact"));
}

}  // namespace

void PreparaProceso() {
  int libre = 0;
  while (libre >= 0 && libre <= STDERR_FILENO) libre = open("/dev/null", O_RDWR);
  if (libre >= 0) close(libre);
  for (const int senal : {SIGPIPE, SIGXFSZ}) std::signal(senal, SIG_IGN);
}

void Arranca(std::string_view ejecutable, std::string_view rutaIni) {
  Plataforma* const plataforma = estado.plataforma;
  estado = EstadoPrograma{};
  estado.plataforma = plataforma;

  constexpr std::size_t kLargoCarpeta = 5;  // four letters and the separator
  const std::string_view carpeta = ejecutable.substr(0, ejecutable.rfind('/') + 1);
  estado.sRutaPrograma = carpeta;
  estado.sRutaBase = carpeta.substr(0, carpeta.size() - std::min(carpeta.size(), kLargoCarpeta));
  if (plataforma != nullptr) estado.hVentanaHost = plataforma->VentanaActiva();
  estado.sRutaIni = rutaIni.empty() ? estado.sRutaBase + "Config/Config.ini" : std::string(rutaIni);
  estado.dIdioma = LeeIdioma();
  DetectaComa();
  LeeConfiguracion();
}

bool ConfiguracionSirve() { return estado.iFibra >= 1 && estado.iFibra <= 3; }

std::string LeeIni(std::string_view seccion, std::string_view clave) {
  std::error_code error;
  // Opening a pipe could wait for ever.
  if (!std::filesystem::is_regular_file(estado.sRutaIni, error)) return {};
  std::ifstream fichero(estado.sRutaIni, std::ios::binary);
  std::string contenido(std::min(std::filesystem::file_size(estado.sRutaIni, error), kMaximoIni), '\0');
  fichero.read(contenido.data(), static_cast<std::streamsize>(contenido.size()));
  contenido.resize(static_cast<std::size_t>(fichero.gcount()));
  return ValorIni(contenido, seccion, clave);
}

double LeeIdioma() {
  const std::string nombre = Mayusculas(Recorta(LeeIni("LANGUAGE", "Language")));
  for (std::size_t i = 0; i < kIdiomas.size(); ++i) {
    if (kIdiomas[i] == nombre) return 10000.0 * static_cast<double>(i);
  }
  return 0.0;
}

void DetectaComa() {
  // A locale object of its own: the process's locale is shared by all threads and stays as it is.
  const locale_t local = newlocale(LC_NUMERIC_MASK, "", nullptr);
  estado.bComaDecimal = local != nullptr && std::string_view(nl_langinfo_l(RADIXCHAR, local)) == ",";
  if (local != nullptr) freelocale(local);
}

std::string RutaEjecutable() {
  std::error_code error;
  return std::filesystem::read_symlink("/proc/self/exe", error).string();
}

}  // namespace duktores
