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

/// Gives back those that mean nothing where no sheets are.
std::vector<const CLI::Option*> AnadeOrdenesChapas(CLI::App& app, OrdenesChapas& ordenes);
/// Throws CLI::RequiresError if one of these is given.
void ExigeChapas(const std::vector<const CLI::Option*>& suyas);

/// The sheets of a JSON file: an array of objects with `size`, as in "2500x1250", and if need be `count` and
/// `thickness`. Throws std::runtime_error, which tells file and entry.
std::vector<Existencia> LeeExistencias(const std::string& ruta);

}  // namespace duktores
