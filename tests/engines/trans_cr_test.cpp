#include "engines/trans_cr.h"

#include <gtest/gtest.h>

#include "dxf/dibujo.h"
#include "state/estado.h"

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

// Each choice with the corner above the previous point (m = 4, k = 1) and below it (m = 5, k = 1). The pairs: A above
// and left of B, the mirror of that, and a tie in both coordinates, told apart by the other one.
TEST(ClTransCR, ChoicesAndTheirTies) {
  Transicion t;
  t.dPuntosPlano = Puntos2(1);
  t.dVerticesPlano = Puntos2(6);
  t.dVerticesPlano(4) = {0, 1};
  t.dVerticesPlano(5) = {0, -1};
  const ParPuntos altaA{{0, 9}, {1, 2}}, altaB{{1, 2}, {0, 9}}, empateY{{0, 5}, {1, 5}}, empateX{{3, 1}, {3, 0}};
  const struct {
    Eleccion elige;
    int m;
    const ParPuntos* pares;
    bool daA;
  } casos[]{
      {kReglasCR.circuloDerecha, 4, &altaA, true},
      {kReglasCR.circuloDerecha, 4, &altaB, false},
      {kReglasCR.circuloDerecha, 4, &empateY, true},
      {kReglasCR.circuloDerecha, 5, &altaA, false},
      {kReglasCR.circuloDerecha, 5, &altaB, true},
      {kReglasCR.circuloDerecha, 5, &empateX, false},
      {kReglasCR.esquinaDerecha, 4, &altaA, false},
      {kReglasCR.esquinaDerecha, 4, &empateX, false},
      {kReglasCR.circuloIzquierda, 4, &altaA, true},
      {kReglasCR.circuloIzquierda, 4, &altaB, false},
      {kReglasCR.circuloIzquierda, 4, &empateY, false},
      {kReglasCR.circuloIzquierda, 5, &altaA, true},
      {kReglasCR.circuloIzquierda, 5, &altaB, false},
      {kReglasCR.circuloIzquierda, 5, &empateX, false},
      {kReglasCR.esquinaIzquierda, 4, &altaA, true},
      {kReglasCR.esquinaIzquierda, 4, &altaB, false},
      {kReglasCR.esquinaIzquierda, 4, &empateY, true},
      {kReglasCR.esquinaIzquierda, 5, &altaB, false},
      {kReglasCR.esquinaIzquierda, 5, &empateX, false},
      {kReglasCR.cierre, 4, &altaA, true},
      {kReglasCR.cierre, 4, &altaB, true},
      {kReglasCR.cierre, 5, &altaA, false},
      {kReglasCR.cierre, 5, &altaB, true},
      {kReglasCR.cierre, 5, &empateX, false},
  };
  for (std::size_t i = 0; i < std::size(casos); ++i) {
    const auto& c = casos[i];
    EXPECT_EQ(c.elige(*c.pares, t, c.m, 1), c.daA ? c.pares->A : c.pares->B) << "row " << i;
  }
}

class Elige : public VistaEWdraw {
 public:
  std::optional<Punto3> EligePunto(EWdraw& axew) override {
    fantasmas.push_back(axew.Fantasma());
    if (puntos.empty()) return std::nullopt;
    const Punto3 p = puntos.front();
    puntos.erase(puntos.begin());
    return p;
  }
  std::vector<Punto3> puntos;
  std::vector<std::vector<Punto2>> fantasmas;
};

class Desarrollo : public testing::Test {
 protected:
  void Prepara(bool dosPiezas) {
    estado = {};
    estado.oDrawing = std::make_shared<cDrawing>();
    estado.iHandleDxf = 500;
    estado.bDosPiezas = dosPiezas;
    axew.PonVista(&vista);
    motor.GeneraPuntos(axew, 400, 300, 100, 24, 20, 10, 300, Radianes(10), 2);
  }
  EWdraw axew;
  Elige vista;
  clTransCR motor;
};

