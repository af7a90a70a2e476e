#pragma once
// A line of a pattern in words: its number, its length, and what it bends.

#include <optional>
#include <string>

#include "piece/patron.h"

namespace duktores {

/// A line of a shape that lies on a sheet.
struct LineaEnHoja {
  NombreForma forma;
  int numero;
  Linea linea;
};

/// The numbered line nearest to a place on the sheet; none within `alcance`.
std::optional<LineaEnHoja> LineaCercana(const Patron& hoja, Punto2 sitio, double alcance);

std::string TextoLinea(const LineaEnHoja& linea, const Solido& solido);

}  // namespace duktores
