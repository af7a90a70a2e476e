#pragma once
// The catalogue as a table: what its rows show and open. A row's number selects the behaviour; its text is only shown.

#include <array>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "piece/tipo.h"

namespace duktores {

enum class ClaseFila { categoria, hueco, pieza };

struct FilaCatalogo {
  ClaseFila clase;
  int texto;                         ///< text number; 0: `hueco` is shown
  std::string_view hueco;            ///< what a gap shows
  bool capitales;                    ///< the row's text is shown in capitals
  std::string_view imagen;           ///< file below Images; empty: no picture
  std::array<int, 2> rotulo;         ///< texts of the caption above the picture, in capitals; 0: none
  std::optional<TipoPieza> pieza{};  ///< what the row opens
};

/// Group by group: its heads, its pieces in the order of their types, and a gap between groups.
std::span<const FilaCatalogo> FilasCatalogo();

std::string TextoFila(const FilaCatalogo& fila);

/// The caption; empty where it is hidden.
std::string RotuloFila(const FilaCatalogo& fila);

}  // namespace duktores
