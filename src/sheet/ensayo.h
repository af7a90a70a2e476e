#pragma once
// The things of a pattern that lie on a sheet, each as it will be drawn, before any has its place.

#include <vector>

#include "piece/patron.h"
#include "sheet/formato_hoja.h"
#include "viewer/ewdraw.h"

namespace duktores {

/// A shape with its numbers and dimensions, or the title block of one. Coordinates are relative to its place.
struct Cosa {
  std::size_t forma = 0;  ///< index into the pattern's shapes
  bool bloque = false;
  bool fija = false;  ///< nobody asks for its place, which is (0, 0)
  std::vector<Entidad> dibujo{};
  std::vector<Punto2> contorno{};  ///< the shape's outline, the block's frame; empty where nothing could be drawn
  Caja caja{};                     ///< around all of it; a text counts as wide as its characters are high
};

/// The things in the order in which they are drawn. Where the drawing would end early they end too. A side that tapers
/// to a hair may come out a little otherwise at its place.
std::vector<Cosa> Ensaya(const Patron& patron, const FormatoHoja& formato);

}  // namespace duktores
