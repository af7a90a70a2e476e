#pragma once
// Parts on sheets of metal: what is to be laid, on what, and where it came to lie. Lengths are in the unit of the
// caller. A part has a frame of its own, in which its outline is given; on a sheet it is turned counter-clockwise about
// the origin of that frame, never mirrored, and then moved. The origin of a sheet is its lower left corner.

#include <cstdint>
#include <functional>
#include <optional>
#include <vector>

#include "geometry/giro.h"
#include "geometry/puntos.h"

namespace duktores {

struct ParteNido {
  std::vector<Punto2> contorno;  ///< closed, without its first point a second time
  int cantidad = 1;
};

/// A size of sheet, and how many there are; none: as many as it takes.
struct Chapa {
  Punto2 tamano;
  std::optional<int> cuantas{};
};

struct EncargoNido {
  std::vector<ParteNido> partes;
  std::vector<Chapa> chapas;
  double hueco = 0;      ///< least distance between two parts
  double margen = 0;     ///< of a part from the rim of its sheet
  double giro = 0;       ///< the step in degrees by which parts may be turned; 0: not at all
  double milimetro = 1;  ///< a millimetre in the unit of the lengths
};

struct Colocada {
  std::size_t parte;
  double grados = 0;
  Punto2 sitio;  ///< of the origin of the part's frame
};
/// Where the part's outline lies.
std::vector<Punto2> ContornoEn(const ParteNido& parte, const Colocada& colocada);

struct ChapaPuesta {
  std::size_t chapa;
  std::vector<Colocada> partes;
};

/// Why parts lie on no sheet.
enum class FaltaNido : std::uint8_t { sinArea, noCabe, sinChapas, interrumpido };
struct NoPuesta {
  std::size_t parte;
  int cantidad;
  FaltaNido motivo;
};

struct Nido {
  std::vector<ChapaPuesta> chapas;  ///< in the order in which they were begun
  std::vector<NoPuesta> faltan;
};

/// The area of an outline, positive however it runs.
double AreaDe(const std::vector<Punto2>& contorno);
/// Parts' area over that of the sheets.
double UsoDe(const EncargoNido& encargo, const ChapaPuesta& chapa);
double UsoDe(const EncargoNido& encargo, const Nido& nido);

/// How long the layout is improved: so many rounds from each of the starts, else so many seconds.
struct EsfuerzoNido {
  std::optional<int> vueltas{};
  double segundos = 5;
  std::uint64_t semilla = 1;
  unsigned hilos = 1;
};

/// Who watches the work. Both may be called from any thread; `mejora` is called by one at a time.
struct VigiaNido {
  std::function<bool()> sigue = [] { return true; };  ///< once it says no, the best so far is the result
  std::function<void(const Nido&)> mejora = [](const Nido&) {};
};

/// Lays the parts. Nothing fails: what can't be laid is told. With rounds the result rests on the order, the effort's
/// rounds and its seed alone.
Nido Anida(const EncargoNido& encargo, const EsfuerzoNido& esfuerzo, const VigiaNido& vigia = {});

}  // namespace duktores
