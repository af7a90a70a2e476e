#pragma once
// How patterns are drawn, as the configuration says.

#include <cstdint>

namespace duktores {

struct FormatoHoja {
  bool milimetros = true;            ///< else inches
  double altura = 0;                 ///< of the annotation's text
  std::int16_t colorDoblez = 0;      ///< colour index of the bend lines
  bool cotas = false;                ///< with dimensions
  double pasoX = 0, pasoY = 0;       ///< from a pattern to its dimensions, and between them, in drawing units
  int caja = 0;                      ///< 0: no title block
  double densidad = 0, espesor = 0;  ///< of the sheet, for the figures of a title block
  friend bool operator==(const FormatoHoja&, const FormatoHoja&) = default;
};

/// Of so much sheet: in grams with a density per cubic centimetre, in inches as the density says.
inline double Peso(double area, const FormatoHoja& formato) {
  constexpr double kCentimetrosCubicos = 0.001;
  return area * formato.espesor * formato.densidad * (formato.milimetros ? kCentimetrosCubicos : 1);
}

}  // namespace duktores
