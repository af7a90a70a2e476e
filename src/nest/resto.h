#pragma once
// What is left of a sheet.

#include "nest/nido.h"

namespace duktores {

/// A rectangle of the sheet, its lower left corner and its size.
struct Resto {
  Punto2 sitio, tamano;
};

/// The largest one, upright, that no part comes nearer to than the gap. It may be smaller than it could be by a
/// four-hundredth of the sheet on each side, never larger.
Resto RestoMayor(const EncargoNido& encargo, const ChapaPuesta& chapa);

}  // namespace duktores
