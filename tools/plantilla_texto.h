#pragma once
// The texts of the templates: a complete AC1015 file without entities, with the view of an empty sheet. Strict readers
// take it without complaint. Its handles lie below hexadecimal 500, where those of the entities begin.

#include <string>

namespace duktores {

/// Of a drawing, or of a file for a cutting machine, which has layers of its own.
enum class Plantilla { dibujo, corte };

/// Sets the extent of `estado` to that of the sheet.
std::string TextoPlantilla(Plantilla cual);

}  // namespace duktores
