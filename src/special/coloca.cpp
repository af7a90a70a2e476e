#include "special/coloca.h"

#include <string>

#include "state/estado.h"
#include "state/textos.h"

namespace duktores {

Punto2 PideSitio(EWdraw& axew, Forma forma, int numero, const std::vector<Punto2>& contorno) {
  constexpr int kTextoColocar = 63, kTextoEsquina = 103, kTextoLado = 104;
  MuestraMensaje(Texto(kTextoColocar), EstiloMensaje::informacion, "");
  axew.EwGhost(contorno, Texto(forma == Forma::esquina ? kTextoEsquina : kTextoLado) + " " + std::to_string(numero));
  Punto3 sitio;
  axew.EwPickPoint(sitio.x, sitio.y, sitio.z);
  return {sitio.x, sitio.y};
}

}  // namespace duktores
