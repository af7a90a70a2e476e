#pragma once
// From a job to the fields of a dialog, and back.

#include <optional>
#include <string>

#include "dialogs/dialogo.h"
#include "jobs/lista.h"

namespace duktores {

/// Types the job's values into the dialog, key by key, as a person would. The first, by the alphabet, that doesn't go
/// in is refused by its key; the dialog then holds what came before it.
std::optional<Rechazo> LlenaDialogo(Dialogo& dialogo, const Trabajo& trabajo);

/// The job of which LlenaDialogo makes these fields again. Empty ones are left out.
Trabajo TrabajoDe(const Dialogo& dialogo, std::string nombre);

}  // namespace duktores
