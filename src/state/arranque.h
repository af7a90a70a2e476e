#pragma once
// Start-up: from the place of the executable and the configuration file to a filled program state. Nothing here fails.

#include <string>
#include <string_view>

#include "state/configuracion.h"

namespace duktores {

/// What comes before all else: the three standard streams are taken, so that no file becomes one of them; a reader that
/// goes away or a limit on the size of files is an error of that file, not the end of the program.
void PreparaProceso();

/// Makes `estado` anew for the executable at `ejecutable` (a full path): places, host window, language, unit,
/// configuration. The executable lies in a folder of four letters directly below the installation root. A non-empty
/// `rutaIni` takes the place of the installation's Config/Config.ini. Only `estado.plataforma` and `estado.sRutaPropia` are kept.
LecturaConfiguracion Arranca(std::string_view ejecutable, std::string_view rutaIni = {});

/// Whether what `Arranca` has read will do: with another `iFibra` than 1, 2 or 3 the dialogs store no dimension at all.
bool ConfiguracionSirve();

/// Full path of the running program.
std::string RutaEjecutable();

}  // namespace duktores
