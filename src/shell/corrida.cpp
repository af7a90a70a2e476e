#include "shell/corrida.h"

#include <algorithm>
#include <array>
#include <exception>
#include <memory>
#include <string_view>

#include "dxf/dibujo.h"
#include "dxf/escritor.h"
#include "engines/trans_cr.h"
#include "state/error_corrida.h"
#include "state/estado.h"
#include "state/textos.h"

namespace duktores {

namespace {

void DibujaCR(EWdraw& axew) {
  clTransCR motor;
  motor.GeneraDibujo(estado.dL1Base, estado.dL2Base, estado.dRadioAlto, estado.iDivisiones, -estado.dAx, -estado.dAy,
                     estado.dAltura, -estado.dAlfa, axew);
}

void DespliegaCR(EWdraw& axew) {
  estado.inumDoblado = estado.iDivisiones;
  clTransCR motor;
  motor.GeneraPuntos(axew, estado.dL1Base, estado.dL2Base, estado.dRadioAlto, estado.inumDoblado, estado.dAx,
                     -estado.dAy, estado.dAltura, Radianes(estado.dAlfa), estado.iPosIni);
  motor.GeneraDesarrollo(axew, estado.inumDoblado);
}

struct Motor {
  std::string_view clave;
  void (*dibuja)(EWdraw&);
  void (*despliega)(EWdraw&);
};

constexpr std::array kMotores{
    Motor{"TransCR", DibujaCR, DespliegaCR},
};

const Motor* MotorActual() {
  const auto* motor =
      std::find_if(kMotores.begin(), kMotores.end(), [](const Motor& m) { return m.clave == estado.sTipoPieza; });
  return motor == kMotores.end() ? nullptr : motor;
}

}  // namespace

void Dibuja3D(EWdraw& axew) {
  if (const Motor* motor = MotorActual()) motor->dibuja(axew);
  CursorEspera(false);
}

FinCorrida Despliega(EWdraw& axew) {
  estado.oDrawing = std::make_shared<cDrawing>();
  estado.oDXF = std::make_shared<cDXF>();
  try {
    if (const Motor* motor = MotorActual()) motor->despliega(axew);
    return FinCorrida::completo;
  } catch (const EleccionRechazada&) {
    return FinCorrida::eleccionRechazada;
  } catch (const ErrorCorrida& error) {
    MuestraMensaje(Texto(error.NumeroTexto()), EstiloMensaje::exclamacion, "");
  } catch (const std::exception&) {
    // An error without a text of its own: the run ends with what has been drawn.
  }
  return FinCorrida::error;
}

}  // namespace duktores
