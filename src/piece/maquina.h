#pragma once
// What a cutting machine wants of its files, as the configuration says.

#include <cstdint>
#include <string>

namespace duktores {

/// How folds stand in a cut file: not at all, from end to end, or as a tick at each end.
enum class TrazoDoblez : std::int16_t { ninguno, entero, marcas };

inline constexpr double kPulgadaPorMilimetro = 1 / 25.4;

struct Maquina {
  std::string capaCorte = "CUT", capaArriba = "BEND_UP", capaAbajo = "BEND_DOWN", capaMarca = "MARK";
  TrazoDoblez dobleces = TrazoDoblez::entero;
  bool marcas = true;         ///< the name of piece and shape
  double tolerancia = 0.02;   ///< how far a rim may lie from the pattern's, in millimetres
  double anguloMinimo = 0.5;  ///< folds of fewer degrees are left out
  bool arcos = false;         ///< rims as lines and arcs instead of one polyline
  bool juntas = false;        ///< all shapes of a piece in one file
};

}  // namespace duktores
