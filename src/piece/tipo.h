#pragma once
// The types of piece. A table by type has a row for each, in this order, and says so by a static_assert.

#include <cstddef>
#include <cstdint>

namespace duktores {

enum class TipoPieza : std::uint8_t {
  cr,    ///< circle on a rectangular base
  rc,    ///< rectangle on a circular base
  elip,  ///< ellipse on a rectangular base
  esp1,  ///< rounded corners at both mouths
  esp2,  ///< circle on a base of two half circles
  esp3,  ///< circle on a base with one half circle
  esp4,  ///< circle on a base with rounded corners
  esp5,  ///< rounded corners on a square base
};
inline constexpr std::size_t kTiposPieza = static_cast<std::size_t>(TipoPieza::esp5) + 1;

/// Whether each row of a table by type stands at its type's place, and none is missing. A row names its type as `tipo`.
template <class Tabla>
constexpr bool Completa(const Tabla& tabla) {
  std::size_t i = 0;
  for (const auto& fila : tabla) {
    if (static_cast<std::size_t>(fila.tipo) != i++) return false;
  }
  return i == kTiposPieza;
}

}  // namespace duktores
