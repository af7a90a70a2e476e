#pragma once
// Rounding to decimals, half to even on the scaled value. The default rounding mode is part of the contract.

#include <array>
#include <cmath>

namespace duktores {

/// `v` rounded to `k` decimals, 0 <= k <= 8.
inline double Redondea(double v, int k) {
  constexpr std::array<double, 9> escalas{1e0, 1e1, 1e2, 1e3, 1e4, 1e5, 1e6, 1e7, 1e8};
  const double escala = escalas[static_cast<std::size_t>(k)];
  return std::nearbyint(v * escala) / escala;
}

}  // namespace duktores
