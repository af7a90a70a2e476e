#pragma once
// A job accepted by its dialog, as a person presses OK, where there is no window.

#include <optional>
#include <string>

#include "jobs/llenado.h"
#include "platform/plataforma.h"

namespace duktores {

/// Keeps the last message in place of showing it.
class PlataformaCallada : public Plataforma {
 public:
  void CajaMensaje(std::string_view texto, EstiloMensaje, std::string_view) override { mensaje = texto; }
  void VentanaMensaje(std::string_view texto) override { mensaje = texto; }
  std::string mensaje;
};

/// Types the job's values and presses CmdAceptar. `plataforma` is that of `estado`.
std::optional<Rechazo> LlenaYAcepta(Dialogo& dialogo, const Trabajo& trabajo, const PlataformaCallada& plataforma);

}  // namespace duktores
