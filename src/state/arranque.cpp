#include "state/arranque.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <csignal>
#include <cstddef>
#include <filesystem>
#include <system_error>

#include "state/estado.h"

namespace duktores {

void PreparaProceso() {
  int libre = 0;
  while (libre >= 0 && libre <= STDERR_FILENO) libre = open("/dev/null", O_RDWR);
  if (libre >= 0) close(libre);
  for (const int senal : {SIGPIPE, SIGXFSZ}) std::signal(senal, SIG_IGN);
}

LecturaConfiguracion Arranca(std::string_view ejecutable, std::string_view rutaIni) {
  Plataforma* const plataforma = estado.plataforma;
  const std::string propia = estado.sRutaPropia;
  estado = EstadoPrograma{};
  estado.plataforma = plataforma;
  estado.sRutaPropia = propia;

  constexpr std::size_t kLargoCarpeta = 5;  // four letters and the separator
  const std::string_view carpeta = ejecutable.substr(0, ejecutable.rfind('/') + 1);
  estado.sRutaPrograma = carpeta;
  estado.sRutaBase = carpeta.substr(0, carpeta.size() - std::min(carpeta.size(), kLargoCarpeta));
  if (plataforma != nullptr) estado.hVentanaHost = plataforma->VentanaActiva();
  estado.sRutaIni = rutaIni.empty() ? estado.sRutaBase + "Config/Config.ini" : std::string(rutaIni);
  return LeeConfiguracion();
}

bool ConfiguracionSirve() { return estado.iFibra >= 1 && estado.iFibra <= 3; }

std::string RutaEjecutable() {
  std::error_code error;
  return std::filesystem::read_symlink("/proc/self/exe", error).string();
}

}  // namespace duktores
