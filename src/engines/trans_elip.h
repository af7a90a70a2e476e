#pragma once
// clTransBaRectBoElip: an ellipse above a rectangular base, its long axis along X. Lengths in the configured unit.
//
// Frames and senses are those of clTransCR, but for the angle: degrees in both operations. The mouth is divided by
// polar angle, so its chords are not equal. The four sizes are the sides of the rectangle and the full axes. Both
// operations clear the control. Nothing is validated.

#include <cstdint>

#include "engines/solido.h"
#include "engines/transicion.h"
#include "viewer/ewdraw.h"

namespace duktores {

/// How this engine chooses between the two intersections of its circles.
extern const ReglasPlano kReglasElip;

class clTransBaRectBoElip {
 public:
  /// The solid's points, as GeneraDibujo shows them.
  static PuntosSolido Solido(double L1Base, double L2Base, double RadioAlto, double RadioBajo, std::int16_t inumPuntos,
                             double Ax, double Ay, double Altura, double Inclinacion);

  /// Draws the solid on the control.
  void GeneraDibujo(double L1Base, double L2Base, double RadioAlto, double RadioBajo, std::int16_t inumPuntos,
                    double Ax, double Ay, double Altura, double Inclinacion, EWdraw& axew);

  /// Computes the points in space and lays them flat. `iInicio` 1 to 4.
  void GeneraPuntos(EWdraw& axew, double L1Base, double L2Base, double RadioTop, double RadioDown,
                    std::int16_t inumDoblado, double Ax, double Ay, double Altura, double Inclinacion,
                    std::int16_t iInicio);

  /// Draws the pattern of the points that GeneraPuntos has left.
  void GeneraDesarrollo(EWdraw& axew, std::int16_t inumPuntos);

  const Transicion& Modelo() const { return modelo_; }

 private:
  Transicion modelo_;
};

}  // namespace duktores
