#pragma once
// clTransRC: a rectangle above a circular base. Lengths in the configured unit.
//
// In the view the circle lies at z = 0 about (Ax, Ay) and the rectangle, centred, at z = Altura, tilted about the
// parallel to Y through its centre by -Inclinacion. In the development the rectangle's corner is the origin at z = 0,
// tilted by +Inclinacion about the parallel to Y through its centre, and the circle lies level at z = Altura about
// (L1/2 + Ax, L2/2 + Ay). Nothing is validated.

#include <cstdint>

#include "engines/solido.h"
#include "engines/transicion.h"
#include "viewer/ewdraw.h"

namespace duktores {

/// How this engine chooses between the two intersections of its circles.
extern const ReglasPlano kReglasRC;

class clTransRC {
 public:
  /// The solid's points, as GeneraDibujo shows them.
  static PuntosSolido Solido(double L1Base, double L2Base, double RadioAlto, std::int16_t inumPuntos, double Ax,
                             double Ay, double Altura, double Inclinacion);

  /// Draws the solid on the control. `Inclinacion` in degrees.
  void GeneraDibujo(double L1Base, double L2Base, double RadioAlto, std::int16_t inumPuntos, double Ax, double Ay,
                    double Altura, double Inclinacion, EWdraw& axew);

  /// Computes the points in space and lays them flat. `Inclinacion` in radians, `iInicio` 1 to 4.
  void GeneraPuntos(EWdraw& axew, double L1Base, double L2Base, double RadioTop, std::int16_t inumDoblado, double Ax,
                    double Ay, double Altura, double Inclinacion, std::int16_t iInicio);

  /// Draws the pattern of the points that GeneraPuntos has left.
  void GeneraDesarrollo(EWdraw& axew, std::int16_t inumPuntos);

  const Transicion& Modelo() const { return modelo_; }

 private:
  void ColocaInicio(const PosicionInicio& inicio, double L1Base, double L2Base, double Ax, double Ay,
                    double Inclinacion);

  Transicion modelo_;
};

}  // namespace duktores
