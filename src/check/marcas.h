#pragma once
// The numbered lines of a shape against its outline and its facets.

#include "check/cotejo.h"

namespace duktores {

/// Where a number is missing or stands beside its line, and where a bend line is missing, moved or one too many.
struct Marcas {
  Peor numero, doblez;
};
Marcas CotejaMarcas(const FormaPatron& forma);

}  // namespace duktores
