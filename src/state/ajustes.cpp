#include "state/ajustes.h"

#include <unistd.h>

#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <iterator>
#include <system_error>

#include "piece/numeros_texto.h"
#include "state/arranque.h"
#include "state/estado.h"
#include "state/propio.h"
#include "state/textos.h"

namespace duktores {

namespace {

bool Falta(const std::error_code& fallo) { return fallo == std::errc::no_such_file_or_directory; }

Guardado EnInstalacion(const std::vector<EntradaIni>& cambios) {
  std::error_code fallo;
  std::string contenido = TextoConfiguracion(fallo);
  if (fallo && !Falta(fallo)) return FalloDelSistema(fallo.value());  // what can't be read is not written over
  for (const EntradaIni& e : cambios) contenido = PonIni(contenido, e.seccion, e.clave, e.valor);
  return EscribeFichero(estado.sRutaIni, contenido);
}

}  // namespace

LecturaConfiguracion ReleeConfiguracion(bool divisiones) {
  const std::int16_t aceptadas = estado.iDivisiones;
  LecturaConfiguracion lectura = LeeConfiguracion();
  if (!divisiones) estado.iDivisiones = aceptadas;
  return lectura;
}

std::string RutaAjustes() {
  const std::string& instalada = estado.sRutaIni;
  const std::string carpeta = std::filesystem::path(instalada).parent_path().string();
  const bool escribible = access(carpeta.c_str(), W_OK) == 0 &&
                          (access(instalada.c_str(), W_OK) == 0 || access(instalada.c_str(), F_OK) != 0);
  return escribible || estado.sRutaPropia.empty() ? instalada : estado.sRutaPropia;
}

Guardado GuardaAjustes(const std::vector<EntradaIni>& cambios) {
  if (cambios.empty()) return {};
  const Guardado instalado = EnInstalacion(cambios);
  if (!instalado) return PonPropio(cambios) ? Guardado{} : instalado;
  const std::string propio = LeePropio();
  const auto entradas = EntradasIni(propio);
  std::vector<EntradaIni> tapados;
  std::ranges::copy_if(cambios, std::back_inserter(tapados),
                       [&](const EntradaIni& e) { return BuscaIni(entradas, e.seccion, e.clave) != nullptr; });
  return tapados.empty() || PonPropio(tapados) ? Guardado{} : Guardado{texto::kSinDerechos, estado.sRutaPropia, {}};
}

std::vector<std::string> AvisosDe(const LecturaConfiguracion& lectura) {
  if (!lectura.fallo || (Falta(lectura.fallo) && ConfiguracionSirve())) return lectura.avisos;
  return {Texto(Falta(lectura.fallo) ? texto::kSinConfiguracion : texto::kConfiguracion) + " " + estado.sRutaIni};
}

}  // namespace duktores
