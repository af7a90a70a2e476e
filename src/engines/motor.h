#pragma once
// What the transitions between a rectangle and a curve differ in, and what is made of a piece with it: each engine is
// one row of data, and what the rows have in common is written once. Nothing is validated: an impossible piece is laid
// out badly.

#include <array>
#include <vector>

#include "engines/cotas_transicion.h"
#include "engines/transicion.h"
#include "piece/patron.h"

namespace duktores {

struct MotorTransicion {
  /// In the frame of the view: the points 1..N+1 of the curve, at the angles (i - 1) * 2*pi/N, the corners of the
  /// rectangle in the quarters (+,+), (-,+), (-,-), (+,-), and the whole curve.
  struct Vista {
    Puntos3 curva;
    std::array<Punto3, 4> esquinas;
    Curva entera;
  };
  Vista (*vista)(const Pieza& pieza);
  EnEspacio (*espacio)(const Pieza& pieza);  ///< the same piece in the development frame
  const ReglasPlano& reglas;
  int sentido;  ///< the pattern runs round the view's Z axis counter-clockwise (1) or clockwise (-1)
  bool girado;  ///< the usual pattern of a tilted piece without offsets begins at its other end

  ListaCotas cotas;
  bool cotasAntes;  ///< in one piece: the dimensions before the numbers of the edges
  EstiloBloque bloque;
  bool soloCaja1;  ///< the title block only when it is configured as 1
  std::vector<FilaBloque> (*filas)(const Pieza& pieza);

  Solido GeneraDibujo(const Pieza& pieza) const;
  Transicion GeneraPuntos(const Pieza& pieza) const;
  /// The pattern in one piece or in two.
  Desarrollo GeneraDesarrollo(const Pieza& pieza) const;
};

extern const MotorTransicion clTransCR;            ///< a circle above a rectangular base
extern const MotorTransicion clTransRC;            ///< a rectangle above a circular base
extern const MotorTransicion clTransBaRectBoElip;  ///< an ellipse, its long axis along X, above a rectangular base

}  // namespace duktores
