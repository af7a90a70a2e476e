// Patterns against their solids: random pieces by both rules, and patterns spoiled on purpose.

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <random>
#include <tuple>

#include "check/cruce.h"
#include "check/hoja.h"
#include "geometry/planas.h"
#include "pieza_desarrollada.h"
#include "piezas_azar.h"
#include "state/estado.h"
#include "state/numeros.h"

namespace duktores {
namespace {

struct Desarrollado : PiezaDesarrollada {
  using PiezaDesarrollada::PiezaDesarrollada;
  std::vector<Entidad>& Entidades() { return const_cast<std::vector<Entidad>&>(axew.Entidades()); }
  Entidad& Contorno(std::size_t i) { return *std::ranges::find(Entidades(), estado.Formas.at(i).id, &Entidad::id); }
};

// A fibre that leaves the dimensions as they are typed: the others can make a radius negative.
void Configura() {
  estado = {};
  estado.iUnidad = 1;
  estado.iFibra = 2;
  estado.dTamanoTexto = 10;
  estado.iColorDoblez = 3;
  estado.sDimensiones = "1";
  estado.iBox = 1;
}

Dialogo Pieza(std::string_view tipo, std::initializer_list<const char*> textos, bool dosPiezas = false) {
  Configura();
  Dialogo dialogo(*DialogoDe(tipo));
  int campo = 0;
  for (const char* texto : textos) dialogo.CampoDe(campo++).texto = texto;
  dialogo.dosPiezas = dosPiezas;
  return dialogo;
}
Dialogo PiezaCR(bool dosPiezas) {
  return Pieza("TransCR", {"300", "100", "400", "350", "20", "30", "10", "24", "2"}, dosPiezas);
}
Dialogo PiezaEsp1() {
  return Pieza("TransEsp1", {"400", "40", "50", "60", "45", "90", "90", "100", "85", "300", "250", "500", "400", "30",
                             "20", "10", "5", "12"});
}

class Patrones : public testing::TestWithParam<std::string_view> {};

bool Encuentra(const Veredicto& veredicto, Falta falta) {
  return std::ranges::any_of(veredicto.defectos, [=](const Defecto& d) { return d.falta == falta; });
}

TEST_P(Patrones, ExactOnesAreTrueAndLieWhereTheUsualOnesDo) {
  const auto semilla = std::random_device{}();
  std::mt19937 azar(semilla);
  int ciertas = 0, usualesCiertas = 0, iguales = 0;
  for (int vez = 0; vez < 200; ++vez) {
    SCOPED_TRACE("seed " + std::to_string(semilla) + " piece " + std::to_string(vez));
    Configura();
    Dialogo dialogo(*DialogoDe(GetParam()));
    TecleaPieza(dialogo, azar);
    if (Dialogo(dialogo).CmdAceptar() != Respuesta::aceptado) continue;
    Desarrollado usual(dialogo, 0);
    // The usual pattern of a tilted ellipse is that of the solid seen from its other end, at best.
    const bool otroExtremo = GetParam() == "TransElip" && estado.dAlfa != 0;
    const bool usualCierto = usual.Juzga().Cierto() && usual.Juzga().desviacion < 1e-9 && !otroExtremo;
    usualesCiertas += usual.Juzga().Cierto();
    const auto formas = estado.Formas;
    const auto contornos = usual.Entidades();
    Configura();
    Dialogo(dialogo).CmdAceptar();
    const bool delReves = DelReves();
    Desarrollado exacto(dialogo, 1);
    const Veredicto veredicto = exacto.Juzga();
    // A wide, low pattern in one piece may meet itself on the sheet.
    const bool cruza = !formas.empty() && formas[0].forma == Forma::entera && Encuentra(veredicto, Falta::cruce);
    if (delReves) continue;
    EXPECT_LT(veredicto.desviacion, 1e-6) << TextoVeredicto(veredicto);
    if (cruza) continue;
    EXPECT_TRUE(veredicto.Cierto()) << TextoVeredicto(veredicto);
    ++ciertas;
    for (std::size_t i = 0; usualCierto && i < formas.size(); ++i) {
      ASSERT_EQ(formas.size(), estado.Formas.size());
      const auto& a = std::ranges::find(contornos, formas[i].id, &Entidad::id)->puntos;
      const auto& b = exacto.Contorno(i).puntos;
      ASSERT_EQ(a.size(), b.size());
      for (std::size_t k = 0; k < a.size(); ++k) EXPECT_LT(Distancia(a[k], b[k]), 1e-6) << "shape " << i << " " << k;
      ++iguales;
    }
    if (HasFailure()) return;
  }
  EXPECT_GT(ciertas, 100);
  // How many the usual rules lay out rightly tells whether they are what they were.
  constexpr std::array kUsuales{175, 175, 80, 65, 80, 0, 12, 4};
  const auto tipo = std::ranges::find(TiposDePieza(), GetParam()) - TiposDePieza().begin();
  EXPECT_GE(usualesCiertas, kUsuales.at(static_cast<std::size_t>(tipo)));
  EXPECT_GT(iguales, tipo < 3 ? 0 : -1);
}

// So far beside its start side stands the circle that the end of the split lies above it on the sheet.
TEST(Longitudes, AnExactLeaningOneIsSplitOnTheRectangle) {
  const Dialogo dialogo =
      Pieza("TransRC", {"713.68", "322.23", "261.26", "712.07", "289.99", "0", "35.11", "12", "4"}, true);
  EXPECT_TRUE(Desarrollado(dialogo, 1).Juzga().Cierto());
}

bool EsLineaLado(const Entidad& e) { return e.tipo == TipoEntidad::linea && e.color == EwRgb(256, 0, 255); }

// The rows of a table: each is the distance, cut to the decimals of the unit, of two points of its shape in whose
// middle the row's number stands.
void CompruebaTabla(const FormaEnHoja& forma, const Entidad*& fila) {
  const bool cono = forma.forma == Forma::esquina, panel = forma.forma == Forma::lado;
  const bool mm = cono || estado.iUnidad == 1;
  const int q = estado.iDivisiones / 4, dobleces = (forma.forma == Forma::entera ? 4 : 2) * (q + 2) - 1;
  std::vector<Punto2> puntos = forma.contorno;
  for (const auto& [p, r] : forma.lineas) puntos.insert(puntos.end(), {p, r});
  const Punto3 primera = fila->puntos[0];
  Punto3 sitio = primera;
  int enColumna = 0;
  for (const auto& [medio, n] : forma.numeros) {
    // No column ends at a side line, nor behind it, nor where the edges begin.
    const bool pegada = n > dobleces ? n == dobleces + 1 : n % (q + 2) == 0 || (n > 1 && n % (q + 2) == 1);
    if (enColumna > 0 && enColumna % 30 == 0 && !pegada) {
      sitio = {sitio.x + 180, primera.y, 0};
      enColumna = 0;
    }
    EXPECT_LT(Distancia(fila->puntos[0], sitio), 1e-9) << fila->texto;
    sitio.y -= 22;
    ++enColumna;
    EXPECT_EQ(Norma(fila->v), 11);
    const double paso = mm ? 0.01 : 0.001, largo = NumeroIzquierda(fila->texto.substr(fila->texto.find(' ')));
    const std::string cola = cono || (n > dobleces && !panel) ? "" : mm ? " mm" : " in";
    EXPECT_EQ(fila->texto, std::to_string(n) + "  " + TextoDeNumero(largo) + cola);
    EXPECT_NEAR(largo, paso * std::nearbyint(largo / paso), 1e-9) << fila->texto;
    const Punto2 suma = 2 * (medio - Punto2{panel ? 1.0 : 0.0, 0});
    const bool hay = std::ranges::any_of(puntos, [&](Punto2 p) {
      return std::ranges::any_of(puntos, [&](Punto2 r) {
        const double falta = Distancia(p, r) - largo;  // a cut may round a thousandth up
        return falta > -0.00051 && falta < paso + 0.00051 && Distancia(p + r, suma) < 1e-6;
      });
    });
    EXPECT_TRUE(hay) << fila->texto;
    ++fila;
  }
}

TEST_P(Patrones, RowsOfTheTablesAreTheNumberedLines) {
  std::mt19937 azar(7);
  for (int vez = 0; vez < 30; ++vez) {
    Configura();
    estado.iUnidad = static_cast<std::int16_t>(vez % 2);
    Dialogo dialogo(*DialogoDe(GetParam()));
    TecleaPieza(dialogo, azar);
    if (Dialogo(dialogo).CmdAceptar() != Respuesta::aceptado) continue;
    SCOPED_TRACE("piece " + std::to_string(vez));
    Desarrollado d(dialogo, vez % 3 == 0);
    std::vector<Entidad> filas = d.Entidades();
    std::erase_if(filas, [](const Entidad& e) {
      return e.tipo != TipoEntidad::texto || e.color != EwRgb(255, 255, 255) || std::isdigit(e.texto[0]) == 0;
    });
    const Entidad* fila = filas.data();
    for (const FormaEnHoja& forma : LeeHoja(d.axew)) CompruebaTabla(forma, fila);
    EXPECT_EQ(fila, filas.data() + filas.size());
    // A half has one of the three side lines; the start side's is an edge of both.
    const int lados = GetParam().starts_with("TransEsp") ? 0 : dialogo.dosPiezas ? 2 : 3;
    EXPECT_EQ(std::ranges::count_if(d.Entidades(), EsLineaLado), lados);
    for (const Entidad& e : d.Entidades()) EXPECT_TRUE(e.color != EwRgb(255, 0, 0) || Norma(e.v) == 10) << e.texto;
    if (HasFailure()) return;
  }
}
INSTANTIATE_TEST_SUITE_P(Tipos, Patrones, testing::ValuesIn(TiposDePieza().begin(), TiposDePieza().end()));

// The usual rules choose points, but lay no length out wrong: only the rounding of level centres shows.
TEST(Longitudes, UsualTransitionsKeepThem) {
  const auto semilla = std::random_device{}();
  std::mt19937 azar(semilla);
  for (int vez = 0; vez < 1500; ++vez) {
    Configura();
    const std::string_view tipo = TiposDePieza()[azar() % 3];
    Dialogo dialogo(*DialogoDe(tipo));
    TecleaPieza(dialogo, azar);
    ASSERT_EQ(Dialogo(dialogo).CmdAceptar(), Respuesta::aceptado);
    // The ellipse tilts against its solid. A rectangle's start side that rises along its length is measured from its
    // foot but laid from its middle.
    const bool corrida = estado.dAx != 0 || (tipo == "TransElip" && estado.dAyElip != 0);
    if (estado.dAlfa != 0 && corrida && (tipo == "TransElip" || (tipo == "TransRC" && estado.iPosIni % 2 == 0)))
      continue;
    ASSERT_LT(Desarrollado(dialogo, 0).Juzga().desviacion, 0.02) << tipo << ", seed " << semilla << " piece " << vez;
  }
}

template <class Es>
Entidad& LaQue(Desarrollado& d, Es es) {
  return *std::ranges::find_if(d.Entidades(), es);
}
Entidad& ElNumero(Desarrollado& d, const char* numero) {
  return LaQue(d, [=](const Entidad& e) { return e.texto == numero; });
}
// The first facet from the left, over the line that it shares with the next one: all lengths stay.
void VuelveCara(Desarrollado& d) {
  auto& p = d.Contorno(0).puntos;
  const std::size_t n = p.size();
  const Punto2 v{p[n - 2].x, p[n - 2].y};
  const Punto2 pie = PieDePerpendicular(v, {p[0].x, p[0].y}, {p[n - 3].x, p[n - 3].y});
  p[n - 2] = {2 * pie.x - v.x, 2 * pie.y - v.y, 0};
}
void CorreLineaLado(Desarrollado& d) { LaQue(d, EsLineaLado).puntos[1].x += 1; }
void QuitaForma(Desarrollado& d) { d.axew.EwDelete(estado.Formas[1].id); }

// Each spoils one thing on the sheet and names what must be found.
const struct {
  const char* nombre;
  Falta falta;
  void (*hace)(Desarrollado& d);
} kEstropicios[]{
    {"facet mirrored", Falta::vuelta, VuelveCara},
    {"outline crossed", Falta::cruce, [](auto& d) { std::swap(d.Contorno(0).puntos[2], d.Contorno(0).puntos[5]); }},
    {"shape left out", Falta::falta, QuitaForma},
    {"shape twice", Falta::repetida,
     [](auto& d) {
       d.axew.EwCopy(estado.Formas[0].id, {}, {9000, 0, 0});
     }},
    {"number doubled", Falta::numeros, [](auto& d) { ElNumero(d, "3").texto = "2"; }},
    {"number moved", Falta::numeros, [](auto& d) { ElNumero(d, "3").puntos[0].x += 1; }},
    {"numbers changed", Falta::numeros, [](auto& d) { std::swap(ElNumero(d, "3").texto, ElNumero(d, "2").texto); }},
    {"bend line too many", Falta::doblez,
     [](auto& d) {
       const auto q = d.Contorno(estado.Formas.size() - 1).puntos;
       d.axew.EwAddLine(q[0], q[2]);
     }},
    {"side line moved", Falta::doblez, CorreLineaLado},
    {"bend line left out", Falta::doblez,
     [](auto& d) { d.axew.EwDelete(std::ranges::find(d.Entidades(), TipoEntidad::linea, &Entidad::tipo)->id); }},
};

// In thousands of pieces a check that finds everything is worth as much as one that finds nothing wrong where there is
// nothing: each spoiled pattern was true before.
TEST(Comprueba, FindsWhatWasSpoiled) {
  for (const Dialogo& dialogo : {PiezaCR(false), PiezaCR(true), PiezaEsp1()}) {
    for (const auto& [nombre, falta, hace] : kEstropicios) {
      const bool especial = dialogo.Definicion().clave != "TransCR";
      if ((hace == QuitaForma && !especial && !dialogo.dosPiezas) || (hace == CorreLineaLado && especial)) continue;
      SCOPED_TRACE(std::string(dialogo.Definicion().clave) + ", " + nombre);
      Configura();
      Desarrollado d(dialogo, 1);
      EXPECT_TRUE(d.Juzga().Cierto()) << TextoVeredicto(d.Juzga());
      hace(d);
      EXPECT_TRUE(Encuentra(d.Juzga(), falta)) << TextoVeredicto(d.Juzga());
    }
  }
}

TEST(Comprueba, FindsAnyVertexThatMoves) {
  for (const Dialogo& dialogo : {PiezaCR(false), PiezaCR(true), PiezaEsp1()}) {
    Configura();
    Desarrollado d(dialogo, 1);
    for (std::size_t forma = 0; forma < estado.Formas.size(); ++forma) {
      auto& puntos = d.Contorno(forma).puntos;
      for (Punto3& p : puntos) {
        const Punto3 antes = p;
        p = p + Punto3{0.7, 0.7, 0};
        EXPECT_TRUE(Encuentra(d.Juzga(), Falta::largo)) << "shape " << forma << " vertex " << &p - puntos.data();
        p = antes;
      }
    }
    EXPECT_TRUE(d.Juzga().Cierto());
  }
}

TEST(Comprueba, SaysHowFarAndWhere) {
  const Dialogo dialogo = PiezaEsp1();
  for (const auto& [idioma, unidad, cierto, falso] :
       {std::tuple(0.0, 1, "Desarrollo verdadero, desviación máxima: 0,000 mm",
                   "ATENCIÓN, desarrollo falso: Esquina 1 (1): longitud, error 1,0"),
        {10000.0, 2, "True pattern, greatest deviation: 0.0000 in",
         "WARNING, false pattern: Corner 1 (1): length off by 1.0"}}) {
    Configura();
    Desarrollado d(dialogo, 1);
    estado.dIdioma = idioma;
    estado.iUnidad = static_cast<std::int16_t>(unidad);
    estado.bComaDecimal = unidad == 1;
    EXPECT_EQ(TextoVeredicto(d.Juzga()), cierto);
    // The border of the sector gets longer by one, along its own line.
    auto& p = d.Contorno(0).puntos;
    const Punto3 borde = p[0] - p[p.size() - 2];
    p[0] = p.back() = p[0] + (1 / Norma(borde)) * borde;
    EXPECT_TRUE(TextoVeredicto(d.Juzga()).starts_with(falso)) << TextoVeredicto(d.Juzga());
  }
}

TEST(Comprueba, NamesWhatIsNoNumber) {
  Desarrollado d(PiezaCR(false), 0);
  estado.bComaDecimal = true;
  d.Contorno(0).puntos[3].x = HUGE_VAL;
  EXPECT_TRUE(TextoVeredicto(d.Juzga()).ends_with("Desviación máxima: ?")) << TextoVeredicto(d.Juzga());
}

TEST(Cruce, TouchingIsNoCrossing) {
  EXPECT_FALSE(Cruce({{0, 0}, {4, 0}, {4, 4}, {2, 0}, {0, 4}}, 1e-6)) << "a vertex on an edge";
  EXPECT_FALSE(Cruce({{0, 0}, {2, 0}, {2, 2}, {2, 2}, {0, 2}, {0, 0}}, 1e-6)) << "vertices twice";
  EXPECT_TRUE(Cruce({{0, 0}, {4, 0}, {4, 4}, {2, -1}, {0, 4}}, 1e-6));
  EXPECT_EQ(Cruce({{0, 0}, {2, 2}, {2, 0}, {0, 2}}, 1e-6), (Punto2{1, 1}));
}

}  // namespace
}  // namespace duktores
