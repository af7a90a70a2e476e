#pragma once
// Files of pieces as the windows open and save them: job lists, or one object of such a list alone.

#include <string>
#include <vector>

#include "jobs/lista.h"
#include "state/guardado.h"

namespace duktores {

struct LecturaPiezas {
  std::vector<Trabajo> trabajos;
  int motivo = 0;       ///< number of the text that says why there are none; 0: there is one at least
  std::string detalle;  ///< more about that, behind the text; may be empty
};

/// Reads a regular file of a size that a person can choose from; of a larger one nothing.
LecturaPiezas LeePiezas(const std::string& ruta);

/// The same of a text.
LecturaPiezas LeePiezasDe(std::string_view json);

/// The list with the job behind it, or in the place of the one of its name, whose quantity and thickness it takes over:
/// no dialog has fields for them.
void PonTrabajo(std::vector<Trabajo>& trabajos, Trabajo trabajo);

}  // namespace duktores
