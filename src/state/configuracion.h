#pragma once
// The configuration file: its keys, what each may hold, and where its value goes in `estado`. Nothing is refused: a
// missing file or key leaves 0, an empty text, Spanish, and a number is read from the left as far as it goes. What a
// person can hardly have meant is told instead.

#include <string>
#include <system_error>
#include <vector>

namespace duktores {

/// What came of reading the configuration.
struct LecturaConfiguracion {
  std::error_code fallo;            ///< why the file could not be read; then all is as for an empty one
  std::vector<std::string> avisos;  ///< a line a key, in the configured language: key, text, value used
};

/// Reads `estado.sRutaIni` whole and once, and sets language, decimal mark and all configured values from it. A file
/// that another program is writing is waited for, a second at most. More than a MiB is no configuration.
LecturaConfiguracion LeeConfiguracion();

/// Sets `estado.bComaDecimal` from the locale of the environment.
void DetectaComa();

}  // namespace duktores
