#pragma once
// One job from its list entry to its drawing: types the values into the dialog, presses CmdAceptar, unfolds, saves. All
// in the calling thread, on that thread's `estado`.

#include <optional>
#include <string>
#include <vector>

#include "jobs/lista.h"
#include "paint/pintura.h"
#include "shell/csv.h"
#include "shell/informe_chapas.h"

namespace duktores {

struct Opciones {
  std::string carpeta = ".";
  std::vector<Formato> imagenes;
  bool solido = false;                    ///< pictures of the solid too
  bool cortes = false, dobleces = false;  ///< cut files and the list of bends too
  bool chapas = false;                    ///< the parts are wanted, for sheets
  bool fuerza = false;                    ///< cut files also of what isn't true or sound
  HabitoCsv habito{};                     ///< of the list of bends
  bool informe = false;                   ///< the figures of the shapes are wanted
  bool soloComprueba = false;             ///< write nothing
  bool estricto = false;                  ///< a pattern that isn't true is refused

  bool QuierePartes() const { return cortes || dobleces || informe || chapas; }
};

/// A shape as the office wants to know it.
struct FilaInforme {
  std::string forma, fichero;  ///< its name; its cut file, if there is one
  double espesor = 0;
  Punto2 caja;                           ///< of the smallest rectangle around it, the longer side first
  double area = 0, peso = 0, largo = 0;  ///< of the sheet, and of the cut
  int dobleces = 0;
  double desviacion = 0;
  std::string veredicto;
};

/// What was written (empty with `soloComprueba`), or why not; and what is wrong with the pattern or with the file.
struct Resultado {
  std::string fichero{};
  std::string aviso{}, nota{};
  bool sinCorte = false;  ///< a cut file that was wanted isn't written
  std::vector<FilaInforme> filas{};
  std::vector<ParteChapa> partes{};      ///< that can be cut
  std::vector<FilaSinChapa> sinChapa{};  ///< the others
  std::optional<Rechazo> rechazo{};
};

/// `estado` is as the configuration leaves it; the job changes it.
Resultado Trabaja(const Trabajo& trabajo, const Opciones& opciones);

}  // namespace duktores
