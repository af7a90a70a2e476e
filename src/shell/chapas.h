#pragma once
// From the parts of a list to sheets for the machine: which parts go together, how they are laid, and the file and the
// picture of each sheet. Lengths are in the configured unit.

#include <optional>
#include <string>
#include <vector>

#include "dxf/corte.h"
#include "nest/nido.h"
#include "viewer/ewdraw.h"

namespace duktores {

/// A part to be cut, and how often.
struct ParteChapa {
  std::string pieza, forma;  ///< the drawing's name, and the shape's
  ParteCorte corte;
  int cantidad = 1;
  double espesor = 0;
};

/// Sheets in stock; without a thickness they are of any.
struct Existencia {
  Chapa chapa;
  std::optional<double> espesor{};
};

/// How parts are laid. What is left out is 5 and 10 mm.
struct ReglasChapa {
  std::optional<double> hueco{}, margen{};
  double giro = 90;
};

/// The parts of one thickness, and the sheets of that.
struct Lote {
  double espesor = 0;
  EncargoNido encargo;
  std::vector<const ParteChapa*> partes;  ///< those of the order, by their numbers
  std::vector<std::size_t> existencias;   ///< which of the stock each of the order's sheets is
};

/// The smallest thickness first. The parts must outlive them. A sheet of any thickness stands in each, with its whole
/// count.
std::vector<Lote> LotesDe(const std::vector<ParteChapa>& partes, const std::vector<Existencia>& existencias,
                          const ReglasChapa& reglas, double milimetro);

/// The parts as they lie on a sheet, for `GuardaCorte`.
std::vector<ParteCorte> PartesEn(const Lote& lote, const ChapaPuesta& chapa);

/// Draws the sheet on the control: rim, outlines, folds and names.
void DibujaChapa(EWdraw& axew, const std::vector<ParteCorte>& partes, Punto2 tamano);

}  // namespace duktores
