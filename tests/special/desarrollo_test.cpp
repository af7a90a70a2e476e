// Random pieces as the dialogs accept them: what the flat shapes keep of the piece in space.

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "ayudas.h"

namespace duktores {
namespace {

class Desarrollos : public testing::TestWithParam<const char*> {
 protected:
  double Entre(double a, double b) { return std::uniform_real_distribution<double>(a, b)(azar); }
  bool Una(unsigned deCuantas) { return azar() % deCuantas == 0; }

  std::string AlAzar(std::string_view tipo) {
    const double x1 = Entre(50, 900), y1 = Entre(50, 900), menor1 = std::min(x1, y1), menor2 = Entre(50, 900);
    std::string t;
    const auto pon = [&](double v) { t += std::to_string(std::nearbyint(v * 100) / 100) + " "; };
    pon(Entre(100, 900));
    const bool redonda = Una(10), deUnRadio = tipo == "TransEsp2" || tipo == "TransEsp3" || tipo == "TransEsp4";
    const auto radios = [&](double lado) {
      const double mitad = std::floor(lado * 50) / 100;
      for (int c = 0; c < 4; ++c) pon(redonda ? mitad : Una(8) ? 0 : Entre(0, mitad));
    };
    deUnRadio ? pon(Entre(5, 400)) : radios(menor1);
    if (tipo == "TransEsp1" || tipo == "TransEsp4") radios(menor2);
    if (!deUnRadio) pon(x1), pon(y1);
    pon(menor2 + Entre(0, 300));
    pon(menor2);
    const double corrida = Una(6) ? 0 : 200, inclinada = Una(3) ? 0 : 25;
    for (const double m : {corrida, corrida, inclinada, inclinada}) pon(Entre(-m, m));
    return t + std::to_string(4 * (1 + azar() % 4));
  }
  std::mt19937 azar{7};
};

// A cut that falls below the base or lies almost along an element is no piece, and the numbers explode there; the two
// dialogs without that check let it pass.
bool Sensata(const EnElEspacio& pieza) {
  for (int c = 1; c <= 4; ++c) {
    for (double t = 0; t <= 1; t += 0.125) {
      const double z = pieza.Corte(c, t).z;
      if (z < 0 || z > 4 * estado.dAltura) return false;
    }
  }
  return true;
}

// All five lengths of a panel hold for any four points in space. The discriminant of the circles' intersection is
// rounded to 6 decimals, which shows where a panel tapers to a hundredth.
void ComparaPanel(const std::vector<Punto2>& plano, const std::array<Punto3, 4>& P) {
  constexpr double kCerca = 5e-5;
  ASSERT_EQ(plano.size(), 4u);
  for (std::size_t i = 0; i < 4; ++i) {
    EXPECT_NEAR(Distancia(plano[i], plano[(i + 1) % 4]), Distancia(P[i], P[(i + 1) % 4]), kCerca) << "edge " << i;
  }
  EXPECT_NEAR(Distancia(plano[0], plano[2]), Distancia(P[0], P[2]), kCerca);
}

// The elements of a corner have their lengths; they come in either order round it. The lower rim is never moved.
void ComparaEsquina(const std::vector<Punto2>& plano, const EnElEspacio& pieza, int c, bool bCambio, bool conBorde) {
  const std::size_t q = plano.size() / 2 - 1, primero = bCambio ? q + 1 : 0;
  const double pasos = static_cast<double>(q);
  double derecho = 0, vuelto = 0;
  for (std::size_t i = 0; i <= q; ++i) {
    const double t = static_cast<double>(i) / pasos, largo = Distancia(pieza.Bajo(c, t), pieza.Corte(c, t));
    const auto error = [&](std::size_t j) {
      return std::abs(Distancia(plano[j], plano[2 * q + 1 - j]) - largo) / (1 + largo);
    };
    derecho = std::max(derecho, error(i));
    vuelto = std::max(vuelto, error(q - i));
  }
  EXPECT_LT(std::min(derecho, vuelto), 1e-8) << "elements of corner " << c;
  const double cuerda = 2 * std::abs(pieza.r2[static_cast<std::size_t>(c)]) * std::sin(dPi / 4 / pasos);
  for (std::size_t i = primero; conBorde && i < primero + q; ++i) {
    EXPECT_NEAR(Distancia(plano[i], plano[i + 1]), cuerda, 1e-8) << "rim of corner " << c;
  }
}

TEST_P(Desarrollos, KeepTheLengthsOfThePieceInSpace) {
  const std::string_view tipo = GetParam();
  int formas = 0;
  for (int vez = 0; vez < 2000; ++vez) {
    const std::string textos = AlAzar(tipo);
    Corrida corrida(GetParam(), textos);
    if (!corrida.aceptada || !Sensata({})) continue;
    SCOPED_TRACE(textos);
    DesarrollaEspecial(corrida.axew);

    // The sharp corners: a cone that all but ends in a point, and panels that leave a hair's breadth.
    EnElEspacio deConos, dePaneles;
    const bool agudas = tipo == "TransEsp3";
    if (agudas) {
      deConos.r2[1] = 1e-11;
      dePaneles.r2[1] = dePaneles.r2[2] = deConos.r2[2] = 0.005;
    }
    const EnElEspacio real;
    for (int c = 1; c <= 4; ++c) {
      const int sig = c % 4 + 1;
      if (const auto lado = corrida.Forma(kLado, c)) {
        ++formas;
        std::array<Punto3, 4> P{dePaneles.Corte(c, 1), dePaneles.Corte(sig, 0), dePaneles.Bajo(sig, 0),
                                dePaneles.Bajo(c, 1)};
        if (Distancia(P[0], P[1]) < 2e-9) P[0].x -= 0.005;  // an edge of the mouth that would be a point
        ComparaPanel(*lado, P);
      }
      if (const auto esquina = corrida.Forma(kEsquina, c)) {
        ++formas;
        ASSERT_EQ(esquina->size(), static_cast<std::size_t>(2 * (9 * estado.iDivisiones + 1)));
        const bool bCambio = real.r2[std::size_t(c)] < real.r1[std::size_t(c)];
        // Under a mouth wider than its half circle, the sharp corners take the near-zero radius for the mouth and the
        // half circle's for the base.
        ComparaEsquina(*esquina, deConos, c, bCambio, !(agudas && bCambio && c <= 2));
      }
    }
  }
  EXPECT_GT(formas, 1500);
}
INSTANTIATE_TEST_SUITE_P(Tipos, Desarrollos,
                         testing::Values("TransEsp1", "TransEsp2", "TransEsp3", "TransEsp4", "TransEsp5"));

}  // namespace
}  // namespace duktores
