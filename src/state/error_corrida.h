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

inline constexpr int kTextoNoGuardado = 80;       ///< the file could not be saved
inline constexpr int kTextoPlantilla = 81;        ///< the template is missing or unusable
inline constexpr int kTextoDemasiadas = 82;       ///< run ended early: no handle left
inline constexpr int kTextoMedidaImposible = 83;  ///< run ended early: a coordinate is no number
inline constexpr int kTextoIncompleto = 120;      ///< run ended early, whatever the reason
inline constexpr int kTextoConfiguracion = 121;   ///< the configuration can't be used

}  // namespace duktores
