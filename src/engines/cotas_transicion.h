#pragma once
// The dimensions around the pattern of a transition: its overall sizes and the places of its corners, all horizontal or
// vertical. Each stands at a level of the pattern, an extreme coordinate of its points, a few steps away from it.

#include "engines/transicion.h"
#include "piece/reglas_cotas.h"

namespace duktores {

/// Which list of dimensions a pattern gets.
enum class ListaCotas : std::uint8_t { baseRectangular, baseCircular };

/// Which fans of bend lines a shape holds: all, or those of one piece of two.
enum class Parte : std::uint8_t { entera, primera, segunda };

/// `corte` is the lower end of the split line, which only the pieces measure.
CotasFilas CotasDe(const Transicion& t, Parte parte, Punto2 corte, ListaCotas lista);

}  // namespace duktores
