#include <algorithm>
#include <cmath>
#include <utility>

#include "sheet/ensayo.h"
#include "sheet/hoja.h"

namespace duktores {

namespace {

/// Things that stand in one row: a shape and its title block. They are places `desde` to before `hasta`.
struct Grupo {
  std::size_t desde, hasta;
  double ancho = 0, alto = 0;  ///< with the gap behind each thing
};

/// Of things that are placed.
std::vector<Grupo> GruposDe(const std::vector<Cosa>& cosas) {
  std::vector<Grupo> grupos;
  for (std::size_t i = 0; i < cosas.size(); ++i) {
    if (cosas[i].bloque && i > 0) {
      grupos.back().hasta = i + 1;
    } else {
      grupos.push_back({i, i + 1});
    }
  }
  return grupos;
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
  std::vector<Cosa> cosas = Ensaya(patron, formato);
  Caja fija;
  if (!cosas.empty() && cosas.front().fija) {
    fija = cosas.front().caja;
    cosas.erase(cosas.begin());
  }
  std::vector<Grupo> grupos = GruposDe(cosas);
  const Punto2 hueco{2 * formato.pasoX, 2 * formato.pasoY};
  for (Grupo& grupo : grupos) {
    for (std::size_t i = grupo.desde; i < grupo.hasta; ++i) {
      if (cosas[i].caja.Vacia()) continue;
      grupo.ancho += Ancho(cosas[i].caja) + hueco.x;
      grupo.alto = std::max(grupo.alto, Alto(cosas[i].caja) + hueco.y);
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
        const Caja& caja = cosas[i].caja;
        sitios[i] = caja.Vacia() ? Punto2{x, y} : Punto2{x - caja.minimo.x, y - caja.minimo.y};
        x += caja.Vacia() ? 0 : Ancho(caja) + hueco.x;
      }
    }
    y += alto;
  }
  return sitios;
}

}  // namespace duktores
