#pragma once
// clRectangulo: a flat side of a special piece, a quadrilateral laid out as two triangles from the true lengths of its
// edges and of the diagonal from its first corner to the third. Corners in space in ring order: P11, P12 on the cut
// upper mouth, P21 below P12, P22 below P11. Flat: A, B, C, D.

#include <array>

#include "geometry/puntos.h"
#include "viewer/ewdraw.h"

namespace duktores {

using Lado = std::array<Punto3, 4>;  ///< P11, P12, P21, P22

class clRectangulo {
 public:
  /// Asks for the place of A and draws the panel with its four numbers. `numero` is the side's.
  void GeneraDesarrollo(EWdraw& axew, const Lado& lado, int numero);
  /// Dimensions around the panel that was drawn last.
  void GeneraCota(EWdraw& axew) const;

  const std::array<Punto2, 4>& Piezas() const { return dPuntosPieza_; }

 private:
  void DibujaNumerosLados(EWdraw& axew) const;

  std::array<Punto2, 4> dPuntosPieza_;  // A, B, C, D
};

}  // namespace duktores
