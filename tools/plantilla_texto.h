#pragma once
// The texts of the templates: a complete AC1015 file without entities, with the view of an empty sheet. Strict readers
// take it without complaint. Its handles lie below hexadecimal 500, where those of the entities begin.

#include <string>

namespace duktores {

/// Of a drawing; of a file for a cutting machine, which has layers of its own; of a whole sheet for that machine.
enum class Plantilla { dibujo, corte, chapa };

/// Sets the extent of `estado` to that of the sheet.
std::string TextoPlantilla(Plantilla cual);

}  // namespace duktores
