#pragma once
// No-fit polygons: where the origin of one outline may not lie while another one lies at the origin.

#include <array>
#include <memory>
#include <mutex>
#include <unordered_map>
#include <vector>

#include "nest/silueta.h"

namespace duktores {

/// Bounded by rings; a point is inside if it lies within an odd number of them.
struct NoCabe {
  std::vector<std::vector<Punto2>> anillos;
};

/// `movida` is turned before.
NoCabe NoCabeDe(const Silueta& fija, const Silueta& movida, double grados);

/// Keeps what has been asked for. For all threads.
class NoCaben {
 public:
  explicit NoCaben(const std::vector<Silueta>& siluetas) : siluetas_(siluetas) {}
  /// `grados` is how much further the moved one is turned than the other, `pasos` the same in steps.
  std::shared_ptr<const NoCabe> De(std::size_t fija, std::size_t movida, std::size_t pasos, double grados);

 private:
  struct Estante {
    std::mutex cerrojo;
    std::unordered_map<std::uint64_t, std::shared_ptr<const NoCabe>> guardados;
  };
  const std::vector<Silueta>& siluetas_;
  std::array<Estante, 64> estantes_;
};

}  // namespace duktores
