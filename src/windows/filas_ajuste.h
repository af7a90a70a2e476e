#pragma once
// The rows of the settings window, in their order. What a key takes is the configuration's; a row whose key the
// configuration doesn't know isn't shown.

#include <span>
#include <string_view>

namespace duktores {

enum class ClaseAjuste {
  idioma,
  lista,  ///< numbers one after another, each with a text
  siNo,   ///< a number: 0 or 1
  numero,
  nombre,
  carpeta
};

struct FilaAjuste {
  int pagina;  ///< text of its tab
  std::string_view seccion, clave;
  ClaseAjuste clase;
  int rotulo = 0, significado = 0;     ///< texts; a meaning of 0: the label says all
  int primera = 0;                     ///< number of a list's first choice
  std::span<const int> opciones = {};  ///< texts of a list's choices
  std::string_view propuesta = {};     ///< shown where nothing is written and what counts then makes no sense
};

std::span<const FilaAjuste> FilasAjuste();

}  // namespace duktores
