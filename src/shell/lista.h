#pragma once
// The list of the piece types: what catalogue, windows, batch program and run driver know of each. The type's number
// lies below the engines, its row above the dialogs.

#include <span>
#include <string_view>

#include "dialogs/dialogo.h"
#include "piece/patron.h"

namespace duktores {

/// The groups of the catalogue, in its order.
enum class Grupo { rectangulares, especiales, elipticas };

struct FilaPieza {
  TipoPieza tipo;
  Grupo grupo;
  const DefDialogo& dialogo;
  std::string_view imagen;  ///< file below Images
  Solido (*solido)(const Pieza&);
  Desarrollo (*desarrollo)(const Pieza&, const Solido&);
  /// Writes what an unfolding of the accepted piece leaves in `estado`, but for what the dialog has stored.
  void (*deja)(const Pieza&, const Desarrollo&);
};

/// A row for each type, in the order of the types.
std::span<const FilaPieza> FilasPieza();
const FilaPieza& FilaDe(TipoPieza tipo);

/// The row of a job's key; null if no piece has it.
const FilaPieza* FilaDeClave(std::string_view clave);

}  // namespace duktores
