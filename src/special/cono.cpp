#include "special/cono.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace duktores {

namespace {

// The quarter of a corner as a span of elements, counted from the middle one. k: whole chords from element 1 to the
// direction of the offset; q: those of a quarter. Columns by the signs of the offset: - -, + -, + +, - +.
enum Reparto { S1, S2, S3, S4, S5, S6 };
constexpr Reparto kTramos[2][4][4] = {
    {{S1, S2, S1, S3}, {S4, S5, S6, S5}, {S1, S3, S1, S2}, {S6, S5, S4, S5}},
    {{S1, S4, S5, S6}, {S2, S1, S3, S1}, {S5, S6, S5, S4}, {S3, S1, S2, S1}},
};

std::array<int, 2> Desplazamientos(Reparto tramo, int k, int q) {
  switch (tramo) {
    case S1:
      return {-k, q - k};
    case S2:
      return {-(2 * q - k), -(q - k)};
    case S3:
      return {k, q + k};
    case S4:
      return {-(q + k), -k};
    case S5:
      return {-(q - k), k};
    case S6:
      break;
  }
  return {q - k, 2 * q - k};
}

std::size_t Cuadrante(Punto2 desvio) {
  if (desvio.y < 0) return desvio.x < 0 ? 0 : 1;
  return desvio.x < 0 ? 3 : 2;
}

}  // namespace

double AnguloInicial(Punto2 desvio, int iiTem, bool bCambio) {
  const auto [x, y] = desvio;
  const double sx = iiTem <= 2 ? 1 : -1, sy = iiTem == 1 || iiTem == 4 ? 1 : -1, sentido = bCambio ? -1 : 1;
  return sentido * sx * x > 0 && sentido * sy * y > 0 ? 0 : dPi;
}

// Radii moved apart by 0.2 give offsets of 0.2 but for the last digits, which must not choose another quarter.
double LejosDeCero(double v) {
  constexpr double kDesvioMinimo = 0.2, kIgual = 1e-9;
  return std::abs(v) < kDesvioMinimo - kIgual ? kDesvioMinimo : v;
}

void clCono::GeneraPuntos(const Cono& cono) {
  cono_ = cono;
  dDesBase_ = dDesBoca_ = {};
  dLongBase_.clear();
  tramo_.reset();
  const auto& [Radiobase, RadioAlto, Altura, inumPuntos, desvio, iiTem, bCambio] = cono_;
  if (Radiobase == RadioAlto) return;
  const double Xa = std::abs(std::hypot(desvio.x, desvio.y) * Radiobase / (RadioAlto - Radiobase));
  const double Za = std::abs(Altura * Radiobase / (RadioAlto - Radiobase));
  if (!(Za > 0) || !std::isfinite(Xa + Za)) return;

  const double a0 = AnguloInicial(desvio, iiTem, bCambio);
  for (int i = 0; i <= inumPuntos; ++i) {
    const double a = a0 + i * 2 * dPi / inumPuntos;
    dLongBase_.push_back(std::hypot(Za, std::hypot(Xa + Radiobase * std::cos(a), Radiobase * std::sin(a))));
  }
  if (!DesarrollaBase(Xa, a0)) {
    dDesBase_ = {};
    return;
  }
  // The other rim lies on the same rays: the heights over the base and up to the apex give the share of each length.
  dDesBoca_ = dDesBase_;
  for (int i = 1; i <= inumPuntos + 1; ++i) dDesBoca_(i) = (1 - Altura / Za) * dDesBase_(i);
}

// By the angles at the apex between neighbouring elements, from the middle outwards. With L and M the lengths of two
// neighbours and c the chord between them, the angle is 2*asin(sqrt((c^2 - (L - M)^2) / (4*L*M))); L - M comes from
// L^2 - M^2 = 2*Xa*(px - qx), which loses no digits for near-equal lengths.
bool clCono::DesarrollaBase(double Xa, double a0) {
  const double Rb = cono_.Radiobase;
  const int n = cono_.inumPuntos;
  const double paso = 2 * dPi / n, cuerda = 2 * Rb * std::sin(paso / 2);
  dDesBase_ = Puntos2(n + 1);
  const int medio = n / 2 + 1;
  double apertura = 0;
  dDesBase_(medio) = {0, -dLongBase_[static_cast<std::size_t>(medio - 1)]};
  for (int i = medio - 1; i >= 1; --i) {
    const double L = dLongBase_[static_cast<std::size_t>(i - 1)], M = dLongBase_[static_cast<std::size_t>(i)];
    const double enMedio = a0 + (i - 0.5) * paso;
    const double dif = 2 * Xa * Rb * (2 * std::sin(enMedio) * std::sin(paso / 2)) / (L + M);
    const double seno2 = (cuerda - dif) * (cuerda + dif) / (4 * L * M);
    if (!(seno2 >= 0 && seno2 <= 1)) return false;
    apertura += 2 * std::asin(std::sqrt(seno2));
    dDesBase_(i) = {-L * std::sin(apertura), -L * std::cos(apertura)};
    dDesBase_(n + 2 - i) = {-dDesBase_(i).x, dDesBase_(i).y};
  }
  return true;
}

