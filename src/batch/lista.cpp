#include "batch/lista.h"

#include <algorithm>
#include <charconv>
#include <map>
#include <nlohmann/json.hpp>
#include <set>

namespace duktores {

namespace {

using nlohmann::json;

// A key that stands twice in an object would silently lose one of its values: the parser's callback notes it.
struct ClavesRepetidas {
  int trabajo = -1;
  std::set<std::string> claves;
  std::vector<std::optional<std::string>> repetidas;

  bool operator()(int profundidad, json::parse_event_t suceso, json& valor) {
    if (profundidad == 1 && suceso != json::parse_event_t::object_end && suceso != json::parse_event_t::array_end &&
        suceso != json::parse_event_t::key) {
      repetidas.resize(static_cast<std::size_t>(++trabajo) + 1);
      claves.clear();
    }
    if (profundidad == 2 && suceso == json::parse_event_t::key && trabajo >= 0) {
      const auto clave = valor.get<std::string>();
      if (!claves.insert(clave).second) repetidas.back() = clave;
    }
    return true;
  }
};

// A number as a person would type it: plain decimals, no exponent.
std::string TextoDe(const json& valor) {
  if (valor.is_string()) return valor.get<std::string>();
  if (!valor.is_number_float()) return valor.dump();
  std::string texto(400, '\0');
  const auto fin =
      std::to_chars(texto.data(), texto.data() + texto.size(), valor.get<double>(), std::chars_format::fixed);
  texto.resize(static_cast<std::size_t>(fin.ptr - texto.data()));
  return texto;
}

bool EsNombre(const std::string& nombre) {
  return !nombre.empty() &&
         std::none_of(nombre.begin(), nombre.end(), [](unsigned char c) { return c == '/' || c == '\\' || c < ' '; });
}

std::optional<std::vector<Punto2>> LeePuntos(const json& valor) {
  std::vector<Punto2> puntos;
  if (!valor.is_array()) return std::nullopt;
  for (const json& punto : valor) {
    if (!punto.is_array() || punto.size() != 2 || !punto[0].is_number() || !punto[1].is_number()) return std::nullopt;
    puntos.push_back({punto[0].get<double>(), punto[1].get<double>()});
  }
  return puntos;
}

void LeeClave(Trabajo& trabajo, const std::string& clave, const json& valor) {
  if (clave == "picks") {
    trabajo.puntos = LeePuntos(valor);
    if (!trabajo.puntos) trabajo.rechazo = {clave, "picks must be an array of points [x, y]."};
  } else if (clave == "name" || clave == "piece") {
    if (!valor.is_string()) {
      trabajo.rechazo = {clave, clave + " must be a text."};
    } else {
      (clave == "name" ? trabajo.nombre : trabajo.pieza) = valor.get<std::string>();
    }
  } else if (valor.is_number() || valor.is_string()) {
    trabajo.valores.emplace_back(clave, TextoDe(valor));
  } else {
    trabajo.rechazo = {clave, "\"" + clave + "\" must be a number or a text."};
  }
}

Trabajo LeeTrabajo(const json& objeto) {
  Trabajo trabajo;
  if (!objeto.is_object()) {
    trabajo.rechazo = {"job", "a job must be an object."};
    return trabajo;
  }
  for (const auto& [clave, valor] : objeto.items()) {
    LeeClave(trabajo, clave, valor);
  }
  if (!trabajo.rechazo && !objeto.contains("name")) trabajo.rechazo = {"name", "name is missing."};
  if (!trabajo.rechazo && !objeto.contains("piece")) trabajo.rechazo = {"piece", "piece is missing."};
  if (!trabajo.rechazo && !EsNombre(trabajo.nombre)) {
    trabajo.rechazo = {"name", "name must be a file name: not empty, no folder separators, no control characters."};
  }
  return trabajo;
}

}  // namespace

std::vector<Trabajo> LeeLista(const std::string& texto, bool solidos) {
  ClavesRepetidas repetidas;
  json lista;
  try {
    lista = json::parse(texto, std::ref(repetidas));
  } catch (const json::exception& error) {
    // The library's texts begin with its own name in brackets.
    const std::string motivo = error.what();
    throw ErrorLista(motivo.substr(motivo.find(']') + 2));
  }
  if (!lista.is_array()) throw ErrorLista("it must be one array of objects, one object a piece.");

  std::vector<Trabajo> trabajos;
  std::map<std::string, int> veces;
  for (std::size_t i = 0; i < lista.size(); ++i) {
    Trabajo trabajo = LeeTrabajo(lista[i]);
    if (const auto& clave = repetidas.repetidas[i]) {
      trabajo.rechazo = {*clave, "\"" + *clave + "\" stands twice in the job."};
    }
    if (EsNombre(trabajo.nombre)) {
      ++veces[trabajo.nombre];
    } else {
      trabajo.nombre = "job " + std::to_string(i + 1);
    }
    trabajos.push_back(std::move(trabajo));
  }
  // Nobody can tell which of two pieces the drawing of that name should be.
  for (Trabajo& trabajo : trabajos) {
    const std::string_view nombre = trabajo.nombre;
    if (veces[trabajo.nombre] > 1) {
      trabajo.rechazo = {"name", "the name stands on another job too."};
    } else if (solidos && nombre.ends_with(kSufijoSolido) &&
               veces.contains(trabajo.nombre.substr(0, nombre.size() - kSufijoSolido.size()))) {
      trabajo.rechazo = {"name", "the picture of another job's solid has that name."};
    }
  }
  return trabajos;
}

}  // namespace duktores
