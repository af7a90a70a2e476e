// The marks of a pattern, read from the drawing alone.

#include <gtest/gtest.h>

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
struct Numero {
  int valor, color;
  Punto2 sitio;
  double altura, angulo;
};
struct Dibujado {
  std::vector<std::vector<Punto2>> contornos;
  std::vector<Linea> lineas;
  std::vector<Numero> numeros;
};

// The pairs of the DXF text, entity by entity.
Dibujado Lee(const std::string& dxf) {
  Dibujado d;
  std::istringstream entrada(dxf);
  std::string codigo, valor, tipo;
  while (std::getline(entrada, codigo) && std::getline(entrada, valor)) {
    const int c = std::stoi(codigo);
    valor.pop_back();
    if (c == 0) {
      tipo = valor;
      if (tipo == "LWPOLYLINE") d.contornos.emplace_back();
      if (tipo == "LINE") d.lineas.emplace_back();
      if (tipo == "TEXT") d.numeros.emplace_back();
    } else if (tipo == "LWPOLYLINE" && (c == 10 || c == 20)) {
      if (c == 10) d.contornos.back().emplace_back();
      (c == 10 ? d.contornos.back().back().x : d.contornos.back().back().y) = std::stod(valor);
    } else if (tipo == "LINE" && (c == 10 || c == 20 || c == 11 || c == 21)) {
      Punto2& p = c % 2 == 0 ? d.lineas.back().p : d.lineas.back().q;
      (c < 20 ? p.x : p.y) = std::stod(valor);
    } else if (tipo == "LINE" && c == 62) {
      d.lineas.back().color = std::stoi(valor);
    } else if (tipo == "TEXT" && (c == 10 || c == 20)) {
      (c == 10 ? d.numeros.back().sitio.x : d.numeros.back().sitio.y) = std::stod(valor);
    } else if (tipo == "TEXT" && (c == 40 || c == 50)) {
      (c == 40 ? d.numeros.back().altura : d.numeros.back().angulo) = std::stod(valor);
    } else if (tipo == "TEXT" && (c == 1 || c == 62)) {
      (c == 1 ? d.numeros.back().valor : d.numeros.back().color) = std::stoi(valor);
    }
  }
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

// One piece, whose outline runs along the circle, back along the corners, and to its first point twice. Fans on all
// corners but the outer two, side lines between them; the numbers follow these lines, then the edges: corners and feet
// of the side lines from left to right, the circle, the left and the right end.
void CompruebaPieza(const std::vector<Punto2>& contorno, const Linea*& linea, const Numero*& numero, std::size_t q,
                    std::size_t abanicos) {
  const std::size_t nF = abanicos * q + 1;
  ASSERT_EQ(contorno.size(), nF + abanicos + (abanicos == 4 ? 5 : 4));
  std::vector<Punto2> F(contorno.begin(), contorno.begin() + static_cast<std::ptrdiff_t>(nF));
  std::vector<Punto2> C(contorno.rbegin() + 2, contorno.rend() - static_cast<std::ptrdiff_t>(nF));
  EXPECT_EQ(contorno[contorno.size() - 2], F[0]);
  std::vector<Punto2> medios, cadena{C[0], C[1]};
  const auto lado = [&](Punto2 a, Punto2 b) { medios.push_back(0.5 * (a + b)); };
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
  cadena.push_back(C[abanicos + 1]);
  for (std::size_t i = 1; i < cadena.size(); ++i) lado(cadena[i - 1], cadena[i]);
  for (std::size_t k = 1; k < nF; ++k) lado(F[k - 1], F[k]);
  lado(F[0], C[0]);
  lado(F.back(), C[abanicos + 1]);
  for (std::size_t i = 0; i < medios.size(); ++i, ++numero) {
    EXPECT_TRUE(Juntos(numero->sitio, medios[i])) << "number " << i + 1;
    EXPECT_EQ(numero->valor, static_cast<int>(i) + 1);
    EXPECT_EQ(std::tuple(numero->color, numero->altura, numero->angulo), std::tuple(1, 10, 0));
  }
}

void CompruebaMarcas(const Dibujado& d, int N) {
  const auto q = static_cast<std::size_t>(N / 4), piezas = d.contornos.size();
  ASSERT_EQ(d.lineas.size(), piezas == 1 ? 4 * q + 7 : 2 * (2 * q + 3));
  ASSERT_EQ(d.numeros.size(), piezas == 1 ? 8 * q + 17 : 2 * (4 * q + 9));
  const Linea* linea = d.lineas.data();
  const Numero* numero = d.numeros.data();
  for (const auto& contorno : d.contornos) CompruebaPieza(contorno, linea, numero, q, 4 / piezas);
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
TEST(Marcas, SideLinesAndTheirRecords) {
  for (const bool fueraLado : {false, true}) {
    estado = {};
    EWdraw axew;
    Transicion t;
    t.dPuntosPlano = {{-2, 3}, {-1, 4}, {0.5, 3}, {1, -5}, {2, 3}};
    t.dVerticesPlano = {{-6, 0}, {-5, 0}, {-2, 0}, {2, 0}, {5, 0}, {6, 0}};
    t.bFueraLado = fueraLado;
    t.bFueraCierre = !fueraLado;
    const Punto2 pie1{fueraLado ? -3.5 : -1, 0}, pie2{fueraLado ? 0.5 : 0, 0}, alto2{0.5, 3}, bajo3{1, -5};
    const double largo1 = fueraLado ? std::hypot(2.5, 4) : 4, largo2 = fueraLado ? 3 : std::hypot(0.5, 3),
                 largo3 = fueraLado ? std::hypot(2.5, 5) : 5;
    CortePieza1(t);
    EXPECT_TRUE(Juntos(t.dPieLado1P1, pie1));
    EXPECT_DOUBLE_EQ(t.dLongLado1P1, largo1);
    EXPECT_TRUE(Juntos(t.dCorteAlto, alto2));
    EXPECT_TRUE(Juntos(t.dCorteBajo, pie2));
    EXPECT_TRUE(Juntos(t.dCorteBajo2, fueraLado ? Punto2{} : pie2));
    EXPECT_DOUBLE_EQ(t.dLongCorte, fueraLado ? 0 : largo2);
    GeneraDoblados(t, axew, Parte::entera);
    EXPECT_TRUE(Juntos(t.dPieLado1, pie1));
    EXPECT_TRUE(Juntos(t.dPieInicio, pie2));
    EXPECT_TRUE(Juntos(t.dPieLado2, bajo3)) << "the circle's end hangs lower";
    EXPECT_DOUBLE_EQ(t.dLongLado1, largo1);
    EXPECT_DOUBLE_EQ(t.dLongInicio, largo2);
    EXPECT_DOUBLE_EQ(t.dLongLado2, largo3);
    t.dPtoBase = {1000, 70};
    GeneraDoblados(t, axew, Parte::segunda);
    EXPECT_TRUE(Juntos(t.dPieLado1, bajo3 + t.dPtoBase));
    EXPECT_NEAR(t.dLongLado1, largo3, 1e-9);
    GeneraDoblados(t, axew, Parte::primera);
    EXPECT_TRUE(Juntos(t.dPieLado1, pie1 + t.dPtoBase));
    EXPECT_NEAR(t.dLongLado1, largo1, 1e-9);
  }
}

}  // namespace
}  // namespace duktores
