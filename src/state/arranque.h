#pragma once
// Start-up: from the place of the executable and the configuration file to a filled program state. Nothing here fails:
// a missing file or key leaves 0, an empty text, Spanish.

#include <string>
#include <string_view>

namespace duktores {

/// Makes `estado` anew for the executable at `ejecutable` (a full path): places, host window, language, unit,
/// configuration. The executable lies in a folder of four letters directly below the installation root. A non-empty
/// `rutaIni` takes the place of the installation's Config/Config.ini. Only `estado.plataforma` is kept.
void Arranca(std::string_view ejecutable, std::string_view rutaIni = {});

/// One key of `estado.sRutaIni` as text; empty if the key is missing or there is no readable regular file. Only its
/// first MiB counts.
std::string LeeIni(std::string_view seccion, std::string_view clave);

/// The language base from LANGUAGE/Language; an unlisted language is Spanish.
double LeeIdioma();

/// Sets `estado.bComaDecimal` from the locale of the environment.
void DetectaComa();

/// Full path of the running program.
std::string RutaEjecutable();

}  // namespace duktores
