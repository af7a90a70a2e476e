// The three transitions between a curve and a rectangle. That their patterns are true to their solids is tested with
// the check; here are worked figures and boundaries.

#include <gtest/gtest.h>

#include <algorithm>

#include "engines/elecciones.h"
#include "engines/formas.h"
#include "engines/motor.h"
#include "geometry/rotacion.h"

namespace duktores {
namespace {

template <class Punto>
bool Juntos(Punto a, Punto b, double margen = 1e-9) {
  return Distancia(a, b) < margen;
}

/// With a circle as its other mouth.
Pieza ConCirculo(TipoPieza tipo, Punto2 lados, double R, int N, int inicio = 1) {
  const Boca rectangulo{lados.x, lados.y, {}};
  Pieza p;
  p.tipo = tipo;
  p.H = 300;
  p.divisiones = N;
  p.inicio = inicio;
  p.corregidas = tipo == TipoPieza::rc ? Bocas{rectangulo, Circulo(R)} : Bocas{Circulo(R), rectangulo};
  return p;
}

TEST(Transicion, WorkedPatterns) {
  const auto cr = clTransCR.GeneraPuntos(ConCirculo(TipoPieza::cr, {400, 400}, 100, 12));
  const auto rc = clTransRC.GeneraPuntos(ConCirculo(TipoPieza::rc, {400, 300}, 100, 16));
  const std::tuple<const Transicion&, bool, int, Punto2> puntos[] = {
      {cr, false, 4, {200, 0}},         {cr, false, 3, {-200, 0}},         {cr, true, 7, {0, std::hypot(300, 100)}},
      {cr, true, 8, {51.50, 321.42}},   {cr, true, 13, {213.83, 503.49}},  {cr, false, 5, {500.92, 263.53}},
      {cr, false, 6, {527.30, 461.78}}, {cr, false, 1, {-527.30, 461.78}}, {rc, true, 9, {0, 316.23}},
      {rc, false, 4, {150, 0}},         {rc, false, 3, {-150, 0}},         {rc, false, 5, {481.74, 223.49}},
      {rc, true, 17, {245.01, 481.29}}, {rc, false, 6, {538.08, 362.51}}};
  for (const auto& [t, enCirculo, n, p] : puntos) {
    EXPECT_TRUE(Juntos((enCirculo ? t.dPuntosPlano : t.dVerticesPlano)(n), p, 0.007)) << n << ": " << p.x;
  }
}

// The collar that the rim has to fit is as long as its curve, not as the chords between its points.
TEST(Transicion, AnExactRimIsAsLongAsItsCurve) {
  for (int N = 12; N <= 120; N += 4) {
    Pieza circulo = ConCirculo(TipoPieza::cr, {400, 300}, 100, N), elipse = circulo;
    elipse.tipo = TipoPieza::elip;
    elipse.corregidas.arriba = {600, 150, {}};
    elipse.entradas = elipse.corregidas;
    elipse.fibra = Fibra::interior;
    elipse.espesor = 2;
    const double curva = 4 * 301 * std::comp_ellint_2(std::sqrt(1 - std::pow(76 / 301.0, 2)));
    for (auto& [motor, pieza, largo] :
         {std::tuple(&clTransCR, circulo, 200 * dPi), {&clTransBaRectBoElip, elipse, curva}}) {
      Pieza exacta = pieza;
      exacta.regla = Regla::exacta;
      const auto puntos = motor->GeneraPuntos(exacta).dPuntosPlano;
      double suma = 0;
      for (int i = 1; i <= N; ++i) suma += Distancia(puntos(i), puntos(i + 1));
      EXPECT_NEAR(suma, largo, 1e-6) << N;
    }
  }
}

TEST(ClTransRC, AnyTiltSendsSideLinesOrSeamToTheMiddleAndANegativeOneTheFoot) {
  const auto coloca = [](double AX, double alfa, int inicio) {
    Pieza p = ConCirculo(TipoPieza::rc, {400, 300}, 200, 12, inicio);
    p.AX = AX;
    p.Alfa = alfa;
    return clTransRC.GeneraPuntos(p);
  };
  EXPECT_TRUE(coloca(0, -1, 1).bFueraLado && !coloca(0, -1, 1).bFueraCierre && coloca(0, -1, 2).bFueraCierre);
  EXPECT_EQ(coloca(-30, -5, 2).dVerticesPlano(4).x, 200);
  EXPECT_NEAR(coloca(-30, -5, 2).dPtoInicio.x, 200, 1e-9) << "the foot forgets the offset";
  EXPECT_GT(coloca(-30, 5, 2).dPtoInicio.x, 229) << "and keeps it when tilted the other way";
  // A start side tilted along its length, the circle's point straight above its middle, at most 2 high or more.
  for (const double alto : {1.99, 2.01}) {
    Pieza p = ConCirculo(TipoPieza::rc, {400, 300}, 150, 12, 2);
    p.H = alto / std::cos(Radianes(1));
    p.Alfa = -1;
    EXPECT_NEAR(clTransRC.GeneraPuntos(p).dPuntosPlano(7).y, alto < 2 ? -alto : alto, 1e-9);
  }
}

TEST(Transicion, TheHalfLengthCountsAsOutside) {
  for (const auto& [tipo, motor] : {std::pair(TipoPieza::cr, &clTransCR), {TipoPieza::rc, &clTransRC}}) {
    for (const double falta : {0.0, 0.01}) {
      for (int inicio = 1; inicio <= 4; ++inicio) {
        Pieza x = ConCirculo(tipo, {400, 300}, 160, 12, inicio), y = x;
        x.AX = falta - 200;
        y.AY = 150 - falta;
        if (inicio % 2 == 0) std::swap(x, y);
        const Transicion alLado = motor->GeneraPuntos(x), alCierre = motor->GeneraPuntos(y);
        EXPECT_TRUE(alLado.bFueraLado == (falta == 0) && !alLado.bFueraCierre);
        EXPECT_TRUE(alCierre.bFueraCierre == (falta == 0) && !alCierre.bFueraLado);
      }
    }
  }
}

// A flat pattern made by hand, of one point for each fan, and each side line at its foot or in the middle.
TEST(Formas, SideLinesAndTheSplit) {
  const OrdenPatron orden{{0, 1, 2, 3, 0}, {4, 5, 6, 7}};
  for (const bool fueraLado : {false, true}) {
    Transicion t;
    t.dPuntosPlano = {{-2, 3}, {-1, 4}, {0.5, 3}, {1, -5}, {2, 3}};
    t.dVerticesPlano = {{-6, 0}, {-5, 0}, {-2, 0}, {2, 0}, {5, 0}, {6, 0}};
    t.bFueraLado = fueraLado;
    t.bFueraCierre = !fueraLado;
    const Punto2 pie1{fueraLado ? -3.5 : -1, 0}, pie2{fueraLado ? 0.5 : 0, 0}, pie3{fueraLado ? 3.5 : 1, 0};
    const Corte corte = CortePieza1(t);
    EXPECT_TRUE(Juntos(corte.dCorteBajo, pie2));
    EXPECT_TRUE(Juntos(corte.dCorteBajo2, fueraLado ? Punto2{} : pie2));
    const auto lineas = [&](Parte parte) { return FormaDe(t, orden, parte, corte).lineas; };
    const auto entera = lineas(Parte::entera);
    const auto es = [](const Linea& l, Punto2 p, Punto2 q) { return Juntos(l.p, p) && Juntos(l.q, q); };
    EXPECT_TRUE(es(entera[2], {-1, 4}, pie1) && es(entera[5], {0.5, 3}, pie2) && es(entera[8], {1, -5}, pie3));
    EXPECT_TRUE(es(entera[12], {-5, 0}, pie1) && es(entera[15], pie2, {2, 0}));
    EXPECT_TRUE(es(entera[16], {2, 0}, {1, -5}) && es(entera[17], {1, -5}, {5, 0})) << "the circle's end hangs lower";
    EXPECT_TRUE(es(lineas(Parte::primera)[8], {-2, 0}, corte.dCorteBajo2));
    EXPECT_TRUE(es(lineas(Parte::segunda)[5], corte.dCorteBajo2, {2, 0}));
  }
}

// The views: the curve, the four sides, and the generators, quarter by quarter. The points themselves are what the
// patterns are held against.
TEST(Solidos, GeneratorsFromEachCornerToItsQuarter) {
  constexpr int N = 12;
  for (const auto& [tipo, motor] :
       {std::pair(TipoPieza::cr, &clTransCR), {TipoPieza::rc, &clTransRC}, {TipoPieza::elip, &clTransBaRectBoElip}}) {
    Pieza p = ConCirculo(tipo, {400, 300}, 100, N);
    if (tipo == TipoPieza::elip) p.corregidas.arriba = {240, 140, {}};
    p.AX = -35;
    p.AY = 20;
    p.Alfa = -25;
    const Solido solido = motor->GeneraDibujo(p);
    const Curva& curva = solido.curva.value();
    EXPECT_EQ(curva.elipse, tipo == TipoPieza::elip);
    for (int i = 0; i <= N; ++i) {
      const Punto3 r =
          Rota(solido.puntos[static_cast<std::size_t>(i)], curva.centro, kEjeY, -curva.grados) - curva.centro;
      EXPECT_NEAR(std::hypot(r.x / curva.semiejeX, r.y / curva.semiejeY), 1, 1e-9) << "off the curve";
      EXPECT_NEAR(r.z, 0, 1e-9) << "off the curve's plane";
    }
    std::vector<std::vector<int>> alambre{{13, 16}, {16, 15}, {15, 14}, {14, 13}};
    for (int i = 0; i < N + 4; ++i) alambre.push_back({13 + i / 4, i - i / 4});
    EXPECT_EQ(solido.alambre, alambre);
  }
}

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
