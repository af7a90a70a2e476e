// Patterns against their solids: random pieces by both rules, and patterns spoiled on purpose.

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <random>
#include <tuple>

#include "check/cruce.h"
#include "geometry/planas.h"
#include "pieza_desarrollada.h"
#include "pieza_tecleada.h"
#include "piezas_azar.h"

namespace duktores {
namespace {

Dialogo PiezaCR(bool dosPiezas) { return Tecleado(TipoPieza::cr, "300 100 400 350 20 30 10 24 2", dosPiezas); }
Dialogo PiezaEsp1() { return Tecleado(TipoPieza::esp1, "400 40 50 60 45 90 90 100 85 300 250 500 400 30 20 10 5 12"); }

bool Encuentra(const Veredicto& veredicto, Falta falta) {
  return std::ranges::any_of(veredicto.defectos, [=](const Defecto& d) { return d.falta == falta; });
}

class Patrones : public testing::TestWithParam<TipoPieza> {
 protected:
  void ExpectMismoSitio(const Patron& a, const Patron& b) {
    ASSERT_EQ(a.formas.size(), b.formas.size());
    for (std::size_t f = 0; f < a.formas.size(); ++f) {
      const auto &una = a.formas[f].contorno, &otra = b.formas[f].contorno;
      ASSERT_EQ(una.size(), otra.size());
      for (std::size_t k = 0; k < una.size(); ++k) EXPECT_LT(Distancia(una[k].p, otra[k].p), 1e-6) << f << " " << k;
    }
  }
};

TEST_P(Patrones, ExactOnesAreTrueAndLieWhereTheUsualOnesDo) {
  const auto semilla = std::random_device{}();
  std::mt19937 azar(semilla);
  int ciertas = 0, iguales = 0, formas = 0, falsas = 0;
  for (int vez = 0; vez < 200; ++vez) {
    SCOPED_TRACE("seed " + std::to_string(semilla) + " piece " + std::to_string(vez));
    Configura();
    Dialogo dialogo(FilaDe(GetParam()).dialogo);
    TecleaPieza(dialogo, azar);
    if (Dialogo(dialogo).CmdAceptar() != Respuesta::aceptado) continue;
    const PiezaDesarrollada usual(dialogo, 0), exacto(dialogo, 1);
    for (const PiezaDesarrollada* una : {&usual, &exacto}) {
      for (const auto& f : una->hoja.formas) EXPECT_TRUE(f.contorno.empty() || f.En(0) == f.contorno.back().p);
    }
    const Veredicto usualVeredicto = usual.Juzga(), veredicto = exacto.Juzga();
    formas += static_cast<int>(usual.hoja.formas.size());
    for (const FormaPatron& f : usual.hoja.formas) {
      falsas +=
          std::ranges::any_of(usualVeredicto.defectos, [&](const Defecto& d) { return d.donde.forma == f.nombre; });
    }
    // A wide, low pattern in one piece may meet itself on the sheet.
    const bool cruza = exacto.hoja.formas[0].nombre.forma == Forma::entera && Encuentra(veredicto, Falta::cruce);
    if (DelReves(*estado.pieza)) continue;
    EXPECT_LT(veredicto.desviacion, 1e-6) << TextoVeredicto(veredicto);
    if (cruza) continue;
    EXPECT_TRUE(veredicto.Cierto()) << TextoVeredicto(veredicto);
    ++ciertas;
    // The usual pattern of a tilted ellipse is that of the solid seen from its other end, at best.
    const bool otroExtremo = GetParam() == TipoPieza::elip && estado.dAlfa != 0;
    if (usualVeredicto.Cierto() && usualVeredicto.desviacion < 1e-9 && !otroExtremo) {
      ExpectMismoSitio(usual.hoja, exacto.hoja);
      ++iguales;
    }
    if (HasFailure()) return;
  }
  EXPECT_GT(ciertas, 100);
  // How many shapes the usual rules lay out rightly, in hundredths, tells whether they are what they were.
  constexpr std::pair<int, int> kUsuales[]{{92, 100}, {92, 100}, {52, 76}, {82, 94},
                                           {81, 95},  {53, 65},  {81, 92}, {79, 89}};
  const auto& [desde, hasta] = kUsuales[static_cast<std::size_t>(GetParam())];
  const int usualesCiertas = 100 - 100 * falsas / formas;
  EXPECT_TRUE(desde <= usualesCiertas && usualesCiertas <= hasta) << usualesCiertas;
  EXPECT_TRUE(iguales > 0 || GetParam() > TipoPieza::elip);
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
    ASSERT_LT(usual.Juzga().desviacion, 0.02) << static_cast<int>(tipo) << ", seed " << semilla << " piece " << vez;
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
    {"outline crossed", Falta::cruce,
     [](Patron& h) { std::swap(h.formas[0].contorno[2].p, h.formas[0].contorno[5].p); }},
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

class Comprobada : public testing::Test {
 protected:
  const Dialogo dialogos_[3]{PiezaCR(false), PiezaCR(true), PiezaEsp1()};
  Veredicto Juzga(const Patron& hoja) const { return duktores::Juzga(d_->solido, hoja); }
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
       {std::tuple(0.0, 1, "Desarrollo verdadero, desviación máxima: 0,000 mm",
                   "ATENCIÓN, desarrollo falso: Esquina 1 (1): longitud, error 1,0"),
        {10000.0, 2, "True pattern, greatest deviation: 0.0000 in",
         "WARNING, false pattern: Corner 1 (1): length off by 1.0"}}) {
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
  EXPECT_FALSE(Cruce({{0, 0}, {4, 0}, {4, 4}, {2, 0}, {0, 4}}, 1e-6)) << "a vertex on an edge";
  EXPECT_FALSE(Cruce({{0, 0}, {2, 0}, {2, 2}, {2, 2}, {0, 2}, {0, 0}}, 1e-6)) << "vertices twice";
  EXPECT_TRUE(Cruce({{0, 0}, {4, 0}, {4, 4}, {2, -1}, {0, 4}}, 1e-6));
  EXPECT_EQ(Cruce({{0, 0}, {2, 2}, {2, 0}, {0, 2}}, 1e-6), (Punto2{1, 1}));
}

}  // namespace
}  // namespace duktores
