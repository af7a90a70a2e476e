#pragma once
// The guard of the drawing procedures.

#include <algorithm>
#include <cmath>
#include <initializer_list>

#include "piece/numeros_texto.h"
#include "state/error_corrida.h"

namespace duktores {

/// Throws ErrorCorrida if one of the values is no finite number.
inline void ExigeFinitos(std::initializer_list<double> valores) {
  if (!std::ranges::all_of(valores, [](double v) { return std::isfinite(v); }))
    throw ErrorCorrida(texto::kMedidaImposible);
}

}  // namespace duktores
