#pragma once
// No-fit polygons: where the origin of one outline may not lie while another one lies at the origin.

#include <array>
#include <atomic>
#include <memory>
#include <mutex>
#include <span>
#include <unordered_map>
#include <vector>

#include "nest/silueta.h"

namespace duktores {

/// Units: so deep a place may lie inside, which corners are rounded by.
inline constexpr double kHolgura = 2;

/// Bounded by the edges of some rings; a point is inside if it lies within an odd number of them.
class NoCabe {
 public:
  struct Canto {
    Punto2 p, q;
  };
  explicit NoCabe(std::vector<Canto> cantos);

  const std::vector<Canto>& Cantos() const { return cantos_; }
  /// Whether the point lies deeper inside.
  bool Tapa(Punto2 p) const;
  /// How far it is from a point inside to where it is free, to about a unit; 0 outside.
  double Hondura(Punto2 p) const;

 private:
  bool Encierra(Punto2 p, std::span<const Canto>& suyos) const;

  std::vector<Canto> cantos_;
  Extremos caja_;
  // The edges once more, those of each of some level strips together.
  double alto_ = 0;
  std::vector<std::size_t> inicios_;
  std::vector<Canto> porFranja_;
  // And once more, seen from the middle, as the processor works several at once.
  static constexpr std::size_t kALaVez = 4;
  using Cuatro = float __attribute__((vector_size(kALaVez * sizeof(float))));
  struct Grupo {
    Cuatro x, y, ux, uy, inverso;  // where an edge begins, what it adds, one over the square of its length
  };
  Punto2 medio_;
  std::vector<Grupo> grupos_;
};

/// `movida` is turned before.
NoCabe NoCabeDe(const Silueta& fija, const Silueta& movida, double grados);

/// Keeps what has been asked for, as long as there is room. For all threads.
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
  std::atomic<std::size_t> cantos_ = 0;
};

}  // namespace duktores
