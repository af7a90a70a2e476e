#include <algorithm>
#include <cmath>
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

/// Things that stand in one row: a shape and its title block. They are places `desde` to before `hasta`.
struct Grupo {
  std::size_t desde, hasta;
  double ancho = 0, alto = 0;  ///< with the gap behind each thing
};

struct Ensayo {
  Caja fija;                ///< what lies where it is
  std::vector<Caja> cosas;  ///< what is placed, each drawn for (0, 0); empty: nothing of it is drawn
  std::vector<Grupo> grupos;
};

Ensayo Ensaya(const Patron& patron, const FormatoHoja& formato) {
  EWdraw axew;
  std::vector<std::size_t> hasta;  // entities before each thing that is placed
  Ensayo ensayo;
  const SoloControl soloControl;
  try {
    DibujaPatron(axew, patron, formato, [&](const Encargo& encargo) {
      const std::size_t i = hasta.size();
      if (encargo.bloque && i > 0) {
        ensayo.grupos.back().hasta = i + 1;
      } else {
        ensayo.grupos.push_back({i, i + 1});
      }
      hasta.push_back(axew.Entidades().size());
      return Punto2{};
    });
  } catch (const std::bad_alloc&) {
    throw;
  } catch (const std::exception&) {
    // The drawing itself will end there too.
  }
  hasta.push_back(axew.Entidades().size());
  ensayo.fija = CajaAncha(axew, 0, hasta.front());
  for (std::size_t i = 1; i < hasta.size(); ++i) ensayo.cosas.push_back(CajaAncha(axew, hasta[i - 1], hasta[i]));
  return ensayo;
}

double Ancho(const Caja& caja) { return caja.Vacia() ? 0 : caja.maximo.x - caja.minimo.x; }
double Alto(const Caja& caja) { return caja.Vacia() ? 0 : caja.maximo.y - caja.minimo.y; }

struct Filas {
  std::vector<std::size_t> finales;  ///< the group behind each row's last
  double ancho = 0, alto = 0;
};

/// Rows no wider than `ancho`, unless of one group.
Filas LlenaFilas(const std::vector<Grupo>& grupos, double ancho) {
  Filas filas;
  double largo = 0, alto = 0;
  for (std::size_t i = 0; i < grupos.size(); ++i) {
    largo += grupos[i].ancho;
    alto = std::max(alto, grupos[i].alto);
    filas.ancho = std::max(filas.ancho, largo);
    if (i + 1 < grupos.size() && largo + grupos[i + 1].ancho <= ancho) continue;
    filas.finales.push_back(i + 1);
    filas.alto += std::exchange(alto, 0);
    largo = 0;
  }
  return filas;
}

/// The rows that show largest on a page as wide as a screen, with `fijo`, the width of what stands left of them.
Filas EligeFilas(const std::vector<Grupo>& grupos, Punto2 hueco, double fijo) {
  constexpr double kForma = 16.0 / 9;
  Filas mejor;
  std::pair menor(HUGE_VAL, HUGE_VAL);
  for (std::size_t desde = 0; desde < grupos.size(); ++desde) {
    double limite = 0;
    for (std::size_t i = desde; i < grupos.size(); ++i) {
      limite += grupos[i].ancho;
      Filas filas = LlenaFilas(grupos, limite);
      const double ancho = fijo + filas.ancho - hueco.x, alto = filas.alto - hueco.y;
      const std::pair pagina(std::max(ancho, kForma * alto), ancho + alto);
      if (!mejor.finales.empty() && !(pagina < menor)) continue;
      menor = pagina;
      mejor = std::move(filas);
    }
  }
  return mejor;
}

}  // namespace

std::vector<Punto2> Reparte(const Patron& patron, const FormatoHoja& formato) {
  auto [fija, cosas, grupos] = Ensaya(patron, formato);
  const Punto2 hueco{2 * formato.pasoX, 2 * formato.pasoY};
  for (Grupo& grupo : grupos) {
    for (std::size_t i = grupo.desde; i < grupo.hasta; ++i) {
      if (cosas[i].Vacia()) continue;
      grupo.ancho += Ancho(cosas[i]) + hueco.x;
      grupo.alto = std::max(grupo.alto, Alto(cosas[i]) + hueco.y);
    }
  }
  const double izquierda = fija.Vacia() ? 0 : fija.maximo.x + hueco.x;
  const Filas filas = EligeFilas(grupos, hueco, fija.Vacia() ? 0 : Ancho(fija) + hueco.x);
  std::vector<Punto2> sitios(cosas.size());
  double y = 0;
  for (std::size_t fila = filas.finales.size(); fila-- > 0;) {
    double x = izquierda, alto = 0;
    for (std::size_t g = fila == 0 ? 0 : filas.finales[fila - 1]; g < filas.finales[fila]; ++g) {
      alto = std::max(alto, grupos[g].alto);
      for (std::size_t i = grupos[g].desde; i < grupos[g].hasta; ++i) {
        const Caja& caja = cosas[i];
        sitios[i] = caja.Vacia() ? Punto2{x, y} : Punto2{x - caja.minimo.x, y - caja.minimo.y};
        x += caja.Vacia() ? 0 : Ancho(caja) + hueco.x;
      }
    }
    y += alto;
  }
  return sitios;
}

}  // namespace duktores
