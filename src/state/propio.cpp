#include "state/propio.h"

#include <filesystem>
#include <system_error>

#include "state/estado.h"
#include "state/fichero.h"
#include "state/guardado.h"

namespace duktores {

namespace {

constexpr std::size_t kMaximo = 1 << 20;

std::optional<std::string> Contenido(std::error_code& fallo) {
  if (estado.sRutaPropia.empty()) return std::nullopt;
  return LeeFichero(estado.sRutaPropia, fallo, kMaximo);
}

}  // namespace

std::optional<std::string> LeePropio(std::string_view seccion, std::string_view clave) {
  std::error_code fallo;
  const auto contenido = Contenido(fallo);
  if (!contenido) return std::nullopt;
  // Paths are longer than the values of a configuration.
  const auto entradas = EntradasIni(*contenido);
  const EntradaIni* entrada = BuscaIni(entradas, seccion, clave);
  return entrada ? std::optional(std::string(entrada->valor)) : std::nullopt;
}

std::string LeePropio() {
  std::error_code fallo;
  return Contenido(fallo).value_or("");
}

bool PonPropio(std::string_view seccion, std::string_view clave, std::string_view valor) {
  return PonPropio(std::vector<EntradaIni>{{seccion, clave, valor}});
}

bool PonPropio(const std::vector<EntradaIni>& valores) {
  std::error_code fallo;
  const auto contenido = Contenido(fallo);
  // What can't be read is not written over.
  if (estado.sRutaPropia.empty() || (!contenido && fallo != std::errc::no_such_file_or_directory)) return false;
  std::string nuevo = contenido.value_or("");
  for (const EntradaIni& e : valores) nuevo = PonIni(nuevo, e.seccion, e.clave, e.valor);
  if (contenido == nuevo) return true;
  if (HazCarpeta(std::filesystem::path(estado.sRutaPropia).parent_path()) != 0) return false;
  return static_cast<bool>(EscribeFichero(estado.sRutaPropia, nuevo));
}

}  // namespace duktores
