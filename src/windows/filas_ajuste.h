#pragma once
// The rows of the settings window, in their order. What a key takes is the configuration's; a row whose key the
// configuration doesn't know isn't shown.

#include <optional>
#include <span>
#include <string_view>

#include "state/configuracion.h"

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
  int rotulo, significado;              ///< texts
  int primera = 0;                      ///< number of a list's first choice
  std::span<const int> opciones = {};   ///< texts of a list's choices
  std::string_view propuesta = {};      ///< shown where nothing is configured, or what counts makes no sense
  std::optional<Limites> limites = {};  ///< of what is typed here, if narrower than those of the key
};

std::span<const FilaAjuste> FilasAjuste();

}  // namespace duktores
