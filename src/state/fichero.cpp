#include "state/fichero.h"

#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <random>
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
  if (destino.empty()) return false;
  struct stat antes {};
  const bool hay = stat(destino.c_str(), &antes) == 0;
  if (hay && (!S_ISREG(antes.st_mode) || access(destino.c_str(), W_OK) != 0)) return false;
  error.clear();
  // No other saver of this folder has the name, on whichever machine it runs.
  const fs::path temporal = destino.parent_path() / (".duktores-" + std::to_string(std::random_device{}()) + ".tmp");
  std::FILE* const fichero = std::fopen(temporal.c_str(), "wbx");
  if (fichero == nullptr) return false;
  bool hecho = std::fwrite(contenido.data(), 1, contenido.size(), fichero) == contenido.size();
  // Without this a power cut could leave an empty file under the name.
  hecho = hecho && std::fflush(fichero) == 0 && fsync(fileno(fichero)) == 0;
  if (hay) {
    // Who may use it stays as it was, as far as the system lets.
    [[maybe_unused]] const int dueno = fchown(fileno(fichero), antes.st_uid, antes.st_gid);
    fchmod(fileno(fichero), antes.st_mode);
  }
  hecho = std::fclose(fichero) == 0 && hecho;
  if (hecho) fs::rename(temporal, destino, error);
  hecho = hecho && !error;
  if (!hecho) fs::remove(temporal, error);
  return hecho;
}

}  // namespace duktores
