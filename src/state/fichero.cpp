#include "state/fichero.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <array>
#include <cerrno>

#include "state/descriptor.h"

namespace duktores {

std::optional<std::string> LeeFichero(const std::string& ruta, std::error_code& motivo, std::size_t maximo) {
  const auto falla = [&](int numero) {
    motivo = {numero, std::generic_category()};
    return std::nullopt;
  };
  const Descriptor fichero(open(ruta.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
  struct stat datos {};
  if (!fichero || fstat(fichero.Numero(), &datos) != 0) return falla(errno);
  if (S_ISDIR(datos.st_mode)) return falla(EISDIR);
  if (!S_ISREG(datos.st_mode)) return falla(ENODEV);
  std::string contenido;
  std::array<char, 1 << 16> trozo;
  for (;;) {
    const ssize_t leidos = read(fichero.Numero(), trozo.data(), trozo.size());
    if (leidos == 0) return contenido;
    if (leidos < 0 && errno == EINTR) continue;
    if (leidos < 0) return falla(errno);
    contenido.append(trozo.data(), static_cast<std::size_t>(leidos));
    if (contenido.size() > maximo) return falla(EFBIG);
  }
}

std::optional<std::string> LeeFichero(const std::string& ruta) {
  std::error_code motivo;
  return LeeFichero(ruta, motivo);
}

}  // namespace duktores
