#include "special/sector_exacto.h"

#include <cmath>

namespace duktores {

namespace {

constexpr double kIgual = 1e-9;

// An uncut element on the sheet while the cone unrolls.
struct Rodillo {
  Elemento espacio;
  Punto2 base{0, 0}, boca{0, Distancia(espacio.bajo, espacio.corte)};

  // On to a neighbour at the right (`lado` 1) or at the left (-1): both its ends in the frame of this one.
  void Rueda(const Elemento& vecino, double lado) {
    const Punto3 de = espacio.bajo, hasta = espacio.corte;
    const double largo = Distancia(de, hasta);
    const Punto3 u = (1 / largo) * (hasta - de);
    const Punto2 u2 = (1 / largo) * (boca - base), n2{lado * u2.y, -lado * u2.x}, desde = base;
    const auto aparte = [&](Punto3 v) { return v - Escalar(v, u) * u; };
    const Punto3 pasoBase = aparte(vecino.bajo - de), pasoBoca = aparte(vecino.corte - hasta);
    const Punto3 mayor = Norma(pasoBase) > Norma(pasoBoca) ? pasoBase : pasoBoca;
    espacio = vecino;
    if (Norma(mayor) == 0) return;
    const Punto3 n = (1 / Norma(mayor)) * mayor;
    const auto plano = [&](Punto3 p) {
      const Punto3 v = p - de;
      return desde + Escalar(v, u) * u2 + Escalar(v, n) * n2;
    };
    base = plano(vecino.bajo);
    boca = plano(vecino.corte);
  }
};

}  // namespace

Sector SectorExacto(const PiezaEspecial& pieza, int c, const OrdenEspecial& orden) {
  const PlanoCorte plano = PlanoDeCorte(pieza);
  const int q = orden.q, medio = q / 2;
  const auto entero = [&](int p) { return ElementoDe(pieza, {}, c, p + 1, orden.n); };
  Sector sector;
  sector.base.resize(static_cast<std::size_t>(q) + 1);
  sector.boca = sector.base;
  // The later elements lie further left.
  const auto pon = [&](const Rodillo& rodillo, int p) {
    const Elemento cortado = ElementoDe(pieza, plano, c, p + 1, orden.n);
    const Punto3 eje = rodillo.espacio.corte - rodillo.espacio.bajo;
    const double parte = Escalar(cortado.corte - cortado.bajo, eje) / Escalar(eje, eje);
    const auto i = static_cast<std::size_t>(q - p);
    sector.base[i] = rodillo.base;
    sector.boca[i] = rodillo.base + parte * (rodillo.boca - rodillo.base);
  };
  const Rodillo derecho{entero(medio)};
  pon(derecho, medio);
  for (const int lado : {1, -1}) {
    Rodillo rodillo = derecho;
    for (int p = medio - lado; p >= 0 && p <= q; p -= lado) {
      rodillo.Rueda(entero(p), lado);
      pon(rodillo, p);
    }
  }
  const double rb = pieza.r2(c), rt = pieza.r1(c);
  if (std::abs(rb - rt) > kIgual) sector.vertice = rb / (rb - rt) * derecho.boca;
  return sector;
}

}  // namespace duktores
