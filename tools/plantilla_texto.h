#pragma once
// The text of the drawings' template: a complete AC1015 file without entities, with the view of an empty sheet. Strict
// readers take it without complaint. Its handles lie below hexadecimal 500, where those of the entities begin.

#include <string>

namespace duktores {

/// Sets the extent of `estado` to that of the sheet.
std::string TextoPlantilla();

}  // namespace duktores
