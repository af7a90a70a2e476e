#include "special/despliega_especial.h"

#include <algorithm>
#include <cmath>
#include <tuple>
#include <utility>

#include "dxf/anotacion.h"
#include "special/cajetin_especial.h"
#include "special/cono.h"
#include "special/pieza.h"
#include "special/rectangulo.h"
#include "special/sector_exacto.h"
#include "state/error_corrida.h"
#include "state/estado.h"
#include "state/numeros.h"

namespace duktores {

namespace {

constexpr double kCerca = 0.21, kSepara = 0.2, kCasiIguales = 0.1, kRoce = 0.005, kIgual = 1e-9;

bool Es(const char* tipo) { return estado.sTipoPieza == tipo; }

// A corner of equal radii has no cone. TransEsp1 and TransEsp5 then shrink the upper radius.
void SeparaRadios1(Cuatro& r1, const Cuatro& r2) {
  for (int c = 1; c <= 4; ++c) {
    if (std::abs(r2(c) - r1(c)) < kCerca) r1(c) -= kSepara;
    if (std::abs(r2(c) - r1(c)) < kCasiIguales) r1(c) = r2(c) - kSepara;
  }
}

// A side that is all arc at one mouth and not at the other keeps a flat edge of 0.01 there. Sums and sides are compared
// exactly, on the values as the rows before have left them.
void DejaCanto(Cuatro& r1, Cuatro& r2) {
  const struct {
    int a, b;
    double lado1, lado2;
  } lados[]{{1, 2, estado.dLY1, estado.dLY2},
            {3, 4, estado.dLY1, estado.dLY2},
            {2, 3, estado.dLX1, estado.dLX2},
            {1, 4, estado.dLX1, estado.dLX2}};
  const auto baja = [](Cuatro& r, int a, int b) {
    r(a) -= kRoce;
    r(b) -= kRoce;
  };
  for (const auto& [a, b, lado1, lado2] : lados) {
    if (r2(a) + r2(b) == lado2 && r1(a) + r1(b) != lado1) baja(r2, a, b);
  }
  for (const auto& [a, b, lado1, lado2] : lados) {
    if (r2(a) + r2(b) != lado2 && r1(a) + r1(b) == lado1) baja(r1, a, b);
  }
}

// TransEsp4 grows the lower radius, then shrinks the upper one in any case.
void SeparaRadios4(Cuatro& r1, Cuatro& r2) {
  for (int c = 1; c <= 4; ++c) {
    if (std::abs(r2(c) - r1(c)) < kCerca) r2(c) += kSepara;
    r1(c) -= kRoce;
    if (std::abs(r2(c) - r1(c)) < kCasiIguales) r2(c) = r1(c) + kSepara;
  }
}

// TransEsp2 and TransEsp3 have one radius at each mouth.
void SeparaRadios23(double& r, double& r2) {
  if (std::abs(r2 - r) < kCerca) r2 = r + kSepara;
  const double alto1 = estado.dLY1 / 2, alto2 = estado.dLY2 / 2, ancho1 = estado.dLX1 / 2, ancho2 = estado.dLX2 / 2;
  // The first that holds of: base by its height, mouth by its height or width, base by its width.
  const bool boca = (alto2 != r2 && alto1 == r) || (ancho2 != r2 && ancho1 == r);
  const bool base = (alto2 == r2 && alto1 != r) || (!boca && ancho2 == r2 && ancho1 != r);
  if (base) {
    r2 -= kRoce;
  } else if (boca) {
    r -= kRoce;
  }
}

// Copies for the title block, which shows the radii as entered.
void GuardaIniciales() {
  EstadoPrograma& e = estado;
  if (Es("TransEsp2") || Es("TransEsp3")) {
    e.dRadioEspIni = e.dRadioEsp;
    return;
  }
  e.dR11Ini = e.dR11;
  if (!Es("TransEsp4")) std::tie(e.dR12Ini, e.dR13Ini, e.dR14Ini) = std::tie(e.dR12, e.dR13, e.dR14);
  if (!Es("TransEsp5")) {
    std::tie(e.dR21Ini, e.dR22Ini, e.dR23Ini, e.dR24Ini) = std::tie(e.dR21, e.dR22, e.dR23, e.dR24);
  }
}

// The piece with its radii adjusted, in `estado` too.
PiezaEspecial Ajusta() {
  EstadoPrograma& e = estado;
  PiezaEspecial pieza = MedidasDeEstado();
  if (Es("TransEsp2") || Es("TransEsp3")) {
    SeparaRadios23(e.dRadioEsp, e.dRadioEsp2);
    pieza.r1 = Cuatro(e.dRadioEsp);
    pieza.r2 = Cuatro(e.dRadioEsp2);
    return pieza;
  }
  Cuatro &r1 = pieza.r1, &r2 = pieza.r2;
  if (Es("TransEsp4")) {
    SeparaRadios4(r1, r2);
  } else {
    SeparaRadios1(r1, r2);
    DejaCanto(r1, r2);
  }
  std::tie(e.dR11, e.dR12, e.dR13, e.dR14) = std::make_tuple(r1(1), r1(2), r1(3), r1(4));
  std::tie(e.dR21, e.dR22, e.dR23, e.dR24) = std::make_tuple(r2(1), r2(2), r2(3), r2(4));
  return pieza;
}

// Ends of side c on both mouths: from the end of corner c to the start of the next. The ends of one edge lie exactly on
// its line, so that they are equal as soon as their places along it are.
Lado LadoCortado(const PiezaEspecial& pieza, const PlanoCorte& plano, int c) {
  const auto extremo = [&](int esquina, double angulo) {
    const auto [a0, Q0, T0] = Esquina(pieza, esquina);
    const double hx = std::nearbyint(std::cos(angulo)), hy = std::nearbyint(std::sin(angulo));
    const Punto3 Q{hx == 0 ? Q0.x : hx * pieza.LX2 / 2, hy == 0 ? Q0.y : hy * pieza.LY2 / 2, Q0.z};
    const Punto3 T{hx == 0 ? T0.x : pieza.AX + hx * pieza.LX1 / 2, hy == 0 ? T0.y : pieza.AY + hy * pieza.LY1 / 2,
                   T0.z};
    return std::pair(Q, PuntoDeCorte(plano, Q, T));
  };
  // Both ends stand square on the side: a corner ends, and the next begins, at the angle of the side's outward normal.
  const double normal = Esquina(pieza, c).a0 - dPi / 2;
  const auto [P22, P11] = extremo(c, normal);
  const auto [P21, P12] = extremo(Siguiente(c), normal);
  return {P11, P12, P21, P22};
}

bool Iguales(Punto3 p, Punto3 q) {
  return std::abs(p.x - q.x) < kIgual && std::abs(p.y - q.y) < kIgual && std::abs(p.z - q.z) < kIgual;
}

bool HayPanel(const Lado& lado, int c) {
  const auto difieren = [](double a, double b) { return std::abs(a - b) >= kIgual; };
  if (Es("TransEsp3") && c == 1) return difieren(estado.dLY1 / 2, kRoce) && difieren(estado.dLY2 / 2, kRoce);
  if (Es("TransEsp3") && c != 3) {
    return difieren(estado.dRadioEsp, estado.dLX1 / 2) && difieren(estado.dRadioEsp2, estado.dLX2 / 2);
  }
  return lado[2] != lado[3];
}

// What a cone or a panel can't do ends that shape alone.
template <class Trabajo>
void SinParar(Trabajo trabajo) {
  try {
    trabajo();
  } catch (const ErrorCorrida& error) {
    if (error.NumeroTexto() != kTextoMedidaImposible) throw;
  }
}

void DesarrollaEsquina(EWdraw& axew, clCono& cono, PiezaEspecial pieza, int c, int n) {
  const bool todasIguales = Es("TransEsp2") || Es("TransEsp3");
  const double r1 = pieza.r1(c), r2 = pieza.r2(c);
  const bool bCambio = todasIguales ? r2 <= r1 : r2 < r1;
  const EsquinaEspecial esquina = Esquina(pieza, c);
  const double Dx = LejosDeCero(esquina.bajo.x - esquina.alto.x), Dy = LejosDeCero(esquina.bajo.y - esquina.alto.y);
  double mayor = bCambio ? r1 : r2;
  const double menor = bCambio ? r2 : r1;
  // The square corners of TransEsp3 are cones that all but end in a point.
  constexpr double kPunta[]{1e-11, 0.005};
  if (Es("TransEsp3") && c <= 2) mayor = pieza.r2(c) = kPunta[c - 1];
  cono.GeneraPuntos(mayor, menor, pieza.H, n, Dx, Dy, c, bCambio);
  cono.GeneraDesarrollo1(axew, pieza, Dx, Dy, n, c, bCambio);
}

void ColocaPanel(EWdraw& axew, clRectangulo& panel, const Lado& lado, int c) {
  panel.GeneraDesarrollo(axew, lado, c);
  if (HayCotas()) panel.GeneraCota(axew);
  if (estado.iBox != 0) GeneraCajetinPanel(axew, panel.Piezas());
}

void DesarrollaLado(EWdraw& axew, clRectangulo& panel, PiezaEspecial pieza, int c) {
  if (Es("TransEsp3")) pieza.r2(1) = pieza.r2(2) = kRoce;
  Lado lado = LadoCortado(pieza, PlanoDeCorte(pieza), c);
  if (Iguales(lado[0], lado[1])) lado[0].x -= kRoce;
  if (!HayPanel(lado, c)) return;
  ColocaPanel(axew, panel, lado, c);
}

// The exact pattern is that of the piece as its solid shows it. A corner without radii is an edge, a side without edges
// a line: they have no shape.
void DesarrollaExacto(EWdraw& axew, const PiezaEspecial& pieza, int n) {
  const PlanoCorte plano = PlanoDeCorte(pieza);
  clRectangulo panel;
  for (int c = 1; c <= 4; ++c) {
    SinParar([&] {
      if (std::max(std::abs(pieza.r1(c)), std::abs(pieza.r2(c))) < kIgual) return;
      // Near-equal radii lie as those do that were moved apart: with the lower rim at the bottom.
      const SectorAnclado exacto = SectorExacto(pieza, c, n, pieza.r1(c) - pieza.r2(c) >= kCerca);
      ColocaSector(axew, c, exacto.sector, exacto.ancla);
    });
    SinParar([&] {
      const Lado lado = LadoCortado(pieza, plano, c);
      if (!Iguales(lado[0], lado[1]) || !Iguales(lado[2], lado[3])) ColocaPanel(axew, panel, lado, c);
    });
  }
}

}  // namespace

void DesarrollaEspecial(EWdraw& axew) {
  axew.EwClear();
  GuardaIniciales();
  const int n = estado.MultinumDoblado * estado.iDivisiones;
  estado.inumDoblado = EnteroCorto(n);
  if (estado.iExacto != 0) return DesarrollaExacto(axew, PiezaDeEstado(), n);
  const PiezaEspecial pieza = Ajusta();
  clCono cono;
  clRectangulo panel;
  for (int c = 1; c <= 4; ++c) {
    SinParar([&] { DesarrollaEsquina(axew, cono, pieza, c, n); });
    SinParar([&] { DesarrollaLado(axew, panel, pieza, c); });
  }
}

}  // namespace duktores
