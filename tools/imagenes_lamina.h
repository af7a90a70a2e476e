#pragma once
// The eleven pictures as tables: each piece with its dimensions, each category with its group of pieces.

#include <QString>
#include <span>
#include <string_view>

#include "imagenes_papel.h"
#include "imagenes_pieza.h"

namespace duktores {

/// Front elevation above, plan below it, side elevation (from the left) beside it: first angle projection.
enum class Lugar { frente, planta, lado };

enum class TipoCota { horizontal, vertical, alineada, radio, angulo };

/// A row of a piece's table: what is measured in which view, and where the dimension stands. All in pixels.
///
/// | tipo       | from, to              | sitio                            | largo                         |
/// |------------|-----------------------|----------------------------------|-------------------------------|
/// | horizontal | both ends             | y of the dimension line          | -                             |
/// | vertical   | both ends             | x of the dimension line          | -                             |
/// | alineada   | both ends             | distance, to the left of the way | -                             |
/// | radio      | corner, twice         | direction of the arrow, degrees  | its length, inwards below 0   |
/// | angulo     | vertex, twice         | radius of the arc                | -                             |
///
/// x and y count from the view's origin, y upwards.
struct CotaPieza {
  Lugar lugar;
  TipoCota tipo;
  std::string_view letra;
  Nivel nivelDe;
  Ancla de;
  Nivel nivelA;
  Ancla a;
  double sitio = 0, largo = 0;
};

struct Lamina {
  std::string_view fichero;
  Pieza pieza;
  std::span<const CotaPieza> cotas;
};
std::span<const Lamina> Laminas();

/// A piece of a category's picture, with its base's centre and its scale.
struct Figura {
  const Pieza* pieza;
  QPointF origen;
  double escala;
};
struct Portada {
  std::string_view fichero;
  std::span<const Figura> figuras;
};
std::span<const Portada> Portadas();

void Dibuja(Papel& papel, const Lamina& lamina);
void Dibuja(Papel& papel, const Portada& portada);

}  // namespace duktores
