#pragma once
// Sheets as the office wants to know them: figures, words for what lies on none, a table of both.

#include <span>
#include <string>

#include "nest/revisa.h"
#include "shell/chapas.h"
#include "shell/csv.h"

namespace duktores {

struct FilaChapa {
  std::string fichero;
  double espesor = 0;
  Punto2 tamano;
  std::size_t partes = 0;
  double uso = 0;    ///< the parts' area, in per cent of the sheet
  double largo = 0;  ///< of the cut
  Punto2 resto;      ///< of the largest rectangle that is left
};

/// Parts that lie on no sheet.
struct FilaSinChapa {
  std::string pieza, forma;
  double espesor = 0;
  int cantidad = 0;
  std::string motivo;
};

inline constexpr double kPorCiento = 100;

FilaChapa FilaDe(const Lote& lote, const ChapaPuesta& chapa, std::string fichero);
FilaSinChapa FilaDe(const Lote& lote, const NoPuesta& falta);

/// Why a sheet may not be cut.
std::string TextoFalta(FaltaRevision falta);

/// Both kinds of rows, with a head.
std::string TablaChapas(std::span<const FilaChapa> chapas, std::span<const FilaSinChapa> faltan, HabitoCsv habito);

}  // namespace duktores
