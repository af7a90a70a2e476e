#include "state/fichero.h"

#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <system_error>

namespace duktores {

std::optional<std::string> LeeFichero(const std::string& ruta) {
  std::error_code error;
  std::ifstream fichero(ruta, std::ios::binary);
  if (!fichero || std::filesystem::is_directory(ruta, error)) return std::nullopt;
  std::string contenido{std::istreambuf_iterator<char>(fichero), {}};
  return fichero.bad() ? std::nullopt : std::optional(std::move(contenido));
}

bool EscribeFichero(const std::string& ruta, std::string_view contenido) {
  // The thread's own name: two savers of one file don't meet in it.
  const std::string temporal = ruta + "." + std::to_string(gettid()) + ".tmp";
  std::ofstream fichero(temporal, std::ios::binary);
  fichero.write(contenido.data(), static_cast<std::streamsize>(contenido.size()));
  fichero.close();
  std::error_code error;
  if (fichero) std::filesystem::rename(temporal, ruta, error);
  const bool hecho = fichero && !error;
  if (!hecho) std::filesystem::remove(temporal, error);
  return hecho;
}

}  // namespace duktores
