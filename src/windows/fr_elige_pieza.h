#pragma once
// The list of a file's pieces, of which the user chooses one.

#include <span>

#include "jobs/lista.h"

class QWidget;

namespace duktores {

/// The index of the chosen one; that behind the last if none was chosen. Those that can't be opened say why.
std::size_t EligePieza(QWidget& sobre, std::span<const Trabajo> trabajos);

}  // namespace duktores
