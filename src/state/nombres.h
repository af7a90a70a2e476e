#pragma once
// Names of files on other systems than this one.

#include <string>
#include <string_view>

namespace duktores {

/// Whether every usual system can store a file of this name, without folders before it.
bool EsNombrePortatil(std::string_view nombre);

/// The same name in letters of the English alphabet, digits, `_`, `-` and points: accents go, a blank or another
/// character becomes `_`, one of another script its number. Never empty, nor a name that a system keeps for itself.
std::string NombrePortatil(std::string_view nombre);

}  // namespace duktores
