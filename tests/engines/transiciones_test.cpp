// The three transitions between a curve and a rectangle. That their patterns are true to their solids is tested with
// the check; here are worked figures, boundaries, and what is drawn.

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "dxf/anotacion.h"
#include "engines/cajetin.h"
#include "engines/cotas_transicion.h"
#include "engines/marcas.h"
#include "engines/trans_cr.h"
#include "engines/trans_elip.h"
#include "engines/trans_rc.h"
#include "mesa.h"
#include "state/estado.h"
#include "state/textos.h"

namespace duktores {
namespace {

void ExpectPunto(Punto2 p, double x, double y) {
  EXPECT_NEAR(p.x, x, 0.005);
  EXPECT_NEAR(p.y, y, 0.005);
}

template <class Punto>
bool Juntos(Punto a, Punto b) {
  return Distancia(a, b) < 1e-9;
}

TEST(ClTransCR, WorkedPattern) {
  EWdraw axew;
  clTransCR motor;
  motor.GeneraPuntos(axew, 400, 400, 100, 12, 0, 0, 300, 0, 1);
  const auto &F = motor.Modelo().dPuntosPlano, &C = motor.Modelo().dVerticesPlano;
  ExpectPunto(C(4), 200, 0);
  ExpectPunto(C(3), -200, 0);
  ExpectPunto(F(7), 0, std::hypot(300, 100));
  ExpectPunto(F(8), 51.50, 321.42);
  ExpectPunto(F(13), 213.83, 503.49);
  ExpectPunto(C(5), 500.92, 263.53);
  ExpectPunto(C(6), 527.30, 461.78);
  ExpectPunto(C(1), -527.30, 461.78);
}

Transicion ColocaRC(double L1, double L2, double R, std::int16_t N, double Ax, double Ay, double grados,
                    std::int16_t inicio, double H = 300) {
  EWdraw axew;
  clTransRC motor;
  motor.GeneraPuntos(axew, L1, L2, R, N, Ax, Ay, H, Radianes(grados), inicio);
  return motor.Modelo();
}

TEST(ClTransRC, WorkedPattern) {
  const Transicion t = ColocaRC(400, 300, 100, 16, 0, 0, 0, 1);
  const auto& [F, C] = std::pair(t.dPuntosPlano, t.dVerticesPlano);
  ExpectPunto(F(9), 0, 316.23);
  ExpectPunto(C(4), 150, 0);
  ExpectPunto(C(3), -150, 0);
  ExpectPunto(C(5), 481.74, 223.49);
  ExpectPunto(F(17), 245.01, 481.29);
  ExpectPunto(C(6), 538.08, 362.51);
}

TEST(ClTransRC, AnyTiltSendsSideLinesOrSeamToTheMiddleAndAPositiveOneTheFoot) {
  EXPECT_TRUE(ColocaRC(400, 300, 200, 12, 0, 0, 1, 1).bFueraLado);
  EXPECT_FALSE(ColocaRC(400, 300, 200, 12, 0, 0, 1, 1).bFueraCierre);
  EXPECT_TRUE(ColocaRC(400, 300, 200, 12, 0, 0, 1, 2).bFueraCierre);
  EXPECT_EQ(ColocaRC(400, 300, 200, 12, 30, 0, 5, 2).dVerticesPlano(4).x, 200);
  EXPECT_NEAR(ColocaRC(400, 300, 200, 12, 30, 0, 5, 2).dPtoInicio.x, 200, 1e-9) << "the foot forgets the offset";
  EXPECT_GT(ColocaRC(400, 300, 200, 12, 30, 0, -5, 2).dPtoInicio.x, 229) << "and keeps it when tilted the other way";
}

// A start side tilted along its length, the circle's point straight above its middle.
TEST(ClTransRC, AFirstPointAtMostTwoHighHangsBelow) {
  for (const double alto : {1.99, 2.01}) {
    const Transicion t = ColocaRC(400, 300, 150, 12, 0, 0, 1, 2, alto / std::cos(Radianes(1)));
    EXPECT_NEAR(t.dPuntosPlano(7).y, alto < 2 ? -alto : alto, 1e-9);
  }
}

// The choices of the two differ where a facet turns over; among these pieces none does.
TEST(ClTransBaRectBoElip, AnEllipseWithEqualAxesIsACircle) {
  std::mt19937 azar(7);
  std::uniform_real_distribution<double> u(0, 1);
  for (int i = 0; i < 300; ++i) {
    const double L1 = 300 + 300 * u(azar), L2 = 300 + 300 * u(azar), R = 60 + 60 * u(azar), H = 150 + 350 * u(azar);
    const double Ax = L1 / 4 * (2 * u(azar) - 1), Ay = L2 / 4 * (2 * u(azar) - 1), alfa = 20 * (2 * u(azar) - 1);
    const auto inicio = static_cast<std::int16_t>(1 + i % 4);
    EWdraw axew;
    clTransCR circulo;
    clTransBaRectBoElip elipse;
    axew.EwAddPoint({});
    circulo.GeneraPuntos(axew, L1, L2, R, 24, Ax, Ay, H, Radianes(alfa), inicio);
    elipse.GeneraPuntos(axew, L1, L2, 2 * R, 2 * R, 24, Ax, Ay, H, alfa, inicio);
    EXPECT_EQ(axew.EwEntityCount(), 0) << "the ellipse begins on an empty sheet";
    const Transicion &c = circulo.Modelo(), &e = elipse.Modelo();
    double peor = 0;
    for (int k = 1; k <= 25; ++k) peor = std::max(peor, Distancia(c.dPuntosPlano(k), e.dPuntosPlano(k)));
    for (int j = 1; j <= 6; ++j) peor = std::max(peor, Distancia(c.dVerticesPlano(j), e.dVerticesPlano(j)));
    EXPECT_LT(peor, 1e-5) << "piece " << i;
  }
}

template <class Motor>
void ExpectMitadFuera() {
  for (const double falta : {0.0, 0.01}) {
    for (std::int16_t inicio = 1; inicio <= 4; ++inicio) {
      EWdraw axew;
      Motor x, y;
      x.GeneraPuntos(axew, 400, 300, 160, 12, falta - 200, 0, 300, 0, inicio);
      y.GeneraPuntos(axew, 400, 300, 160, 12, 0, 150 - falta, 300, 0, inicio);
      const Transicion &alLado = inicio % 2 == 1 ? x.Modelo() : y.Modelo(),
                       &alCierre = inicio % 2 == 1 ? y.Modelo() : x.Modelo();
      EXPECT_TRUE(alLado.bFueraLado == (falta == 0) && !alLado.bFueraCierre);
      EXPECT_TRUE(alCierre.bFueraCierre == (falta == 0) && !alCierre.bFueraLado);
    }
  }
}

TEST(Transicion, TheHalfLengthCountsAsOutside) {
  ExpectMitadFuera<clTransCR>();
  ExpectMitadFuera<clTransRC>();
}

TEST(Desarrollo, TwoPiecesLieWhereTheyArePicked) {
  EWdraw axew;
  Mesa mesa({{1000, 200, 0}, {-3000, 50, 0}});
  clTransCR motor;
  estado = {};
  estado.bDosPiezas = true;
  estado.plataforma = &mesa;
  axew.PonVista(&mesa);
  motor.GeneraPuntos(axew, 400, 300, 100, 24, 20, 10, 300, Radianes(10), 2);
  motor.GeneraDesarrollo(axew, 24);
  ASSERT_EQ(axew.EwEntityCount(), 2 * (1 + 15 + 33));
  ASSERT_EQ(mesa.fantasmas.size(), 2U);
  const auto& F = motor.Modelo().dPuntosPlano;
  EXPECT_TRUE(mesa.fantasmas[0].front() == F(1) && mesa.fantasmas[1].front() == F(13));
  EXPECT_TRUE(mesa.fantasmas[0][13] == motor.Modelo().dCorteBajo && mesa.fantasmas[1][16] == Punto2{});
  for (std::size_t mitad = 0; mitad < 2; ++mitad) {
    std::vector<Punto3> contorno;
    for (const Punto2 p : mesa.fantasmas[mitad]) contorno.push_back(Punto3{p.x, p.y, 0} + mesa.puntos[mitad]);
    EXPECT_EQ(axew.Entidades()[49 * mitad].puntos, contorno);
  }
  EXPECT_EQ(mesa.mensajes, (std::vector{Texto(63), Texto(64)}));
  estado = {};
}

TEST(CalculaGiro, EveryQuarter) {
  for (const auto& [x, y, grados] :
       {std::tuple(0, 0, 90), {0, -1, 270}, {-1, 0, 180}, {1, -1, 315}, {-1, -1, 225}, {1, 1, 45}}) {
    EXPECT_DOUBLE_EQ(CalculaGiro(x, y), Radianes(grados));
  }
  EXPECT_DOUBLE_EQ(CalculaDistCentro(45, 7), 7);
}

// A flat pattern made by hand, of one point for each fan, and each side line at its foot or in the middle.
TEST(Marcas, SideLinesAndTheSplit) {
  for (const bool fueraLado : {false, true}) {
    Transicion t;
    t.dPuntosPlano = {{-2, 3}, {-1, 4}, {0.5, 3}, {1, -5}, {2, 3}};
    t.dVerticesPlano = {{-6, 0}, {-5, 0}, {-2, 0}, {2, 0}, {5, 0}, {6, 0}};
    t.bFueraLado = fueraLado;
    t.bFueraCierre = !fueraLado;
    const Punto2 pie1{fueraLado ? -3.5 : -1, 0}, pie2{fueraLado ? 0.5 : 0, 0}, pie3{fueraLado ? 3.5 : 1, 0};
    CortePieza1(t);
    EXPECT_TRUE(Juntos(t.dCorteBajo, pie2));
    EXPECT_TRUE(Juntos(t.dCorteBajo2, fueraLado ? Punto2{} : pie2));
    const auto entera = LineasNumeradas(t, Parte::entera);
    const auto es = [](const LineaNumerada& l, Punto2 p, Punto2 q) { return Juntos(l.p, p) && Juntos(l.q, q); };
    EXPECT_TRUE(es(entera[2], {-1, 4}, pie1) && es(entera[5], {0.5, 3}, pie2) && es(entera[8], {1, -5}, pie3));
    EXPECT_TRUE(es(entera[12], {-5, 0}, pie1) && es(entera[15], pie2, {2, 0}));
    EXPECT_TRUE(es(entera[16], {2, 0}, {1, -5}) && es(entera[17], {1, -5}, {5, 0})) << "the circle's end hangs lower";
    EXPECT_TRUE(es(LineasNumeradas(t, Parte::primera)[8], {-2, 0}, t.dCorteBajo2));
    EXPECT_TRUE(es(LineasNumeradas(t, Parte::segunda)[5], t.dCorteBajo2, {2, 0}));
  }
}

// The views. A solid's points are what the patterns are held against.
// The control holds `antes` foreign entities, then the curve, the four sides, and the generators, quarter by quarter.
template <class Motor, class... Boca>
void CompruebaVista(std::size_t antes, TipoEntidad curva, Boca... tamano) {
  constexpr std::int16_t N = 12;
  EWdraw axew;
  axew.EwAddPoint({});
  Motor().GeneraDibujo(400, 300, tamano..., N, -35, 20, 250, -25, axew);
  const auto [boca, esquinas] = Motor::Solido(400, 300, tamano..., N, -35, 20, 250, -25);
  ASSERT_EQ(axew.Entidades().size(), antes + 1 + 4 + N + 4);
  const Entidad* e = &axew.Entidades()[antes];
  for (std::size_t i = 0; i < 1 + 4 + N + 4; ++i) EXPECT_EQ(e[i].color, 120) << i;
  const Entidad& aro = *e++;
  EXPECT_EQ(aro.tipo, curva);
  for (std::size_t lado = 0; lado < 4; ++lado, ++e) {
    EXPECT_TRUE(Juntos(e->puntos[0], esquinas[(4 - lado) % 4]) && Juntos(e->puntos[1], esquinas[3 - lado])) << lado;
  }
  for (std::size_t i = 0; i < N + 4; ++i, ++e) {
    const std::size_t cuarto = i / (N / 4 + 1);
    const Punto3 p = boca(static_cast<int>(i - cuarto) + 1), r = p - aro.puntos[0];
    EXPECT_TRUE(Juntos(e->puntos[0], esquinas[cuarto]) && Juntos(e->puntos[1], p)) << i;
    const double c = Escalar(r, aro.u) / Escalar(aro.u, aro.u), s = Escalar(r, aro.v) / Escalar(aro.v, aro.v);
    EXPECT_NEAR(c * c + s * s, 1, 1e-9) << "off the curve";
    EXPECT_TRUE(Juntos(r, c * aro.u + s * aro.v)) << "off the curve's plane";
  }
}

TEST(Solidos, GeneratorsFromEachCornerToItsQuarter) {
  CompruebaVista<clTransCR>(1, TipoEntidad::circulo, 100.0);
  CompruebaVista<clTransRC>(0, TipoEntidad::circulo, 100.0);
  CompruebaVista<clTransBaRectBoElip>(0, TipoEntidad::elipse, 240.0, 140.0);
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

// The block beside a triangle of 200 by 100.
std::string Bloque(const CajetinMotor& cajetin, std::int16_t N, Parte parte, double ancho) {
  EWdraw axew;
  Mesa mesa({{1000, 2000, 0}});
  axew.PonVista(&mesa);
  DibujaPolilinea(axew, {{0, 0}, {200, 0}, {200, 100}});
  ColocaCajetin(axew, cajetin, N, parte, {});
  Caja marco, fantasma;
  for (const Entidad& e : axew.Entidades()) {
    if (e.tipo == TipoEntidad::linea) marco.Incluye(e.puntos[1]);
  }
  for (const Punto2 p : mesa.fantasmas.at(0)) fantasma.Incluye({p.x, p.y, 0});
  EXPECT_EQ(marco.minimo, (Punto3{1000, 800, 0}));
  EXPECT_EQ(marco.maximo, (Punto3{1000 + ancho, 2000, 0}));
  EXPECT_TRUE(fantasma.minimo == (Punto3{0, -1200, 0}) && fantasma.maximo == (Punto3{ancho, 0, 0}));
  return Textos(axew.Entidades(), {1000, 2000});
}

TEST(Cajetin, ThePieceAndItsSheet) {
  estado = {};
  estado.iUnidad = 1;
  estado.iFibra = 3;
  estado.dEspesor = 2;
  estado.sDensidad = "7.856";
  estado.dAltura = 300;
  estado.dL1BaseRC = 196;
  estado.dL2BaseRC = 96.5;
  estado.dRadioRC = 149;
  estado.dAy = 12.25;
  estado.dAlfa = -5;
  estado.iDivisiones = 24;
  estado.iPosIni = 3;
  estado.bComaDecimal = true;
  EXPECT_EQ(Bloque(kCajetinRC, 24, Parte::entera, 670),
            "20,-80=Denominación:|150,-80=Transf. Circ. Rect.|20,-110=Tipo de Fibra:|160,-110=Fibra Externa|"
            "20,-140=Espesor:|100,-140=2 mm|20,-170=H:|40,-170=300 mm|20,-200=LS:|50,-200=200 mm|20,-230=AS:|"
            "50,-230=100,5 mm|20,-260=Alfa:|70,-260=-5º|20,-290=RI:|50,-290=150 mm|20,-320=AY:|50,-320=12,25 mm|"
            "20,-350=Número Divisiones:|200,-350=24|20,-380=Posición Inicio (1-4):|240,-380=3|"
            "310,-110=Densidad:|400,-110=7,85gr/(cm^ 3)|310,-150=Perímetro:|410,-150=52,36 cm|"
            "310,-190=Area Pieza:|420,-190=100 (cm^ 2)|310,-230=Area Rectángulo:|470,-230=200 (cm^ 2)|"
            "310,-270=Peso Pieza:|420,-270=157,12 gr|310,-310=Peso Rectángulo:|470,-310=314,24 gr|"
            "310,-350=Desperdicio:|430,-350=100 (cm^ 2)|310,-390=% Desperdicio:|450,-390=50  |");
}

TEST(Cajetin, InchesAndRoomForTheTable) {
  estado = {};
  estado.dIdioma = kChino;
  estado.iFibra = 1;
  estado.dEspesor = 0.05;
  estado.sDensidad = "4.5";
  estado.dAltura = 12;
  estado.dEjeMayorElip = 6.025;
  estado.dEjeMenorElip = 4.025;
  estado.dL1Elip = 8;
  estado.dL2Elip = 7.5;
  estado.inumDoblado = 120;
  estado.iPosIniElip = 2;
  estado.bComaDecimal = true;
  EXPECT_EQ(Bloque(kCajetinElip, 120, Parte::segunda, 1870),
            "20,-80=名称:|56,-80=矩形底椭圆口过渡件|20,-110=尺寸基准:|90,-110=内表面|20,-140=板厚:|60,-140=0.05 in|"
            "20,-170=H |50,-170=12 in|20,-200=eMaS |90,-200=6 in|20,-230=eMeS |90,-230=4 in|20,-260=Li |60,-260=8 in|"
            "20,-290=Ai |60,-290=7.5 in|20,-320=Alfa:|90,-320=0º|20,-350=等分数:|80,-350=120|"
            "20,-380=起始位置(1-4):|160,-380=2|"
            "710,-110=密度:|750,-110=4,5oz/(in^3)|710,-150=周长:|750,-150=523,607 in|710,-190=零件面积:|780,-190=10000 "
            "(in^2)|"
            "710,-230=矩形面积:|780,-230=20000 (in^2)|710,-270=零件重量:|780,-270=2250 "
            "oz|710,-310=矩形重量:|780,-310=4500 oz|"
            "710,-350=废料:|750,-350=10000 (in^2)|710,-390=废料率(%):|810,-390=50  |");
}

// How many entities, then each measure at the middle of its line: a wrong level, point or extension line shows.
TEST(Cotas, ListsOfThePatternAndItsPieces) {
  estado = {};
  estado.iUnidad = 1;
  estado.dTamanoTexto = 10;
  Transicion t;
  t.dPuntosPlano = {{-300, 250}, {-120, 310}, {0, 320}, {130, 300}, {330, 200}};
  t.dVerticesPlano = {{-310, 120}, {-260, 60}, {-90, 0}, {110, 0}, {270, 40}, {320, 100}};
  t.dCorteBajo2 = {5, -10};
  using enum Parte;
  using enum ListaCotas;
  const auto cotas = [&](Parte parte, ListaCotas lista) {
    EWdraw axew;
    const Punto2 base = parte == entera ? Punto2{} : Punto2{1000, 0};
    GeneraCotas(axew, t, parte, lista, base);
    return std::to_string(axew.EwEntityCount()) + ":" + Textos(axew.Entidades(), base);
  };
  EXPECT_EQ(cotas(entera, baseRectangular),
            "146:15,350=630.00|-285,-60=50.00|-370,90=60.00|-175,-30=170.00|-370,30=60.00|-430,185=130.00|"
            "10,-30=200.00|5,-90=630.00|190,-30=160.00|390,20=40.00|450,150=100.00|295,-60=50.00|390,70=60.00|");
  EXPECT_EQ(cotas(entera, baseCircular),
            "145:15,350=630.00|5,-60=630.00|-285,-30=50.00|-430,185=130.00|450,150=100.00|-370,90=60.00|"
            "-175,-30=170.00|-370,30=60.00|10,-30=200.00|190,-30=160.00|390,20=40.00|295,-30=50.00|390,70=60.00|");
  EXPECT_EQ(cotas(primera, baseRectangular),
            "99:-150,410=300.00|-152.5,-90=315.00|-285,-60=50.00|-430,185=130.00|60,160=320.00|-370,90=60.00|"
            "-175,-30=170.00|-350,30=60.00|-42.5,-30=95.00|");
  EXPECT_EQ(cotas(primera, baseCircular),
            "89:-150,350=300.00|-152.5,-60=315.00|-430,185=130.00|60,160=320.00|-370,90=60.00|-175,-30=170.00|"
            "-350,30=60.00|-42.5,-30=95.00|");
  EXPECT_EQ(cotas(segunda, baseRectangular),
            "101:165,350=330.00|162.5,-90=315.00|-55,160=320.00|450,150=100.00|390,70=60.00|190,-30=160.00|"
            "370,20=40.00|295,-60=50.00|57.5,-30=105.00|");
  EXPECT_EQ(cotas(segunda, baseCircular),
            "91:165,350=330.00|162.5,-60=315.00|-55,160=320.00|450,150=100.00|390,70=60.00|190,-30=160.00|"
            "370,20=40.00|57.5,-30=105.00|");
}

}  // namespace
}  // namespace duktores
