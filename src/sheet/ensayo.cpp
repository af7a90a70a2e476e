#include "sheet/ensayo.h"

#include <algorithm>
#include <exception>
#include <new>

#include "annotation/anotacion.h"
#include "sheet/hoja.h"

namespace duktores {

namespace {

Caja CajaDeLineas(const std::vector<Entidad>& dibujo) {
  Caja caja;
  for (const Entidad& e : dibujo) {
    if (e.tipo != TipoEntidad::linea) continue;
    for (const Punto3 p : e.puntos) caja.Incluye(p);
  }
  return caja;
}

std::vector<Punto2> ContornoDe(const Cosa& cosa) {
  if (cosa.bloque) {
    const auto [p, q] = CajaDeLineas(cosa.dibujo);
    return {{p.x, p.y}, {q.x, p.y}, {q.x, q.y}, {p.x, q.y}};
  }
  std::vector<Punto2> contorno;
  const auto suyo = std::ranges::find(cosa.dibujo, TipoEntidad::contorno, &Entidad::tipo);
  if (suyo == cosa.dibujo.end()) return contorno;
  for (const Punto3 p : suyo->puntos) contorno.push_back({p.x, p.y});
  return contorno;
}

// A text is as wide here as its characters are high: places must not depend on a machine's fonts.
Caja CajaAncha(const std::vector<Entidad>& dibujo) {
  Caja caja;
  for (const Entidad& e : dibujo) {
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

std::vector<Cosa> Ensaya(const Patron& patron, const FormatoHoja& formato) {
  EWdraw axew;
  std::vector<Cosa> cosas;
  std::ptrdiff_t hasta = 0;  // entities that are in a thing already
  const auto recoge = [&] {
    const auto& todo = axew.Entidades();
    if (std::ssize(todo) == hasta) return;
    if (cosas.empty()) cosas.push_back({.fija = true});
    Cosa& cosa = cosas.back();
    cosa.dibujo.assign(todo.begin() + hasta, todo.end());
    cosa.contorno = ContornoDe(cosa);
    cosa.caja = CajaAncha(cosa.dibujo);
    hasta = std::ssize(todo);
  };
  const SoloControl ensayo;
  try {
    DibujaPatron(axew, patron, formato, [&](const Encargo& encargo) {
      recoge();
      const auto forma = std::ranges::find(patron.formas, encargo.forma.nombre, &FormaPatron::nombre);
      cosas.push_back({.forma = static_cast<std::size_t>(forma - patron.formas.begin()), .bloque = encargo.bloque});
      return Punto2{};
    });
  } catch (const std::bad_alloc&) {
    throw;
  } catch (const std::exception&) {
    // The drawing itself will end there too.
  }
  recoge();
  return cosas;
}

}  // namespace duktores
