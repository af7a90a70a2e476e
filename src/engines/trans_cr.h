#pragma once
// clTransCR: a circle above a rectangular base. Lengths in the configured unit.
//
// In the view (GeneraDibujo) the rectangle is centred at z = 0 and the circle's centre lies at (-Ax, -Ay, Altura). In
// the development (GeneraPuntos) the rectangle's corner is the origin and the centre lies at (L1/2 + Ax, L2/2 + Ay,
// Altura). The circle's plane is tilted about the parallel to Y through its centre, in the view by -Inclinacion, in the
// development by +Inclinacion. Nothing is validated: an impossible piece is drawn badly.

#include <cstdint>

#include "engines/solido.h"
#include "engines/transicion.h"
#include "viewer/ewdraw.h"

namespace duktores {

/// How this engine chooses between the two intersections of its circles.
extern const ReglasPlano kReglasCR;

/// Lays a mouth above a rectangular base flat, with `modelo`'s Q as PonBoca leaves them: corners, start foot, flags,
/// flat points. `Ax`, `Ay` are the offsets of the mouth's centre in the development frame.
void ColocaSobreRectangulo(Transicion& modelo, const PosicionInicio& inicio, double L1Base, double L2Base, double Ax,
                           double Ay, const ReglasPlano& reglas);

class clTransCR {
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
  Transicion modelo_;
};

}  // namespace duktores
