#include "check/solido_mostrado.h"

namespace duktores {

namespace {

int Resto(int a, int b) { return (a % b + b) % b; }

}  // namespace

// The start side lies at the angle (iInicio - 1) * 90 degrees, in the pattern's sense; the corner of quarter c covers
// the mouth's points from c * 90 degrees on.
SolidoTransicion EnOrden(const PuntosSolido& solido, std::int16_t iInicio, int sentido) {
  const int N = solido.boca.Cuenta() - 1, h = N / 2, q = N / 4;
  SolidoTransicion orden{Puntos3(N + 1), {}};
  for (int k = 1; k <= N + 1; ++k) {
    orden.F(k) = solido.boca(Resto(sentido * ((iInicio - 1) * q + k - h - 1), N) + 1);
  }
  for (int abanico = 0; abanico < 4; ++abanico) {
    const int cuartos = iInicio - 1 + abanico - 2, cuarto = sentido > 0 ? cuartos : -cuartos - 1;
    orden.esquinas[static_cast<std::size_t>(abanico)] = solido.esquinas[static_cast<std::size_t>(Resto(cuarto, 4))];
  }
  return orden;
}

}  // namespace duktores
