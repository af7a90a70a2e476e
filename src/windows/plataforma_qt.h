#pragma once
// The world outside as Qt shows it. The host's window can be had under X11 alone; elsewhere there is none.

#include <string>

#include "platform/plataforma.h"

class QWidget;

namespace duktores {

class PlataformaQt : public Plataforma {
 public:
  void CajaMensaje(std::string_view texto, EstiloMensaje estilo, std::string_view titulo) override;
  void VentanaMensaje(std::string_view texto) override;
  void PonDetalle(std::string_view detalle) override { detalle_ = detalle; }
  void PonCursorEspera(bool espera) override;
  /// 0 if the active window is one of this program's.
  Ventana VentanaActiva() override;
  /// A window of another program can't be disabled under X11. Instead the main window stays above it and modal to it,
  /// as far as the window manager honours that.
  void HabilitaVentana(Ventana ventana, bool habilitada) override;

  /// The window that stays above the host's. To be told before it is shown; null takes it away.
  void PonPrincipal(QWidget* principal) { principal_ = principal; }

 private:
  QWidget* principal_ = nullptr;
  bool espera_ = false;
  std::string detalle_;
};

}  // namespace duktores
