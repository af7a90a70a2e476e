#include "engines/trans_cr.h"

#include <gtest/gtest.h>

#include "dxf/dibujo.h"
#include "state/estado.h"
#include "state/textos.h"

namespace duktores {
namespace {

struct Pieza {
  double L1, L2, R;
  std::int16_t N;
  double Ax, Ay, H, alfa;
  std::int16_t iInicio;
};

Transicion Coloca(const Pieza& p) {
  EWdraw axew;
  clTransCR motor;
  motor.GeneraPuntos(axew, p.L1, p.L2, p.R, p.N, p.Ax, p.Ay, p.H, Radianes(p.alfa), p.iInicio);
  return motor.Modelo();
}

void ExpectPunto(Punto2 p, double x, double y) {
  EXPECT_NEAR(p.x, x, 0.005);
  EXPECT_NEAR(p.y, y, 0.005);
}

TEST(ClTransCR, WorkedPattern) {
  const Transicion t = Coloca({400, 400, 100, 12, 0, 0, 300, 0, 1});
  const auto& [F, C] = std::pair(t.dPuntosPlano, t.dVerticesPlano);
  ExpectPunto(C(4), 200, 0);
  ExpectPunto(C(3), -200, 0);
  ExpectPunto(F(7), 0, std::hypot(300, 100));
  ExpectPunto(F(8), 51.50, 321.42);
  ExpectPunto(F(13), 213.83, 503.49);
  ExpectPunto(C(5), 500.92, 263.53);
  ExpectPunto(C(6), 527.30, 461.78);
  ExpectPunto(C(1), -527.30, 461.78);
  for (int i = 1; i <= 6; ++i) {
    EXPECT_NEAR(F(7 - i).x, -F(7 + i).x, 1e-9);
    EXPECT_NEAR(F(7 - i).y, F(7 + i).y, 1e-9);
  }
}

TEST(ClTransCR, StartPositions) {
  for (std::int16_t inicio = 1; inicio <= 4; ++inicio) {
    const Transicion t = Coloca({500, 300, 100, 12, 40, -30, 250, 20, inicio});
    const bool ladoY = inicio % 2 == 1;
    const Punto3 P1 = t.dVertices3D(1), S = t.dPtoInicio, Q1 = t.dPuntos3D(1);
    EXPECT_NEAR(t.dVerticesPlano(4).x, Distancia(S, P1), 1e-9);
    EXPECT_NEAR(Escalar(P1 - t.dVertices3D(3), Q1 - S), 0, 1e-9) << "Q(1) stands square above the start side";
    EXPECT_NEAR(Distancia(P1, t.dVertices3D(2)), ladoY ? 500 : 300, 1e-9);
    EXPECT_LT(Distancia(Q1, S), Distancia(t.dPuntos3D(7), S)) << "Q(1) is on the start's side of the circle";
    EXPECT_NEAR(Distancia(t.dPuntos3D(14), t.dPuntos3D(7)), 0, 1e-12);
  }
}

TEST(ClTransCR, SeamGoesToTheMiddleWhenTheCentreIsOutside) {
  for (std::int16_t inicio = 1; inicio <= 2; ++inicio) {
    const double limite = inicio == 1 ? 150 : 200;
    for (const bool fuera : {false, true}) {
      const double desvio = fuera ? limite : limite - 0.01;
      const Transicion t =
          Coloca({400, 300, 80, 12, inicio == 2 ? desvio : 0, inicio == 1 ? desvio : 0, 300, 0, inicio});
      EXPECT_EQ(t.bFueraCierre, fuera);
      EXPECT_FALSE(t.bFueraLado);
      const Punto2 costura = t.dVerticesPlano(1) - t.dPuntosPlano(1), lado = t.dVerticesPlano(2) - t.dVerticesPlano(1);
      const double sobreLado = (costura.x * lado.x + costura.y * lado.y) / std::hypot(costura.x, costura.y);
      if (fuera) {
        EXPECT_NEAR(std::hypot(lado.x, lado.y), limite, 0.02);
      } else {
        EXPECT_NEAR(sobreLado, 0, 0.02);
      }
    }
  }
}

TEST(ClTransCR, ATiltLowersTheSideOfPositiveX) {
  const Transicion t = Coloca({400, 300, 100, 12, 20, 0, 250, 30, 1});
  EXPECT_NEAR(t.dPuntos3D(1).z, 250 - 50, 1e-9);
  EXPECT_NEAR(t.dPuntos3D(1).x, 220 + 100 * std::cos(Radianes(30)), 1e-9);
  EXPECT_NEAR(t.dPuntos3D(7).z, 250 + 50, 1e-9);
}

TEST(ClTransCR, TheLimitOfTheSidesCountsAsOutside) {
  EXPECT_TRUE(Coloca({400, 300, 80, 12, -200, 0, 300, 0, 1}).bFueraLado);
  EXPECT_FALSE(Coloca({400, 300, 80, 12, -199.9, 0, 300, 0, 1}).bFueraLado);
  EXPECT_TRUE(Coloca({400, 300, 80, 12, 0, 150, 300, 0, 2}).bFueraLado);
}

struct Mesa : VistaEWdraw, Plataforma {
  std::optional<Punto3> EligePunto(EWdraw& axew) override {
    fantasmas.push_back(axew.Fantasma());
    return fantasmas.size() == 1 ? Punto3{1000, 200, 0} : Punto3{-3000, 50, 0};
  }
  void Regenera(EWdraw&) override { ++regenerados; }
  void CajaMensaje(std::string_view texto, EstiloMensaje estilo, std::string_view) override {
    EXPECT_EQ(estilo, EstiloMensaje::informacion);
    textos.emplace_back(texto);
  }
  std::vector<std::vector<Punto2>> fantasmas;
  std::vector<std::string> textos;
  int regenerados = 0;
};

class Desarrollo : public testing::Test {
 protected:
  void Prepara(bool dosPiezas) {
    estado = {};
    estado.oDrawing = std::make_shared<cDrawing>();
    estado.iHandleDxf = 500;
    estado.bDosPiezas = dosPiezas;
    estado.plataforma = &mesa;
    axew.PonVista(&mesa);
    motor.GeneraPuntos(axew, 400, 300, 100, 24, 20, 10, 300, Radianes(10), 2);
  }
  ~Desarrollo() override { estado = {}; }
  // F(desde) to F(hasta), the vertices given, and the first point again.
  std::vector<Punto2> Contorno(int desde, int hasta, std::initializer_list<Punto2> resto) {
    std::vector<Punto2> puntos;
    for (int k = desde; k <= hasta; ++k) puntos.push_back(motor.Modelo().dPuntosPlano(k));
    puntos.insert(puntos.end(), resto);
    puntos.push_back(puntos.front());
    return puntos;
  }
  EWdraw axew;
  Mesa mesa;
  clTransCR motor;
};

TEST_F(Desarrollo, OnePieceIsOneClosedOutline) {
  Prepara(false);
  motor.GeneraDesarrollo(axew, 24);
  const auto& C = motor.Modelo().dVerticesPlano;
  EXPECT_EQ(estado.PoliContorno, Contorno(1, 25, {C(6), C(6), C(5), C(4), C(3), C(2), C(1)}));
  EXPECT_EQ(mesa.regenerados, 1);
  EXPECT_EQ(estado.oDrawing->Count(), 1 + 31 + 65);
  EXPECT_TRUE(mesa.fantasmas.empty());
}

TEST_F(Desarrollo, TwoPiecesLieWhereTheyArePicked) {
  Prepara(true);
  motor.GeneraDesarrollo(axew, 24);
  ASSERT_EQ(estado.oDrawing->Count(), 2 * (1 + 15 + 33));
  ASSERT_EQ(mesa.fantasmas.size(), 2U);
  const auto& [F, C] = std::pair(motor.Modelo().dPuntosPlano, motor.Modelo().dVerticesPlano);
  const auto& primera = axew.Entidades()[0].puntos;
  const auto& segunda = axew.Entidades()[49].puntos;
  EXPECT_EQ((Punto2{primera[0].x, primera[0].y}), F(1) + (Punto2{1000, 200}));
  EXPECT_EQ((Punto2{segunda[0].x, segunda[0].y}), F(13) + (Punto2{-3000, 50}));
  // The cut goes straight down to the start side.
  const Punto2 pie = motor.Modelo().dCorteBajo;
  EXPECT_NEAR(Distancia(pie, {}), 0, 1e-9);
  EXPECT_EQ(mesa.fantasmas[0], Contorno(1, 13, {pie, C(3), C(2), C(1)}));
  EXPECT_EQ(mesa.fantasmas[1], Contorno(13, 25, {C(6), C(5), C(4), {}}));
  EXPECT_EQ(mesa.textos, (std::vector{Texto(63), Texto(64)}));
  EXPECT_EQ(mesa.regenerados, 2);
}

TEST(CalculaGiro, EveryQuarter) {
  EXPECT_DOUBLE_EQ(CalculaGiro(0, 0), dPi / 2);
  EXPECT_DOUBLE_EQ(CalculaGiro(0, -1), 3 * dPi / 2);
  EXPECT_DOUBLE_EQ(CalculaGiro(-1, 0), dPi);
  EXPECT_DOUBLE_EQ(CalculaGiro(1, -1), 7 * dPi / 4);
  EXPECT_DOUBLE_EQ(CalculaGiro(-1, -1), 5 * dPi / 4);
  EXPECT_DOUBLE_EQ(CalculaDistCentro(45, 7), 7);
}

}  // namespace
}  // namespace duktores