int clCono::CalcPtoInicPtoFin(double s) const {
  double andado = 0;
  for (int i = 1; i < dDesBase_.Cuenta(); ++i) {
    andado += Distancia(dDesBase_(i), dDesBase_(i + 1));
    if (andado > std::abs(s)) return s < 0 ? 1 - i : i - 1;
  }
  return 0;
}

std::optional<std::array<int, 2>> clCono::EligeTramo(double arco) const {
  const int n = dDesBase_.Cuenta() - 1, medio = n / 2 + 1, k = CalcPtoInicPtoFin(arco);
  const Reparto tramo = kTramos[cono_.bCambio ? 1 : 0][cono_.iiTem - 1][Cuadrante(cono_.desvio)];
  std::array<int, 2> extremos = Desplazamientos(tramo, k, n / 4);
  for (int& extremo : extremos) {
    extremo += medio;
    if (extremo <= 0) extremo = std::abs(extremo) + 2;
  }
  if (extremos[0] > extremos[1]) std::swap(extremos[0], extremos[1]);
  if (extremos[0] < 1 || extremos[1] > n + 1) return std::nullopt;
  return extremos;
}

// Each element of the span, shortened or lengthened to its true length between the lower mouth and the cut. The real
// lower rim stays; the other point moves along the element. `alDerecho`: the quarter's points go with the elements in
// the same order, else the last point with the first element.
void clCono::CalculaCorte(const PiezaEspecial& pieza, bool alDerecho) {
  const PlanoCorte plano = PlanoDeCorte(pieza);
  const int n = dDesBase_.Cuenta() - 1, q = n / 4;
  const auto [iHasiera, iBukaera] = *tramo_;
  for (int j = iHasiera, paso = 0; j <= iBukaera && paso <= q; ++j, ++paso) {
    const Elemento e = ElementoDe(pieza, plano, cono_.iiTem, alDerecho ? 1 + paso : q + 1 - paso, n);
    const Punto2 bajo = cono_.bCambio ? dDesBoca_(j) : dDesBase_(j);
    Punto2& alto = cono_.bCambio ? dDesBase_(j) : dDesBoca_(j);
    const double largo = Distancia(bajo, alto);
    if (largo > 0) alto = bajo + Distancia(e.bajo, e.corte) / largo * (alto - bajo);
  }
}

// The development's apex is its origin.
Sector clCono::SectorDelTramo() const {
  Sector sector;
  sector.vertice = Punto2{};
  const auto [iHasiera, iBukaera] = *tramo_;
  for (int i = iHasiera; i <= iBukaera; ++i) {
    sector.base.push_back(dDesBase_(i));
    sector.boca.push_back(dDesBoca_(i));
  }
  return sector;
}

std::optional<Sector> clCono::GeneraDesarrollo1(const PiezaEspecial& pieza) {
  const auto& [Radiobase, RadioAlto, Altura, inumPuntos, desvio, iiTem, bCambio] = cono_;
  if (dDesBase_.Cuenta() == inumPuntos + 1) {
    const double psi = std::atan2(std::abs(desvio.y), std::abs(desvio.x));
    tramo_ = EligeTramo(psi * (bCambio ? pieza.r1(iiTem) : pieza.r2(iiTem)));
  }
  if (!tramo_) return std::nullopt;
  // What is placed is where element 1 of the uncut cone would end.
  const Punto2 ancla = dDesBoca_(1);
  const bool alDerecho = bCambio && !(iiTem == 1 && desvio.x < 0 && desvio.y < 0);
  CalculaCorte(pieza, alDerecho);
  Sector sector = SectorDelTramo();
  sector.ancla = ancla;
  sector.bCambio = bCambio;
  sector.alDerecho = alDerecho;
  return sector;
}

}  // namespace duktores
