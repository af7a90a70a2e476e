#include "special/sector_exacto.h"

#include <algorithm>
#include <cmath>

#include "special/cono.h"

namespace duktores {

namespace {

constexpr double kIgual = 1e-9;

// An element before the cut, from the rim at the bottom of the sheet to the other.
struct Recta {
  Punto3 base, boca;
};

// The uncut cone as azimuths tell it: 0 is the element that stands straight, positive to the right of it.
class ConoEntero {
 public:
  ConoEntero(const PiezaEspecial& pieza, int c, bool bCambio)
      : esquina_(Esquina(pieza, c)),
        rb_(bCambio ? pieza.r1(c) : pieza.r2(c)),
        rt_(bCambio ? pieza.r2(c) : pieza.r1(c)),
        sentido_(bCambio ? -1 : 1),
        bCambio_(bCambio) {
    Punto3 D = esquina_.bajo - esquina_.alto;
    const double x = LejosDeCero(D.x), y = LejosDeCero(D.y);
    if (std::hypot(D.x, D.y) < kIgual) D = {x, y, 0};  // a right cone has no direction of its own
    medio_ = std::atan2(sentido_ * D.y, sentido_ * D.x) + AnguloInicial({x, y}, c, bCambio) + dPi;
  }

  Recta En(double delta) const {
    const double a = medio_ + sentido_ * delta;
    const Punto3 hacia{std::cos(a), std::sin(a), 0};
    return {(bCambio_ ? esquina_.alto : esquina_.bajo) + rb_ * hacia,
            (bCambio_ ? esquina_.bajo : esquina_.alto) + rt_ * hacia};
  }
  double RadioBase() const { return rb_; }
  double RadioBoca() const { return rt_; }
  /// Where the corner's quarter begins at the left, its middle within half a turn.
  double Inicio() const {
    const double izquierda = sentido_ * (esquina_.a0 - medio_) - (bCambio_ ? 0 : dPi / 2);
    return izquierda - 2 * dPi * std::ceil((izquierda + dPi / 4 - dPi) / (2 * dPi));
  }
  /// How far along an element, in its lengths from the bottom, all of them meet; infinite for a cylinder.
  double Vertice() const { return std::abs(rb_ - rt_) > kIgual ? rb_ / (rb_ - rt_) : INFINITY; }

 private:
  EsquinaEspecial esquina_;
  double rb_, rt_, sentido_, medio_ = 0;
  bool bCambio_;
};

// An element on the sheet while the cone unrolls.
struct Rodillo {
  const ConoEntero& cono;
  double delta = 0;
  Punto2 base{0, 0}, boca{0, Distancia(cono.En(0).base, cono.En(0).boca)};

  // On to a neighbouring element: both its ends in the frame of the last one.
  void Rueda(double hasta) {
    const Recta de = cono.En(delta), a = cono.En(hasta);
    const double largo = Distancia(de.base, de.boca), lado = hasta > delta ? 1 : -1;
    const Punto3 u = (1 / largo) * (de.boca - de.base);
    const Punto2 u2 = (1 / largo) * (boca - base), n2{lado * u2.y, -lado * u2.x}, desde = base;
    // Both rims step onwards; one whose radius the fibre correction has made negative steps back.
    const auto aparte = [&](Punto3 v, double radio) { return std::copysign(1.0, radio) * (v - Escalar(v, u) * u); };
    const Punto3 pasoBase = aparte(a.base - de.base, cono.RadioBase());
    const Punto3 pasoBoca = aparte(a.boca - de.boca, cono.RadioBoca());
    const Punto3 mayor = Norma(pasoBase) > Norma(pasoBoca) ? pasoBase : pasoBoca;
    delta = hasta;
    if (Norma(mayor) == 0) return;
    const Punto3 n = (1 / Norma(mayor)) * mayor;
    const auto plano = [&](Punto3 p) {
      const Punto3 v = p - de.base;
      return desde + Escalar(v, u) * u2 + Escalar(v, n) * n2;
    };
    base = plano(a.base);
    boca = plano(a.boca);
  }
  // In whole steps as far as they go.
  void Lleva(double hasta, double paso) {
    const double lado = hasta > delta ? 1 : -1;
    const int enteros = static_cast<int>(std::floor(std::abs(hasta - delta) / paso + kIgual));
    const double desde = delta;
    for (int i = 1; i <= enteros; ++i) Rueda(desde + lado * i * paso);
    if (std::abs(hasta - delta) > kIgual * paso) Rueda(hasta);
    delta = hasta;
  }
};

}  // namespace

Sector SectorExacto(const PiezaEspecial& pieza, int c, int n, bool bCambio) {
  const ConoEntero cono(pieza, c, bCambio);
  const PlanoCorte plano = PlanoDeCorte(pieza);
  const double paso = 2 * dPi / n, inicio = cono.Inicio();
  const int q = n / 4;
  Sector sector;
  sector.bCambio = sector.alDerecho = bCambio;
  sector.base.resize(static_cast<std::size_t>(q) + 1);
  sector.boca = sector.base;

  const auto pon = [&](Rodillo& rodillo, int i) {
    rodillo.Lleva(inicio + i * paso, paso);
    // The element itself, not what its azimuth gives back: its ends lie on the sides' lines to the last digit.
    const Elemento e = ElementoDe(pieza, plano, c, bCambio ? i + 1 : q + 1 - i, n);
    const Recta recta = cono.En(rodillo.delta);
    const Punto3 bajo = bCambio ? recta.boca : recta.base, eje = (bCambio ? recta.base : recta.boca) - bajo;
    const double parte = Escalar(e.corte - e.bajo, eje) / Escalar(eje, eje);
    const auto k = static_cast<std::size_t>(i);
    sector.base[k] = rodillo.base;
    sector.boca[k] = rodillo.boca;
    if (bCambio) {
      sector.base[k] = rodillo.boca + parte * (rodillo.base - rodillo.boca);
    } else {
      sector.boca[k] = rodillo.base + parte * (rodillo.boca - rodillo.base);
    }
  };
  // From the straight element to the nearest of the corner, and from there both ways.
  const int cercano = static_cast<int>(std::clamp(std::ceil(-inicio / paso - kIgual), 0.0, static_cast<double>(q)));
  Rodillo derecha{cono}, costura{cono};
  pon(derecha, cercano);
  Rodillo izquierda = derecha;
  for (int i = cercano + 1; i <= q; ++i) pon(derecha, i);
  for (int i = cercano - 1; i >= 0; --i) pon(izquierda, i);

  costura.Lleva(-dPi, paso);
  sector.ancla = costura.boca;
  const double vertice = cono.Vertice();
  if (std::isfinite(vertice)) sector.vertice = vertice * Rodillo{cono}.boca;
  return sector;
}

}  // namespace duktores
