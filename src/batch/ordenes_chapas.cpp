#include "batch/ordenes_chapas.h"

#include <charconv>
#include <cmath>
#include <functional>
#include <nlohmann/json.hpp>
#include <stdexcept>
#include <string_view>

#include "state/fichero.h"

namespace duktores {

namespace {

using nlohmann::json;

constexpr double kLargoMaximo = 1e5;

// Refuses what is no number from 0 to this, and what calls itself none.
std::function<std::string(const std::string&)> Hasta(double maximo) {
  return [maximo](const std::string& texto) -> std::string {
    double n = -1;
    const auto fin = std::from_chars(texto.data(), texto.data() + texto.size(), n);
    const bool vale = fin.ptr == texto.data() + texto.size() && n >= 0 && n <= maximo;
    return vale ? "" : "must be a number from 0 to " + std::to_string(std::lround(maximo));
  };
}

/// "2500x1250". None if the text is nothing like that.
std::optional<Punto2> LeeTamano(std::string_view texto) {
  const auto numero = [&](double& n) {
    const auto fin = std::from_chars(texto.data(), texto.data() + texto.size(), n, std::chars_format::fixed);
    texto.remove_prefix(static_cast<std::size_t>(fin.ptr - texto.data()));
    return fin.ec == std::errc() && n > 0 && n <= kLargoMaximo;
  };
  Punto2 tamano;
  if (!numero(tamano.x) || !texto.starts_with('x')) return std::nullopt;
  texto.remove_prefix(1);
  if (!numero(tamano.y) || !texto.empty()) return std::nullopt;
  return tamano;
}

// Else what is wrong with it.
std::optional<std::string> LeeExistencia(const json& entrada, Existencia& existencia) {
  if (!entrada.is_object()) return "must be an object";
  for (const auto& [clave, valor] : entrada.items()) {
    if (clave == "size") {
      const auto tamano = valor.is_string() ? LeeTamano(valor.get<std::string>()) : std::nullopt;
      if (!tamano) return "size must be a text like \"2500x1250\"";
      existencia.chapa.tamano = *tamano;
    } else if (clave == "count") {
      constexpr int kMaximo = 100000;
      if (!valor.is_number_integer() || valor < 0 || valor > kMaximo)
        return "count must be a whole number from 0 to 100000";
      existencia.chapa.cuantas = valor.get<int>();
    } else if (clave == "thickness") {
      if (!valor.is_number() || !(valor > 0)) return "thickness must be a number above 0";
      existencia.espesor = valor.get<double>();
    } else {
      return "\"" + clave + "\" is no key of it";
    }
  }
  return existencia.chapa.tamano == Punto2{} ? std::optional<std::string>("size is missing") : std::nullopt;
}

}  // namespace

std::vector<const CLI::Option*> AnadeOrdenesChapas(CLI::App& app, OrdenesChapas& ordenes) {
  std::vector<const CLI::Option*> suyas;
  const auto anade = [&](CLI::Option* suya) {
    suyas.push_back(suya);
    return suya;
  };
  app.add_option_function<std::vector<std::string>>(
         "--sheet",
         [&](const std::vector<std::string>& textos) {
           for (const std::string& texto : textos) {
             const auto tamano = LeeTamano(texto);
             if (!tamano) throw CLI::ValidationError("--sheet", "must be like 2500x1250, in the configured unit");
             ordenes.existencias.push_back({{*tamano}});
           }
         },
         "lay the parts on sheets of this size, sheet-1.dxf ...; given again: the smallest that serves")
      ->type_name("WxH")
      ->allow_extra_args(false);
  app.add_option("--stock", ordenes.fichero,
                 "sheets that there are: a JSON array of {\"size\", \"count\", \"thickness\"}")
      ->type_name("FILE");
  anade(app.add_option("--gap", ordenes.reglas.hueco, "least distance between two parts; default: 5 mm"))
      ->type_name("LENGTH")
      ->check(Hasta(kLargoMaximo));
  anade(app.add_option("--margin", ordenes.reglas.margen, "of the parts from the sheet's rim; default: 10 mm"))
      ->type_name("LENGTH")
      ->check(Hasta(kLargoMaximo));
  anade(app.add_option("--turn", ordenes.reglas.giro, "step by which parts may be turned; 0: not at all"))
      ->type_name("DEGREES")
      ->check([](const std::string& texto) -> std::string {
        double grados = -1;
        std::from_chars(texto.data(), texto.data() + texto.size(), grados);
        const bool vale = grados == 0 || (grados >= 5 && grados <= 180 && std::fmod(360, grados) == 0);
        return vale ? "" : "must be 0 or divide 360, from 5 to 180";
      })
      ->capture_default_str();
  anade(app.add_option("--seconds", ordenes.esfuerzo.segundos, "how long sheets are improved"))
      ->type_name("S")
      ->check(Hasta(1e6))
      ->capture_default_str();
  anade(
      app.add_option("--rounds", ordenes.esfuerzo.vueltas, "instead: so many rounds, with the same result everywhere"))
      ->type_name("R")
      ->check(CLI::Range(0, 1000000000));
  anade(app.add_option("--seed", ordenes.esfuerzo.semilla, "another one tries other layouts"))
      ->type_name("N")
      ->capture_default_str();
  return suyas;
}

void ExigeChapas(const std::vector<const CLI::Option*>& suyas) {
  for (const CLI::Option* suya : suyas) {
    if (suya->count() > 0) throw CLI::RequiresError(suya->get_name(), "--sheet or --stock");
  }
}

std::vector<Existencia> LeeExistencias(const std::string& ruta) {
  std::error_code motivo;
  const auto texto = LeeFichero(ruta, motivo);
  if (!texto) throw std::runtime_error("can't read the stock " + ruta + ": " + motivo.message());
  const json lista = json::parse(*texto, nullptr, false);
  if (!lista.is_array()) throw std::runtime_error(ruta + " is no stock: it must be a JSON array");
  std::vector<Existencia> existencias;
  for (const json& entrada : lista) {
    const std::string cual = " is no stock: entry " + std::to_string(existencias.size() + 1) + " ";
    if (const auto falta = LeeExistencia(entrada, existencias.emplace_back())) {
      throw std::runtime_error(ruta + cual + *falta);
    }
  }
  return existencias;
}

}  // namespace duktores
