// Patterns against their solids: random pieces by both rules, and patterns spoiled on purpose.

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <random>
#include <tuple>

#include "check/cruce.h"
#include "geometry/planas.h"
#include "piece/doblez.h"
#include "pieza_desarrollada.h"
#include "pieza_tecleada.h"
#include "piezas_azar.h"
#include "shell/corrida.h"

namespace duktores {
namespace {

Dialogo PiezaCR(bool dosPiezas) { return Tecleado(TipoPieza::cr, "300 100 400 350 20 30 10 24 2", dosPiezas); }
Dialogo PiezaEsp1() { return Tecleado(TipoPieza::esp1, "400 40 50 60 45 90 90 100 85 300 250 500 400 30 20 10 5 12"); }

bool Encuentra(const Veredicto& veredicto, Falta falta) {
  return std::ranges::any_of(veredicto.defectos, [=](const Defecto& d) { return d.falta == falta; });
}

bool Encuentra(const PiezaDesarrollada& una, Causa causa) { return una.Juzga().causa == causa; }

class Patrones : public testing::TestWithParam<TipoPieza> {};

TEST_P(Patrones, AWarningHasItsCauseAndTheUsualRulesAreWhatTheyWere) {
  const auto semilla = std::random_device{}();
  std::mt19937 azar(semilla);
  int formas = 0, falsas = 0;
  for (int vez = 0; vez < 200; ++vez) {
    Configura();
    Dialogo dialogo(FilaDe(GetParam()).dialogo);
    TecleaPieza(dialogo, azar);
    if (Dialogo(dialogo).CmdAceptar() != Respuesta::aceptado) continue;
    const PiezaDesarrollada usual(dialogo, 0);
    const Veredicto usualVeredicto = usual.Juzga(), veredicto = PiezaDesarrollada(dialogo, 1).Juzga();
    formas += static_cast<int>(usual.hoja.formas.size());
    for (const FormaPatron& f : usual.hoja.formas) {
      EXPECT_TRUE(f.contorno.empty() || f.En(0) == f.contorno.back().p);
      falsas +=
          std::ranges::any_of(usualVeredicto.defectos, [&](const Defecto& d) { return d.donde.forma == f.nombre; });
    }
    ASSERT_EQ(usualVeredicto.causa.has_value(), !usualVeredicto.Cierto());
    ASSERT_EQ(veredicto.causa.has_value(), !veredicto.Cierto()) << "seed " << semilla << " piece " << vez;
    EXPECT_NE(veredicto.causa, Causa::reglasUsuales);
    EXPECT_LT(veredicto.Cierto() ? veredicto.desviacion : 0, 1e-6) << "seed " << semilla << " piece " << vez;
  }
  // How many shapes the usual rules lay out rightly, in hundredths, tells whether they are what they were.
  constexpr std::pair<int, int> kUsuales[]{{92, 100}, {92, 100}, {52, 76}, {82, 94},
                                           {72, 95},  {53, 65},  {81, 92}, {84, 96}};
  const auto& [desde, hasta] = kUsuales[static_cast<std::size_t>(GetParam())];
  const int usualesCiertas = 100 - 100 * falsas / formas;
  EXPECT_TRUE(desde <= usualesCiertas && usualesCiertas <= hasta) << usualesCiertas;
}

// Whatever the surface. Only a low, wide one in one piece may meet itself on the sheet.
TEST_P(Patrones, EverydayPiecesArePossible) {
  const auto semilla = std::random_device{}();
  std::mt19937 azar(semilla);
  for (int vez = 0; vez < 150; ++vez) {
    Configura();
    Dialogo dialogo(FilaDe(GetParam()).dialogo);
    AceptaCotidiana(dialogo, azar);
    const PiezaDesarrollada una(dialogo, 1);
    if (una.hoja.formas.size() == 1 && Encuentra(una, Causa::seEncuentra)) continue;
    ASSERT_TRUE(una.Juzga().Cierto()) << TextoVeredicto(una.Juzga()) << ", seed " << semilla << " piece " << vez;
  }
}

// One solid by both rules: the exact one gets the curve that the polygon of the usual one is as long as.
TEST(Longitudes, BothRulesLayATransitionAlike) {
  const auto semilla = std::random_device{}();
  std::mt19937 azar(semilla);
  int iguales = 0;
  for (int vez = 0; vez < 600; ++vez) {
    Configura();
    const TipoPieza tipo = std::array{TipoPieza::cr, TipoPieza::rc, TipoPieza::elip}[azar() % 3];
    Dialogo dialogo(FilaDe(tipo).dialogo);
    TecleaPieza(dialogo, azar);
    ASSERT_EQ(Dialogo(dialogo).CmdAceptar(), Respuesta::aceptado);
    Pieza usual = *estado.pieza;
    Boca& boca = tipo == TipoPieza::rc ? usual.corregidas.abajo : usual.corregidas.arriba;
    if (tipo == TipoPieza::elip) {
      usual.Alfa = 0;  // the usual one tilts the other way
      boca.LY = boca.LX;
    }
    Pieza exacta = usual;
    exacta.regla = Regla::exacta;
    const double parte = dPi / usual.divisiones, encoge = std::sin(parte) / parte;
    Boca& suya = tipo == TipoPieza::rc ? exacta.corregidas.abajo : exacta.corregidas.arriba;
    suya = {encoge * boca.LX, encoge * boca.LY, Cuatro(encoge * boca.r(1))};
    exacta.entradas = exacta.corregidas;
    const Solido solido = SolidoDe(usual);
    const Patron a = DesarrolloDe(usual, solido).patron, b = DesarrolloDe(exacta, SolidoDe(exacta)).patron;
    const Veredicto veredicto = Juzga(usual, solido, a);
    if (!veredicto.Cierto() || veredicto.desviacion > 1e-9) continue;
    ++iguales;
    ASSERT_EQ(a.formas.size(), b.formas.size());
    for (std::size_t f = 0; f < a.formas.size(); ++f) {
      const auto &una = a.formas[f].contorno, &otra = b.formas[f].contorno;
      ASSERT_EQ(una.size(), otra.size());
      for (std::size_t k = 0; k < una.size(); ++k) {
        ASSERT_LT(Distancia(una[k].p, otra[k].p), 1e-6) << "seed " << semilla << " piece " << vez << " vertex " << k;
      }
    }
  }
  EXPECT_GT(iguales, 25);
}

// So far beside its start side stands the circle that the end of the split lies above it on the sheet.
TEST(Longitudes, AnExactLeaningOneIsSplitOnTheRectangle) {
  Configura();
  const Dialogo dialogo = Tecleado(TipoPieza::rc, "713.68 322.23 261.26 712.07 289.99 0 35.11 12 4", true);
  EXPECT_TRUE(PiezaDesarrollada(dialogo, 1).Juzga().Cierto());
}

INSTANTIATE_TEST_SUITE_P(Tipos, Patrones, testing::ValuesIn(Tipos()));

// The usual rules choose points, but lay no length out wrong: only the rounding of level centres shows.
TEST(Longitudes, UsualTransitionsKeepThem) {
  const auto semilla = std::random_device{}();
  std::mt19937 azar(semilla);
  for (int vez = 0; vez < 1500; ++vez) {
    Configura();
    const auto tipo = static_cast<TipoPieza>(azar() % 3);
    Dialogo dialogo(FilaDe(tipo).dialogo);
    TecleaPieza(dialogo, azar);
    if (Dialogo(dialogo).CmdAceptar() != Respuesta::aceptado) continue;  // a radius rounded up
    // The ellipse tilts against its solid. A rectangle's start side that rises along its length is measured from its
    // foot but laid from its middle.
    const Pieza& p = *estado.pieza;
    const bool elipse = tipo == TipoPieza::elip, corrida = p.AX != 0 || (elipse && p.AY != 0);
    if (p.Alfa != 0 && corrida && (elipse || (tipo == TipoPieza::rc && p.inicio % 2 == 0))) continue;
    const PiezaDesarrollada usual(dialogo, 0);
    ASSERT_FALSE(Encuentra(usual.Juzga(), Falta::largo))
        << static_cast<int>(tipo) << ", seed " << semilla << " piece " << vez;
  }
}

// The first facet from the left, over the line that it shares with the next one: all lengths stay.
void VuelveCara(Patron& hoja) {
  auto& c = hoja.formas[0].contorno;
  const std::size_t n = c.size();
  c[n - 2].p = 2 * PieDePerpendicular(c[n - 2].p, c[0].p, c[n - 3].p) - c[n - 2].p;
}
Linea& Una(Patron& hoja, Clase clase) { return *std::ranges::find(hoja.formas[0].lineas, clase, &Linea::clase); }
void PonDoblez(Patron& hoja) {
  FormaPatron& f = hoja.formas.back();
  f.lineas.push_back({f.En(0), f.En(2), Clase::doblez, 0, 2});
}
void QuitaDoblez(Patron& hoja) { hoja.formas[0].lineas.erase(hoja.formas[0].lineas.begin() + 1); }
void CorreLineaLado(Patron& hoja) { Una(hoja, Clase::lado).p.x += 1; }
void QuitaForma(Patron& hoja) { hoja.formas.erase(hoja.formas.begin() + 1); }

// Each spoils one thing and names what must be found.
const struct {
  const char* nombre;
  Falta falta;
  void (*hace)(Patron& hoja);
} kEstropicios[]{
    {"facet mirrored", Falta::vuelta, VuelveCara},
    {"shape mirrored", Falta::figura,
     [](Patron& h) {
       for (Vertice& v : h.formas[0].contorno) v.p.x = -v.p.x;
     }},
    {"outline left open", Falta::largo, [](Patron& h) { h.formas[0].contorno.back().p.x += 1; }},
    {"outline crossed", Falta::cruce,
     [](Patron& h) { std::swap(h.formas[0].contorno[2].p, h.formas[0].contorno[h.formas[0].contorno.size() / 2].p); }},
    {"shape left out", Falta::falta, QuitaForma},
    {"shape without an outline", Falta::falta, [](Patron& h) { h.formas[0].contorno.clear(); }},
    {"shape of unknown points", Falta::falta, [](Patron& h) { h.formas[0].facetas.clear(); }},
    {"shape twice", Falta::repetida, [](Patron& h) { h.formas.push_back(h.formas[0]); }},
    {"bend line too many", Falta::doblez, PonDoblez},
    {"bend line left out", Falta::doblez, QuitaDoblez},
    {"bend line moved", Falta::doblez, [](Patron& h) { Una(h, Clase::doblez).p.x += 1e-6; }},
    {"side line moved", Falta::doblez, CorreLineaLado},
    {"number not drawn", Falta::numeros, [](Patron& h) { h.formas[0].sinNumero = 1; }},
    {"number moved", Falta::numeros, [](Patron& h) { Una(h, Clase::borde).q.y += 0.01; }},
};

// No two neighbours of these are far off, but the shape as a whole is.
TEST(Longitudes, AWholeShapeIsToldWithItsMillimetres) {
  for (const auto& [textos, desviacion] :
       {std::pair("700 250 600 500 50 20 0 0 16", 26.0), {"500 355 1000 800 375 375 0 0 8", 3.8}}) {
    Configura();
    estado.dEspesor = 1;
    estado.iFibra = 1;
    const Veredicto veredicto = PiezaDesarrollada(Tecleado(TipoPieza::esp2, textos), 0).Juzga();
    EXPECT_FALSE(veredicto.Cierto());
    EXPECT_NEAR(veredicto.desviacion, desviacion, 0.1 * desviacion) << textos;
  }
}

// The strips between marked elements, on a corner: a prism, a cylinder and a cone stand upright.
TEST(Dobleces, AreThoseOfClosedForms) {
  Configura();
  const auto dobleces = [](const Pieza& pieza) {
    const Solido solido = SolidoDe(pieza);
    std::vector<double> grados;
    const Patron hoja = DesarrolloDe(pieza, solido).patron;
    for (const Linea& l : hoja.formas[0].lineas) {
      const auto doblez = DoblezDe(solido, l);
      EXPECT_EQ(doblez.has_value(), l.clase == Clase::doblez);
      if (!doblez) continue;
      EXPECT_FALSE(doblez->haciaArriba) << "all these bulge";
      grados.push_back(doblez->grados);
    }
    return grados;
  };
  estado.iExacto = 1;
  const double H = 300, d = 100 * std::cos(Radianes(11.25));
  const double cono = Grados(std::acos((H * H * std::cos(Radianes(22.5)) + d * d) / (H * H + d * d)));
  for (const auto& [tipo, textos, enMedio] :
       {std::tuple(TipoPieza::esp1, "300 80 80 80 80 80 80 80 80 300 500 300 500 0 0 0 0 16", 22.5),
        {TipoPieza::esp2, "300 100 200 200 0 0 0 0 16", 22.5},
        {TipoPieza::esp2, "300 100 400 400 0 0 0 0 16", cono}}) {
    const std::vector<double> grados = dobleces(Aceptada(tipo, textos));
    ASSERT_EQ(grados.size(), 3) << textos;
    for (const double g : grados) EXPECT_NEAR(g, enMedio, 1e-6) << textos;
  }
  // Four sides of a pyramid between four corners cut off.
  Pieza piramide = Aceptada(TipoPieza::cr, "300 100 400 400 0 0 0 12 1");
  piramide.regla = Regla::usual;
  piramide.divisiones = 4;
  const double lado = 200 - 100, canto = std::sqrt(2.0) * 200 - 100 / std::sqrt(2.0);
  const double angulo =
      Grados(std::acos((H * H / std::sqrt(2.0) + lado * canto) / std::hypot(H, lado) / std::hypot(H, canto)));
  const std::vector<double> grados = dobleces(piramide);
  ASSERT_EQ(grados.size(), 8);
  for (const double g : grados) EXPECT_NEAR(g, angulo, 1e-9);
}

class Comprobada : public testing::Test {
 protected:
  const Dialogo dialogos_[3]{PiezaCR(false), PiezaCR(true), PiezaEsp1()};
  Veredicto Juzga(const Patron& hoja) const { return duktores::Juzga(*estado.pieza, d_->solido, hoja); }
  const Patron& Desarrolla(const Dialogo& dialogo) {
    Configura();
    d_.emplace(dialogo, 1);
    EXPECT_TRUE(d_->Juzga().Cierto()) << TextoVeredicto(d_->Juzga());
    return d_->hoja;
  }
  std::optional<PiezaDesarrollada> d_;
};

// In thousands of pieces a check that finds everything is worth as much as one that finds nothing wrong where there is
// nothing: each spoiled pattern was true before.
TEST_F(Comprobada, FindsWhatWasSpoiled) {
  for (const Dialogo& dialogo : dialogos_) {
    const Patron cierto = Desarrolla(dialogo);
    const bool especial = cierto.formas.size() > 2, entera = cierto.formas.size() == 1;
    for (const auto& [nombre, falta, hace] : kEstropicios) {
      if ((hace == QuitaForma && entera) || (hace == CorreLineaLado && especial)) continue;
      Patron hoja = cierto;
      hace(hoja);
      EXPECT_TRUE(Encuentra(Juzga(hoja), falta)) << cierto.formas.size() << " shapes, " << nombre;
    }
  }
}

// Each line is off by less than is tolerated, and all of them to one side.
TEST_F(Comprobada, FindsAShearedStrip) {
  constexpr int kFranjas = 16;
  Patron hoja = Desarrolla(Tecleado(TipoPieza::esp1, "400 40 50 60 45 90 90 100 85 300 250 500 400 30 20 10 5 64"));
  auto& contorno = hoja.formas[0].contorno;
  const std::size_t elementos = (contorno.size() - 1) / 2;
  const double paso = 0.2 * kFranjas / static_cast<double>(elementos);
  for (std::size_t i = 1; i < elementos; ++i) {
    for (const std::size_t v : {i, 2 * elementos - 1 - i}) contorno[v].p.y += paso * static_cast<double>(i);
  }
  const Veredicto veredicto = Juzga(hoja);
  EXPECT_FALSE(Encuentra(veredicto, Falta::largo)) << TextoVeredicto(veredicto);
  EXPECT_TRUE(Encuentra(veredicto, Falta::figura));
  EXPECT_GT(veredicto.desviacion, 1);
}

TEST_F(Comprobada, FindsAnyVertexThatMoves) {
  for (const Dialogo& dialogo : dialogos_) {
    Patron hoja = Desarrolla(dialogo);
    for (FormaPatron& forma : hoja.formas) {
      auto& contorno = forma.contorno;
      for (std::size_t i = 0; i + 1 < contorno.size(); ++i) {
        const Punto2 antes = contorno[i].p;
        const auto mueve = [&](Punto2 desde, Punto2 hasta) {  // it may stand twice
          for (Vertice& v : contorno) v.p = v.p == desde ? hasta : v.p;
        };
        mueve(antes, antes + Punto2{0.7, 0.7});
        EXPECT_TRUE(Encuentra(Juzga(hoja), Falta::largo)) << "vertex " << i;
        mueve(antes + Punto2{0.7, 0.7}, antes);
      }
    }
  }
}

TEST_F(Comprobada, SaysHowFarAndWhere) {
  for (const auto& [idioma, unidad, cierto, falso] :
       {std::tuple(
            0.0, 1, "Desarrollo verdadero, desviación máxima: 0,000 mm",
            "ATENCIÓN, desarrollo falso: Esquina 1 (1): forma, error 0,995 mm; Esquina 1 (1): longitud, error 1,0"),
        {10000.0, 2, "True pattern, greatest deviation: 0.0000 in",
         "WARNING, false pattern: Corner 1 (1): shape off by 0.9951 in; Corner 1 (1): length off by 1.0"}}) {
    Patron hoja = Desarrolla(dialogos_[2]);
    estado.dIdioma = idioma;
    estado.iUnidad = static_cast<std::int16_t>(unidad);
    estado.bComaDecimal = unidad == 1;
    EXPECT_EQ(TextoVeredicto(Juzga(hoja)), cierto);
    // The border of the sector gets longer by one, along its own line.
    auto& c = hoja.formas[0].contorno;
    const Punto2 borde = c[0].p - c[c.size() - 2].p;
    c[0].p = c.back().p = c[0].p + (1 / Distancia(borde, {})) * borde;
    EXPECT_TRUE(TextoVeredicto(Juzga(hoja)).starts_with(falso)) << TextoVeredicto(Juzga(hoja));
    c[3].p.x = HUGE_VAL;
    EXPECT_TRUE(TextoVeredicto(Juzga(hoja)).ends_with(": ?")) << TextoVeredicto(Juzga(hoja));
  }
}

TEST(Cruce, TouchingIsNoCrossing) {
  EXPECT_FALSE(Cruce({{0, 0}, {4, 0}, {4, 4}, {2, 0}, {0, 4}}, 1e-6, 0)) << "a vertex on an edge";
  EXPECT_FALSE(Cruce({{0, 0}, {2, 0}, {2, 2}, {2, 2}, {0, 2}, {0, 0}}, 1e-6, 0)) << "vertices twice";
  EXPECT_TRUE(Cruce({{0, 0}, {4, 0}, {4, 4}, {2, -1}, {0, 4}}, 1e-6, 0));
  EXPECT_EQ(Cruce({{0, 0}, {2, 2}, {2, 0}, {0, 2}}, 1e-6, 0), (Punto2{1, 1}));
}

}  // namespace
}  // namespace duktores
