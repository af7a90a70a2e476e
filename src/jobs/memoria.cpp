#include "jobs/memoria.h"

#include <algorithm>
#include <nlohmann/json.hpp>

#include "jobs/escritura.h"
#include "jobs/llenado.h"
#include "jobs/piezas.h"
#include "state/caracteres.h"
#include "state/estado.h"
#include "state/propio.h"

namespace duktores {

namespace {

using nlohmann::json;

constexpr std::string_view kFicheros = "FILES", kRecientes = "Pieces";
constexpr std::size_t kMaximoRecientes = 10;

std::string_view SeccionUltimos() { return estado.iUnidad == 1 ? "LAST_MM" : "LAST_INCHES"; }

}  // namespace

void PonUltimos(const Dialogo& dialogo) {
  const std::string_view clave = dialogo.Definicion().clave;
  const Trabajo trabajo = TrabajoDe(dialogo, std::string(clave));
  Dialogo prueba(dialogo.Definicion());
  if (LlenaDialogo(prueba, trabajo)) return;
  PonPropio(SeccionUltimos(), clave, EscribeTrabajo(trabajo));
}

bool HayUltimos(const Dialogo& dialogo) {
  Dialogo prueba(dialogo.Definicion());
  return LlenaUltimos(prueba);
}

bool LlenaUltimos(Dialogo& dialogo) {
  const auto valor = LeePropio(SeccionUltimos(), dialogo.Definicion().clave);
  if (!valor) return false;
  const LecturaPiezas lectura = LeePiezasDe(*valor);
  if (lectura.motivo != 0 || lectura.trabajos.front().rechazo) return false;
  Dialogo lleno(dialogo.Definicion());
  if (LlenaDialogo(lleno, lectura.trabajos.front())) return false;
  dialogo = lleno;
  return true;
}

std::vector<std::string> Recientes() {
  std::vector<std::string> rutas;
  const json lista = json::parse(LeePropio(kFicheros, kRecientes).value_or("[]"), nullptr, false);
  if (!lista.is_array()) return rutas;
  for (const json& ruta : lista) {
    if (ruta.is_string() && rutas.size() < kMaximoRecientes) rutas.push_back(ruta.get<std::string>());
  }
  return rutas;
}

void PonReciente(const std::string& ruta) {
  if (!EsUtf8(ruta)) return;
  std::vector<std::string> rutas = Recientes();
  std::erase(rutas, ruta);
  rutas.insert(rutas.begin(), ruta);
  rutas.resize(std::min(rutas.size(), kMaximoRecientes));
  PonPropio(kFicheros, kRecientes, json(rutas).dump());
}

}  // namespace duktores
