#pragma once
// clCono: one corner of a special piece, a quarter of an oblique truncated cone. The whole cone is laid flat from its
// apex, then the quarter of the corner is kept and its upper rim carried onto the cut plane.
//
// n: steps round the circle, a multiple of 4; element i = 1..n+1, where n+1 is the other end of the seam. The base is
// the circle that GeneraPuntos is given first, usually the larger one; `bCambio` says that it is the upper mouth. The
// development has the apex at the origin and its middle element straight down.

#include <array>
#include <optional>
#include <vector>

#include "geometry/puntos.h"
#include "special/pieza_especial.h"
#include "special/sector.h"

namespace duktores {

/// Where the rim of a corner's cone starts: on the side of the apex (0) when the offset points across the corner, else
/// opposite to it (pi). `desvio`: centre of the lower rim minus that of the upper one.
double AnguloInicial(Punto2 desvio, int iiTem, bool bCambio);

/// An offset as the usual rules take it: one below 0.2 is 0.2.
double LejosDeCero(double v);

/// A cone that is laid flat, and which corner it stands at.
struct Cono {
  double Radiobase, RadioAlto, Altura;
  int inumPuntos;
  Punto2 desvio;  ///< centre of the lower rim minus that of the upper one
  int iiTem;      ///< the corner
  bool bCambio;
};

class clCono {
 public:
  /// Lays the cone flat. One that has no development (equal radii, both 0, a chord that spans no triangle) leaves the
  /// object empty.
  void GeneraPuntos(const Cono& cono);

  /// The sector of the corner; none of an empty object. `pieza` holds the real radii.
  std::optional<Sector> GeneraDesarrollo1(const PiezaEspecial& pieza);

  // The developed rims; for those who check them.
  const Puntos2& DesBase() const { return dDesBase_; }
  const Puntos2& DesBoca() const { return dDesBoca_; }
  /// First and last element of the corner that was developed last.
  std::optional<std::array<int, 2>> Tramo() const { return tramo_; }

 private:
  bool DesarrollaBase(double Xa, double a0);
  /// Whole chords of the base rim from element 1 that an arc holds; of a negative arc, negative.
  int CalcPtoInicPtoFin(double s) const;
  std::optional<std::array<int, 2>> EligeTramo(double arco) const;
  void CalculaCorte(const PiezaEspecial& pieza, bool alDerecho);
  Sector SectorDelTramo() const;

  Cono cono_{};
  std::vector<double> dLongBase_;  // true lengths from the apex, from element 1
  Puntos2 dDesBase_, dDesBoca_;
  std::optional<std::array<int, 2>> tramo_;
};

}  // namespace duktores
