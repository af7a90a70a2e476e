#pragma once
// Lays the lots of a list one after the other on one stock.

#include <functional>
#include <vector>

#include "shell/chapas.h"

namespace duktores {

/// The order of a lot with the sheets that the layouts of all others leave: one of any thickness is there only once.
/// `nidos` are the layouts of the lots in their order.
EncargoNido ConLoQueQueda(const std::vector<Lote>& lotes, const std::vector<Nido>& nidos, std::size_t lote);

/// Who watches it; as VigiaNido.
struct VigiaLotes {
  std::function<bool()> sigue = [] { return true; };
  std::function<void(std::size_t lote, const Nido&)> mejora = [](std::size_t, const Nido&) {};
};

/// First lays all, quickly, so that whoever stops it has all on sheets; then improves each for its share of the time,
/// or for all rounds. With rounds the result rests on the lots, the rounds and the seed alone.
std::vector<Nido> AnidaLotes(const std::vector<Lote>& lotes, const EsfuerzoNido& esfuerzo, const VigiaLotes& vigia);

}  // namespace duktores
