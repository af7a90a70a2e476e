#pragma once
// What the title block of a shape says of its piece, as values; the texts are made where it is drawn.

#include <cstdint>
#include <variant>
#include <vector>

#include "piece/fibra.h"

namespace duktores {

enum class EstiloBloque : std::uint8_t { transicion, eliptica, sector, panel };

/// A label: the text of a number, which may be the same in every language, or one that stands here.
struct RotuloBloque {
  int texto = 0;
  bool comun = false;
  const char* literal = nullptr;
};

struct TextoNumero {
  int texto;
};
struct Longitud {
  double v;
};
struct Angulo {
  double grados;
};
using ValorBloque = std::variant<TextoNumero, Fibra, Longitud, Angulo, int>;

struct FilaBloque {
  RotuloBloque rotulo;
  ValorBloque valor;
};

struct Bloque {
  EstiloBloque estilo{};
  int filasMarco = 0, filasColumna = 0;  ///< rows by which frame and right column make room for the lengths
  std::vector<FilaBloque> pieza;         ///< the left column
  bool soloCaja1 = false;                ///< asked for by a configured 1 only, else by any number but 0
};

}  // namespace duktores
