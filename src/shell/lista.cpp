#include "shell/lista.h"

#include <algorithm>
#include <array>

#include "dialogs/eliptico.h"
#include "dialogs/especiales.h"
#include "dialogs/rectangulares.h"
#include "engines/motor.h"
#include "shell/deja.h"
#include "special/especial.h"

namespace duktores {

namespace {

template <const MotorTransicion& motor>
Solido SolidoDe(const Pieza& pieza) {
  return motor.GeneraDibujo(pieza);
}
template <const MotorTransicion& motor>
Desarrollo DesarrolloDe(const Pieza& pieza, const Solido&) {
  return motor.GeneraDesarrollo(pieza);
}

template <const MotorTransicion& motor>
constexpr FilaPieza Transicion(TipoPieza tipo, Grupo grupo, const DefDialogo& dialogo, std::string_view imagen,
                               void (*deja)(const Pieza&, const Desarrollo&)) {
  return {tipo, grupo, dialogo, imagen, SolidoDe<motor>, DesarrolloDe<motor>, deja};
}
constexpr FilaPieza Especial(TipoPieza tipo, const DefDialogo& dialogo, std::string_view imagen) {
  return {tipo, Grupo::especiales, dialogo, imagen, GeneraDibujo3D, DesarrollaEspecial, DejaEspecial};
}

using enum TipoPieza;
// clang-format off
constexpr std::array kFilas{
    Transicion<clTransCR>(cr, Grupo::rectangulares, kFrTransfCR, "TransBasRect.bmp", DejaTransicion),
    Transicion<clTransRC>(rc, Grupo::rectangulares, kFrTransfRC, "TransBasCirc.bmp", DejaTransicion),
    Transicion<clTransBaRectBoElip>(elip, Grupo::elipticas, kFrTransBaRectBoElip, "TransBoElip.bmp", DejaEliptica),
    Especial(esp1, kFrTransfEsp1, "Transespe1.bmp"),
    Especial(esp2, kFrTansfEsp2,  "Transespe2.bmp"),
    Especial(esp3, kFrTransfEsp3, "Transespe3.bmp"),
    Especial(esp4, kFrTransEsp4,  "Transespe4.bmp"),
    Especial(esp5, kFrTransEspe5, "Transespe5.bmp"),
};
// clang-format on
static_assert(Completa(kFilas));

}  // namespace

std::span<const FilaPieza> FilasPieza() { return kFilas; }

const FilaPieza& FilaDe(TipoPieza tipo) { return kFilas[static_cast<std::size_t>(tipo)]; }

const FilaPieza* FilaDeClave(std::string_view clave) {
  const auto* fila = std::ranges::find_if(kFilas, [&](const FilaPieza& f) { return f.dialogo.clave == clave; });
  return fila == kFilas.end() ? nullptr : fila;
}

}  // namespace duktores
