#pragma once
// What holds whatever came in. What doesn't hold ends the program, and the fuzzer keeps the input.

#include <string_view>

#include "jobs/lista.h"

namespace duktores {

/// Leaves `estado` as start-up with the program's own configuration does, which is read once.
void ArrancaUnaVez();

/// A DXF text: lines that end in CR LF, group codes and values in turn, no number that isn't finite, nor the word for
/// one in a text.
void ExigeDxf(std::string_view texto);

/// Works the jobs from the present `estado`. Each is refused with a text, or leaves a sound drawing in `carpeta`.
void ExigeTrabajos(const std::vector<Trabajo>& trabajos, const std::string& carpeta);

/// Shows, unfolds and checks the piece of `estado`. What is drawn is sound, and a run that ends early says why, once.
void ExigeDesarrollo();

}  // namespace duktores
