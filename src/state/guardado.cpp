#include "state/guardado.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <optional>
#include <random>
#include <system_error>
#include <vector>

#include "piece/numeros_texto.h"
#include "state/derechos.h"
#include "state/descriptor.h"
#include "state/textos.h"

namespace duktores {

namespace {

namespace fs = std::filesystem;

struct Motivo {
  int numero, texto;
};
constexpr Motivo kMotivos[] = {{ENOSPC, texto::kLleno},
                               {EDQUOT, texto::kLleno},
                               {EFBIG, texto::kLleno},
                               {EACCES, texto::kSinDerechos},
                               {EPERM, texto::kSinDerechos},
                               {EROFS, texto::kSoloLectura},
                               {ENAMETOOLONG, texto::kNombreLargo},
                               {ENOENT, texto::kSinCarpeta},
                               {ENOTDIR, texto::kSinCarpeta},
                               {EISDIR, texto::kNoEsFichero},
                               {ENODEV, texto::kNoEsFichero}};

fs::path CarpetaDe(const fs::path& ruta) { return ruta.has_parent_path() ? ruta.parent_path() : fs::path("."); }

/// Others may have put it there to have another file written over.
bool EsAjeno(const struct stat& enlace, const fs::path& ruta) {
  struct stat carpeta {};
  if (stat(CarpetaDe(ruta).c_str(), &carpeta) != 0) return true;
  return (carpeta.st_mode & (S_ISVTX | S_IWOTH)) != 0 && enlace.st_uid != geteuid() && enlace.st_uid != carpeta.st_uid;
}

/// Goes from link to link to where the file is to stand. `datos` is what stands there, if anything. 0, or an `errno`.
int SigueEnlaces(fs::path& ruta, Enlace enlace, std::optional<struct stat>& datos) {
  constexpr int kMaximo = 40;
  for (int i = 0; i < kMaximo; ++i) {
    struct stat hallado {};
    if (lstat(ruta.c_str(), &hallado) != 0) return errno == ENOENT ? 0 : errno;
    if (!S_ISLNK(hallado.st_mode)) {
      datos = hallado;
      return 0;
    }
    if (enlace == Enlace::reemplazado || EsAjeno(hallado, ruta)) return 0;
    std::error_code error;
    const fs::path destino = fs::read_symlink(ruta, error);
    if (error) return error.value();
    ruta = CarpetaDe(ruta) / destino;
  }
  return ELOOP;
}

bool Escribe(int fichero, std::string_view contenido) {
  while (!contenido.empty()) {
    const ssize_t escritos = write(fichero, contenido.data(), contenido.size());
    if (escritos < 0 && errno != EINTR) return false;
    if (escritos > 0) contenido.remove_prefix(static_cast<std::size_t>(escritos));
  }
  return true;
}

/// Brings what a folder says of its files to the disk. A folder that can't be read is synced with all of its disk.
bool Asienta(const fs::path& carpeta, int fichero) {
  const Descriptor abierta(open(carpeta.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  if (!abierta) return errno == EACCES && syncfs(fichero) == 0;
  // Some file systems have nothing to sync there.
  return fsync(abierta.Numero()) == 0 || errno == EINVAL || errno == ENOTSUP;
}

/// Removes the file, if there is one that hasn't got its name, when it goes.
struct Temporal {
  fs::path ruta;
  bool sobra = false;
  ~Temporal() {
    if (sobra) unlink(ruta.c_str());
  }
};

/// 0, or the `errno` of what failed.
int EscribeYRenombra(const fs::path& destino, std::string_view contenido, const struct stat* antes,
                     std::string& noQuedado) {
  // No other saver of this folder has the name, on whichever machine it runs.
  const fs::path carpeta = CarpetaDe(destino);
  Temporal temporal{carpeta / (".duktores-" + std::to_string(std::random_device{}()) + ".tmp")};
  const char* const ruta = temporal.ruta.c_str();
  // Nobody reads in the new file what he must not read in the old one.
  const mode_t modo = antes != nullptr ? S_IRUSR | S_IWUSR : S_IRUSR | S_IWUSR | S_IRGRP | S_IWGRP | S_IROTH | S_IWOTH;
  Descriptor fichero(open(ruta, O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, modo));
  if (!fichero) return errno;
  temporal.sobra = true;
  if (!Escribe(fichero.Numero(), contenido)) return errno;
  if (antes != nullptr) noQuedado = CopiaDerechos(destino, *antes, fichero.Numero());
  // Without this a power cut could leave an empty file under the name.
  if (fsync(fichero.Numero()) != 0 || std::rename(ruta, destino.c_str()) != 0) return errno;
  temporal.sobra = false;
  if (!Asienta(carpeta, fichero.Numero()) || !fichero.Cierra()) return errno;
  return 0;
}

}  // namespace

Guardado FalloDelSistema(int numero) {
  for (const Motivo& motivo : kMotivos) {
    if (motivo.numero == numero) return {motivo.texto, {}, {}};
  }
  return {texto::kFalloDisco, std::generic_category().message(numero), {}};
}

std::string TextoNoGuardado(const std::string& ruta, const Guardado& guardado) {
  const std::string detalle = guardado.detalle.empty() ? "" : " " + guardado.detalle;
  return Texto(texto::kNoGuardado) + " " + ruta + " (" + Texto(guardado.motivo) + detalle + ")";
}

std::string TextoRestos(const Guardado& guardado) {
  return guardado.noQuedado.empty() ? "" : Texto(texto::kRestos) + " " + guardado.noQuedado;
}

Guardado EscribeFichero(const std::string& ruta, std::string_view contenido, Enlace enlace) {
  fs::path destino = ruta;
  std::optional<struct stat> antes;
  if (const int error = SigueEnlaces(destino, enlace, antes)) return FalloDelSistema(error);
  if (antes && !S_ISREG(antes->st_mode)) return FalloDelSistema(ENODEV);
  // A file that its owner has locked is not replaced.
  if (antes && faccessat(AT_FDCWD, destino.c_str(), W_OK, AT_EACCESS) != 0) return FalloDelSistema(errno);
  Guardado guardado;
  const int error = EscribeYRenombra(destino, contenido, antes ? &*antes : nullptr, guardado.noQuedado);
  if (error != 0) return FalloDelSistema(error);
  return guardado;
}

int HazCarpeta(const std::string& ruta) {
  std::error_code error;
  std::vector<fs::path> nuevas;
  fs::path carpeta = fs::absolute(ruta, error).lexically_normal();
  if (!carpeta.has_filename()) carpeta = carpeta.parent_path();
  for (; !error && !fs::exists(carpeta, error) && carpeta != carpeta.parent_path(); carpeta = carpeta.parent_path()) {
    nuevas.push_back(carpeta);
  }
  fs::create_directories(ruta, error);
  if (error) return error.value();
  if (!fs::is_directory(ruta, error)) return error ? error.value() : ENOTDIR;
  for (const fs::path& nueva : nuevas) {
    const Descriptor abierta(open(nueva.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (!abierta || !Asienta(CarpetaDe(nueva), abierta.Numero())) return errno;
  }
  return 0;
}

}  // namespace duktores
