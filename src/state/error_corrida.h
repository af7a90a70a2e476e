#pragma once
// An error that ends a run. It carries the number of the text that tells the user why; the run driver catches it, and
// what has been drawn stays.

#include <stdexcept>
#include <string>

namespace duktores {

class ErrorCorrida : public std::runtime_error {
 public:
  explicit ErrorCorrida(int numeroTexto)
      : std::runtime_error("run ended, text " + std::to_string(numeroTexto)), numeroTexto_(numeroTexto) {}
  int NumeroTexto() const { return numeroTexto_; }

 private:
  int numeroTexto_;
};

}  // namespace duktores
