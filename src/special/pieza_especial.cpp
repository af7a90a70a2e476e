#include "special/pieza_especial.h"

#include <cmath>

#include "geometry/rotacion.h"
#include "special/medidas_exactas.h"

namespace duktores {

PiezaEspecial ComoEspecial(const Pieza& pieza) {
  return ComoEspecial(pieza, pieza.regla == Regla::exacta ? MedidasExactas(pieza) : pieza.corregidas);
}

PiezaEspecial ComoEspecial(const Pieza& pieza, const Bocas& bocas) {
  return {bocas, pieza.H, pieza.AX, pieza.AY, pieza.Alfa, pieza.Beta};
}

EsquinaEspecial Esquina(const PiezaEspecial& pieza, int c) {
  const double sx = c <= 2 ? -1 : 1, sy = c == 2 || c == 3 ? 1 : -1;
  const double rb = pieza.r2(c), rt = pieza.r1(c);
  const auto& [arriba, abajo] = pieza.bocas;
  return {3 * dPi / 2 - (c - 1) * dPi / 2,
          {sx * (abajo.LX / 2 - rb), sy * (abajo.LY / 2 - rb), 0},
          {pieza.AX + sx * (arriba.LX / 2 - rt), pieza.AY + sy * (arriba.LY / 2 - rt), pieza.H}};
}

PlanoCorte PlanoDeCorte(const PiezaEspecial& pieza) {
  // The shop's drawings stand on this value of pi.
  constexpr double kPiCorto = 3.141592;
  const double A = Grados(pieza.Alfa * kPiCorto / 180), B = Grados(pieza.Beta * kPiCorto / 180);
  const Boca& boca = pieza.bocas.arriba;
  const double oeste = pieza.AX - boca.LX / 2, este = pieza.AX + boca.LX / 2;
  const double norte = pieza.AY + boca.LY / 2, sur = pieza.AY - boca.LY / 2;
  const auto inclina = [&](double x, double y) {
    const Punto3 p = Rota({x, y, pieza.H}, {oeste, pieza.AY, pieza.H}, {0, 1, 0}, A);
    return Rota(p, {pieza.AX, norte, pieza.H}, {1, 0, 0}, B);
  };
  // The 2 keeps the third point off the line through the others, whatever the sides.
  const Punto3 P = inclina(oeste, norte), u = inclina(este, norte) - P, v = inclina(este + 2, sur) - P;
  PlanoCorte plano{u.x * (u.z * v.y - u.y * v.z), u.x * (u.x * v.z - u.z * v.x), u.x * (u.y * v.x - u.x * v.y), 0};
  plano.d = -(plano.a * P.x + plano.b * P.y + plano.c * P.z);
  return plano;
}

Punto3 PuntoDeCorte(const PlanoCorte& plano, Punto3 Q, Punto3 T) {
  const Punto3 normal{plano.a, plano.b, plano.c}, linea = T - Q;
  const double divisor = Escalar(normal, linea);
  if (divisor == 0) return T;
  return Q + -(Escalar(normal, Q) + plano.d) / divisor * linea;
}

Elemento ElementoDe(const PiezaEspecial& pieza, const PlanoCorte& plano, int c, int p, int n) {
  const EsquinaEspecial esquina = Esquina(pieza, c);
  const double a = esquina.a0 - (p - 1) * 2 * dPi / n;
  const Punto3 hacia{std::cos(a), std::sin(a), 0};
  const Punto3 Q = esquina.bajo + pieza.r2(c) * hacia, T = esquina.alto + pieza.r1(c) * hacia;
  return {Q, PuntoDeCorte(plano, Q, T)};
}

bool CompruebaValido(const PiezaEspecial& pieza, int n) {
  constexpr double kBajoCero = -1e-9;
  const PlanoCorte plano = PlanoDeCorte(pieza);
  for (int c = 1; c <= 4; ++c) {
    for (int p = 1; p <= n / 4 + 1; ++p) {
      if (ElementoDe(pieza, plano, c, p, n).corte.z < kBajoCero) return false;
    }
  }
  return true;
}

}  // namespace duktores
