#pragma once
// The user's own file, `estado.sRutaPropia`: what the windows remember from one run of the program to the next, in the
// format of the configuration.

#include <optional>
#include <string>
#include <string_view>

namespace duktores {

/// What is kept under a key; none if there is nothing, or no such file.
std::optional<std::string> LeePropio(std::string_view seccion, std::string_view clave);

/// Keeps a value at once, on the disk. False where that can't be, which is no fault of what is being done.
bool PonPropio(std::string_view seccion, std::string_view clave, std::string_view valor);

}  // namespace duktores
