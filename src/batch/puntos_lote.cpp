#include "batch/puntos_lote.h"

#include "dxf/anotacion.h"
#include "shell/visor.h"
#include "state/estado.h"

namespace duktores {

namespace {

// Takes every place to be the origin and notes how much was drawn before.
struct Ensayo : VistaEWdraw {
  std::optional<Punto3> EligePunto(EWdraw& axew) override {
    hasta.push_back(axew.Entidades().size());
    return Punto3{};
  }
  std::vector<std::size_t> hasta;
};

// A text is as wide here as its characters are high: places must not depend on a machine's fonts.
Caja CajaAncha(const EWdraw& axew, std::size_t desde, std::size_t hasta) {
  Caja caja;
  for (std::size_t i = desde; i < hasta; ++i) {
    const Entidad& e = axew.Entidades()[i];
    const Caja suya = CajaDe(e);
    if (suya.Vacia()) continue;
    caja.Incluye(suya.minimo);
    caja.Incluye(suya.maximo);
    if (e.tipo != TipoEntidad::texto) continue;
    const Punto3 fin = e.puntos[0] + LongitudTexto(e.texto) * e.u;
    for (const Punto3 p : {fin, fin + e.v, e.puntos[0] + e.v}) caja.Incluye(p);
  }
  return caja;
}

}  // namespace

std::optional<Punto3> PuntosLote::EligePunto(EWdraw&) {
  if (siguiente_ == puntos_.size()) return std::nullopt;
  const Punto2 p = puntos_[siguiente_++];
  return Punto3{p.x, p.y, 0};
}

std::vector<Punto2> SitiosLibres() {
  const EstadoPrograma antes = estado;
  EWdraw axew;
  Ensayo ensayo;
  axew.PonVista(&ensayo);
  Desplegado(axew);
  estado = antes;

  std::vector<Punto2> sitios;
  ensayo.hasta.push_back(axew.Entidades().size());
  const Caja fija = CajaAncha(axew, 0, ensayo.hasta.front());
  const double hueco = 2 * estado.dPasoTablaX;
  double libre = fija.Vacia() ? 0 : fija.maximo.x + hueco;
  for (std::size_t i = 1; i < ensayo.hasta.size(); ++i) {
    const Caja caja = CajaAncha(axew, ensayo.hasta[i - 1], ensayo.hasta[i]);
    if (caja.Vacia()) {
      sitios.push_back({libre, 0});
      continue;
    }
    sitios.push_back({libre - caja.minimo.x, -caja.minimo.y});
    libre += caja.maximo.x - caja.minimo.x + hueco;
  }
  return sitios;
}

}  // namespace duktores
