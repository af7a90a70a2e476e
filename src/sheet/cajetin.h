#pragma once
// The title block of a shape, hung below its upper left corner: a frame with a head and a foot, in the head a column
// that names the piece and one with the figures of its sheet, in the foot the lengths of its lines. Its texts are 11
// high, whatever the height of the annotation.

#include <vector>

#include "piece/patron.h"
#include "sheet/formato_hoja.h"
#include "viewer/ewdraw.h"

namespace duktores {

/// The outline of the frame, relative to the corner.
std::vector<Punto2> MarcoCajetin(const Bloque& bloque);

/// Whether the lengths in the foot are those of the pattern, else those of the shape in its place: the last digits
/// differ.
bool LargosDelPatron(EstiloBloque estilo);

/// The figures are those of the first closed outline on the control. `largos` are the lengths of the shape's lines.
void DibujaCajetin(EWdraw& axew, const FormaPatron& forma, const std::vector<double>& largos,
                   const FormatoHoja& formato, Punto2 esquina);

}  // namespace duktores
