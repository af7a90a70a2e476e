#pragma once
// A piece as a dialog has accepted it: all that solid and pattern are computed from. Every piece joins a lower mouth,
// the base, in the plane z = 0 and centred on the origin, to an upper one centred on (AX, AY, H), with sides along X
// and Y. Lengths in the configured unit, angles in degrees, with the signs that were typed.

#include <array>
#include <cstddef>
#include <cstdint>

#include "piece/fibra.h"
#include "piece/tipo.h"

namespace duktores {

/// One value for each corner of a mouth, indexed from 1: at -x -y, -x +y, +x +y, +x -y.
class Cuatro {
 public:
  constexpr Cuatro() = default;
  constexpr Cuatro(double v1, double v2, double v3, double v4) : v_{v1, v2, v3, v4} {}
  constexpr explicit Cuatro(double v) : Cuatro(v, v, v, v) {}
  double& operator()(int c) { return v_.at(static_cast<std::size_t>(c - 1)); }
  double operator()(int c) const { return v_.at(static_cast<std::size_t>(c - 1)); }
  friend bool operator==(const Cuatro&, const Cuatro&) = default;

 private:
  std::array<double, 4> v_{};
};

/// A mouth: a rectangle whose corners may be rounded. A circle has its radius at all four and sides of twice that; an
/// ellipse has its full axes as sides, its radii are 0.
struct Boca {
  double LX = 0, LY = 0;
  Cuatro r;
  friend bool operator==(const Boca&, const Boca&) = default;
};
inline Boca Circulo(double radio) { return {2 * radio, 2 * radio, Cuatro(radio)}; }

struct Bocas {
  Boca arriba, abajo;
  friend bool operator==(const Bocas&, const Bocas&) = default;
};

/// The usual rules, by which the workshops' drawings have always been made, or the sheet's own dimensions and true
/// lengths whatever the piece.
enum class Regla : std::uint8_t { usual, exacta };

struct Pieza {
  TipoPieza tipo{};
  Regla regla{};
  Bocas entradas;    ///< as they were typed
  Bocas corregidas;  ///< moved from the surface that they refer to, by the rules of the piece's dialog
  double H = 0, AX = 0, AY = 0;
  double Alfa = 0, Beta = 0;  ///< tilt of the upper mouth
  int divisiones = 0;
  int inicio = 0;          ///< 1 to 4: the side where the pattern starts; not of the special pieces
  bool dosPiezas = false;  ///< the pattern is made in two pieces; likewise
  Fibra fibra{};
  double espesor = 0;  ///< of the sheet
  friend bool operator==(const Pieza&, const Pieza&) = default;
};

}  // namespace duktores