TEST_F(Desarrollo, OnePieceIsOneClosedOutline) {
  Prepara(false);
  motor.GeneraDesarrollo(axew, 24);
  EXPECT_EQ(estado.PoliContorno.size(), 24U + 9);
  EXPECT_EQ(estado.PoliContorno.front(), estado.PoliContorno.back());
  EXPECT_EQ(estado.oDrawing->Count(), 1 + 31 + 65);
  EXPECT_NE(estado.oDrawing->GetEntities().find(" 90\r\n34\r\n"), std::string::npos);
  EXPECT_TRUE(vista.fantasmas.empty());
}

TEST_F(Desarrollo, TwoPiecesLieWhereTheyArePicked) {
  Prepara(true);
  vista.puntos = {{1000, 200, 0}, {-3000, 50, 0}};
  motor.GeneraDesarrollo(axew, 24);
  ASSERT_EQ(estado.oDrawing->Count(), 2 * (1 + 15 + 33));
  ASSERT_EQ(vista.fantasmas.size(), 2U);
  const auto& [F, C] = std::pair(motor.Modelo().dPuntosPlano, motor.Modelo().dVerticesPlano);
  const auto& primera = axew.Entidades()[0].puntos;
  const auto& segunda = axew.Entidades()[49].puntos;
  EXPECT_EQ(estado.PoliContorno.size(), 12U + 6);
  EXPECT_EQ((Punto2{primera[0].x, primera[0].y}), F(1) + (Punto2{1000, 200}));
  EXPECT_EQ((Punto2{segunda[0].x, segunda[0].y}), F(13) + (Punto2{-3000, 50}));
  // The cut has the same length on both pieces and ends on the start side.
  const Punto2 base = motor.Modelo().dCorteBajo;
  EXPECT_NEAR(base.x, 0, 1e-9);
  EXPECT_NEAR(base.y, 0, 1e-9);
  EXPECT_EQ(vista.fantasmas[0][13], base);
  EXPECT_EQ(vista.fantasmas[1][16], Punto2{});
}

TEST_F(Desarrollo, TheCutGoesToTheMiddleWhenTheCentreIsOutside) {
  Prepara(true);
  motor.GeneraPuntos(axew, 400, 300, 80, 24, 0, 160, 300, 0, 1);
  vista.puntos = {{0, 0, 0}, {500, 0, 0}};
  motor.GeneraDesarrollo(axew, 24);
  const Transicion& t = motor.Modelo();
  const Punto2 medio{(t.dVerticesPlano(3).x + t.dVerticesPlano(4).x) / 2, 0};
  EXPECT_NEAR(Distancia(vista.fantasmas[0][13], medio), 0, 1e-9);
  EXPECT_NEAR(Distancia(vista.fantasmas[1][16], medio), 0, 1e-9);
}

TEST_F(Desarrollo, ARefusedPickKeepsTheFirstPiece) {
  Prepara(true);
  vista.puntos = {{0, 0, 0}};
  EXPECT_THROW(motor.GeneraDesarrollo(axew, 24), EleccionRechazada);
  EXPECT_EQ(estado.oDrawing->Count(), 1 + 15 + 33);
}

TEST(ClTransCRDibujo, SolidOnTheControl) {
  EWdraw axew;
  clTransCR motor;
  motor.GeneraDibujo(400, 300, 100, 12, -50, -20, 300, -30, axew);
  ASSERT_EQ(axew.EwEntityCount(), 1 + 4 + 12 + 1 + 3);
  Caja caja;
  for (const Entidad& e : axew.Entidades()) {
    EXPECT_EQ(e.color, 120);
    const Caja propia = CajaDe(e);
    caja.Incluye(propia.minimo);
    caja.Incluye(propia.maximo);
  }
  // Tilted by +30 degrees: the side of +X goes down.
  EXPECT_NEAR(caja.maximo.z, 300 + 100 * std::sin(Radianes(30)), 1e-9);
  const Entidad& primera = axew.Entidades()[5];
  EXPECT_NEAR(primera.puntos[1].x, 50 + 100 * std::cos(Radianes(30)), 1e-9);
  EXPECT_NEAR(primera.puntos[1].z, 300 - 100 * std::sin(Radianes(30)), 1e-9);
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
