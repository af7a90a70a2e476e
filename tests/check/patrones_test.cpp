// Patterns against their solids: random pieces by both rules, and patterns spoiled on purpose.

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <tuple>

#include "check/comprueba.h"
#include "check/cruce.h"
#include "geometry/planas.h"
#include "piezas_azar.h"
#include "shell/visor.h"
#include "state/estado.h"

namespace duktores {
namespace {

// Places everything at the origin.
struct Mesa : VistaEWdraw {
  std::optional<Punto3> EligePunto(EWdraw&) override { return Punto3{}; }
};

struct Desarrollado {
  explicit Desarrollado(const Dialogo& dialogo, std::int16_t exacto) {
    estado.iExacto = exacto;
    Dialogo(dialogo).CmdAceptar();
    solido = SolidoActual();
    axew.PonVista(&mesa);
    Desplegado(axew);
  }
  Veredicto Juzga() const { return Comprueba(solido, axew); }
  std::vector<Entidad>& Entidades() { return const_cast<std::vector<Entidad>&>(axew.Entidades()); }
  Entidad& Contorno(std::size_t i) { return *std::ranges::find(Entidades(), estado.Formas.at(i).id, &Entidad::id); }

  Mesa mesa;
  EWdraw axew;
  Solido solido;
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
  int ciertas = 0, iguales = 0;
  for (int vez = 0; vez < 200; ++vez) {
    SCOPED_TRACE("seed " + std::to_string(semilla) + " piece " + std::to_string(vez));
    Configura();
    Dialogo dialogo(*DialogoDe(GetParam()));
    TecleaPieza(dialogo, azar);
    if (Dialogo(dialogo).CmdAceptar() != Respuesta::aceptado) continue;
    Desarrollado usual(dialogo, 0);
    // The usual pattern of a tilted ellipse is that of the solid seen from its other end, at best.
    const bool otroExtremo = GetParam() == "TransElip" && estado.dAlfa != 0;
    const bool usualCierto = usual.Juzga().Cierto() && usual.Juzga().desviacion < 1e-8 && !otroExtremo;
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
  const bool especial = GetParam().starts_with("TransEsp");  // whose radii or offsets the usual rules move, mostly
  EXPECT_GT(iguales, especial ? -1 : 5);
}
INSTANTIATE_TEST_SUITE_P(Tipos, Patrones,
                         testing::Values("TransCR", "TransRC", "TransElip", "TransEsp1", "TransEsp2", "TransEsp3",
                                         "TransEsp4", "TransEsp5"));

// Each spoils one thing on the sheet and names what must be found.
struct Estropicio {
  const char* nombre;
  Falta falta;
  void (*hace)(Desarrollado& d);
};

void MueveVertice(Desarrollado& d) { d.Contorno(0).puntos[3].x += 1; }
// The first facet from the left, over the line that it shares with the next one: all lengths stay.
void VuelveCara(Desarrollado& d) {
  auto& p = d.Contorno(0).puntos;
  const std::size_t n = p.size();
  const Punto2 v{p[n - 2].x, p[n - 2].y};
  const Punto2 pie = PieDePerpendicular(v, {p[0].x, p[0].y}, {p[n - 3].x, p[n - 3].y});
  p[n - 2] = {2 * pie.x - v.x, 2 * pie.y - v.y, 0};
}
void CruzaContorno(Desarrollado& d) { std::swap(d.Contorno(0).puntos[2], d.Contorno(0).puntos[5]); }
void QuitaForma(Desarrollado& d) { d.axew.EwDelete(estado.Formas[1].id); }
void RepiteForma(Desarrollado& d) { d.axew.EwCopy(estado.Formas[0].id, {}, {9000, 0, 0}); }
template <class Es>
void Cambia(Desarrollado& d, Es es, void (*cambia)(Entidad&)) {
  cambia(*std::ranges::find_if(d.Entidades(), es));
}
bool EsNumeroTres(const Entidad& e) { return e.texto == "3"; }
void DoblaNumero(Desarrollado& d) {
  Cambia(d, EsNumeroTres, [](Entidad& e) { e.texto = "2"; });
}
void CorreNumero(Desarrollado& d) {
  Cambia(d, EsNumeroTres, [](Entidad& e) { e.puntos[0].x += 1; });
}
void CambiaNumeros(Desarrollado& d) {
  Cambia(d, EsNumeroTres, [](Entidad& e) { e.texto = "x"; });
  Cambia(
      d, [](const Entidad& e) { return e.texto == "2"; }, [](Entidad& e) { e.texto = "3"; });
  Cambia(
      d, [](const Entidad& e) { return e.texto == "x"; }, [](Entidad& e) { e.texto = "2"; });
}
bool EsLineaLado(const Entidad& e) { return e.tipo == TipoEntidad::linea && e.color == EwRgb(256, 0, 255); }
void CorreLineaLado(Desarrollado& d) {
  Cambia(d, EsLineaLado, [](Entidad& e) { e.puntos[1].x += 1; });
}
void DoblezDeMas(Desarrollado& d) {
  const auto q = d.Contorno(estado.Formas.size() - 1).puntos;
  d.axew.EwAddLine(q[0], q[2]);
}
void QuitaDoblez(Desarrollado& d) {
  const auto linea = std::ranges::find(d.Entidades(), TipoEntidad::linea, &Entidad::tipo);
  d.axew.EwDelete(linea->id);
}

// In thousands of pieces a check that finds everything is worth as much as one that finds nothing wrong where there is
// nothing: each spoiled pattern was true before.
TEST(Comprueba, FindsWhatWasSpoiled) {
  const Estropicio estropicios[]{
      {"vertex moved", Falta::largo, MueveVertice},       {"facet mirrored", Falta::vuelta, VuelveCara},
      {"outline crossed", Falta::cruce, CruzaContorno},   {"shape left out", Falta::falta, QuitaForma},
      {"shape twice", Falta::repetida, RepiteForma},      {"number doubled", Falta::numeros, DoblaNumero},
      {"number moved", Falta::numeros, CorreNumero},      {"numbers changed", Falta::numeros, CambiaNumeros},
      {"bend line too many", Falta::doblez, DoblezDeMas}, {"side line moved", Falta::doblez, CorreLineaLado},
      {"bend line left out", Falta::doblez, QuitaDoblez},
  };
  const struct {
    Dialogo dialogo;
    bool unaForma;
  } piezas[]{{PiezaCR(false), true}, {PiezaCR(true), false}, {PiezaEsp1(), false}};
  for (const auto& [dialogo, unaForma] : piezas) {
    for (const auto& [nombre, falta, hace] : estropicios) {
      if (unaForma && falta == Falta::falta) continue;
      if (hace == CorreLineaLado && dialogo.Definicion().clave != "TransCR") continue;
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
        EXPECT_FALSE(d.Juzga().Cierto()) << "shape " << forma << " vertex " << &p - puntos.data();
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
  Configura();
  estado.bComaDecimal = true;
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
