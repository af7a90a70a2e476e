#pragma once
// The user's own file, `estado.sRutaPropia`: what the windows remember from one run of the program to the next, in the
// format of the configuration.

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "state/ini.h"

namespace duktores {

/// What is kept under a key; none if there is nothing, or no such file.
std::optional<std::string> LeePropio(std::string_view seccion, std::string_view clave);

/// The whole file; empty if there is none.
std::string LeePropio();

/// Keeps a value at once, on the disk. False where that can't be, which is no fault of what is being done.
bool PonPropio(std::string_view seccion, std::string_view clave, std::string_view valor);
/// Several at once: all of them or none.
bool PonPropio(const std::vector<EntradaIni>& valores);

}  // namespace duktores
