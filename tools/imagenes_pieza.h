#pragma once
// The pieces of the pictures as wire models. Frame of the solid: lower mouth centred on the origin at z = 0, upper
// mouth centred on (ax, ay) at z = H. Corner 1 of a mouth lies at -x, -y, corner 2 at -x, +y, then 3 and 4 clockwise
// seen from above. Lengths are pixels of the bitmap, angles degrees.

#include <array>
#include <vector>

#include "geometry/puntos.h"

namespace duktores {

/// A rectangle with rounded corners; equal sides and radii of half the side make a circle. An ellipse has `lx` and `ly`
/// as its full axes.
struct Boca {
  double lx = 0, ly = 0;
  std::array<double, 4> r{};
  bool elipse = false;
};

/// How the upper mouth takes its tilt: as a whole about its centre, or as a plane that hinges on its -x edge (alfa) and
/// its +y edge (beta) and cuts the straight piece.
enum class Inclinacion { giro, corte };

struct Pieza {
  Boca abajo, arriba;
  double H = 0, ax = 0, ay = 0;
  double alfa = 0, beta = 0;
  Inclinacion inclinacion = Inclinacion::giro;

  Pieza Inclinada(double nuevaAlfa, double nuevaBeta) const;  ///< the same piece with other angles
};

/// A straight line of the surface, from the lower to the upper mouth.
struct Elemento {
  Punto3 abajo, arriba;
  bool generatriz = false;  ///< one of those that a drawing shows
};
/// The closed surface: a facet lies between each element and the next, the last one and the first. Clockwise from
/// above.
using Anillo = std::vector<Elemento>;

Anillo AnilloDe(const Pieza& pieza);
/// Normal of the facet after element `i`, pointing outwards; its length is twice the area.
Punto3 NormalFaceta(const Anillo& anillo, std::size_t i);

/// Points that dimensions refer to: centre and middles of the sides of a mouth, and its corners.
enum class Ancla { centro, oeste, este, sur, norte, esquina1, esquina2, esquina3, esquina4 };
enum class Nivel { abajo, arriba };
/// For a corner the centre of its arc. A mouth that is cut counts as not yet cut.
Punto3 PuntoDe(const Pieza& pieza, Nivel nivel, Ancla ancla);
double RadioDe(const Pieza& pieza, Nivel nivel, Ancla esquina);

}  // namespace duktores
