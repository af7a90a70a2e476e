#include "state/fichero.h"

#include <unistd.h>

#include <array>
#include <filesystem>
#include <fstream>
#include <system_error>

namespace duktores {

namespace fs = std::filesystem;

std::optional<std::string> LeeFichero(const std::string& ruta) {
  std::ifstream fichero(ruta, std::ios::binary);
  if (!fichero) return std::nullopt;
  std::string contenido;
  std::array<char, 1 << 16> trozo;
  do {
    fichero.read(trozo.data(), trozo.size());
    contenido.append(trozo.data(), static_cast<std::size_t>(fichero.gcount()));
  } while (fichero);
  return fichero.bad() ? std::nullopt : std::optional(std::move(contenido));
}

bool EscribeFichero(const std::string& ruta, std::string_view contenido) {
  std::error_code error;
  // A link stays one, and a file that its owner has locked is not replaced.
  fs::path destino = ruta;
  if (fs::is_symlink(destino, error)) destino = fs::canonical(destino, error);
  if (destino.empty() || (fs::exists(destino, error) && access(destino.c_str(), W_OK) != 0)) return false;
  error.clear();
  // The thread's own name: two savers in one folder don't meet in it.
  const fs::path temporal = destino.parent_path() / (".duktores-" + std::to_string(gettid()) + ".tmp");
  std::ofstream fichero(temporal, std::ios::binary);
  fichero.write(contenido.data(), static_cast<std::streamsize>(contenido.size()));
  fichero.close();
  if (fichero) fs::rename(temporal, destino, error);
  const bool hecho = fichero && !error;
  if (!hecho) fs::remove(temporal, error);
  return hecho;
}

}  // namespace duktores
