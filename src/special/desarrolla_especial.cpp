#include <algorithm>
#include <cmath>
#include <utility>

#include "special/ajuste.h"
#include "special/bloque_especial.h"
#include "special/cono.h"
#include "special/especial.h"
#include "special/rectangulo.h"
#include "special/sector_exacto.h"

namespace duktores {

namespace {

constexpr double kIgual = 1e-9;

bool Iguales(Punto3 p, Punto3 q) {
  return std::abs(p.x - q.x) < kIgual && std::abs(p.y - q.y) < kIgual && std::abs(p.z - q.z) < kIgual;
}

// ---- The usual rules, on the adjusted piece.

std::optional<Sector> EsquinaUsual(TipoPieza tipo, PiezaEspecial pieza, int c, int n) {
  const bool todasIguales = tipo == TipoPieza::esp2 || tipo == TipoPieza::esp3;
  const double r1 = pieza.r1(c), r2 = pieza.r2(c);
  const bool bCambio = todasIguales ? r2 <= r1 : r2 < r1;
  const EsquinaEspecial esquina = Esquina(pieza, c);
  const Punto3 desvio = esquina.bajo - esquina.alto;
  double mayor = bCambio ? r1 : r2;
  const double menor = bCambio ? r2 : r1;
  // The square corners of TransEsp3 are cones that all but end in a point.
  constexpr double kPunta[]{1e-11, kRoce};
  if (tipo == TipoPieza::esp3 && c <= 2) mayor = pieza.bocas.abajo.r(c) = kPunta[c - 1];
  clCono cono;
  cono.GeneraPuntos({mayor, menor, pieza.H, n, {LejosDeCero(desvio.x), LejosDeCero(desvio.y)}, c, bCambio});
  return cono.GeneraDesarrollo1(pieza);
}

bool HayPanel(TipoPieza tipo, const Bocas& bocas, const Lado& lado, int c) {
  const auto difieren = [](double a, double b) { return std::abs(a - b) >= kIgual; };
  const auto& [arriba, abajo] = bocas;
  if (tipo == TipoPieza::esp3 && c == 1) return difieren(arriba.LY / 2, kRoce) && difieren(abajo.LY / 2, kRoce);
  if (tipo == TipoPieza::esp3 && c != 3) {
    return difieren(arriba.r(c), arriba.LX / 2) && difieren(abajo.r(c), abajo.LX / 2);
  }
  return lado[2] != lado[3];
}

std::optional<Lado> PanelUsual(TipoPieza tipo, PiezaEspecial pieza, int c) {
  const Bocas ajustadas = pieza.bocas;
  if (tipo == TipoPieza::esp3) pieza.bocas.abajo.r(1) = pieza.bocas.abajo.r(2) = kRoce;
  Lado lado = LadoCortado(pieza, PlanoDeCorte(pieza), c);
  if (Iguales(lado[0], lado[1])) lado[0].x -= kRoce;
  if (!HayPanel(tipo, ajustadas, lado, c)) return std::nullopt;
  return lado;
}

// ---- The exact rule, on the piece as its solid shows it. A corner without radii is an edge, a side without edges a
// line: they have no shape.

bool HayEsquina(const PiezaEspecial& pieza, int c) {
  return std::max(std::abs(pieza.r1(c)), std::abs(pieza.r2(c))) >= kIgual;
}

std::optional<Lado> PanelExacto(const PiezaEspecial& pieza, int c) {
  const Lado lado = LadoCortado(pieza, PlanoDeCorte(pieza), c);
  if (Iguales(lado[0], lado[1]) && Iguales(lado[2], lado[3])) return std::nullopt;
  return lado;
}

}  // namespace

Desarrollo DesarrollaEspecial(const Pieza& pieza, const Solido& solido) {
  const bool exacta = pieza.regla == Regla::exacta;
  Desarrollo desarrollo;
  if (!exacta) desarrollo.ajustadas = Ajusta(pieza);
  const PiezaEspecial especial = exacta ? ComoEspecial(pieza) : ComoEspecial(pieza, *desarrollo.ajustadas);
  const OrdenEspecial orden(pieza.divisiones);
  std::vector<FormaPatron>& formas = desarrollo.patron.formas;
  desarrollo.patron.sigueTrasFallo = true;
  desarrollo.patron.sinRepetir = exacta;
  for (int c = 1; c <= 4; ++c) {
    if (!exacta || HayEsquina(especial, c)) {
      formas.push_back(
          FormaEsquina(exacta ? SectorExacto(especial, c, orden) : EsquinaUsual(pieza.tipo, especial, c, orden.n), c,
                       solido, orden));
    }
    if (const auto lado = exacta ? PanelExacto(especial, c) : PanelUsual(pieza.tipo, especial, c)) {
      formas.push_back(FormaLado(*lado, c, pieza.regla, solido, orden));
    }
  }
  for (FormaPatron& forma : formas) forma.bloque = BloqueEspecial(pieza, forma.nombre.forma);
  return desarrollo;
}

}  // namespace duktores
