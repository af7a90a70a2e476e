#pragma once
// What must never stand in a drawing: a number that isn't finite.

#include <string>
#include <string_view>

namespace duktores {

/// Whether a text has the word for such a number.
bool DiceNoFinito(std::string texto);

/// The first pair of a DXF text that isn't one, its group code and its value on lines that end in CR LF, or that holds
/// no finite number where one belongs. Empty if all are sound.
std::string Mancha(std::string_view dxf);

}  // namespace duktores
