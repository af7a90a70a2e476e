#pragma once
// The verdict on a pattern: whether it is true to its solid, how far it is off at most, and what is wrong where.

#include <optional>
#include <utility>
#include <vector>

#include "piece/solido.h"

namespace duktores {

/// What can be wrong, the gravest first. `falta`, `repetida`: a shape of the solid has none in the pattern, or has two;
/// `imposible`: the solid itself can't be made; `vuelta`: a facet lies with its other side up; `cruce`: an outline
/// crosses itself; `figura`: the shape as a whole isn't that of its facets; `largo`: a length; `vecinas`: a line that
/// two shapes share has two lengths; `doblez`: a bend line is missing or one too many; `numeros`: a number is missing
/// or out of place.
enum class Falta { falta, repetida, imposible, vuelta, cruce, figura, largo, vecinas, doblez, numeros };

/// What there is to know of a pattern that is none of its faults: a shape is thinner than lengths may be off; the seam
/// lies at the other end of the piece than where it was asked for.
enum class Nota { delgada, otroExtremo };

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

/// Where false patterns come from, the first that is found: the mouth dips below the base; the cut lies above the point
/// where the elements meet; a side is eaten up by the sheet's thickness; the usual correction makes a radius negative
/// or too long; the pattern meets itself on the sheet; the usual rules don't lay the piece out truly.
enum class Causa { bocaBajoBase, corteSobreVertice, ladoComido, radioImposible, seEncuentra, reglasUsuales };

struct Veredicto {
  double desviacion = 0;          ///< the greatest difference of a length, faults included
  std::vector<Defecto> defectos;  ///< the worst of each kind and shape, the gravest first
  std::vector<std::pair<Nota, Lugar>> notas;
  std::optional<Causa> causa;  ///< of a pattern that isn't true, where it is known
  bool curaExacta = false;     ///< the exact rule would lay this piece out truly
  bool Cierto() const { return defectos.empty(); }
};

}  // namespace duktores
