#pragma once
// One job from its list entry to its drawing: types the values into the dialog, presses CmdAceptar, unfolds, saves. All
// in the calling thread, on that thread's `estado`.

#include <optional>
#include <string>
#include <vector>

#include "jobs/lista.h"
#include "paint/pintura.h"

namespace duktores {

struct Opciones {
  std::string carpeta = ".";
  std::vector<Formato> imagenes;
  bool solido = false;         ///< pictures of the solid too
  bool soloComprueba = false;  ///< write nothing
  bool estricto = false;       ///< a pattern that isn't true is refused
};

/// What was written (empty with `soloComprueba`), or why not; and what is wrong with the pattern or with the file.
struct Resultado {
  std::string fichero{};
  std::string aviso{}, nota{};
  std::optional<Rechazo> rechazo{};
};

/// `estado` is as the configuration leaves it; the job changes it.
Resultado Trabaja(const Trabajo& trabajo, const Opciones& opciones);

}  // namespace duktores
