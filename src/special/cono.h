#pragma once
// clCono: one corner of a special piece, a quarter of an oblique truncated cone. The whole cone is laid flat from its
// apex, then the quarter of the corner is kept and its upper rim carried onto the cut plane.
//
// n: steps round the circle, a multiple of 4; element i = 1..n+1, where n+1 is the other end of the seam. The base is
// the circle that GeneraPuntos is given first, usually the larger one; `bCambio` says that it is the upper mouth. The
// development has the apex at the origin and its middle element straight down. One object serves the corners of a run.

#include <array>
#include <optional>
#include <vector>

#include "geometry/puntos.h"
#include "special/anotacion_cono.h"
#include "special/pieza.h"
#include "viewer/ewdraw.h"

namespace duktores {

/// Where the rim of a corner's cone starts: on the side of the apex (0) when the offset points across the corner, else
/// opposite to it (pi). `x`, `y`: centre of the lower rim minus that of the upper one.
double AnguloInicial(double x, double y, int iiTem, bool bCambio);

/// An offset as the usual rules take it: one below 0.2 is 0.2.
double LejosDeCero(double v);

/// Asks for the place of corner `c` and draws its sector there with its annotation; `ancla` is the point of the
/// sector's frame that is placed. Without a sector nothing is drawn after the prompt.
void ColocaSector(EWdraw& axew, int c, const std::optional<Sector>& sector, Punto2 ancla);

class clCono {
 public:
  /// Lays the cone flat. `DistCentrox`, `DistCentroy`: centre of the lower rim minus that of the upper one; `iiTem`:
  /// the corner. A cone that has no development (equal radii, both 0, a chord that spans no triangle) leaves the object
  /// empty.
  void GeneraPuntos(double Radiobase, double RadioAlto, double Altura, int inumPuntos, double DistCentrox,
                    double DistCentroy, int iiTem, bool bCambio);

  /// Asks for the place of the corner and draws it with its annotation; an empty object draws nothing after its prompt.
  /// `pieza` holds the real radii.
  void GeneraDesarrollo1(EWdraw& axew, const PiezaEspecial& pieza, double Ax, double Ay, int inumPuntos, int iiTem,
                         bool bCambio);

  // The developed rims; for those who check them.
  const Puntos2& DesBase() const { return dDesBase_; }
  const Puntos2& DesBoca() const { return dDesBoca_; }
  /// First and last element of the corner that was drawn last.
  std::optional<std::array<int, 2>> Tramo() const { return tramo_; }

 private:
  bool DesarrollaBase(double Rb, double Xa, double a0, int n);
  /// Whole chords of the base rim from element 1 that an arc holds; of a negative arc, negative.
  int CalcPtoInicPtoFin(double s) const;
  std::optional<std::array<int, 2>> EligeTramo(double arco, double Ax, double Ay, int iiTem, bool bCambio) const;
  void CalculaCorte(const PiezaEspecial& pieza, int iiTem, bool bCambio, bool alDerecho);
  Sector SectorDelTramo() const;

  std::vector<double> dLongBase_;  // true lengths from the apex, from element 1
  Puntos2 dDesBase_, dDesBoca_;
  std::optional<std::array<int, 2>> tramo_;
};

}  // namespace duktores
