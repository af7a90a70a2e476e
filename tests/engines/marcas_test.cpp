// The marks of a pattern, read from the drawing alone.

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <sstream>

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
  int valor;
  Punto2 sitio;
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
    } else if (tipo == "TEXT" && c == 1) {
      d.numeros.back().valor = std::stoi(valor);
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

// Each piece: numbers from 1 without a gap, one on the middle of each line, the others on the middle of an edge or of
// the part of an edge up to where a side line or the cut ends.
void CompruebaMarcas(const Dibujado& d, int N) {
  const int porPieza = d.contornos.size() == 1 ? 2 * N + 17 : N + 9;
  ASSERT_EQ(d.numeros.size(), porPieza * d.contornos.size());
  std::vector<Punto2> nudos;
  for (const auto& contorno : d.contornos) nudos.insert(nudos.end(), contorno.begin(), contorno.end());
  for (const Linea& linea : d.lineas) nudos.insert(nudos.end(), {linea.p, linea.q});
  std::size_t enLinea = 0;
  for (std::size_t i = 0; i < d.numeros.size(); ++i) {
    const Numero& n = d.numeros[i];
    ASSERT_EQ(n.valor, static_cast<int>(i) % porPieza + 1);
    const auto enMedio = [&](Punto2 p, Punto2 q) { return Distancia(0.5 * (p + q), n.sitio) < 1e-9; };
    enLinea += static_cast<std::size_t>(
        std::ranges::count_if(d.lineas, [&](const Linea& l) { return enMedio(l.p, l.q); }) > 0);
    const bool medio = std::ranges::any_of(
        nudos, [&](Punto2 p) { return std::ranges::any_of(nudos, [&](Punto2 q) { return enMedio(p, q); }); });
    ASSERT_TRUE(medio) << "number " << n.valor << " sits on the middle of nothing";
  }
  EXPECT_EQ(enLinea, d.lineas.size());
}

TEST(Marcas, OneNumberForEachLineAndEdge) {
  const auto semilla = std::random_device{}();
  std::mt19937 azar(semilla);
  std::uniform_real_distribution<double> u(0, 1);
  for (int i = 0; i < 120; ++i) {
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
    if (HasFatalFailure()) return;
  }
}

TEST(Marcas, NumbersOfTheSideLines) {
  const Dibujado d = Desarrolla<clTransCR>(false, 12, 1, 0, {}, 400, 300, 100.0);
  ASSERT_EQ(d.lineas.size(), 12U + 4 + 3);
  for (std::size_t i = 0; i < d.lineas.size(); ++i) {
    EXPECT_EQ(d.lineas[i].color, i == 4 || i == 9 || i == 14 ? 6 : 3) << i;
    EXPECT_LT(Distancia(0.5 * (d.lineas[i].p + d.lineas[i].q), d.numeros[i].sitio), 1e-9) << i;
  }
  // The seam comes last, the sides of the rectangle from left to right before the circle.
  EXPECT_LT(d.numeros[19].sitio.x, d.numeros[26].sitio.x);
  EXPECT_LT(d.numeros[39].sitio.x, 0);
  EXPECT_GT(d.numeros[40].sitio.x, 0);
}

TEST(Marcas, RecordsForTheTable) {
  estado = {};
  estado.oDrawing = std::make_shared<cDrawing>();
  estado.iHandleDxf = 500;
  EWdraw axew;
  clTransCR motor;
  motor.GeneraPuntos(axew, 400, 300, 100, 12, 10, 20, 300, 0, 1);
  Transicion t = motor.Modelo();
  GeneraDoblados(t, axew, Parte::entera);
  EXPECT_DOUBLE_EQ(t.dLongInicio, Distancia(t.dPtoInicio, t.dPuntos3D(1)));
  EXPECT_NEAR(Distancia(t.dPieLado1, t.dPuntosPlano(4)), t.dLongLado1, 1e-9);
  EXPECT_NEAR(Distancia(t.dPieLado2, t.dPuntosPlano(10)), t.dLongLado2, 1e-9);
  const Punto2 suelta = t.dPieLado2;
  const double larga = t.dLongLado2;
  t.dPtoBase = {1000, 0};
  GeneraDoblados(t, axew, Parte::segunda);
  EXPECT_NEAR(Distancia(t.dPieLado1, suelta + t.dPtoBase), 0, 1e-9);
  EXPECT_DOUBLE_EQ(t.dLongLado1, larga);
}

}  // namespace
}  // namespace duktores
