#pragma once
// Paints the solid of a piece as a duct of sheet: shaded facets with the light from the upper left, the sheet's inner
// side in another tone than its outer one, and the rims of mouth and base in colours of their own. View and device are
// those of paint/pintura.h. The order of painting holds for what the pieces are, tubes that bulge outwards: of these a
// line of sight meets the inner side of a facet behind the outer side of another.

#include <QLineF>
#include <QPolygonF>
#include <vector>

#include "paint/pintura.h"
#include "piece/solido.h"

namespace duktores {

/// A facet, or a strip of a round one, on the viewing plane.
struct FacetaVista {
  QPolygonF plano;
  bool interior = false;  ///< its inner side is seen
  double luz = 0;         ///< 0 dark to 1 bright
  double fondo = 0;       ///< how near the viewer it is
};

enum class ClaseArista { boca, base, canto, doblez, tersa };
/// Part of a rim, or a line from rim to rim: between two shapes of the pattern, bent, or within a round facet.
struct AristaVista {
  QLineF plano;
  ClaseArista clase = ClaseArista::tersa;
  bool delante = false;  ///< an outer side that is seen ends here
  bool silueta = false;  ///< and on its other side one that is not
};

struct SolidoVisto {
  std::vector<FacetaVista> facetas;  ///< in the order of painting
  std::vector<AristaVista> aristas;
};

/// The solid seen from `direccion`. Round facets become strips, some `trozos` round the piece, but one of each at
/// least. What has coordinates that are no numbers is left out.
SolidoVisto Mira(const Solido& solido, Punto3 direccion, int trozos = 300);

/// Fills `lienzo` with the dark background and paints the solid; without its bend lines if it has to be fast.
void PintaSombreado(QPainter& pintor, const SolidoVisto& visto, const Encuadre& encuadre, QSizeF lienzo,
                    Esmero esmero = Esmero::fino);

/// A cross of the model's axes as seen from `direccion`, in the lower left corner.
void PintaEjes(QPainter& pintor, Punto3 direccion, QSizeF lienzo);
/// What the colours of the rims mean, in the upper left corner.
void PintaLeyenda(QPainter& pintor);

/// The direction that one looks from when the model is turned by a drag of the mouse; never quite along Z.
Punto3 Girada(Punto3 direccion, QPointF arrastre);

}  // namespace duktores
