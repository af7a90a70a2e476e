#pragma once
// What the core asks of the world outside: a message box, the pointer, the host program's window. The windows and the
// batch program each derive their own; this class itself is the world without a screen, in which nothing happens.

#include <cstdint>
#include <string_view>

namespace duktores {

/// A window of the window system; 0 is none.
using Ventana = std::uintptr_t;

enum class EstiloMensaje { exclamacion = 48, informacion = 64 };

class Plataforma {
 public:
  virtual ~Plataforma() = default;

  /// The system's message box; returns when the user has closed it.
  virtual void CajaMensaje(std::string_view /*texto*/, EstiloMensaje, std::string_view /*titulo*/) {}
  /// The program's own message window FrMsgbox, for texts that the system's box might not show.
  virtual void VentanaMensaje(std::string_view /*texto*/) {}
  /// What the next message is about, to be shown below its text.
  virtual void PonDetalle(std::string_view /*detalle*/) {}
  virtual void PonCursorEspera(bool /*espera*/) {}
  /// The foreground window.
  virtual Ventana VentanaActiva() { return 0; }
  virtual void HabilitaVentana(Ventana, bool /*habilitada*/) {}
};

}  // namespace duktores
