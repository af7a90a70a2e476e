#include "engines/solido.h"

#include <cmath>

namespace duktores {

Punto3 EnCirculo(Punto3 centro, double R, double angulo) {
  return centro + Punto3{R * std::cos(angulo), R * std::sin(angulo), 0};
}

Puntos3 Boca(int N, const std::function<Punto3(double)>& enAngulo) {
  Puntos3 boca(N + 1);
  for (int i = 1; i <= N + 1; ++i) boca(i) = enAngulo((i - 1) * 2 * dPi / N);
  return boca;
}

std::array<Punto3, 4> EsquinasCentradas(double L1, double L2, double z) {
  const double x = L1 / 2, y = L2 / 2;
  return {{{x, y, z}, {-x, y, z}, {-x, -y, z}, {x, -y, z}}};
}

void DibujaRectanguloYGeneratrices(EWdraw& axew, const PuntosSolido& solido) {
  const auto& [boca, esquinas] = solido;
  const auto linea = [&](Punto3 p, Punto3 q) { axew.EwSetColor(axew.EwAddLine(p, q), kColorSolido); };
  for (std::size_t lado = 4; lado > 0; --lado) linea(esquinas[lado % 4], esquinas[lado - 1]);
  const int q = (boca.Cuenta() - 1) / 4;
  for (int cuarto = 0; cuarto < 4; ++cuarto) {
    for (int i = cuarto * q + 1; i <= (cuarto + 1) * q + 1; ++i)
      linea(esquinas[static_cast<std::size_t>(cuarto)], boca(i));
  }
}

}  // namespace duktores
