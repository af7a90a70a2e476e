#pragma once
// Whether a layout may be cut. Nothing here comes from the search: the outlines as they will be written are held
// against each other edge by edge.

#include "nest/nido.h"

namespace duktores {

enum class FaltaRevision : std::uint8_t { fueraDeChapa, demasiadoCerca, dentroDeOtra, giroProhibido };

struct FallaNido {
  std::size_t chapa;  ///< which of the layout's
  FaltaRevision falta;
  std::size_t una, otra;  ///< of the sheet's parts; the same if there is only one
};

/// What is wrong, the first fault of each part or pair.
std::vector<FallaNido> RevisaChapas(const EncargoNido& encargo, const Nido& nido);

/// Whether each part lies as often as it should or is told as missing, and no sheet is used that isn't there.
bool CuadranCantidades(const EncargoNido& encargo, const Nido& nido);

}  // namespace duktores
