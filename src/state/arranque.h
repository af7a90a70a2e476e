#pragma once
// Start-up: from the place of the executable and the configuration file to a filled program state. Nothing here fails:
// a missing file or key leaves 0, an empty text, Spanish.

#include <string>
#include <string_view>

namespace duktores {

/// What comes before all else: the three standard streams are taken, so that no file becomes one of them; a reader that
/// goes away or a limit on the size of files is an error of that file, not the end of the program.
void PreparaProceso();

/// Makes `estado` anew for the executable at `ejecutable` (a full path): places, host window, language, unit,
/// configuration. The executable lies in a folder of four letters directly below the installation root. A non-empty
/// `rutaIni` takes the place of the installation's Config/Config.ini. Only `estado.plataforma` is kept.
void Arranca(std::string_view ejecutable, std::string_view rutaIni = {});

/// Whether what `Arranca` has read will do: with another `iFibra` than 1, 2 or 3 the dialogs store no dimension at all.
bool ConfiguracionSirve();

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
