#pragma once
// The configuration file: its keys, what each may hold, and where its value goes in `estado`. Nothing is refused: a
// missing file or key leaves 0, an empty text, Spanish, and a number is read from the left as far as it goes. What a
// person can hardly have meant is told instead. What the user's own file holds counts before the installation's.

#include <limits>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

namespace duktores {

inline constexpr double kSinTope = std::numeric_limits<double>::max();
inline constexpr double kMasQueCero = std::numeric_limits<double>::min();

/// The numbers that make sense for a key: from `minimo` to `maximo`, multiples of `paso` if that isn't 0.
struct Limites {
  double minimo, maximo, paso;
};

/// Whether a text is a number within the limits, and nothing else.
bool TieneSentido(const Limites& limites, std::string_view texto);

/// Whether every reader of a drawing takes this as the name of a layer.
bool EsCapa(std::string_view nombre);

/// What a Language key may hold, in the order of the language bases.
std::span<const std::string_view> Idiomas();

/// A key of the configuration as it was read.
struct ClaveLeida {
  std::string_view seccion, clave;
  std::optional<std::string> escrito;  ///< in the file that counts
  std::string vale;                    ///< what is used
  std::optional<Limites> limites;      ///< none: a text
};

/// What came of reading the configuration.
struct LecturaConfiguracion {
  std::error_code fallo;            ///< why the file could not be read; then all is as for an empty one
  std::vector<std::string> avisos;  ///< a line a key, in the configured language: key, text, value used
  std::vector<ClaveLeida> claves;   ///< all keys that there are
};

/// Reads `estado.sRutaIni` whole and once, with the user's own file before it, and sets language, decimal mark and all
/// configured values from them, nothing else of `estado`.
LecturaConfiguracion LeeConfiguracion();

/// All of `estado.sRutaIni`; empty with the reason in `fallo` if it can't be read. While another program is writing it
/// that is waited for, a second at most. More than a MiB is no configuration.
std::string TextoConfiguracion(std::error_code& fallo);

/// Sets `estado.bComaDecimal` from the locale of the environment.
void DetectaComa();

}  // namespace duktores
