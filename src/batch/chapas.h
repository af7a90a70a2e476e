#pragma once
// The sheets of a list: takes the parts of its pieces, and at the end lays them and writes what the machine and the
// office get.

#include <functional>
#include <string>
#include <vector>

#include "batch/ordenes_chapas.h"
#include "shell/informe_chapas.h"

namespace duktores {

/// What came of all sheets. A line of the answers each.
struct InformeChapas {
  std::vector<FilaChapa> chapas;
  std::vector<FilaSinChapa> faltan;
  std::vector<std::string> lineas;
  bool bien = true;  ///< all lies on sheets that are written
};

/// Lays the parts of each thickness and writes the sheets into the folder. `avance` is told the best so far in words.
InformeChapas PonEnChapas(const std::vector<ParteChapa>& partes, const OrdenesChapas& ordenes,
                          const std::string& carpeta, const std::function<void(const std::string&)>& avance);

}  // namespace duktores
