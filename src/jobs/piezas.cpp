#include "jobs/piezas.h"

#include <algorithm>
#include <system_error>
#include <utility>

#include "piece/numeros_texto.h"
#include "state/fichero.h"

namespace duktores {

namespace {

constexpr std::size_t kMaximoBytes = std::size_t{1} << 23, kMaximoTrabajos = 5000;

struct Demasiados {};

}  // namespace

LecturaPiezas LeePiezasDe(std::string_view json) {
  LecturaPiezas lectura;
  const auto toma = [&](Trabajo&& trabajo) {
    if (lectura.trabajos.size() == kMaximoTrabajos) throw Demasiados();
    lectura.trabajos.push_back(std::move(trabajo));
  };
  try {
    RecorreLista(DeMemoria(json), toma, Admite::listaOUno);
  } catch (const ErrorLista& error) {
    return {{}, texto::kSinPiezas, error.what()};
  } catch (const Demasiados&) {
    return {{}, texto::kDemasiadoGrande, {}};
  }
  if (lectura.trabajos.empty()) lectura.motivo = texto::kSinPiezas;
  return lectura;
}

LecturaPiezas LeePiezas(const std::string& ruta) {
  std::error_code fallo;
  const auto contenido = LeeFichero(ruta, fallo, kMaximoBytes);
  if (contenido) return LeePiezasDe(*contenido);
  if (fallo == std::errc::file_too_large) return {{}, texto::kDemasiadoGrande, {}};
  if (fallo == std::errc::no_such_file_or_directory) return {{}, texto::kSinFichero, {}};
  const Guardado motivo = FalloDelSistema(fallo.value());
  return {{}, motivo.motivo, motivo.detalle};
}

void PonTrabajo(std::vector<Trabajo>& trabajos, Trabajo trabajo) {
  const std::string nombre = SinCaja(trabajo.nombre);
  const auto suyo = std::ranges::find_if(trabajos, [&](const Trabajo& t) { return SinCaja(t.nombre) == nombre; });
  if (suyo == trabajos.end()) {
    trabajos.push_back(std::move(trabajo));
  } else {
    trabajo.cantidad = suyo->cantidad;
    trabajo.espesor = suyo->espesor;
    *suyo = std::move(trabajo);
  }
}

}  // namespace duktores
