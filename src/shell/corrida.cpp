#include "shell/corrida.h"

#include <algorithm>
#include <array>
#include <exception>
#include <memory>
#include <string_view>
#include <tuple>

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

constexpr std::int16_t kPasosEspecial = 36;  // steps round the circle to a division

// What each engine's solid is made of; its view and the check take the same.
auto ArgumentosCR() {
  return std::tuple(estado.dL1Base, estado.dL2Base, estado.dRadioAlto, estado.iDivisiones, -estado.dAx, -estado.dAy,
                    estado.dAltura, -estado.dAlfa);
}
auto ArgumentosRC() {
  return std::tuple(estado.dL1BaseRC, estado.dL2BaseRC, estado.dRadioRC, estado.iDivisiones, -estado.dAx, -estado.dAy,
                    estado.dAltura, -estado.dAlfa);
}
auto ArgumentosElip() {
  return std::tuple(estado.dL1Elip, estado.dL2Elip, estado.dEjeMayorElip, estado.dEjeMenorElip, estado.iDivisiones,
                    -estado.dAx, -estado.dAyElip, estado.dAltura, -estado.dAlfa);
}

template <class Engine, auto argumentos>
void Dibuja(EWdraw& axew) {
  std::apply([&](auto... a) { Engine().GeneraDibujo(a..., axew); }, argumentos());
}

void DespliegaCR(EWdraw& axew) {
  estado.inumDoblado = estado.iDivisiones;
  clTransCR motor;
  motor.GeneraPuntos(axew, estado.dL1Base, estado.dL2Base, estado.dRadioAlto, estado.inumDoblado, estado.dAx,
                     -estado.dAy, estado.dAltura, Radianes(estado.dAlfa), estado.iPosIni);
  motor.GeneraDesarrollo(axew, estado.inumDoblado);
}

void DespliegaRC(EWdraw& axew) {
  estado.inumDoblado = estado.iDivisiones;
  clTransRC motor;
  motor.GeneraPuntos(axew, estado.dL1BaseRC, estado.dL2BaseRC, estado.dRadioRC, estado.inumDoblado, -estado.dAx,
                     -estado.dAy, estado.dAltura, -Radianes(estado.dAlfa), estado.iPosIni);
  motor.GeneraDesarrollo(axew, estado.inumDoblado);
}

// Unlike the other two this engine takes the tilt in degrees, and its usual pattern tilts against the solid's sense.
void DespliegaElip(EWdraw& axew) {
  estado.inumDoblado = estado.iDivisiones;
  estado.MultinumDoblado = 20;
  clTransBaRectBoElip motor;
  motor.GeneraPuntos(axew, estado.dL1Elip, estado.dL2Elip, estado.dEjeMayorElip, estado.dEjeMenorElip,
                     estado.inumDoblado, estado.dAx, -estado.dAyElip, estado.dAltura,
                     estado.iExacto != 0 ? estado.dAlfa : -estado.dAlfa, estado.iPosIniElip);
  motor.GeneraDesarrollo(axew, estado.inumDoblado);
}

void DibujaEspecial(EWdraw& axew) { GeneraDibujo3D(PiezaDeEstado(), estado.iDivisiones, axew); }

void DespliegaEspecial(EWdraw& axew) {
  estado.MultinumDoblado = kPasosEspecial;
  DesarrollaEspecial(axew);
}

Solido SolidoDeCR() { return EnOrden(std::apply(clTransCR::Solido, ArgumentosCR()), estado.iPosIni, 1); }
Solido SolidoDeRC() { return EnOrden(std::apply(clTransRC::Solido, ArgumentosRC()), estado.iPosIni, -1); }

// The usual pattern of an ellipse tilts against the solid's sense. Without offsets that is the same piece, begun at its
// other end.
Solido SolidoDeElip() {
  auto argumentos = ArgumentosElip();
  double &Ax = std::get<5>(argumentos), &Inclinacion = std::get<8>(argumentos);
  if (estado.iExacto == 0 && Ax == 0 && estado.dAyElip == 0) Inclinacion = -Inclinacion;
  return EnOrden(std::apply(clTransBaRectBoElip::Solido, argumentos), estado.iPosIniElip, 1);
}

Solido SolidoDeEspecial() {
  return SolidoEspecial{PiezaDeEstado(), kPasosEspecial * estado.iDivisiones, kPasosEspecial};
}

struct Motor {
  std::string_view clave;
  void (*dibuja)(EWdraw&);
  Solido (*solido)();
  void (*despliega)(EWdraw&);
};

constexpr std::array kMotores{
    Motor{"TransCR", Dibuja<clTransCR, ArgumentosCR>, SolidoDeCR, DespliegaCR},
    Motor{"TransRC", Dibuja<clTransRC, ArgumentosRC>, SolidoDeRC, DespliegaRC},
    Motor{"TransEsp1", DibujaEspecial, SolidoDeEspecial, DespliegaEspecial},
    Motor{"TransEsp2", DibujaEspecial, SolidoDeEspecial, DespliegaEspecial},
    Motor{"TransEsp3", DibujaEspecial, SolidoDeEspecial, DespliegaEspecial},
    Motor{"TransEsp4", DibujaEspecial, SolidoDeEspecial, DespliegaEspecial},
    Motor{"TransEsp5", DibujaEspecial, SolidoDeEspecial, DespliegaEspecial},
};
// Any other key.
constexpr Motor kMotorElip{"", Dibuja<clTransBaRectBoElip, ArgumentosElip>, SolidoDeElip, DespliegaElip};

const Motor& MotorActual() {
  const auto* motor = std::ranges::find(kMotores, estado.sTipoPieza, &Motor::clave);
  return motor == kMotores.end() ? kMotorElip : *motor;
}

}  // namespace

void Dibuja3D(EWdraw& axew) {
  MotorActual().dibuja(axew);
  CursorEspera(false);
}

Solido SolidoActual() { return MotorActual().solido(); }

FinCorrida Despliega(EWdraw& axew) {
  estado.oDrawing = std::make_shared<cDrawing>();
  estado.oDXF = std::make_shared<cDXF>();
  estado.Formas.clear();
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
