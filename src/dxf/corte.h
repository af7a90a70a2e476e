#pragma once
// Files for a cutting machine: outlines, folds and names on a layer each, and nothing else.

#include <span>
#include <string>
#include <vector>

#include "cut/marca.h"
#include "cut/recorte.h"
#include "state/guardado.h"

namespace duktores {

/// What a machine gets of one shape, and where: the origin of its frame in the file.
struct ParteCorte {
  Recorte recorte;
  std::vector<Trazo> marca;
  Punto2 sitio{};
};

/// Writes the file, whole or not at all. Lengths are millimetres or inches, and the header says which.
Guardado GuardaCorte(const std::string& ruta, std::span<const ParteCorte> partes, const Maquina& maquina,
                     bool milimetros);

}  // namespace duktores
