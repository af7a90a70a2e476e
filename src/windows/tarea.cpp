#include "windows/tarea.h"

#include <exception>
#include <utility>

#include "state/estado.h"

namespace duktores {

Tarea::Tarea(std::function<void(const std::stop_token&)> hace) {
  EstadoPrograma propio = estado;
  propio.oDrawing.reset();
  propio.oDXF.reset();
  propio.plataforma = nullptr;
  hilo_ = std::jthread([this, propio = std::move(propio), hace = std::move(hace)](const std::stop_token& para) {
    try {
      estado = propio;
      hace(para);
    } catch (const std::exception&) {
      fallida_ = true;
    }
    acabada_ = true;
  });
}

}  // namespace duktores
