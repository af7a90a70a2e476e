#include "special/rectangulo.h"

#include <cmath>
#include <utility>

#include "piece/numeros_texto.h"

namespace duktores {

namespace {

// The exact panel lies in its own plane: along the upper edge, or along the lower one where the upper is a point.
std::array<Punto2, 4> AplanaExacto(const Lado& lado) {
  const Punto3 P11 = lado[0], P12 = lado[1], P21 = lado[2], P22 = lado[3];
  const bool conBoca = Distancia(P11, P12) > 1e-9;
  const Punto3 borde = conBoca ? P12 - P11 : P21 - P22, u = (1 / Norma(borde)) * borde;
  const auto aparte = [&](Punto3 P) { return P - P11 - Escalar(P - P11, u) * u; };
  const Punto3 abajo = Norma(aparte(P21)) > Norma(aparte(P22)) ? aparte(P21) : aparte(P22);
  const Punto3 v = (1 / Norma(abajo)) * abajo;
  const auto plano = [&](Punto3 P) { return Punto2{} - Punto2{Escalar(P - P11, u), Escalar(P - P11, v)}; };
  return {Punto2{}, plano(P12), plano(P21), plano(P22)};
}

}  // namespace

Lado LadoCortado(const PiezaEspecial& pieza, const PlanoCorte& plano, int c) {
  const Boca &arriba = pieza.bocas.arriba, &abajo = pieza.bocas.abajo;
  const auto extremo = [&](int esquina, double angulo) {
    const auto [a0, Q0, T0] = Esquina(pieza, esquina);
    const double hx = std::nearbyint(std::cos(angulo)), hy = std::nearbyint(std::sin(angulo));
    const Punto3 Q{hx == 0 ? Q0.x : hx * abajo.LX / 2, hy == 0 ? Q0.y : hy * abajo.LY / 2, Q0.z};
    const Punto3 T{hx == 0 ? T0.x : pieza.AX + hx * arriba.LX / 2, hy == 0 ? T0.y : pieza.AY + hy * arriba.LY / 2,
                   T0.z};
    return std::pair(Q, PuntoDeCorte(plano, Q, T));
  };
  // Both ends stand square on the side: a corner ends, and the next begins, at the angle of the side's outward normal.
  const double normal = Esquina(pieza, c).a0 - dPi / 2;
  const auto [P22, P11] = extremo(c, normal);
  const auto [P21, P12] = extremo(Siguiente(c), normal);
  return {P11, P12, P21, P22};
}

FormaPatron FormaLado(const Lado& lado, int c, Regla regla, const Solido& solido, const OrdenEspecial& orden) {
  enum { A, B, C, D };
  FormaPatron f;
  f.nombre = {Forma::lado, c};
  f.aviso = texto::kColocarPieza;
  f.rotulo = texto::kLado;
  if (regla == Regla::usual) f.panel = lado;
  const auto p = f.panel ? TiendePanel(lado, {}) : AplanaExacto(lado);
  // The border towards the corner before lies at the right.
  const int puntos[]{orden.Punto(c, orden.q, true), orden.Punto(Siguiente(c), 0, true),
                     orden.Punto(Siguiente(c), 0, false), orden.Punto(c, orden.q, false)};
  for (const int i : {A, B, C, D, A}) f.contorno.push_back({p[static_cast<std::size_t>(i)], puntos[i]});
  for (const auto& [i, j] : {std::pair(A, D), {B, C}, {C, D}, {A, B}}) {
    f.lineas.push_back({f.En(i), f.En(j), Clase::borde, i, j});
  }
  // Where the cut passes below the base the panel lies upside down.
  const auto bajoCero = [&](int i) { return solido.puntos[static_cast<std::size_t>(puntos[i])].z < 0; };
  f.facetas = {{bajoCero(A) ? std::array<int, 3>{A, D, C} : std::array<int, 3>{A, C, D}, orden.Lado(c)},
               {bajoCero(B) ? std::array<int, 3>{A, C, B} : std::array<int, 3>{A, B, C}, orden.Lado(c)}};
  f.antes = {D, A};
  f.despues = {C, B};
  f.cotas = CotasPanel{};
  return f;
}

}  // namespace duktores
