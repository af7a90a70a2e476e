#include "special/pieza.h"

#include <cmath>

#include "geometry/rotacion.h"
#include "state/estado.h"

namespace duktores {

PiezaEspecial MedidasDeEstado() {
  const EstadoPrograma& e = estado;
  return {Cuatro(e.dR11, e.dR12, e.dR13, e.dR14),
          Cuatro(e.dR21, e.dR22, e.dR23, e.dR24),
          e.dLX1,
          e.dLY1,
          e.dLX2,
          e.dLY2,
          e.dAltura,
          e.dAx,
          e.dAy,
          e.dAlfa,
          e.dBeta};
}

PiezaEspecial PiezaDeEstado() {
  const EstadoPrograma& e = estado;
  PiezaEspecial pieza = MedidasDeEstado();
  const double mitad = e.dLY2 / 2;
  if (e.sTipoPieza == "TransEsp2" || e.sTipoPieza == "TransEsp3") {
    pieza.r1 = Cuatro(e.dRadioEsp);
    pieza.r2 = e.sTipoPieza == "TransEsp2" ? Cuatro(mitad) : Cuatro(0, 0, mitad, mitad);
    pieza.LX1 = pieza.LY1 = 2 * e.dRadioEsp;
  } else if (e.sTipoPieza == "TransEsp4") {
    pieza.r1 = Cuatro(e.dR11);
    pieza.LX1 = pieza.LY1 = 2 * e.dR11;
  } else if (e.sTipoPieza == "TransEsp5") {
    pieza.r2 = Cuatro(0.005);
  }
  return pieza;
}

EsquinaEspecial Esquina(const PiezaEspecial& pieza, int c) {
  const double sx = c <= 2 ? -1 : 1, sy = c == 2 || c == 3 ? 1 : -1;
  const double rb = pieza.r2(c), rt = pieza.r1(c);
  return {3 * dPi / 2 - (c - 1) * dPi / 2,
          {sx * (pieza.LX2 / 2 - rb), sy * (pieza.LY2 / 2 - rb), 0},
          {pieza.AX + sx * (pieza.LX1 / 2 - rt), pieza.AY + sy * (pieza.LY1 / 2 - rt), pieza.H}};
}

PlanoCorte PlanoDeCorte(const PiezaEspecial& pieza) {
  // The shop's drawings stand on this value of pi.
  constexpr double kPiCorto = 3.141592;
  const double A = Grados(pieza.Alfa * kPiCorto / 180), B = Grados(pieza.Beta * kPiCorto / 180);
  const double oeste = pieza.AX - pieza.LX1 / 2, este = pieza.AX + pieza.LX1 / 2;
  const double norte = pieza.AY + pieza.LY1 / 2, sur = pieza.AY - pieza.LY1 / 2;
  const auto inclina = [&](double x, double y) {
    const Punto3 p = Rota({x, y, pieza.H}, {oeste, pieza.AY, pieza.H}, {0, 1, 0}, -A);
    return Rota(p, {pieza.AX, norte, pieza.H}, {1, 0, 0}, -B);
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

}  // namespace duktores
