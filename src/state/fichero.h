#pragma once
// Whole files.

#include <optional>
#include <string>
#include <string_view>

namespace duktores {

/// The bytes of a file; none if it can't be read or is a folder.
std::optional<std::string> LeeFichero(const std::string& ruta);

/// Writes a file beside its place under another name and renames it at the end, so that `ruta` holds the old contents
/// or the new ones and never a part; the rights on it stay. False, with the old ones, if that fails or if something
/// stands there that is no file.
bool EscribeFichero(const std::string& ruta, std::string_view contenido);

}  // namespace duktores
