#include <gtest/gtest.h>

#include <random>

#include "nest/revisa.h"

namespace duktores {
namespace {

using Contorno = std::vector<Punto2>;

Contorno Rectangulo(double ancho, double alto) { return {{0, 0}, {ancho, 0}, {ancho, alto}, {0, alto}}; }

// A ring's sector: concave, and with many short steps.
Contorno Sector(double radio, double ancho, double grados, int pasos) {
  Contorno contorno;
  const auto pon = [&](double r, int i) {
    const double a = Radianes(grados * i / pasos);
    contorno.push_back({r * std::cos(a), r * std::sin(a)});
  };
  for (int i = 0; i <= pasos; ++i) pon(radio, i);
  for (int i = pasos; i >= 0; --i) pon(radio - ancho, i);
  return contorno;
}

// Rays of random length, so concave nearly always; sometimes clockwise, and anywhere.
Contorno Estrella(std::mt19937& azar, double tamano) {
  std::uniform_real_distribution<double> largo(0.2, 1), donde(-5000, 5000);
  const int n = std::uniform_int_distribution(3, 40)(azar);
  const Punto2 centro{donde(azar), donde(azar)};
  Contorno contorno;
  for (int i = 0; i < n; ++i) {
    const double a = 2 * dPi * i / n, r = tamano * largo(azar);
    contorno.push_back(centro + Punto2{r * std::cos(a), r * std::sin(a)});
  }
  if (n % 3 == 0) std::reverse(contorno.begin(), contorno.end());
  return contorno;
}

EncargoNido AlAzar(unsigned semilla) {
  std::mt19937 azar(semilla);
  std::uniform_real_distribution<double> parte(0, 1);
  EncargoNido encargo;
  encargo.chapas = {{{2000, 1000}}, {{1500, 700}, 1}};
  if (semilla % 4 == 0) encargo.chapas[0].cuantas = 1;
  encargo.hueco = semilla % 2 == 0 ? 0 : 12 * parte(azar);
  encargo.margen = 15 * parte(azar);
  encargo.giro = std::array{0., 180., 90., 15.}[semilla % 4];
  for (unsigned i = 0; i < 3 + semilla % 6; ++i) {
    const Contorno contorno = parte(azar) < 0.6 ? Estrella(azar, 60 + 400 * parte(azar))
                                                : Sector(150 + 400 * parte(azar), 100, 20 + 200 * parte(azar), 30);
    encargo.partes.push_back({contorno, 1 + static_cast<int>(3 * parte(azar))});
    Contorno reflejado;  // the other half of a duct, whose edges run as the first one's
    for (const Punto2 p : contorno) reflejado.push_back({-p.x, p.y});
    if (parte(azar) < 0.5) encargo.partes.push_back({reflejado, 2});
  }
  return encargo;
}

bool Iguales(const Nido& a, const Nido& b) {
  if (a.chapas.size() != b.chapas.size()) return false;
  for (std::size_t i = 0; i < a.chapas.size(); ++i) {
    if (a.chapas[i].partes.size() != b.chapas[i].partes.size()) return false;
    for (std::size_t j = 0; j < a.chapas[i].partes.size(); ++j) {
      const Colocada &p = a.chapas[i].partes[j], &q = b.chapas[i].partes[j];
      if (p.parte != q.parte || p.grados != q.grados || p.sitio != q.sitio) return false;
    }
  }
  return true;
}

TEST(Nido, RandomListsAreLaidSoundlyAndAlikeOnAnyNumberOfThreads) {
  for (unsigned semilla = 0; semilla < 8; ++semilla) {
    const EncargoNido encargo = AlAzar(semilla);
    const Nido nido = Anida(encargo, {.vueltas = 2, .semilla = semilla, .hilos = 1});
    EXPECT_TRUE(RevisaChapas(encargo, nido).empty()) << semilla;
    EXPECT_TRUE(CuadranCantidades(encargo, nido)) << semilla;
    EXPECT_TRUE(Iguales(nido, Anida(encargo, {.vueltas = 2, .semilla = semilla, .hilos = 3}))) << semilla;
  }
}

TEST(Nido, LaysWhatFitsAndTellsWhyTheRestDoesNot) {
  EncargoNido encargo;
  encargo.chapas = {{{1000, 500}, 1}, {{400, 300}, 1}};
  encargo.margen = 10;
  encargo.hueco = 5;
  encargo.giro = 90;
  encargo.partes = {{Rectangulo(380, 280)},  // exactly what the small sheet takes
                    {Rectangulo(480, 980)},
                    {Rectangulo(990, 10)},
                    {{{0, 0}, {100, 0}, {200, 0}}},
                    {Rectangulo(200, 100), 2},
                    {{{0, 0}, {1e300, 0}, {0, std::nan("")}}}};
  const Nido nido = Anida(encargo, {.vueltas = 3});
  EXPECT_TRUE(RevisaChapas(encargo, nido).empty());
  EXPECT_TRUE(CuadranCantidades(encargo, nido));
  ASSERT_EQ(nido.chapas.size(), 2U);
  std::vector<FaltaNido> motivos(encargo.partes.size());
  for (const NoPuesta& falta : nido.faltan) motivos[falta.parte] = falta.motivo;
  EXPECT_EQ(motivos[2], FaltaNido::noCabe);
  EXPECT_EQ(motivos[3], FaltaNido::sinArea);
  EXPECT_EQ(motivos[4], FaltaNido::sinChapas);
  EXPECT_EQ(motivos[5], FaltaNido::sinArea);
  EXPECT_EQ(nido.faltan.size(), 4U);

  bool sigue = true;
  const Nido cortado = Anida(encargo, {.segundos = 60, .hilos = 2}, {[&] { return std::exchange(sigue, false); }});
  EXPECT_TRUE(CuadranCantidades(encargo, cortado));
}

TEST(Nido, CornersThatRoundingsMakeOneDoNoHarm) {
  EncargoNido encargo;
  encargo.chapas = {{{2000, 1000}}};
  encargo.giro = 15;
  for (const double corte : {0.001, 0.002, 0.003}) {
    encargo.partes.push_back({{{0, 0}, {300, 0}, {300, 200}, {corte, 200}, {0, 200 - corte}}, 2});
    encargo.partes.push_back({{{0, 0}, {300, 0}, {150, corte}, {150 - corte, 200}, {150 - corte, corte}}, 2});
  }
  const Nido nido = Anida(encargo, {.vueltas = 3});
  EXPECT_TRUE(RevisaChapas(encargo, nido).empty());
  EXPECT_TRUE(CuadranCantidades(encargo, nido));
}

TEST(Nido, FillsBetterThanBoxesSideBySide) {
  EncargoNido encargo;
  encargo.chapas = {{{2000, 1000}}};
  encargo.hueco = 5;
  encargo.giro = 180;
  encargo.partes = {{{{0, 0}, {900, 0}, {0, 900}}, 4}};
  const Nido nido = Anida(encargo, {.vueltas = 5, .hilos = 2});
  EXPECT_TRUE(RevisaChapas(encargo, nido).empty());
  EXPECT_EQ(nido.chapas.size(), 1U);  // where two boxes fit
}

// Rounds in which the order alone changes leave more room than those in which parts are moved apart.
TEST(Nido, SqueezesWhatTheBestOrderLeavesLoose) {
  EncargoNido encargo;
  encargo.chapas = {{{6000, 1000}, 1}};
  encargo.hueco = 5;
  encargo.giro = 90;
  for (const double grados : {60., 90., 120., 150.}) encargo.partes.push_back({Sector(400, 180, grados, 20), 4});
  const auto largo = [&](int vueltas) {
    const Nido nido = Anida(encargo, {.vueltas = vueltas});
    EXPECT_TRUE(RevisaChapas(encargo, nido).empty() && CuadranCantidades(encargo, nido) && nido.faltan.empty());
    double derecha = 0;
    for (const Colocada& c : nido.chapas.at(0).partes) {
      for (const Punto2 p : ContornoEn(encargo.partes[c.parte], c)) derecha = std::max(derecha, p.x);
    }
    return derecha;
  };
  EXPECT_LT(largo(8), 0.92 * largo(1));
}

TEST(Revision, FindsEachFault) {
  EncargoNido encargo;
  encargo.chapas = {{{1000, 1000}, 1}};
  encargo.hueco = 5;
  encargo.margen = 10;
  encargo.giro = 90;
  const Contorno marcoAbierto{{0, 0},    {400, 0},   {400, 400}, {0, 400}, {0, 201},  {50, 201},
                              {50, 350}, {350, 350}, {350, 50},  {50, 50}, {50, 199}, {0, 199}};
  encargo.partes = {{Rectangulo(100, 100), 2}, {marcoAbierto}, {Rectangulo(20, 20), 0}};
  const auto revisa = [&](Colocada una, Colocada otra, Colocada marco) {
    const auto fallas = RevisaChapas(encargo, {{{0, {una, otra, marco}}}, {}});
    return fallas.size() == 1 ? std::optional(fallas[0].falta) : std::nullopt;
  };
  const Colocada una{0, 0, {500, 10}}, otra{0, 0, {500, 115}}, marco{1, 0, {10, 10}};
  EXPECT_TRUE(RevisaChapas(encargo, {{{0, {una, otra, marco}}}, {}}).empty());
  EXPECT_EQ(revisa(una, {0, 0, {500, 114.99999}}, marco), FaltaRevision::demasiadoCerca);
  EXPECT_EQ(revisa(una, {0, 0, {550, 60}}, marco), FaltaRevision::demasiadoCerca);
  EXPECT_EQ(revisa(una, una, marco), FaltaRevision::demasiadoCerca);
  EXPECT_EQ(revisa(una, {2, 0, {540, 50}}, marco), FaltaRevision::dentroDeOtra);
  EXPECT_EQ(revisa({0, 0, {500, 9.99999}}, otra, marco), FaltaRevision::fueraDeChapa);
  EXPECT_EQ(revisa(una, {0, 180, {990.00001, 990}}, marco), FaltaRevision::fueraDeChapa);
  EXPECT_EQ(revisa(una, {0, 45, {500, 300}}, marco), FaltaRevision::giroProhibido);
  // In the frame's hollow a part may lie; across its wall it may not.
  EXPECT_TRUE(RevisaChapas(encargo, {{{0, {una, {0, 90, {250, 100}}, marco}}}, {}}).empty());
  EXPECT_EQ(revisa(una, {0, 0, {330, 100}}, marco), FaltaRevision::demasiadoCerca);

  EXPECT_TRUE(CuadranCantidades(encargo, {{{0, {una, otra, marco}}}, {}}));
  EXPECT_FALSE(CuadranCantidades(encargo, {{{0, {una, marco}}}, {}}));
  EXPECT_TRUE(CuadranCantidades(encargo, {{{0, {una, marco}}}, {{0, 1, FaltaNido::sinChapas}}}));
  EXPECT_FALSE(CuadranCantidades(encargo, {{{0, {una, otra}}, {0, {marco}}}, {}}));
}

}  // namespace
}  // namespace duktores
