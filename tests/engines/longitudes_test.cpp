// What no rule of an engine says, but all of them must give: a length on the flat pattern is the length in space.

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "engines/trans_cr.h"
#include "engines/trans_elip.h"
#include "engines/trans_rc.h"

namespace duktores {
namespace {

// The greatest difference between flat and true lengths: chords, generators, sides of the rectangle, edges of the seam.
double Desviacion(const Transicion& t) {
  const auto& [Q, P] = std::pair(t.dPuntos3D, t.dVertices3D);
  const auto& [F, C] = std::pair(t.dPuntosPlano, t.dVerticesPlano);
  const int N = F.Cuenta() - 1, h = N / 2, q = N / 4;
  double peor = 0;
  const auto compara = [&](double plano, double espacio) { peor = std::max(peor, std::abs(plano - espacio)); };
  const auto enEspacio = [&](int k) { return k > h ? Q(k - h) : Q(N + 3 - k); };
  // Corners of the four fans, from left to right, flat and in space.
  const int esquinaPlana[]{2, 3, 4, 5}, esquina[]{4, 3, 1, 2};
  for (int abanico = 0; abanico < 4; ++abanico) {
    for (int k = abanico * q + 1; k <= (abanico + 1) * q + 1; ++k) {
      compara(Distancia(F(k), C(esquinaPlana[abanico])), Distancia(enEspacio(k), P(esquina[abanico])));
    }
  }
  for (int k = 1; k <= N; ++k) compara(Distancia(F(k), F(k + 1)), Distancia(enEspacio(k), enEspacio(k + 1)));
  compara(Distancia(C(2), C(3)), Distancia(P(4), P(3)));
  compara(Distancia(C(3), C(4)), Distancia(P(3), P(1)));
  compara(Distancia(C(4), C(5)), Distancia(P(1), P(2)));
  compara(Distancia(C(1), C(2)) + Distancia(C(5), C(6)), Distancia(P(4), P(5)));
  compara(Distancia(F(1), C(1)), Distancia(F(N + 1), C(6)));
  return peor;
}

struct Medidas {
  double L1, L2, H, Ax, Ay, alfa, boca, boca2;
  std::int16_t N, inicio;
};

// Level centres are laid as if exactly level, up to 0.01 apart: no length can be off by more than twice that.
template <class Prueba>
void ParaMuchas(Prueba desarrolla) {
  const auto semilla = std::random_device{}();
  std::mt19937 azar(semilla);
  std::uniform_real_distribution<double> u(0, 1);
  double peor = 0;
  for (int i = 0; i < 5000; ++i) {
    Medidas m{};
    m.L1 = 50 + 1500 * u(azar);
    m.L2 = 50 + 1500 * u(azar);
    m.H = 20 + 1500 * u(azar);
    m.Ax = m.L1 * u(azar);
    m.Ay = m.L2 * u(azar);
    m.alfa = azar() % 3 == 0 ? 0 : 90 * (2 * u(azar) - 1);
    m.boca = 0.02 + 0.98 * u(azar);
    m.boca2 = 0.05 + 0.95 * u(azar);
    m.N = static_cast<std::int16_t>(12 * (1 + azar() % 10));
    m.inicio = static_cast<std::int16_t>(1 + azar() % 4);
    const double desviacion = Desviacion(desarrolla(m));
    ASSERT_LT(desviacion, 0.02) << "seed " << semilla << " piece " << i << ": L1 " << m.L1 << " L2 " << m.L2 << " H "
                                << m.H << " Ax " << m.Ax << " Ay " << m.Ay << " alfa " << m.alfa << " boca " << m.boca
                                << ' ' << m.boca2 << " N " << m.N << " start " << m.inicio;
    peor = std::max(peor, desviacion);
  }
  testing::Test::RecordProperty("greatest_deviation", std::to_string(peor));
}

TEST(Longitudes, CircleOnARectangularBase) {
  ParaMuchas([](const Medidas& m) {
    EWdraw axew;
    clTransCR motor;
    const double R = m.boca * std::max(m.L1, m.L2) / 2;
    motor.GeneraPuntos(axew, m.L1, m.L2, R, m.N, m.Ax, -m.Ay, m.H, Radianes(m.alfa), m.inicio);
    return motor.Modelo();
  });
}

TEST(Longitudes, RectangleOnACircularBase) {
  ParaMuchas([](const Medidas& m) {
    EWdraw axew;
    clTransRC motor;
    const double R = std::min(m.L1, m.L2) / 2 / m.boca2;
    // A start side that rises along its length is measured from its foot but laid from its middle: true without offset.
    const double Ax = m.inicio % 2 == 0 && m.alfa > 0 ? 0 : -m.Ax;
    motor.GeneraPuntos(axew, m.L1, m.L2, R, m.N, Ax, -m.Ay, m.H, -Radianes(m.alfa), m.inicio);
    return motor.Modelo();
  });
}

TEST(Longitudes, EllipseOnARectangularBase) {
  ParaMuchas([](const Medidas& m) {
    EWdraw axew;
    clTransBaRectBoElip motor;
    const double a = 1.5 * m.boca * m.L1;
    motor.GeneraPuntos(axew, m.L1, m.L2, a, a * m.boca2, m.N, m.Ax, -m.Ay, m.H, -std::abs(m.alfa), m.inicio);
    return motor.Modelo();
  });
}

}  // namespace
}  // namespace duktores
