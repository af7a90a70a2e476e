#pragma once
// The title block of the transitions: the lines that name the piece, by engine, and the table of lengths, whose rows
// are the numbers of the pattern.

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "dxf/cajetin.h"
#include "engines/marcas.h"
#include "viewer/ewdraw.h"

namespace duktores {

/// A line of the left column. Its label stands here, or is the text of a number, which may be the same in every
/// language. Without a value the line is left out.
struct FilaPieza {
  const char* rotulo;
  int texto;
  bool comun;
  std::optional<std::string> (*valor)();
};

struct CajetinMotor {
  EstiloCajetin estilo;
  std::span<const FilaPieza> filas;
};

/// The blocks of clTransCR, clTransRC and clTransBaRectBoElip.
extern const CajetinMotor kCajetinCR, kCajetinRC, kCajetinElip;

/// Asks for the place of the block and draws it. `lineas` are those of the pattern that it belongs to.
void ColocaCajetin(EWdraw& axew, const CajetinMotor& cajetin, std::int16_t inumDoblado, Parte parte,
                   const std::vector<LineaNumerada>& lineas);

}  // namespace duktores
