#include <algorithm>
#include <exception>
#include <new>
#include <utility>

#include "annotation/anotacion.h"
#include "sheet/hoja.h"

namespace duktores {

namespace {

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

std::vector<Punto2> Reparte(const Patron& patron, const FormatoHoja& formato) {
  EWdraw axew;
  std::vector<std::size_t> hasta;  // entities before each thing that is placed
  const SoloControl ensayo;
  try {
    DibujaPatron(axew, patron, formato, [&](const Encargo&) {
      hasta.push_back(axew.Entidades().size());
      return Punto2{};
    });
  } catch (const std::bad_alloc&) {
    throw;
  } catch (const std::exception&) {
    // The drawing itself will end there too.
  }
  std::vector<Punto2> sitios;
  hasta.push_back(axew.Entidades().size());
  const Caja fija = CajaAncha(axew, 0, hasta.front());
  const double hueco = 2 * formato.pasoX;
  double libre = fija.Vacia() ? 0 : fija.maximo.x + hueco;
  for (std::size_t i = 1; i < hasta.size(); ++i) {
    const Caja caja = CajaAncha(axew, hasta[i - 1], hasta[i]);
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
