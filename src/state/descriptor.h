#pragma once
// A file descriptor that is closed when its owner goes.

#include <unistd.h>

#include <utility>

namespace duktores {

class Descriptor {
 public:
  explicit Descriptor(int numero) : numero_(numero) {}
  Descriptor(Descriptor&& otro) noexcept : numero_(std::exchange(otro.numero_, -1)) {}
  Descriptor& operator=(Descriptor&&) = delete;
  ~Descriptor() { Cierra(); }

  explicit operator bool() const { return numero_ >= 0; }
  int Numero() const { return numero_; }
  /// False, with errno, if the system tells a failure of an earlier write only now.
  bool Cierra() { return numero_ < 0 || close(std::exchange(numero_, -1)) == 0; }

 private:
  int numero_;
};

}  // namespace duktores
