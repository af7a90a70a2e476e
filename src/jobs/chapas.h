#pragma once
// From a list to its sheets: the parts of a job without a drawing of it, and the files of the sheets.

#include <string>
#include <vector>

#include "jobs/lista.h"
#include "shell/cortes.h"
#include "shell/informe_chapas.h"

namespace duktores {

/// Those parts of a job's piece that are cut. The thickness is that of `estado`.
std::vector<ParteChapa> PartesDe(const Trabajo& trabajo, const Cortes& cortes, const Veredicto& veredicto,
                                 Cuales cuales);

/// The others, with the reason of each.
std::vector<FilaSinChapa> SinCortar(const Trabajo& trabajo, const Cortes& cortes, const Veredicto& veredicto,
                                    Cuales cuales);

struct PartesTrabajo {
  std::vector<ParteChapa> partes;
  std::string falta;  ///< why there are none, or not all, in one line
};
/// Types and unfolds the job. `estado` is as the configuration leaves it; the job changes it.
PartesTrabajo PartesDe(const Trabajo& trabajo);

/// A sheet of a layout, and why it isn't written; empty if it is.
struct ChapaEscrita {
  FilaChapa fila;
  std::string motivo;
};

/// Writes a sheet as NAME.dxf for the machine and as NAME.png for the eye, if its layout is sound: `fallas` are those
/// of all sheets.
ChapaEscrita EscribeChapa(const Lote& lote, const Nido& nido, std::size_t chapa, const std::vector<FallaNido>& fallas,
                          const std::string& carpeta, const std::string& nombre);

/// Files of sheets in the folder, without it, that aren't among these.
std::vector<std::string> ChapasViejas(const std::string& carpeta, const std::vector<FilaChapa>& nuevas);

}  // namespace duktores
