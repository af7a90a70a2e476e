#pragma once
// What the machine, the press brake and the office get of a pattern: a part for each shape, the list of their folds,
// the figures of their sheets. All as `estado` has unit and machine.

#include <string>
#include <vector>

#include "check/veredicto.h"
#include "dxf/corte.h"
#include "shell/csv.h"

namespace duktores {

/// The parts of a piece. `ficheros` are the names of their files, without folder, in their order: all the same one
/// where the machine wants them together, empty for a part that isn't cut.
struct Cortes {
  std::vector<ParteCorte> partes;
  std::vector<std::string> ficheros;
};

/// A part for each shape that has an outline. `nombre` is the drawing's.
Cortes CortesDe(const std::string& nombre, const Solido& solido, const Patron& patron);

/// What keeps parts from being cut, in words: a pattern that isn't true, an outline that crosses itself or has no area.
/// Empty if nothing does.
std::string TextoSinCorte(const Cortes& cortes, const Veredicto& veredicto);

/// Which parts are cut: those that are sound of a pattern that is true, or all that have an outline.
enum class Cuales { sanas, todas };
bool SeCorta(const Recorte& recorte, const Veredicto& veredicto, Cuales cuales);
/// Takes the files from all other parts.
void Deja(Cortes& cortes, const Veredicto& veredicto, Cuales cuales);

/// Cut files of an earlier time that stand in a folder where no new one will, in words; empty if there are none.
std::string TextoViejos(const Cortes& antes, const Cortes& cortes, const std::string& carpeta);

/// What is wrong with a part, in words; empty if it is sound.
std::string TextoFalta(const Recorte& recorte);

/// The names of the files, each once.
std::vector<std::string> Ficheros(const Cortes& cortes);

/// Writes the files into a folder. The first that can't be written ends it; `ruta` is that one.
Guardado GuardaCortes(const Cortes& cortes, const std::string& carpeta, std::string& ruta);

/// The folds of all parts, in the order of the shapes and of their numbers, with a head and the coordinates of the
/// files.
std::string ListaDobleces(const Cortes& cortes, HabitoCsv habito);
/// The file of that list, without folder.
std::string FicheroDobleces(const std::string& nombre);

}  // namespace duktores
