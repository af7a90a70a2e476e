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

  std::vector<std::string> AlAzar(std::string_view tipo) {
    const auto texto = [](double v) { return std::to_string(std::nearbyint(v * 100) / 100); };
    const double x1 = Entre(50, 900), y1 = Entre(50, 900), menor1 = std::min(x1, y1), menor2 = Entre(50, 900);
    std::vector<std::string> t{texto(Entre(100, 900))};
    const bool redonda = Una(10);
    const auto radios = [&](double lado) {
      const double mitad = std::floor(lado * 50) / 100;
      for (int c = 0; c < 4; ++c) t.push_back(texto(redonda ? mitad : Una(8) ? 0 : Entre(0, mitad)));
    };
    const bool deUnRadio = tipo == "TransEsp2" || tipo == "TransEsp3" || tipo == "TransEsp4";
    if (deUnRadio) t.push_back(texto(Entre(5, 400)));
    if (!deUnRadio) radios(menor1);
    if (tipo == "TransEsp1" || tipo == "TransEsp4") radios(menor2);
    if (!deUnRadio) t.insert(t.end(), {texto(x1), texto(y1)});
    t.insert(t.end(), {texto(menor2 + Entre(0, 300)), texto(menor2)});
    const double corrida = Una(6) ? 0 : 200, inclinada = Una(3) ? 0 : 25;
    for (const double m : {corrida, corrida, inclinada, inclinada}) t.push_back(texto(Entre(-m, m)));
    t.push_back(std::to_string(4 * (1 + azar() % 4)));
    return t;
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

// A corner's elements from its start to its end, each from the lower mouth to the cut. They come in either order round
// the corner; the order that the lengths fit is the drawn one.
struct Sector {
  std::vector<Punto2> bajo, alto;
  double error = 0;  // of the lengths, relative
  Sector(const std::vector<Punto2>& contorno, const EnElEspacio& pieza, int c, bool bCambio) {
    const auto medio = contorno.begin() + static_cast<std::ptrdiff_t>(contorno.size() / 2);
    bajo.assign(contorno.begin(), medio);
    alto.assign(contorno.rbegin(), std::make_reverse_iterator(medio));
    if (bCambio) std::swap(bajo, alto);
    const double derecho = Error(pieza, c);
    std::ranges::reverse(bajo);
    std::ranges::reverse(alto);
    error = Error(pieza, c);
    if (derecho > error) return;
    std::ranges::reverse(bajo);
    std::ranges::reverse(alto);
    error = derecho;
  }
  double Error(const EnElEspacio& pieza, int c) const {
    double mayor = 0;
    for (std::size_t i = 0; i < bajo.size(); ++i) {
      const double t = static_cast<double>(i) / static_cast<double>(bajo.size() - 1);
      const double largo = Distancia(pieza.Bajo(c, t), pieza.Corte(c, t));
      mayor = std::max(mayor, std::abs(Distancia(bajo[i], alto[i]) - largo) / (1 + largo));
    }
    return mayor;
  }
  double Borde(bool final) const { return final ? Distancia(bajo.back(), alto.back()) : Distancia(bajo[0], alto[0]); }
};

TEST_P(Desarrollos, KeepTheLengthsOfThePieceInSpace) {
  const std::string_view tipo = GetParam();
  int formas = 0;
  for (int vez = 0; vez < 400; ++vez) {
    estado = {};
    estado.iUnidad = 1;
    estado.iFibra = 2;
    const auto textos = AlAzar(tipo);
    if (!Acepta(GetParam(), textos) || !Sensata({})) continue;
    SCOPED_TRACE([&] {
      std::string todos;
      for (const auto& t : textos) todos += t + " ";
      return todos;
    }());
    EWdraw axew;
    Mesa mesa;
    axew.PonVista(&mesa);
    DesarrollaEspecial(axew);

    // The sharp corners: a cone that all but ends in a point, and panels that leave a hair's breadth.
    EnElEspacio deConos, dePaneles;
    const bool agudas = tipo == "TransEsp3";
    if (agudas) {
      deConos.r2[1] = 1e-11;
      dePaneles.r2[1] = dePaneles.r2[2] = deConos.r2[2] = 0.005;
    }
    const EnElEspacio real;
    for (int c = 1; c <= 4; ++c) {
      const int sig = c % 4 + 1, ant = (c + 2) % 4 + 1;
      const auto lado = mesa.Forma(axew, kLado, c), anterior = mesa.Forma(axew, kLado, ant);
      if (lado) {
        ++formas;
        std::array<Punto3, 4> P{dePaneles.Corte(c, 1), dePaneles.Corte(sig, 0), dePaneles.Bajo(sig, 0),
                                dePaneles.Bajo(c, 1)};
        if (Distancia(P[0], P[1]) < 2e-9) P[0].x -= 0.005;  // an edge of the mouth that would be a point
        ComparaPanel(*lado, P);
      }
      const auto esquina = mesa.Forma(axew, kEsquina, c);
      if (!esquina) continue;
      ++formas;
      const std::size_t s = static_cast<std::size_t>(c), n = static_cast<std::size_t>(36 * estado.iDivisiones);
      const bool bCambio = real.r2[s] < real.r1[s];
      ASSERT_EQ(esquina->size(), 2 * (n / 4 + 1));
      const Sector sector(*esquina, deConos, c, bCambio);
      EXPECT_LT(sector.error, 1e-8) << "elements of corner " << c;
      // The lower rim is never moved. But under a mouth wider than its half circle, the sharp corners take the
      // near-zero radius for the mouth and the half circle's for the base.
      if (!(agudas && bCambio && c <= 2)) {
        const double cuerda = 2 * std::abs(deConos.r2[s]) * std::sin(dPi / static_cast<double>(n));
        for (std::size_t i = 0; i + 1 < sector.bajo.size(); ++i) {
          EXPECT_NEAR(Distancia(sector.bajo[i], sector.bajo[i + 1]), cuerda, 1e-8) << "corner " << c;
        }
      }
      // The border is one line with the panel's side; corner 1 of the sharp ones lies a hair off its panels, which a
      // cut at a low angle makes longer, and a mouth's edge of no length has given one of its ends that much room.
      const double holgura = 0.0051 + (agudas && c == 1 ? 3e-4 * (sector.Borde(true) + sector.Borde(false)) : 0);
      if (lado) {
        EXPECT_NEAR(sector.Borde(true), Distancia((*lado)[0], (*lado)[3]), holgura) << "corner " << c;
      }
      if (anterior) {
        EXPECT_NEAR(sector.Borde(false), Distancia((*anterior)[1], (*anterior)[2]), holgura) << c;
      }
    }
  }
  EXPECT_GT(formas, 1500);
}
INSTANTIATE_TEST_SUITE_P(Tipos, Desarrollos,
                         testing::Values("TransEsp1", "TransEsp2", "TransEsp3", "TransEsp4", "TransEsp5"));

}  // namespace
}  // namespace duktores
