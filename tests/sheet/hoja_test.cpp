// What stands on the sheet: the pattern, and nothing else of it; and what is asked for on the way.

#include "sheet/hoja.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <random>

#include "dxf/dibujo.h"
#include "mesa.h"
#include "pieza_tecleada.h"
#include "piezas_azar.h"
#include "shell/visor.h"
#include "state/numeros.h"
#include "state/textos.h"

namespace duktores {
namespace {

const std::int32_t kRojo = EwRgb(255, 0, 0), kVerde = EwRgb(0, 255, 0), kCian = EwRgb(0, 255, 255),
                   kMagenta = EwRgb(255, 0, 255), kBlanco = EwRgb(255, 255, 255);

// A panel that tapers to a hair is laid out anew at its place, a little otherwise.
constexpr double kPanel = 0.5;

/// An outline, a line, or a number at its place.
struct Trazo {
  std::vector<Punto2> puntos;
  std::string texto;
  std::int32_t color;
};

/// All that is drawn as it shows on the control, apart by what its colour says it is.
struct Leido {
  std::vector<Trazo> patron, bloque;
  int cotas = 0;

  explicit Leido(std::span<const Entidad> entidades) {
    for (const Entidad& e : entidades) {
      Trazo trazo{{}, e.texto, e.color};
      for (const Punto3 p : e.puntos) trazo.puntos.push_back({p.x, p.y});
      const bool texto = e.tipo == TipoEntidad::texto;
      if (e.color == kCian || e.tipo == TipoEntidad::arco) {
        ++cotas;
      } else {
        (e.color == kBlanco || (texto && e.color == kVerde) ? bloque : patron).push_back(trazo);
      }
      EXPECT_TRUE(!texto || e.color != kRojo || Norma(e.v) == estado.dTamanoTexto) << e.texto;
    }
  }
};

/// What has to be drawn of a pattern, in order.
std::vector<Trazo> Esperado(const Patron& hoja) {
  std::vector<Trazo> trazos;
  for (const FormaPatron& forma : hoja.formas) {
    if (forma.contorno.empty()) continue;
    Trazo& contorno = trazos.emplace_back(Trazo{{}, "", 7});
    for (const Vertice& v : forma.contorno) contorno.puntos.push_back(v.p);
    if (hoja.sinRepetir) {
      auto& p = contorno.puntos;
      p.erase(std::ranges::unique(p, [](Punto2 a, Punto2 b) { return Distancia(a, b) < 1e-6; }).begin(), p.end());
      p.pop_back();  // the control closes it
    }
    int n = 0;
    for (const Linea& l : forma.lineas) {
      if (l.clase != Clase::borde) trazos.push_back({{l.p, l.q}, "", l.clase == Clase::lado ? kMagenta : kVerde});
      const Punto2 alLado{forma.nombre.forma == Forma::lado ? 1.0 : 0.0, 0};
      trazos.push_back({{0.5 * (l.p + l.q) + alLado}, std::to_string(++n), kRojo});
    }
  }
  return trazos;
}

void ExpectMismos(const std::vector<Trazo>& leidos, const std::vector<Trazo>& esperados) {
  ASSERT_EQ(leidos.size(), esperados.size());
  for (std::size_t i = 0; i < leidos.size(); ++i) {
    const auto& [puntos, texto, color] = esperados[i];
    ASSERT_TRUE(leidos[i].texto == texto && leidos[i].color == color) << i << ": " << texto;
    ASSERT_EQ(leidos[i].puntos.size(), puntos.size()) << i;
    for (std::size_t k = 0; k < puntos.size(); ++k) {
      ASSERT_LE(Distancia(leidos[i].puntos[k], puntos[k]), texto.empty() ? 0 : 1e-6) << i << " " << texto;
    }
  }
}

/// Each line of the pattern has its row: its number and its length, cut to the decimals of the unit.
void ExpectFilas(const std::vector<Trazo>& bloque, const Patron& hoja) {
  auto fila = bloque.begin();
  const auto esFila = [](const Trazo& t) { return !t.texto.empty() && std::isdigit(t.texto[0]) && t.color == kBlanco; };
  for (const FormaPatron& forma : hoja.formas) {
    const bool mm = estado.iUnidad == 1 || forma.nombre.forma == Forma::esquina;
    const double paso = mm ? 0.01 : 0.001;
    for (std::size_t i = 0; i < forma.lineas.size(); ++i, ++fila) {
      const Linea& l = forma.lineas[i];
      fila = std::find_if(fila, bloque.end(), esFila);
      ASSERT_NE(fila, bloque.end());
      const std::string numero = std::to_string(i + 1) + "  ";
      ASSERT_TRUE(fila->texto.starts_with(numero)) << fila->texto;
      const double largo = NumeroIzquierda(fila->texto.substr(numero.size())), falta = Distancia(l.p, l.q) - largo;
      EXPECT_TRUE(falta > -0.00051 && falta < paso + 0.00051) << fila->texto;  // a cut may round a thousandth up
      const bool conUnidad =
          forma.nombre.forma == Forma::lado || (forma.nombre.forma != Forma::esquina && l.clase != Clase::borde);
      EXPECT_EQ(fila->texto, numero + TextoDeNumero(largo) + (!conUnidad ? "" : mm ? " mm" : " in"));
    }
  }
  EXPECT_EQ(std::find_if(fila, bloque.end(), esFila), bloque.end());
}

/// Prompt, name on the pointer, and what hangs there: shape and block in turn, each with its place.
void ExpectEncargos(const Mesa& mesa, const Patron& hoja) {
  std::vector<std::string> mensajes, rotulos;
  std::size_t i = 0;
  for (const auto& [forma, contorno, lineas, facetas, antes, despues, ancla, panel, aviso, rotulo, cotas, cotasAntes,
                    bloque, sinNumero] : hoja.formas) {
    EXPECT_EQ(sinNumero, 0U);
    const int numero = forma.numero;
    if (forma.forma != Forma::entera) {
      const bool mitad = forma.forma == Forma::mitad;
      mensajes.push_back(Texto(mitad && numero == 2 ? 64 : 63));
      rotulos.push_back(mitad ? "" : Texto(forma.forma == Forma::esquina ? 103 : 104) + " " + std::to_string(numero));
      const Punto2 sitio{mesa.puntos[i].x, mesa.puntos[i].y};
      const auto& cuelga = mesa.fantasmas.at(i++);
      ASSERT_EQ(cuelga.size(), contorno.size());
      for (std::size_t k = 0; k < cuelga.size(); ++k)
        EXPECT_LT(Distancia(cuelga[k] + sitio, contorno[k].p), panel ? kPanel : 1e-6);
    }
    if (contorno.empty() || estado.iBox == 0) continue;
    mensajes.push_back(Texto(65));
    rotulos.push_back(Texto(106));
    ++i;
  }
  EXPECT_EQ(mesa.mensajes, mensajes);
  EXPECT_EQ(mesa.rotulos, rotulos);
}

Caja CajaDeTodos(std::span<const Entidad> entidades) {
  Caja caja;
  for (const Entidad& e : entidades) {
    const Caja suya = CajaDe(e);
    if (suya.Vacia()) continue;
    caja.Incluye(suya.minimo);
    caja.Incluye(suya.maximo);
    if (e.tipo == TipoEntidad::texto) caja.Incluye(e.puntos[0] + e.v);
  }
  return caja;
}

/// Nothing that is placed lies on another; a title block stands right of its shape, and each shape right of the one
/// before or at the left under all, so that no strip comes of it where rows can be broken.
void ExpectAparte(const EWdraw& axew, const Mesa& mesa) {
  std::vector<Caja> cajas;
  std::size_t desde = 0, porFila = 0, masPorFila = 0;
  for (std::size_t i = 0; i <= mesa.dibujado.size(); ++i) {
    const std::size_t hasta = i < mesa.dibujado.size() ? mesa.dibujado[i] : axew.Entidades().size();
    const Caja caja = CajaDeTodos(std::span(axew.Entidades()).subspan(desde, hasta - desde));
    desde = hasta;
    if (caja.Vacia()) continue;
    // An apex far off, where nearly parallel elements meet, moves a little with its place.
    const double margen = kPanel + 1e-4 * (caja.maximo.y - caja.minimo.y);
    double abajo = HUGE_VAL;
    for (const Caja& otra : cajas) {
      abajo = std::min(abajo, otra.minimo.y);
      EXPECT_TRUE(caja.minimo.x > otra.maximo.x || caja.maximo.y < otra.minimo.y) << i;
    }
    const bool bloque = i > 0 && mesa.mensajes[i - 1] == Texto(65);
    porFila += bloque ? 0 : 1;
    if (!cajas.empty() && caja.maximo.y < abajo) {
      EXPECT_FALSE(bloque) << i;
      EXPECT_NEAR(caja.minimo.x, cajas.front().minimo.x, margen);
      porFila = 1;
    } else if (i > 1 && !cajas.empty()) {
      EXPECT_NEAR(caja.minimo.y, cajas.back().minimo.y, margen + kPanel);
    }
    masPorFila = std::max(masPorFila, porFila);
    cajas.push_back(caja);
  }
  const Caja todo = CajaDeTodos(axew.Entidades());
  const double alto = todo.maximo.y - todo.minimo.y + 2 * estado.dPasoTablaY;  // small pieces lie far apart
  EXPECT_TRUE(masPorFila <= 1 || todo.maximo.x - todo.minimo.x < 4 * alto);
}

class Hojas : public testing::TestWithParam<TipoPieza> {
 protected:
  void ExpectHoja() {
    const Pieza pieza = *estado.pieza;
    Desarrollo desarrollo = DesarrolloDe(pieza, SolidoDe(pieza));
    const auto dibujo = estado.oDrawing = std::make_shared<cDrawing>();
    estado.PoliContorno = {{1, 2}};
    estado.iHandleDxf = 700;
    Mesa mesa;
    for (const Punto2 p : Reparte(desarrollo.patron, FormatoDeEstado())) mesa.puntos.push_back({p.x, p.y, 0});
    EXPECT_TRUE(estado.oDrawing == dibujo && dibujo->Count() == 0 && estado.iHandleDxf == 700);
    EXPECT_EQ(estado.PoliContorno, (std::vector<Punto2>{{1, 2}}));

    estado.plataforma = &mesa;
    EWdraw axew;
    axew.PonVista(&mesa);
    const auto [fin, hoja, dados] = Desplegado(axew, std::move(desarrollo));
    ASSERT_EQ(fin, FinCorrida::completo);
    const Leido leido(axew.Entidades());
    ExpectMismos(leido.patron, Esperado(hoja));
    ExpectEncargos(mesa, hoja);
    ExpectAparte(axew, mesa);
    EXPECT_EQ(leido.cotas > 0, estado.sDimensiones == "1");
    if (estado.iBox != 0) {
      ExpectFilas(leido.bloque, hoja);
    } else {
      EXPECT_TRUE(leido.bloque.empty());
    }
    EXPECT_EQ(estado.oDrawing->Count(), axew.EwEntityCount()) << "file and screen";
  }
};

TEST_P(Hojas, ThePatternStandsOnTheControlWholeAndOnce) {
  const auto semilla = std::random_device{}();
  std::mt19937 azar(semilla);
  int dibujadas = 0;
  for (int vez = 0; vez < 64; ++vez) {
    SCOPED_TRACE("seed " + std::to_string(semilla) + " piece " + std::to_string(vez));
    Configura();
    estado.iUnidad = static_cast<std::int16_t>(vez & 1);
    estado.iExacto = vez & 2;
    estado.iBox = vez & 4 ? 1 : 0;
    estado.sDimensiones = vez & 8 ? "1" : "0";
    Dialogo dialogo(FilaDe(GetParam()).dialogo);
    TecleaPieza(dialogo, azar);
    if (dialogo.CmdAceptar() != Respuesta::aceptado) continue;
    ++dibujadas;
    ExpectHoja();
    if (HasFailure()) return;
  }
  EXPECT_GT(dibujadas, 32);
}

INSTANTIATE_TEST_SUITE_P(Tipos, Hojas, testing::ValuesIn(Tipos()));

}  // namespace
}  // namespace duktores
