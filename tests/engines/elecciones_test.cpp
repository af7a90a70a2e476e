// Which of two intersections each engine takes, ties included.

#include <gtest/gtest.h>

#include "engines/trans_cr.h"
#include "engines/trans_elip.h"
#include "engines/trans_rc.h"

namespace duktores {
namespace {

// A above and left of B, below and right, above and right, below and left, level on the left, upright above.
constexpr ParPuntos kPares[]{{{0, 9}, {1, 2}}, {{1, 2}, {0, 9}}, {{1, 9}, {0, 2}},
                             {{0, 2}, {1, 9}}, {{0, 5}, {1, 5}}, {{3, 1}, {3, 0}}};
constexpr const char *kDerecha = "BAABBB", *kIzquierda = "ABBAAB";

// What each choice takes of the six pairs with the corner above the previous point, at its height, below it.
TEST(Elecciones, EveryRuleAndItsTies) {
  const ReglasPlano &cr = kReglasCR, &rc = kReglasRC, &el = kReglasElip;
  // clang-format off
  const struct {
    Eleccion elige;
    const char *encima, *nivel, *debajo;
  } casos[]{
      {cr.circuloDerecha,   "ABABAA",   kDerecha,   kDerecha},
      {cr.esquinaDerecha,   kDerecha,   kDerecha,   kDerecha},
      {cr.circuloIzquierda, "ABABBA",   kIzquierda, kIzquierda},
      {cr.esquinaIzquierda, "ABABAA",   kIzquierda, kIzquierda},
      {cr.cierre,           "AAAAAA",   "AAAAAA",   kDerecha},
      {rc.circuloDerecha,   "BABABB",   kDerecha,   kDerecha},
      {rc.esquinaDerecha,   kIzquierda, kIzquierda, kDerecha},
      {rc.circuloIzquierda, "BABABB",   kIzquierda, kIzquierda},
      {rc.esquinaIzquierda, "BABAAB",   kIzquierda, kIzquierda},
      {el.circuloDerecha,   "ABABBA",   "ABABBA",   "ABABBB"},
      {el.esquinaDerecha,   "ABABAA",   "ABABAA",   "ABABAA"},
      {el.circuloIzquierda, "ABABBA",   kIzquierda, kIzquierda},
      {el.esquinaIzquierda, "ABABAA",   kIzquierda, kIzquierda},
      {el.cierre,           "AAAAAA",   "AAAAAA",   kDerecha},
  };
  // clang-format on
  Transicion t;
  t.dPuntosPlano = {{4, -1}, {0, 0}};
  t.dVerticesPlano = {{0, 0}, {0, 0}, {0, 0}, {0, 1}, {0, -1}, {0, 0}};
  for (std::size_t i = 0; i < std::size(casos); ++i) {
    const auto toma = [&](int m) {
      std::string s;
      for (const ParPuntos& AB : kPares) s += casos[i].elige(AB, t, m, 2) == AB.A ? 'A' : 'B';
      return s;
    };
    EXPECT_EQ(toma(4), casos[i].encima) << "row " << i;
    EXPECT_EQ(toma(3), casos[i].nivel) << "row " << i;
    EXPECT_EQ(toma(5), casos[i].debajo) << "row " << i;
  }
}

TEST(Elecciones, AnEllipseTakesTwoPointsAsFarForATie) {
  Transicion t;
  t.dVerticesPlano = Puntos2(6);
  for (const double mas : {-2e-9, 0.0, 5e-10, 2e-9}) {
    const ParPuntos AB{{5 + mas, 0}, {0, 5}};
    EXPECT_EQ(kReglasElip.circuloDerecha(AB, t, 4, 1), mas > 1e-9 ? AB.A : AB.B) << mas;
  }
  t.dPuntosPlano = Puntos2(2);
  EXPECT_EQ(kReglasElip.esquinaDerecha({{5, 0}, {0, 5}}, t, 4, 2), (Punto2{0, 5}));
}

// C(6) lies across the line C(5)-F(N+1) from F(N); where that tells nothing the rule of any next point does.
TEST(Elecciones, ARectangleAboveClosesAcrossTheLastGenerator) {
  Transicion t;
  t.dPuntosPlano = {{2, 0}, {4, -1}};
  t.dVerticesPlano = {{}, {}, {}, {}, {0, -1}, {}};
  const Punto2 arriba{2, 3}, abajo{2, -3};
  EXPECT_EQ(kReglasRC.cierre({arriba, abajo}, t, 5, 2), abajo);
  EXPECT_EQ(kReglasRC.cierre({abajo, arriba}, t, 5, 2), abajo);
  t.dPuntosPlano(1) = {2, -5};
  EXPECT_EQ(kReglasRC.cierre({arriba, abajo}, t, 5, 2), arriba);
  EXPECT_EQ(kReglasRC.cierre({{2, 3}, {1, 3}}, t, 5, 2), (Punto2{2, 3})) << "both across";
  EXPECT_EQ(kReglasRC.cierre({{1, -3}, {2, -3}}, t, 5, 2), (Punto2{2, -3})) << "neither across";
}

}  // namespace
}  // namespace duktores
