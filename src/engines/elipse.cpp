#include "engines/elipse.h"

#include <algorithm>
#include <cmath>

namespace duktores {

namespace {

// Where a quarter of the ellipse with semi-axes 1 and `b` <= 1 has been walked to `parte` of its length, from X towards
// Y, as the eccentric angle. With k^2 = 1 - b^2 the way from the end of the short axis back to the angle psi, counted
// from there, is the elliptic integral E(k, psi).
double Excentrica(double b, double parte) {
  const double k = std::sqrt((1 - b) * (1 + b)), falta = (1 - parte) * std::comp_ellint_2(k);
  double psi = (1 - parte) * dPi / 2;
  for (int vez = 0; vez < 50; ++vez) {
    const double s = k * std::sin(psi), paso = (std::ellint_2(k, psi) - falta) / std::sqrt((1 - s) * (1 + s));
    psi = std::clamp(psi - paso, 0.0, dPi / 2);
    if (std::abs(paso) < 1e-15) break;
  }
  return dPi / 2 - psi;
}

}  // namespace

Elipse::Elipse(const Pieza& pieza)
    : a_(pieza.corregidas.arriba.LX / 2), b_(pieza.corregidas.arriba.LY / 2), N_(pieza.divisiones) {
  if (pieza.regla == Regla::usual) return;
  const double e = AlMedio(pieza.fibra, pieza.espesor);
  a_ = std::max(0.0, pieza.entradas.arriba.LX / 2 + e);
  b_ = std::max(0.0, pieza.entradas.arriba.LY / 2 + e);
  const int q = N_ / 4;
  double cuerdas = 0;
  const double achatada = a_ > 0 ? b_ / a_ : 1;
  for (int i = 0; i <= q; ++i) {
    const double angulo = i == 0 ? 0 : i == q ? dPi / 2 : Excentrica(achatada, static_cast<double>(i) / q);
    cuarto_.push_back({i == q ? 0 : a_ * std::cos(angulo), i == 0 ? 0 : b_ * std::sin(angulo)});
    if (i > 0) cuerdas += Distancia(cuarto_[static_cast<std::size_t>(i)], cuarto_[static_cast<std::size_t>(i - 1)]);
  }
  const double curva = a_ * std::comp_ellint_2(std::sqrt((1 - achatada) * (1 + achatada)));
  const double aumento = cuerdas > 0 ? curva / cuerdas : 1;
  for (Punto2& p : cuarto_) p = aumento * p;
  a_ *= aumento;
  b_ *= aumento;
}

Punto2 Elipse::EnPolar(double polar) const {
  const double c = std::cos(polar), s = std::sin(polar);
  const double r = a_ * b_ / std::hypot(b_ * c, a_ * s);
  return {r * c, r * s};
}

Punto3 Elipse::En(Punto3 centro, double angulo) const {
  Punto2 p;
  if (cuarto_.empty()) {
    p = EnPolar(angulo);
  } else {
    const int q = N_ / 4, i = static_cast<int>(std::lround(angulo * N_ / (2 * dPi))), lugar = (i % N_ + N_) % N_;
    const int cuadrante = lugar / q, resto = lugar % q, j = cuadrante % 2 == 0 ? resto : q - resto;
    p = cuarto_[static_cast<std::size_t>(j)];
    if (cuadrante == 1 || cuadrante == 2) p.x = -p.x;
    if (cuadrante >= 2) p.y = -p.y;
  }
  return centro + Punto3{p.x, p.y, 0};
}

}  // namespace duktores
