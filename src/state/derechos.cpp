#include "state/derechos.h"

#include <sys/xattr.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <optional>
#include <string_view>
#include <vector>

#include "piece/numeros_texto.h"
#include "state/textos.h"

namespace duktores {

namespace {

constexpr std::string_view kAcl = "system.posix_acl_access";
// These tell of the contents, not of the file.
constexpr std::array<std::string_view, 3> kDelContenido{"security.ima", "security.evm", "security.capability"};

/// What a call that fills a buffer gives; none if it fails. It is asked for the size first.
template <class Llamada>
std::optional<std::string> Bytes(Llamada llamada) {
  std::string bytes;
  for (;;) {
    const ssize_t largo = llamada(nullptr, 0);
    if (largo < 0) return std::nullopt;
    bytes.resize(static_cast<std::size_t>(largo));
    const ssize_t leidos = largo == 0 ? 0 : llamada(bytes.data(), bytes.size());
    if (leidos < 0 && errno == ERANGE) continue;  // it has grown meanwhile
    if (leidos < 0) return std::nullopt;
    bytes.resize(static_cast<std::size_t>(leidos));
    return bytes;
  }
}

/// False if one is lost. `acl` is whether the access list is as before.
bool CopiaAtributos(const std::string& ruta, int nuevo, bool& acl) {
  const auto nombres = Bytes([&](char* d, std::size_t n) { return listxattr(ruta.c_str(), d, n); });
  if (!nombres) {
    acl = errno == ENOTSUP;
    return acl;
  }
  bool todos = true, conAcl = false;
  for (const char* nombre = nombres->c_str(); nombre < nombres->data() + nombres->size();
       nombre += std::string_view(nombre).size() + 1) {
    if (std::ranges::find(kDelContenido, nombre) != kDelContenido.end()) continue;
    const auto antes = Bytes([&](char* d, std::size_t n) { return getxattr(ruta.c_str(), nombre, d, n); });
    const auto ahora = Bytes([&](char* d, std::size_t n) { return fgetxattr(nuevo, nombre, d, n); });
    const bool igual = antes && (antes == ahora || fsetxattr(nuevo, nombre, antes->data(), antes->size(), 0) == 0);
    if (nombre == kAcl) {
      conAcl = true;
      acl = igual;
    } else {
      todos = todos && igual;
    }
  }
  // The new file may have got one from its folder.
  if (!conAcl) acl = fremovexattr(nuevo, kAcl.data()) == 0 || errno == ENODATA || errno == ENOTSUP;
  return todos;
}

}  // namespace

std::string CopiaDerechos(const std::string& ruta, const struct stat& antes, int nuevo) {
  struct stat ahora {};
  const bool leido = fstat(nuevo, &ahora) == 0;
  constexpr auto kComoEsta = static_cast<uid_t>(-1);
  const bool dueno = (leido && ahora.st_uid == antes.st_uid) || fchown(nuevo, antes.st_uid, kComoEsta) == 0;
  const bool grupo = (leido && ahora.st_gid == antes.st_gid) || fchown(nuevo, kComoEsta, antes.st_gid) == 0;
  bool acl = true;
  const bool atributos = CopiaAtributos(ruta, nuevo, acl);
  // With another owner or group, rights that are theirs would be someone else's.
  constexpr mode_t kTodos = 07777, kSoloDerechos = 0777, kDelGrupo = 070;
  const mode_t suyos = antes.st_mode & (dueno && grupo ? kTodos : kSoloDerechos);
  const bool modo = fchmod(nuevo, grupo && acl ? suyos : suyos & ~kDelGrupo) == 0;

  std::string perdido;
  const auto anota = [&](bool queda, int texto) {
    if (!queda) perdido += (perdido.empty() ? "" : ", ") + Texto(texto);
  };
  anota(dueno, texto::kDueno);
  anota(grupo, texto::kGrupo);
  anota(acl, texto::kAcl);
  anota(atributos, texto::kAtributos);
  anota(modo, texto::kModo);
  return perdido;
}

}  // namespace duktores
