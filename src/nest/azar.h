#pragma once
// Random numbers that are the same everywhere: the library's distributions give other ones with another library.

#include <cstddef>
#include <cstdint>
#include <random>

namespace duktores {

class Azar {
 public:
  explicit Azar(std::uint64_t semilla) : motor_(semilla) {}
  std::size_t Menor(std::size_t n) { return static_cast<std::size_t>(motor_() % n); }
  /// From 0 to below 1.
  double Parte() { return static_cast<double>(motor_() >> 11) * 0x1p-53; }

 private:
  std::mt19937_64 motor_;
};

}  // namespace duktores
