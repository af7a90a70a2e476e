#include "jobs/escritura.h"

#include <nlohmann/json.hpp>

#include "state/numeros.h"

namespace duktores {

namespace {

using nlohmann::json;

// A file's name may be no UTF-8.
std::string Entrecomillado(const std::string& texto) {
  return json(texto).dump(-1, ' ', false, json::error_handler_t::replace);
}

std::string Valor(const std::string& texto) {
  const auto numero = NumeroDeCampo(texto);
  const bool igual = numero && TextoTecleado(*numero) == texto && texto != "-0";  // which the reader takes for 0
  return igual ? texto : Entrecomillado(texto);
}

}  // namespace

std::string EscribeTrabajo(const Trabajo& trabajo) {
  std::string linea = "{\"name\": " + Entrecomillado(trabajo.nombre) + ", \"piece\": " + Entrecomillado(trabajo.pieza);
  if (trabajo.cantidad != 1) linea += ", \"quantity\": " + std::to_string(trabajo.cantidad);
  if (trabajo.espesor) linea += ", \"thickness\": " + Valor(TextoTecleado(*trabajo.espesor));
  for (const auto& [clave, texto] : trabajo.valores) linea += ", " + Entrecomillado(clave) + ": " + Valor(texto);
  if (trabajo.puntos) {
    linea += ", \"picks\": [";
    for (const Punto2& p : *trabajo.puntos) {
      linea += (linea.back() == '[' ? "[" : ", [") + json(p.x).dump() + ", " + json(p.y).dump() + "]";
    }
    linea += "]";
  }
  return linea + "}";
}

std::string EscribeLista(std::span<const Trabajo> trabajos) {
  std::string lista = "[";
  for (const Trabajo& trabajo : trabajos) {
    lista += (lista.size() == 1 ? "\n  " : ",\n  ") + EscribeTrabajo(trabajo);
  }
  return lista + "\n]\n";
}

}  // namespace duktores
