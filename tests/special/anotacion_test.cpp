// The annotation of a shape, text by text.

#include <gtest/gtest.h>

#include "ayudas.h"
#include "special/anotacion_cono.h"

namespace duktores {
namespace {

std::string Textos(const EWdraw& axew, std::size_t desde, std::size_t hasta) {
  std::ostringstream s;
  for (std::size_t i = desde; i < hasta; ++i) {
    const Entidad& e = axew.Entidades()[i];
    if (e.tipo == TipoEntidad::texto) s << e.puntos[0].x << ',' << e.puntos[0].y << '=' << e.texto << '|';
  }
  return s.str();
}

TEST(Anotacion, DimensionsOfASector) {
  estado = {};
  estado.iUnidad = estado.MultinumDoblado = 1;
  EWdraw axew;
  // The heights stand at the outermost point of both rims or the apex, the mouth's width at the apex.
  Sector sector{{{-30, -100}, {0, -104}, {30, -100}}, {{-15, -50}, {0, -52}, {15, -50}}, Punto2{0, 0}};
  GeneraCotaCono(axew, sector);
  EXPECT_EQ(
      Textos(axew, 0, axew.Entidades().size()),
      "-90,-75=50.00|90,-75=50.00|0,-134=60.00|-0,-52.2015=33.4|-15,-50=52.20|0,-52=52.00|15,-50=52.20|0,30=30.00|");
  EXPECT_EQ(axew.Entidades().size(), 4 * 10 + 4 + 2 + 3 * 3 + 2u);
  // Seen from below the apex: neither radial lines nor a width there, but one at the higher end of the mouth.
  axew.EwClear();
  for (auto* orilla : {&sector.base, &sector.boca}) {
    for (Punto2& p : *orilla) p = {p.x + 7, -p.y};
  }
  sector.vertice = Punto2{-100, 0};
  sector.boca[2].y = 40;
  sector.boca[2].x = 19;
  GeneraCotaCono(axew, sector);
  EXPECT_EQ(Textos(axew, 0, axew.Entidades().size()),
            "-160,70=60.00|97,75=50.00|7,70=60.00|7,-52.2015=326.6|5.5,80=27.00|");
}

// In inches, with a comma as the system's mark: a sector's block has bare figures of centimetres all the same.
TEST(Anotacion, BlocksNameThePieceAsEntered) {
  Corrida corrida("TransEsp5", "12 1.5 2 2.5 3 8 9 14 13 1 0 5 0 16");
  estado.iUnidad = 0;
  estado.bComaDecimal = true;
  estado.iBox = 1;
  estado.iFibra = 3;
  estado.dEspesor = 0.5;
  estado.sDensidad = "2,5";
  DesarrollaEspecial(corrida.axew);
  corrida.dibujado.push_back(corrida.axew.Entidades().size());
  EXPECT_EQ(Textos(corrida.axew, corrida.dibujado[1], corrida.dibujado[2]),
            "22,-32=Denominación:|165,-32=Transf. Base 4 Vert.|22,-54=Tipo de Fibra:|176,-54=Fibra Externa|"
            "22,-76=Espesor:|110,-76=0,5|22,-98=Alfa:|77,-98=5|22,-120=Beta|66,-120=0|22,-142=r11:|66,-142=1,75|"
            "22,-164=r12:|66,-164=2,25|22,-186=r13:|66,-186=2,75|22,-208=r14:|66,-208=3,25|22,-230=H:|44,-230=12|"
            "22,-252=AX:|55,-252=1|22,-274=AY:|55,-274=0|22,-296=LY1:|66,-296=9|22,-318=LX1:|66,-318=8|"
            "22,-340=LY2:|66,-340=13|22,-362=LX2:|66,-362=14|22,-384=Número Divisiones:|220,-384=16|312,-32=Densidad:|"
            "411,-32=2,5gr/(cm^ 3)|312,-72=Perímetro:|422,-72=2,86 cm|312,-112=Area Pieza:|433,-112=0,14 (cm^ 2)|"
            "312,-152=Area Rectángulo:|488,-152=0,3 (cm^ 2)|312,-192=Peso Pieza:|433,-192=0,01 gr|"
            "312,-232=Peso Rectángulo:|488,-232=0,03 gr|312,-272=Desperdicio:|444,-272=0,15 (cm^ 2)|"
            "312,-312=% Desperdicio:|476,-312=50,57|52,-542=1  13,12|52,-564=2  13|52,-586=3  12,98|52,-608=4  13,05|"
            "52,-630=5  13,2|");
  EXPECT_EQ(Textos(corrida.axew, corrida.dibujado[3], corrida.dibujado[4]),
            "24,-32=Denominación:|141,-32=Transf. Base 4 Vert.|24,-54=Tipo de Fibra:|164,-54=Fibra Externa|"
            "24,-76=Espesor:|104,-76=0.5 in|24,-98=Alfa:|74,-98=5º|24,-120=Beta:|74,-120=0º|24,-142=r11:|"
            "64,-142=1.75 in|24,-164=r12:|64,-164=2.25 in|24,-186=r13:|64,-186=2.75 in|24,-208=r14:|64,-208=3.25 in|"
            "24,-230=H:|44,-230=12 in|24,-252=AX:|54,-252=1 in|24,-274=AY:|54,-274=0 in|24,-296=LX1:|64,-296=8 in|"
            "24,-318=LY1:|64,-318=9 in|24,-340=LY2:|64,-340=13 in|24,-362=LX2:|64,-362=14 in|"
            "24,-384=Número Divisiones:|204,-384=16|314,-32=Densidad:|404,-32=2,5oz/(in^ 3)|314,-72=Perímetro:|"
            "414,-72=28,664 in|314,-112=Area Pieza:|424,-112=14,947 (in^ 2)|314,-152=Area Rectángulo:|"
            "474,-152=30,244 (in^ 2)|314,-192=Peso Pieza:|424,-192=18,684 oz|314,-232=Peso Rectángulo:|"
            "474,-232=37,805 oz|314,-272=Desperdicio:|434,-272=15,296 (in^ 2)|314,-312=% Desperdicio:|"
            "464,-312=50,577|54,-542=1  13,123 in|54,-564=2  13,265 in|54,-586=3  12,99 in|54,-608=4  5,5 in|");
}

}  // namespace
}  // namespace duktores
