#pragma once
// A shape of a pattern as a machine cuts it: its outline with no more vertices than it needs, and its folds. Frame:
// the pattern's, outer side up, moved so that the lower left corner of the box around it is the origin. Coordinates are
// in the configured unit, rounded to 6 decimals, as a file holds them.

#include <cstdint>
#include <optional>
#include <vector>

#include "piece/doblez.h"
#include "piece/maquina.h"
#include "piece/patron.h"

namespace duktores {

struct Arco {
  Punto2 centro;
  double radio = 0;
  bool antihorario = true;
};

/// A step of an outline, from `p` to the `p` of the next one: straight, or along an arc.
struct Trecho {
  Punto2 p;
  std::optional<Arco> arco{};
};

/// A fold, from one vertex of the outline to another. Its angle is that of all lines since the fold before it.
struct DoblezRecorte {
  int numero;  ///< of the line on the drawing
  std::size_t enP, enQ;
  Doblez doblez;
};

/// Why a shape can't be cut.
enum class FaltaRecorte : std::uint8_t { cruce, sinArea };

struct Recorte {
  NombreForma forma;
  std::vector<Trecho> contorno;  ///< closed, counter-clockwise
  std::vector<DoblezRecorte> dobleces;
  double area = 0, largo = 0;  ///< of the outline as it stands here
  Punto2 tamano;               ///< of the box around it
  Punto2 caja;                 ///< of the smallest rectangle around it, however it is turned; the longer side first
  std::optional<FaltaRecorte> falta;

  Punto2 En(std::size_t vertice) const { return contorno[vertice].p; }
};

/// No step of an outline is shorter, unless it has no other, and ends of folds that are nearer share a vertex.
inline constexpr double kPasoMinimo = 0.05;  // millimetres

/// The outline as a polygon, an arc as chords that lie off it by no more than `flecha`.
std::vector<Punto2> Poligono(const Recorte& recorte, double flecha);

/// A shape that has an outline. No point of that lies further from the outline here than the machine's tolerance, but
/// where that is less than what the least step asks for. `milimetro` is a millimetre in the configured unit. Never
/// fails; what can't be cut says so.
Recorte RecorteDe(const Solido& solido, const FormaPatron& forma, const Maquina& maquina, double milimetro);

}  // namespace duktores
