// Random pieces as the dialogs accept them: what the flat shapes keep of the piece in space.

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <span>

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
// Each shape is followed by its title block, with a row for each number: on every 36th element and the last one of a
// sector, or at the sides of a panel.
TEST_P(Desarrollos, RowsOfTheBlockAreTheNumberedLines) {
  int bloques = 0;
  for (int vez = 0; vez < 100; ++vez) {
    const std::string textos = AlAzar(GetParam());
    Corrida corrida(GetParam(), textos);
    if (!corrida.aceptada || !Sensata({})) continue;
    SCOPED_TRACE(textos);
    estado.iBox = 1;
    estado.iUnidad = static_cast<std::int16_t>(vez % 2);
    DesarrollaEspecial(corrida.axew);
    corrida.dibujado.push_back(corrida.axew.Entidades().size());
    for (std::size_t i = 0; i + 1 < corrida.rotulos.size(); ++i) {
      if (corrida.rotulos[i + 1] != Texto(kCajetin)) continue;
      ++bloques;
      const bool cono = corrida.rotulos[i].starts_with(Texto(kEsquina));
      const std::span<const Entidad> todo(corrida.axew.Entidades());
      const auto forma = todo.subspan(corrida.dibujado[i], corrida.dibujado[i + 1] - corrida.dibujado[i]);
      const auto bloque = todo.subspan(corrida.dibujado[i + 1], corrida.dibujado[i + 2] - corrida.dibujado[i + 1]);
      const auto& p = forma[0].puntos;
      const std::size_t ultimo = (p.size() - 3) / 2;
      std::vector<std::array<Punto3, 2>> lineas{{p[0], p[3]}, {p[1], p[2]}, {p[2], p[3]}, {p[0], p[1]}};
      if (cono) lineas.clear();
      for (std::size_t j = 0; cono && j < ultimo + 36; j += 36) {
        lineas.push_back({p[std::min(j, ultimo)], p[2 * ultimo + 1 - std::min(j, ultimo)]});
      }
      std::size_t numeros = 0, filas = 0;
      for (const Entidad& e : forma) {
        if (e.tipo != TipoEntidad::texto) continue;
        ASSERT_LT(numeros, lineas.size());
        const auto& [a, b] = lineas[numeros];
        EXPECT_LT(Distancia(e.puntos[0], 0.5 * (a + b) + Punto3{cono ? 0.0 : 1.0, 0, 0}), 1e-6);
        EXPECT_EQ(e.texto, std::to_string(++numeros));
      }
      const bool mm = cono || estado.iUnidad == 1;
      for (const Entidad& e : bloque) {
        const std::string cabeza = std::to_string(filas + 1) + "  ";
        if (e.tipo != TipoEntidad::texto || !e.texto.starts_with(cabeza)) continue;
        const double largo = Distancia(lineas.at(filas)[0], lineas.at(filas)[1]);
        const double escrito = std::stod(e.texto.substr(cabeza.size())), paso = mm ? 0.01 : 0.001;
        EXPECT_TRUE(escrito < largo + 0.00051 && escrito > largo - paso - 0.00051) << e.texto << " " << largo;
        EXPECT_TRUE(e.texto.ends_with(cono ? "" : mm ? " mm" : " in"));
        ++filas;
      }
      EXPECT_TRUE(numeros == lineas.size() && filas == numeros) << corrida.rotulos[i];
    }
  }
  EXPECT_GT(bloques, 150);
}
INSTANTIATE_TEST_SUITE_P(Tipos, Desarrollos,
                         testing::Values("TransEsp1", "TransEsp2", "TransEsp3", "TransEsp4", "TransEsp5"));

}  // namespace
}  // namespace duktores
