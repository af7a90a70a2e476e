#pragma once
// Files for a cutting machine: outlines, folds and names on a layer each, and nothing else.

#include <optional>
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

/// Turned about the origin of its frame, by degrees, and then moved to a place.
ParteCorte ColocadaEn(const ParteCorte& parte, double grados, Punto2 sitio);

/// Writes the file, whole or not at all. Lengths are millimetres or inches, and the header says which. Of parts on a
/// sheet of a size `chapa` its rim stands there too, on a layer that isn't cut.
Guardado GuardaCorte(const std::string& ruta, std::span<const ParteCorte> partes, const Maquina& maquina,
                     bool milimetros, std::optional<Punto2> chapa = {});

}  // namespace duktores
