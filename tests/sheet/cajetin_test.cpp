// Title blocks and dimensions: worked figures.

#include "sheet/cajetin.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <map>

#include "annotation/anotacion.h"
#include "engines/cotas_transicion.h"
#include "mesa.h"
#include "pieza_desarrollada.h"
#include "pieza_tecleada.h"
#include "sheet/cotas_forma.h"
#include "sheet/renglones.h"
#include "state/textos.h"

namespace duktores {
namespace {

using enum TipoPieza;

// What was typed, whatever the surface; offsets of 0 are left out where they don't say anything.
TEST(Cajetin, NamesThePieceAsEntered) {
  // clang-format off
  const struct {
    TipoPieza tipo;
    const char *textos, *renglones;
  } casos[] = {
      {cr,   "300 90 400 350 0 12.25 -5 24 3", "H:300 mm RS:90 mm LI:400 mm AI:350 mm Alfa:-5º AY:12,25 mm 24 3 "},
      {rc,   "300 290 400 350 9 0 5 24 3",     "H:300 mm LS:400 mm AS:350 mm Alfa:5º RI:290 mm AX:9 mm 24 3 "},
      {elip, "300 200 150 400 350 9 7 5 24 3",
       "H 300 mm eMaS 200 mm eMeS 150 mm Li 400 mm Ai 350 mm Alfa:5º AX 9 mm AY 7 mm 24 3 "},
      {esp1, "300 40 41 42 43 50 51 52 53 200 190 210 220 0 8 9 7 12",
       "Alfa:9º Beta:7º r11:40 mm r12:41 mm r13:42 mm r14:43 mm r21:50 mm r22:51 mm r23:52 mm r24:53 mm H:300 mm "
       "AX:0 mm AY:8 mm LX1:200 mm LY1:190 mm LX2:210 mm LY2:220 mm 12 "},
      {esp2, "300 50 200 200 0 8 9 7 12", "Alfa:9 Beta7 r:50 H:300 AX:0 AY:8 LY:200 LX:200 12 "},  // a sector's is bare
      {esp3, "300 50 240 200 0 8 9 7 12", "Alfa:9º Beta:7º r:50 mm H:300 mm AX:0 mm AY:8 mm LY:200 mm LX:240 mm 12 "},
      {esp4, "300 45 50 51 52 53 210 220 0 8 9 7 12",
       "Alfa:9º Beta:7º r1:45 mm r21:50 mm r22:51 mm r23:52 mm r24:53 mm H:300 mm AX:0 mm AY:8 mm "
       "LY:220 mm LX:210 mm 12 "},
      {esp5, "300 40 41 42 43 200 190 210 220 0 8 9 7 12",
       "Alfa:9º Beta:7º r11:40 mm r12:41 mm r13:42 mm r14:43 mm H:300 mm AX:0 mm AY:8 mm LX1:200 mm LY1:190 mm "
       "LY2:220 mm LX2:210 mm 12 "}};
  // clang-format on
  for (const auto& [tipo, textos, renglones] : casos) {
    Configura();
    estado.iFibra = 3;
    estado.dEspesor = 2;
    estado.bComaDecimal = true;
    const PiezaDesarrollada pieza(Tecleado(tipo, textos), 0);
    const auto& formas = pieza.hoja.formas;
    const std::string nombre = "Denominación:" + Texto(FilaDe(tipo).dialogo.textoTitulo) + " Fibra Externa Espesor:2";
    std::string leidos;
    for (const auto& [rotulo, valor] : Renglones(formas[formas.size() > 1 ? 1 : 0].bloque, true)) {
      leidos += (rotulo.find(' ') < rotulo.size() - 1 ? "" : rotulo) + valor + " ";
    }
    EXPECT_EQ(leidos, nombre + (tipo == esp2 ? " " : " mm ") + renglones);
  }
}

// Beside an outline in a rectangle of 20.5 by 10.25, in millimetres and in inches, with two rows of its piece.
TEST(Cajetin, PiecesAndSheetInEachStyle) {
  const auto dibuja = [](EstiloBloque estilo, bool milimetros, int filas, int filasColumna, double ancho, double alto) {
    EWdraw axew;
    DibujaPolilinea(axew, {{0, 0}, {20.5, 0}, {20.5, 10.25}, {10.25, 10.25}});
    FormaPatron forma;
    forma.bloque = {
        estilo, filas, filasColumna, {{{.texto = 26}, TextoNumero{11}}, {{.literal = "H:"}, Longitud{0.5}}}};
    DibujaCajetin(axew, forma, {}, {.milimetros = milimetros, .densidad = 7.856, .espesor = 2}, {1000, 2000});
    Caja marco, fantasma;
    for (const Entidad& e : axew.Entidades()) {
      if (e.tipo == TipoEntidad::linea) marco.Incluye(e.puntos[1]);
    }
    for (const Punto2 p : MarcoCajetin(forma.bloque)) fantasma.Incluye({p.x + 1000, p.y + 2000, 0});
    EXPECT_TRUE(marco.minimo == (Punto3{1000, 2000 - alto, 0}) && marco.maximo == (Punto3{1000 + ancho, 2000, 0}));
    EXPECT_TRUE(fantasma.minimo == marco.minimo && fantasma.maximo == marco.maximo);
    return Textos(axew.Entidades(), {1000, 2000});
  };
  Configura();
  estado.bComaDecimal = true;
  EXPECT_EQ(dibuja(EstiloBloque::transicion, true, 90, 90, 670, 1200),
            "20,-80=Denominación:|150,-80=Transf. Rect. Circ.|20,-110=H:|40,-110=0,5 mm|310,-110=Densidad:|"
            "400,-110=7,85gr/(cm^ 3)|310,-150=Perímetro:|410,-150=5,55 cm|310,-190=Area Pieza:|420,-190=1,57 (cm^ 2)|"
            "310,-230=Area Rectángulo:|470,-230=2,1 (cm^ 2)|310,-270=Peso Pieza:|420,-270=2,47 gr|"
            "310,-310=Peso Rectángulo:|470,-310=3,3 gr|310,-350=Desperdicio:|430,-350=0,52 (cm^ 2)|"
            "310,-390=% Desperdicio:|450,-390=25  |");
  estado.dIdioma = kChino;
  EXPECT_EQ(
      dibuja(EstiloBloque::eliptica, false, 242, 122, 1870, 1200),
      "20,-80=名称:|56,-80=天圆地方|20,-110=H:|50,-110=0.5 in|710,-110=密度:|750,-110=7,856oz/(in^3)|710,-150=周长:|"
      "750,-150=55,496 in|710,-190=零件面积:|780,-190=157,594 (in^2)|710,-230=矩形面积:|780,-230=210,12 (in^2)|"
      "710,-270=零件重量:|780,-270=2476,113 oz|710,-310=矩形重量:|780,-310=3301,484 oz|710,-350=废料:|"
      "750,-350=52,531 (in^2)|710,-390=废料率(%):|810,-390=25  |");
  estado.dIdioma = 0;
  EXPECT_EQ(dibuja(EstiloBloque::sector, false, 91, 91, 870, 1260),
            "20,-30=Denominación:|163,-30=Transf. Rect. Circ.|20,-52=H:|42,-52=0,5|510,-30=Densidad:|"
            "609,-30=7,85gr/(cm^ 3)|510,-70=Perímetro:|620,-70=5,55 cm|510,-110=Area Pieza:|631,-110=1,57 (cm^ 2)|"
            "510,-150=Area Rectángulo:|686,-150=2,1 (cm^ 2)|510,-190=Peso Pieza:|631,-190=2,47 gr|"
            "510,-230=Peso Rectángulo:|686,-230=3,3 gr|510,-270=Desperdicio:|642,-270=0,52 (cm^ 2)|"
            "510,-310=% Desperdicio:|674,-310=25|");
  EXPECT_EQ(dibuja(EstiloBloque::panel, false, 12, 12, 670, 1260),
            "20,-30=Denominación:|137,-30=Transf. Rect. Circ.|20,-52=H:|40,-52=0.5 in|310,-30=Densidad:|"
            "400,-30=7,856oz/(in^ 3)|310,-70=Perímetro:|410,-70=55,496 in|310,-110=Area Pieza:|"
            "420,-110=157,594 (in^ 2)|310,-150=Area Rectángulo:|470,-150=210,125 (in^ 2)|310,-190=Peso Pieza:|"
            "420,-190=2476,113 oz|310,-230=Peso Rectángulo:|470,-230=3301,484 oz|310,-270=Desperdicio:|"
            "430,-270=52,531 (in^ 2)|310,-310=% Desperdicio:|460,-310=25|");
}

// How many rows stand in each column: none ends at a side line, nor behind it, nor where the edges begin.
TEST(Cajetin, ColumnsOfTheTable) {
  const auto columnas = [](TipoPieza tipo, const char* textos, std::size_t forma) {
    Configura();
    EWdraw axew;
    const Pieza pieza = Aceptada(tipo, textos);
    const FormaPatron f = DesarrolloDe(pieza, SolidoDe(pieza)).patron.formas.at(forma);
    DibujaCajetin(axew, f, std::vector<double>(f.lineas.size(), 1), FormatoDeEstado(), {});
    std::map<double, int> cuenta;
    for (const Entidad& e : axew.Entidades()) {
      if (e.color == EwRgb(255, 255, 255) && !e.texto.empty() && std::isdigit(e.texto[0])) ++cuenta[e.puntos[0].x];
    }
    std::string texto;
    for (const auto& [x, n] : cuenta) texto += std::to_string(std::lround(x)) + ":" + std::to_string(n) + " ";
    return texto;
  };
  EXPECT_EQ(columnas(cr, "300 90 400 350 0 0 0 24 1", 0), "50:30 230:30 410:5 ");
  EXPECT_EQ(columnas(cr, "300 90 400 350 0 0 0 72 1", 0), "50:30 230:60 410:30 590:30 770:11 ");
  EXPECT_EQ(columnas(esp2, "300 50 300 200 0 0 0 0 256", 0), "50:30 230:30 410:5 ");
}

FormatoHoja Formato() {
  Configura();
  return FormatoDeEstado();
}
std::string Cotas(ReglaCotas cotas, const std::vector<Punto2>& contorno) {
  EWdraw axew;
  FormaPatron forma;
  for (const Punto2 p : contorno) forma.contorno.push_back({p});
  forma.cotas = std::move(cotas);
  DibujaCotas(axew, forma, Formato());
  return std::to_string(axew.EwEntityCount()) + ":" + Textos(axew.Entidades());
}

// How many entities, then each measure at the middle of its line: a wrong level, point or extension line shows.
TEST(Cotas, ListsOfThePatternAndItsPieces) {
  Transicion t;
  t.dPuntosPlano = {{-300, 250}, {-120, 310}, {0, 320}, {130, 300}, {330, 200}};
  t.dVerticesPlano = {{-310, 120}, {-260, 60}, {-90, 0}, {110, 0}, {270, 40}, {320, 100}};
  using enum Parte;
  using enum ListaCotas;
  const auto cotas = [&](Parte parte, ListaCotas lista) { return Cotas(CotasDe(t, parte, {5, -10}, lista), {}); };
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

TEST(Cotas, OfASectorAndAPanel) {
  // The heights stand at the outermost point of both rims or the apex, the mouth's width at the apex.
  EXPECT_EQ(Cotas(CotasSector{Punto2{}}, {{-30, -100}, {0, -104}, {30, -100}, {15, -50}, {0, -52}, {-15, -50}}),
            "57:-90,-75=50.00|90,-75=50.00|0,-134=60.00|-0,-52.2015=33.4|-15,-50=52.20|0,-52=52.00|15,-50=52.20|"
            "0,30=30.00|");
  // Seen from below the apex: neither radial lines nor a width there, but one at the higher end of the mouth.
  EXPECT_TRUE(Cotas(CotasSector{Punto2{-100, 0}}, {{-23, 100}, {7, 104}, {37, 100}, {19, 40}, {7, 52}, {-8, 50}})
                  .ends_with(":-160,70=60.00|97,75=50.00|7,70=60.00|7,-52.2015=326.6|5.5,80=27.00|"));
  EXPECT_EQ(Cotas(CotasPanel{}, {{1, -2}, {-99, -2}, {-129, -82}, {41, -62}}),
            "43:-49,28=100.00|-189,-42=80.00|-44,-112=170.00|101,-32=60.00|");
}

}  // namespace
}  // namespace duktores
