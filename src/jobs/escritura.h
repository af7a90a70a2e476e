#pragma once
// Job lists as texts.

#include <span>
#include <string>

#include "jobs/lista.h"

namespace duktores {

/// A list that is read as these jobs again, a line a job. What a person typed as a plain number stands as one.
std::string EscribeLista(std::span<const Trabajo> trabajos);
/// One of its lines.
std::string EscribeTrabajo(const Trabajo& trabajo);

}  // namespace duktores
