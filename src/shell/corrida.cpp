#include "shell/corrida.h"

#include <algorithm>
#include <array>
#include <exception>
#include <memory>
#include <string_view>

#include "dxf/dibujo.h"
#include "dxf/escritor.h"
#include "engines/trans_cr.h"
#include "engines/trans_elip.h"
#include "engines/trans_rc.h"
#include "special/despliega_especial.h"
#include "special/solido_especial.h"
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

void DibujaRC(EWdraw& axew) {
  clTransRC motor;
  motor.GeneraDibujo(estado.dL1BaseRC, estado.dL2BaseRC, estado.dRadioRC, estado.iDivisiones, -estado.dAx, -estado.dAy,
                     estado.dAltura, -estado.dAlfa, axew);
}

void DespliegaRC(EWdraw& axew) {
  estado.inumDoblado = estado.iDivisiones;
  clTransRC motor;
  motor.GeneraPuntos(axew, estado.dL1BaseRC, estado.dL2BaseRC, estado.dRadioRC, estado.inumDoblado, -estado.dAx,
                     -estado.dAy, estado.dAltura, -Radianes(estado.dAlfa), estado.iPosIni);
  motor.GeneraDesarrollo(axew, estado.inumDoblado);
}

void DibujaElip(EWdraw& axew) {
  clTransBaRectBoElip motor;
  motor.GeneraDibujo(estado.dL1Elip, estado.dL2Elip, estado.dEjeMayorElip, estado.dEjeMenorElip, estado.iDivisiones,
                     -estado.dAx, -estado.dAyElip, estado.dAltura, -estado.dAlfa, axew);
}

// Unlike the other two this engine takes the tilt in degrees.
void DespliegaElip(EWdraw& axew) {
  estado.inumDoblado = estado.iDivisiones;
  estado.MultinumDoblado = 20;
  clTransBaRectBoElip motor;
  motor.GeneraPuntos(axew, estado.dL1Elip, estado.dL2Elip, estado.dEjeMayorElip, estado.dEjeMenorElip,
                     estado.inumDoblado, estado.dAx, -estado.dAyElip, estado.dAltura, -estado.dAlfa,
                     estado.iPosIniElip);
  motor.GeneraDesarrollo(axew, estado.inumDoblado);
}

void DibujaEspecial(EWdraw& axew) { GeneraDibujo3D(PiezaDeEstado(), estado.iDivisiones, axew); }

void DespliegaEspecial(EWdraw& axew) {
  estado.MultinumDoblado = 36;
  DesarrollaEspecial(axew);
}

struct Motor {
  std::string_view clave;
  void (*dibuja)(EWdraw&);
  void (*despliega)(EWdraw&);
};

constexpr std::array kMotores{
    Motor{"TransCR", DibujaCR, DespliegaCR},
    Motor{"TransRC", DibujaRC, DespliegaRC},
    Motor{"TransEsp1", DibujaEspecial, DespliegaEspecial},
    Motor{"TransEsp2", DibujaEspecial, DespliegaEspecial},
    Motor{"TransEsp3", DibujaEspecial, DespliegaEspecial},
    Motor{"TransEsp4", DibujaEspecial, DespliegaEspecial},
    Motor{"TransEsp5", DibujaEspecial, DespliegaEspecial},
};
// Any other key.
constexpr Motor kMotorElip{"", DibujaElip, DespliegaElip};

const Motor& MotorActual() {
  const auto* motor = std::ranges::find(kMotores, estado.sTipoPieza, &Motor::clave);
  return motor == kMotores.end() ? kMotorElip : *motor;
}

}  // namespace

void Dibuja3D(EWdraw& axew) {
  MotorActual().dibuja(axew);
  CursorEspera(false);
}

FinCorrida Despliega(EWdraw& axew) {
  estado.oDrawing = std::make_shared<cDrawing>();
  estado.oDXF = std::make_shared<cDXF>();
  try {
    MotorActual().despliega(axew);
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
