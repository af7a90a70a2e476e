#pragma once
// The verdict on a pattern: whether it is true to its solid, how far it is off at most, and what is wrong where.

#include <optional>
#include <vector>

#include "piece/solido.h"

namespace duktores {

/// What can be wrong, the gravest first. `falta`, `repetida`: a shape of the solid has none in the pattern, or has two;
/// `vuelta`: a facet lies with its other side up; `cruce`: an outline crosses itself; `largo`: a length; `vecinas`: a
/// line that two shapes share has two lengths; `doblez`: a bend line is missing or one too many; `numeros`: a number is
/// missing or out of place.
enum class Falta { falta, repetida, vuelta, cruce, largo, vecinas, doblez, numeros };

/// Where a fault is: a shape, the number that stands next to it (0: none), and the other shape of a shared line.
struct Lugar {
  NombreForma forma;
  int numero = 0;
  std::optional<NombreForma> vecina{};
  friend bool operator==(const Lugar&, const Lugar&) = default;
};

struct Defecto {
  Falta falta;
  Lugar donde;
  double medida = 0;  ///< how far off, in the configured unit; 0 where nothing is measured
};

struct Veredicto {
  double desviacion = 0;          ///< the greatest difference of a length, faults included
  std::vector<Defecto> defectos;  ///< the worst of each kind and shape, the gravest first
  bool Cierto() const { return defectos.empty(); }
};

}  // namespace duktores
