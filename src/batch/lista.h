#pragma once
// The job list: a JSON array of objects, one object a piece. Values are texts here, as they will be typed into the
// dialog; what a piece's fields are called and take is the dialog's to say.

#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "geometry/puntos.h"

namespace duktores {

/// Why a job or a list is refused: the key, and a plain English sentence or the program's own text.
struct Rechazo {
  std::string clave, texto;
};

struct Trabajo {
  std::string nombre;  ///< of the drawing; "job 3" where the third job has none
  std::string pieza;
  std::vector<std::pair<std::string, std::string>> valores;  ///< key and text of every other key, in alphabetical order
  std::optional<std::vector<Punto2>> puntos;  ///< answers to the picks; none: the program places the shapes
  std::optional<Rechazo> rechazo;             ///< what is wrong with the job as it stands in the list
};

/// Thrown for a text that is no job list at all.
struct ErrorLista : std::runtime_error {
  using std::runtime_error::runtime_error;
};

/// Behind the name of a job it makes that of the picture of its solid.
inline constexpr std::string_view kSufijoSolido = "-3d";

/// `solidos` says that pictures of the solids are made too, whose names no job may have.
std::vector<Trabajo> LeeLista(const std::string& json, bool solidos = false);

}  // namespace duktores
