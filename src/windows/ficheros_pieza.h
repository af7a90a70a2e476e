#pragma once
// Pieces as files: what the user is asked and told when one is opened or saved.

#include <optional>
#include <string>

#include "jobs/lista.h"
#include "shell/lista.h"

class QWidget;

namespace duktores {

struct PiezaAbierta {
  const FilaPieza& fila;
  Dialogo dialogo;  ///< holds its values
  Trabajo trabajo;
};

/// The piece of a file, or the one that is chosen of its list. None if the user doesn't choose, or if what can't be
/// taken has been told.
std::optional<PiezaAbierta> AbrePieza(QWidget& sobre, const std::string& ruta);

/// Asks for a file, and where it holds pieces already whether this one joins them. False if it isn't saved.
bool GuardaPieza(QWidget& sobre, Trabajo trabajo);

/// Where the files of pieces lie: the folder of the last one, else that of the drawings.
std::string CarpetaPiezas();

}  // namespace duktores
