#pragma once
// What the command line says of sheets.

#include <CLI/CLI.hpp>
#include <string>
#include <vector>

#include "shell/chapas.h"

namespace duktores {

struct OrdenesChapas {
  std::vector<Existencia> existencias;  ///< of the command line; those of the file come to them
  std::string fichero;                  ///< with stock
  ReglasChapa reglas;
  EsfuerzoNido esfuerzo;
};

void AnadeOrdenesChapas(CLI::App& app, OrdenesChapas& ordenes);
/// Throws CLI::RequiresError if one of those options is given that mean nothing where no sheets are.
void ExigeChapas(const CLI::App& app);

/// The sheets of a JSON file: an array of objects with `size`, as in "2500x1250", and if need be `count` and
/// `thickness`. Throws std::runtime_error, which tells file and entry.
std::vector<Existencia> LeeExistencias(const std::string& ruta);

}  // namespace duktores
