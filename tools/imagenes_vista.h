#pragma once
// Views of a wire model on paper: parallel projections as line drawings with hidden lines left out, and a shaded view.

#include <QPointF>

#include "imagenes_papel.h"
#include "imagenes_pieza.h"

namespace duktores {

/// A parallel view: axes of the viewing plane as unit vectors of the solid, where the solid's origin lies on paper, and
/// the scale.
struct Vista {
  Punto3 derecha, arriba;
  QPointF origen;
  double escala = 1;

  QPointF AlPapel(Punto3 p) const { return origen + escala * QPointF(Escalar(p, derecha), -Escalar(p, arriba)); }
  Punto3 HaciaOjo() const { return Vectorial(derecha, arriba); }
};

/// Seen from the front and the right, a little from above.
Vista VistaCaballera(QPointF origen, double escala);

/// Visible edges, outline and generators.
void DibujaLineas(Papel& papel, const Anillo& anillo, const Vista& vista);
/// What the cut took from an elevation: its sides, from both ends of the upper mouth as it is up to where it was.
void DibujaFantasma(Papel& papel, const Anillo& entero, const Anillo& cortado, const Vista& vista);
/// The piece as sheet metal that stands on the ground and throws its shadow.
void DibujaChapa(Papel& papel, const Anillo& anillo, const Vista& vista);

}  // namespace duktores
