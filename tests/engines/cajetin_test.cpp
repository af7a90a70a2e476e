// Title block and dimensions of a pattern that is easily reckoned by hand.

#include "engines/cajetin.h"

#include <gtest/gtest.h>

#include <sstream>

#include "dxf/anotacion.h"
#include "engines/cotas.h"
#include "state/estado.h"
#include "state/textos.h"

namespace duktores {
namespace {

struct Sitio : VistaEWdraw {
  std::optional<Punto3> EligePunto(EWdraw& axew) override {
    fantasma = axew.Fantasma();
    return Punto3{1000, 2000, 0};
  }
  std::vector<Punto2> fantasma;
};

// Texts as places, from `origen`, and what they say, in the order in which they are drawn.
std::string Textos(const EWdraw& axew, Punto2 origen = {}) {
  std::ostringstream s;
  for (const Entidad& e : axew.Entidades()) {
    if (e.tipo != TipoEntidad::texto) continue;
    s << e.puntos[0].x - origen.x << ',' << e.puntos[0].y - origen.y << '=' << e.texto << '|';
  }
  return s.str();
}

// The block beside a triangle of 200 by 100.
std::string Bloque(const CajetinMotor& cajetin, std::int16_t N, Parte parte, double ancho) {
  EWdraw axew;
  Sitio sitio;
  axew.PonVista(&sitio);
  DibujaPolilinea(axew, {{0, 0}, {200, 0}, {200, 100}});
  ColocaCajetin(axew, cajetin, N, parte, {});
  Caja marco, fantasma;
  for (const Entidad& e : axew.Entidades()) {
    if (e.tipo == TipoEntidad::linea) marco.Incluye(e.puntos[1]);
  }
  for (const Punto2 p : sitio.fantasma) fantasma.Incluye({p.x, p.y, 0});
  EXPECT_EQ(marco.minimo, (Punto3{1000, 800, 0}));
  EXPECT_EQ(marco.maximo, (Punto3{1000 + ancho, 2000, 0}));
  EXPECT_TRUE(fantasma.minimo == (Punto3{0, -1200, 0}) && fantasma.maximo == (Punto3{ancho, 0, 0}));
  return Textos(axew, {1000, 2000});
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
    return std::to_string(axew.EwEntityCount()) + ":" + Textos(axew, base);
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
