#pragma once
// The sheets of a list: takes the parts of its pieces, and at the end lays them and writes what the machine and the
// office get.

#include <functional>
#include <string>
#include <vector>

#include "batch/ordenes_chapas.h"
#include "shell/informe_chapas.h"

namespace duktores {

/// What came of all sheets.
struct InformeChapas {
  std::vector<FilaChapa> chapas;
  std::vector<FilaSinChapa> faltan;
  std::vector<std::string> viejas;  ///< files of sheets that stand in the folder from an earlier time
  bool bien = true;                 ///< all lies on sheets that are written
};

/// Who is told what in words: the best so far while it is searched, and each answer once it is there.
struct OyenteChapas {
  std::function<void(const std::string&)> avance, respuesta;
};

/// Lays the parts of each thickness and writes the sheets into the folder. A signal ends the search, and the best of it
/// is written; another one ends the writing between two sheets.
InformeChapas PonEnChapas(const std::vector<ParteChapa>& partes, const OrdenesChapas& ordenes,
                          const std::string& carpeta, const OyenteChapas& oyente);

}  // namespace duktores
