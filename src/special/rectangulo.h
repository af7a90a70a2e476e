#pragma once
// A flat side of a special piece. Flat: A, B, C, D, the images of P11, P12, P21, P22.

#include "piece/panel.h"
#include "piece/patron.h"
#include "special/orden.h"

namespace duktores {

/// Ends of side c on both mouths: from the end of corner c to the start of the next. The ends of one edge lie exactly
/// on its line, so that they are equal as soon as their places along it are.
Lado LadoCortado(const PiezaEspecial& pieza, const PlanoCorte& plano, int c);

/// The shape of side c, with A at the origin.
FormaPatron FormaLado(const Lado& lado, int c, Regla regla, const Solido& solido, const OrdenEspecial& orden);

}  // namespace duktores
