#pragma once
// The verdict on a pattern: whether it is true to its solid, how far it is off at most, and what is wrong where.

#include <string>
#include <vector>

namespace duktores {

/// What can be wrong, the gravest first. `falta`, `repetida`: a shape of the solid has none on the sheet, or there is
/// an outline too many; `vuelta`: a facet lies with its other side up; `cruce`: an outline crosses itself; `largo`: a
/// length; `vecinas`: a line that two shapes share has two lengths; `doblez`: a bend line is missing or one too many;
/// `numeros`: a number is missing, twice or out of place.
enum class Falta { falta, repetida, vuelta, cruce, largo, vecinas, doblez, numeros };

struct Defecto {
  Falta falta;
  std::string donde;  ///< the shape by its name in the configured language, and the mark by its number
  double medida = 0;  ///< how far off, in the configured unit; 0 where nothing is measured
};

struct Veredicto {
  double desviacion = 0;          ///< the greatest difference of a length, faults included
  std::vector<Defecto> defectos;  ///< the worst of each kind and shape, the gravest first
  bool Cierto() const { return defectos.empty(); }
};

/// Lengths may be off by half a millimetre.
double ToleranciaPatron();

/// The verdict in the configured language, in one line.
std::string TextoVeredicto(const Veredicto& veredicto);

}  // namespace duktores
