#pragma once
// What would be lost with the end of the program.

namespace duktores {

/// Asks about each pattern that was placed by hand and isn't saved: save, drop, stay. False to stay.
bool PuedeTerminar();

}  // namespace duktores
