#include "special/ajuste.h"

#include <cmath>

#include "special/pieza_especial.h"

namespace duktores {

namespace {

constexpr double kSepara = 0.2, kCasiIguales = 0.1;

// A corner of equal radii has no cone. TransEsp1 and TransEsp5 then shrink the upper radius.
void SeparaRadios1(Cuatro& r1, const Cuatro& r2) {
  for (int c = 1; c <= 4; ++c) {
    if (std::abs(r2(c) - r1(c)) < kCerca) r1(c) -= kSepara;
    if (std::abs(r2(c) - r1(c)) < kCasiIguales) r1(c) = r2(c) - kSepara;
  }
}

// A side that is all arc at one mouth and not at the other keeps a flat edge of 0.01 there. Sums and sides are compared
// exactly, on the values as the rows before have left them.
void DejaCanto(Bocas& bocas) {
  auto& [arriba, abajo] = bocas;
  const struct {
    int a, b;
    double lado1, lado2;
  } lados[]{{1, 2, arriba.LY, abajo.LY},
            {3, 4, arriba.LY, abajo.LY},
            {2, 3, arriba.LX, abajo.LX},
            {1, 4, arriba.LX, abajo.LX}};
  const auto baja = [](Cuatro& r, int a, int b) {
    r(a) -= kRoce;
    r(b) -= kRoce;
  };
  Cuatro &r1 = arriba.r, &r2 = abajo.r;
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

// TransEsp2 and TransEsp3 have one radius at each mouth, at the base that of its half circles.
void SeparaRadios23(Bocas& bocas) {
  auto& [arriba, abajo] = bocas;
  double r = arriba.r(1), r2 = abajo.r(3);
  if (std::abs(r2 - r) < kCerca) r2 = r + kSepara;
  const double alto1 = arriba.LY / 2, alto2 = abajo.LY / 2, ancho1 = arriba.LX / 2, ancho2 = abajo.LX / 2;
  // The first that holds of: base by its height, mouth by its height or width, base by its width.
  const bool boca = (alto2 != r2 && alto1 == r) || (ancho2 != r2 && ancho1 == r);
  const bool base = (alto2 == r2 && alto1 != r) || (!boca && ancho2 == r2 && ancho1 != r);
  if (base) {
    r2 -= kRoce;
  } else if (boca) {
    r -= kRoce;
  }
  arriba.r = Cuatro(r);
  abajo.r = Cuatro(r2);
}

}  // namespace

Bocas Ajusta(const Pieza& pieza) {
  Bocas bocas = pieza.corregidas;
  if (pieza.tipo == TipoPieza::esp2 || pieza.tipo == TipoPieza::esp3) {
    SeparaRadios23(bocas);
  } else if (pieza.tipo == TipoPieza::esp4) {
    SeparaRadios4(bocas.arriba.r, bocas.abajo.r);
  } else {
    SeparaRadios1(bocas.arriba.r, bocas.abajo.r);
    DejaCanto(bocas);
  }
  return bocas;
}

}  // namespace duktores
