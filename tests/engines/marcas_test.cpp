// The marks of a pattern, read from the drawing alone.

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <iterator>
#include <random>
#include <sstream>
#include <tuple>

#include "dxf/dibujo.h"
#include "engines/marcas.h"
#include "engines/trans_cr.h"
#include "engines/trans_elip.h"
#include "engines/trans_rc.h"
#include "state/estado.h"

namespace duktores {
namespace {

struct Linea {
  Punto2 p, q;
  int color;
};
struct Rotulo {
  std::string texto;
  int color;
  Punto2 sitio;
  double altura, angulo;
};
struct Dibujado {
  std::vector<std::vector<Punto2>> contornos;
  std::vector<Linea> lineas;
  std::vector<Rotulo> numeros, filas, valores;  // filas: of the tables, valores: of the title blocks
};

// The pairs of the DXF text, entity by entity. Colour 7 is the title block: of its texts only the table's are kept.
Dibujado Lee(const std::string& dxf) {
  Dibujado d;
  std::vector<Rotulo> textos;
  std::istringstream entrada(dxf);
  std::string codigo, valor, tipo;
  while (std::getline(entrada, codigo) && std::getline(entrada, valor)) {
    const int c = std::stoi(codigo);
    valor.pop_back();
    if (c == 0) {
      tipo = valor;
      if (tipo == "LWPOLYLINE") d.contornos.emplace_back();
      if (tipo == "LINE") d.lineas.emplace_back();
      if (tipo == "TEXT") textos.emplace_back();
    } else if (tipo == "LWPOLYLINE" && (c == 10 || c == 20)) {
      if (c == 10) d.contornos.back().emplace_back();
      (c == 10 ? d.contornos.back().back().x : d.contornos.back().back().y) = std::stod(valor);
    } else if (tipo == "LINE" && (c == 10 || c == 20 || c == 11 || c == 21)) {
      Punto2& p = c % 2 == 0 ? d.lineas.back().p : d.lineas.back().q;
      (c < 20 ? p.x : p.y) = std::stod(valor);
    } else if (tipo == "LINE" && c == 62) {
      d.lineas.back().color = std::stoi(valor);
    } else if (tipo == "TEXT" && (c == 10 || c == 20)) {
      (c == 10 ? textos.back().sitio.x : textos.back().sitio.y) = std::stod(valor);
    } else if (tipo == "TEXT" && (c == 40 || c == 50)) {
      (c == 40 ? textos.back().altura : textos.back().angulo) = std::stod(valor);
    } else if (tipo == "TEXT" && c == 1) {
      textos.back().texto = valor;
    } else if (tipo == "TEXT" && c == 62) {
      textos.back().color = std::stoi(valor);
    }
  }
  std::erase_if(d.lineas, [](const Linea& linea) { return linea.color == 7; });
  std::ranges::copy_if(textos, std::back_inserter(d.numeros), [](const Rotulo& r) { return r.color == 1; });
  std::ranges::copy_if(textos, std::back_inserter(d.valores), [](const Rotulo& r) { return r.color == 3; });
  std::ranges::copy_if(textos, std::back_inserter(d.filas),
                       [](const Rotulo& r) { return r.color == 7 && std::isdigit(r.texto[0]) != 0; });
  return d;
}

class Sitio : public VistaEWdraw {
  std::optional<Punto3> EligePunto(EWdraw&) override { return Punto3{x += 5000, 40, 0}; }
  double x = 0;
};

template <class Motor, class... Tamanos>
Dibujado Desarrolla(bool dosPiezas, std::int16_t N, std::int16_t inicio, double inclinacion, Punto2 desvio, double L1,
                    double L2, Tamanos... boca) {
  estado = {};
  estado.oDrawing = std::make_shared<cDrawing>();
  estado.iHandleDxf = 500;
  estado.dTamanoTexto = 10;
  estado.iColorDoblez = 3;
  estado.iBox = 1;
  estado.sDensidad = "7.85";
  estado.dEspesor = 1.5;
  estado.iUnidad = inicio == 1 ? 0 : 1;
  estado.bDosPiezas = dosPiezas;
  EWdraw axew;
  Sitio sitio;
  axew.PonVista(&sitio);
  Motor motor;
  motor.GeneraPuntos(axew, L1, L2, boca..., N, desvio.x, desvio.y, 300.0, inclinacion, inicio);
  motor.GeneraDesarrollo(axew, N);
  return Lee(estado.oDrawing->GetEntities());
}

bool Juntos(Punto2 a, Punto2 b) { return Distancia(a, b) < 1e-6; }

// A length cut to the decimals of the unit, but for a thousandth that the cut may have rounded up.
void CompruebaTabla(const Rotulo* fila, const std::vector<double>& largos, std::size_t dobleces, std::size_t q) {
  const bool mm = estado.iUnidad == 1;
  const Punto2 esquina = fila->sitio;
  Punto2 sitio = esquina;
  for (std::size_t i = 0, enColumna = 0; i < largos.size(); ++i, ++enColumna, ++fila) {
    // Side lines are the (q + 2)th and its multiples.
    const bool pegada = i < dobleces ? (i + 1) % (q + 2) == 0 || (i > 0 && i % (q + 2) == 0) : i == dobleces;
    if (enColumna > 0 && enColumna % 30 == 0 && !pegada) {
      sitio = {sitio.x + 180, esquina.y};
      enColumna = 0;
    }
    EXPECT_TRUE(Juntos(fila->sitio, sitio)) << "row " << i + 1;
    sitio.y -= 22;
    EXPECT_EQ(std::tuple(fila->altura, fila->angulo), std::tuple(11, 0));
    const std::string cabeza = std::to_string(i + 1) + "  ", cola = i >= dobleces ? "" : mm ? " mm" : " in";
    ASSERT_TRUE(fila->texto.starts_with(cabeza) && fila->texto.ends_with(cola)) << fila->texto;
    const double paso = mm ? 0.01 : 0.001, largo = std::stod(fila->texto.substr(cabeza.size()));
    EXPECT_TRUE(largo <= largos[i] + 0.00051 && largo > largos[i] - paso - 0.00051) << fila->texto << " " << largos[i];
    EXPECT_NEAR(largo, paso * std::nearbyint(largo / paso), 1e-9) << fila->texto;
  }
}

// One piece, whose outline runs along the circle, back along the corners, and to its first point twice. Fans on all
// corners but the outer two, side lines between them; the numbers follow these lines, then the edges: corners and feet
// of the side lines from left to right, the circle, the left and the right end.
void CompruebaPieza(const std::vector<Punto2>& contorno, const Linea*& linea, const Rotulo*& numero,
                    const Rotulo*& fila, std::size_t q, std::size_t abanicos) {
  const std::size_t nF = abanicos * q + 1;
  ASSERT_EQ(contorno.size(), nF + abanicos + (abanicos == 4 ? 5 : 4));
  std::vector<Punto2> F(contorno.begin(), contorno.begin() + static_cast<std::ptrdiff_t>(nF));
  std::vector<Punto2> C(contorno.rbegin() + 2, contorno.rend() - static_cast<std::ptrdiff_t>(nF));
  EXPECT_EQ(contorno[contorno.size() - 2], F[0]);
  std::vector<Punto2> medios, cadena{C[0], C[1]};
  std::vector<double> largos;
  const auto lado = [&](Punto2 a, Punto2 b) {
    medios.push_back(0.5 * (a + b));
    largos.push_back(Distancia(a, b));
  };
  const auto dibujada = [&](Punto2 p, int color) {
    EXPECT_TRUE(Juntos(linea->p, p)) << "line " << medios.size() + 1;
    EXPECT_EQ(linea->color, color) << "line " << medios.size() + 1;
    lado(linea->p, linea->q);
    return linea++;
  };
  for (std::size_t abanico = 0; abanico < abanicos; ++abanico) {
    if (abanico > 0) {
      const Linea* costado = dibujada(F[abanico * q], 6);
      cadena.insert(cadena.end(), {costado->p.y < costado->q.y ? costado->p : costado->q, C[abanico + 1]});
    }
    for (std::size_t k = abanico * q; k <= (abanico + 1) * q; ++k) {
      EXPECT_TRUE(Juntos(dibujada(F[k], 3)->q, C[abanico + 1]));
    }
  }
  const std::size_t dobleces = medios.size();
  cadena.push_back(C[abanicos + 1]);
  for (std::size_t i = 1; i < cadena.size(); ++i) lado(cadena[i - 1], cadena[i]);
  for (std::size_t k = 1; k < nF; ++k) lado(F[k - 1], F[k]);
  lado(F[0], C[0]);
  lado(F.back(), C[abanicos + 1]);
  for (std::size_t i = 0; i < medios.size(); ++i, ++numero) {
    EXPECT_TRUE(Juntos(numero->sitio, medios[i])) << "number " << i + 1;
    EXPECT_EQ(numero->texto, std::to_string(i + 1));
    EXPECT_EQ(std::tuple(numero->color, numero->altura, numero->angulo), std::tuple(1, 10, 0));
  }
  CompruebaTabla(fila, largos, dobleces, q);
  fila += largos.size();
}

// The sheet figures, the last eight values: of the first outline, in both blocks.
void CompruebaChapa(const Dibujado& d) {
  const auto& contorno = d.contornos[0];
  double area = 0, perimetro = 0;
  Caja caja;
  for (std::size_t i = 1; i < contorno.size(); ++i) {
    const Punto2 p = contorno[i - 1], q = contorno[i];
    area += (p.x * q.y - q.x * p.y) / 2;
    perimetro += Distancia(p, q);
    caja.Incluye({p.x, p.y, 0});
  }
  area = std::abs(area);
  const bool mm = estado.iUnidad == 1;
  const double rectangulo = (caja.maximo.x - caja.minimo.x) * (caja.maximo.y - caja.minimo.y);
  const double peso = 7.85 * 1.5 * (mm ? 0.001 : 1), cm = mm ? 0.1 : 1, cm2 = mm ? 0.01 : 1;
  const double figuras[]{7.85,
                         perimetro * cm,
                         area * cm2,
                         rectangulo * cm2,
                         area * peso,
                         rectangulo * peso,
                         (rectangulo - area) * cm2,
                         100 - 100 * area / rectangulo};
  for (std::size_t i = 0; i < 8; ++i) {
    const double escrita = std::stod(d.valores[d.valores.size() - 8 + i].texto);
    EXPECT_NEAR(escrita, figuras[i] - 0.005, 0.0056 + 1e-9 * figuras[i]) << "figure " << i;
  }
}

void CompruebaMarcas(const Dibujado& d, int N) {
  const auto q = static_cast<std::size_t>(N / 4), piezas = d.contornos.size();
  ASSERT_EQ(d.lineas.size(), piezas == 1 ? 4 * q + 7 : 2 * (2 * q + 3));
  ASSERT_EQ(d.numeros.size(), piezas == 1 ? 8 * q + 17 : 2 * (4 * q + 9));
  ASSERT_EQ(d.filas.size(), d.numeros.size());
  const Linea* linea = d.lineas.data();
  const Rotulo *numero = d.numeros.data(), *fila = d.filas.data();
  for (const auto& contorno : d.contornos) CompruebaPieza(contorno, linea, numero, fila, q, 4 / piezas);
  CompruebaChapa(d);
}

TEST(Marcas, OneNumberForEachLineAndEdge) {
  const auto semilla = std::random_device{}();
  std::mt19937 azar(semilla);
  std::uniform_real_distribution<double> u(0, 1);
  for (int i = 0; i < 60; ++i) {
    SCOPED_TRACE("seed " + std::to_string(semilla) + " piece " + std::to_string(i));
    const auto N = static_cast<std::int16_t>(12 * (1 + azar() % 3)), inicio = static_cast<std::int16_t>(1 + azar() % 4);
    const bool dos = azar() % 2 == 0;
    const double L1 = 300 + 200 * u(azar), L2 = 300 + 200 * u(azar), tilt = azar() % 2 == 0 ? 0 : 20 * u(azar);
    const Punto2 desvio{100 * (2 * u(azar) - 1), 250 * (2 * u(azar) - 1)};
    CompruebaMarcas(Desarrolla<clTransCR>(dos, N, inicio, Radianes(tilt), desvio, L1, L2, 100 + 40 * u(azar)), N);
    CompruebaMarcas(Desarrolla<clTransRC>(dos, N, inicio, Radianes(tilt), desvio, L1, L2, 150 + 90 * u(azar)), N);
    CompruebaMarcas(
        Desarrolla<clTransBaRectBoElip>(dos, N, inicio, -tilt, desvio, L1, L2, 250 + 99 * u(azar), 200 + 40 * u(azar)),
        N);
    if (HasFailure()) return;
  }
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

}  // namespace
}  // namespace duktores
