#pragma once
// The configuration while the program runs: it is read again, and what a person changes is kept in its files.

#include <string>
#include <vector>

#include "state/configuracion.h"
#include "state/guardado.h"
#include "state/ini.h"

namespace duktores {

/// Reads the configuration again. The divisions stay those of the dialog that was accepted last, unless the configured
/// ones are wanted.
LecturaConfiguracion ReleeConfiguracion(bool divisiones);

/// Where changes go: the installation's file, or the user's own where that one can't be written.
std::string RutaAjustes();

/// Keeps values in the installation's file or, where that fails, in the user's own, and reads nothing again. A key that
/// the user's own file has already is written there too, since it counts. Told is why nothing was kept.
Guardado GuardaAjustes(const std::vector<EntradaIni>& cambios);

/// What a person is told of a configuration, a line a key. A missing file is none where the user's own file makes up
/// for it.
std::vector<std::string> AvisosDe(const LecturaConfiguracion& lectura);

}  // namespace duktores
