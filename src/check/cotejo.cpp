#include "check/cotejo.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <set>
#include <tuple>
#include <utility>

namespace duktores {

namespace {

// A facet of less height has no sides to tell apart.
constexpr double kSinAltura = 1e-3, kCerca = 1e-3;
// Of a shape with few vertices every two are compared.
constexpr std::size_t kPocos = 4;

double Largo2(Punto2 v) { return std::sqrt(v.x * v.x + v.y * v.y); }

}  // namespace

Cotejo::Cotejo(const Solido& solido, const FormaPatron& forma, Lectura lectura)
    : solido_(&solido), forma_(&forma), lectura_(lectura) {
  const int vertices = static_cast<int>(forma.contorno.size()) - 1;
  if (forma.contorno.size() <= kPocos + 1) {
    for (int i = 0; i < vertices; ++i) {
      for (int j = i + 1; j < vertices; ++j) Largo(i, j);
    }
  }
  for (const Faceta& faceta : forma.facetas) Triangulo(faceta);
  if (forma.nombre.forma == Forma::esquina) Orillas();
}

// With n vertices on each rim, i and 2n - 1 - i are the ends of an element.
std::size_t Cotejo::Lugar(int vertice) const {
  const int n = (static_cast<int>(forma_->contorno.size()) - 1) / 2;
  if (lectura_.alReves) vertice = vertice < n ? n - 1 - vertice : 3 * n - 1 - vertice;
  if (lectura_.cambiada) vertice = 2 * n - 1 - vertice;
  return static_cast<std::size_t>(vertice);
}

// How far a vertex on an edge lies from the end of the edge, which is its neighbour in the outline.
double Cotejo::Parte(int vertice) const {
  const auto& contorno = forma_->contorno;
  const auto i = static_cast<std::size_t>(vertice);
  const std::size_t antes = i > 0 ? i - 1 : contorno.size() - 2, despues = i + 1;
  const bool enAntes = contorno[antes].punto == contorno[i].punto && contorno[antes].hacia < 0;
  return Distancia(contorno[i].p, contorno[enAntes ? antes : despues].p);
}

Punto3 Cotejo::EnEspacio(int vertice) const {
  const auto& [p, punto, hacia] = forma_->contorno[static_cast<std::size_t>(vertice)];
  const Punto3 P = solido_->puntos[static_cast<std::size_t>(punto)];
  if (hacia < 0) return P;
  const Punto3 Q = solido_->puntos[static_cast<std::size_t>(hacia)];
  const double arista = Distancia(P, Q);
  return P + (arista > 0 ? Parte(vertice) / arista : 0) * (Q - P);
}

void Cotejo::Largo(int a, int b) {
  const Punto2 p = En(a), q = En(b);
  const double error = std::abs(Largo2(q - p) - Distancia(EnEspacio(a), EnEspacio(b)));
  largo_.Anota(std::isfinite(error) ? error : HUGE_VAL, p, q);
}

// Its height says by how much a facet has turned over.
void Cotejo::Triangulo(const Faceta& faceta) {
  const auto [i, j, k] = faceta.v;
  Largo(i, j);
  Largo(j, k);
  Largo(i, k);
  const Punto2 a = En(i), b = En(j), c = En(k), u = b - a, v = c - a;
  const double doble = u.x * v.y - u.y * v.x;
  if (!(doble < 0)) return;
  const double altura = -doble / std::max({Largo2(u), Largo2(v), Largo2(c - b)});
  if (altura > kSinAltura) vuelta_.Anota(altura, a, 0.5 * (b + c));
}

// The rims count with their lengths so far, too: small errors of one sign add up.
void Cotejo::Orillas() {
  const int n = (static_cast<int>(forma_->contorno.size()) - 1) / 2;
  const int primero = forma_->antes[0];
  const bool haciaAtras = primero != 0 && primero != 2 * n - 1;
  double andado[2]{}, verdad[2]{};
  for (int paso = 0; paso + 1 < n; ++paso) {
    const int i = haciaAtras ? n - 1 - paso : paso, j = haciaAtras ? i - 1 : i + 1;
    double error = 0;
    for (const int orilla : {0, 1}) {
      const int a = orilla == 0 ? i : 2 * n - 1 - i, b = orilla == 0 ? j : 2 * n - 1 - j;
      andado[orilla] += Distancia(En(a), En(b));
      verdad[orilla] += Distancia(EnEspacio(a), EnEspacio(b));
      error = std::max(error, std::abs(andado[orilla] - verdad[orilla]));
    }
    largo_.Anota(error, En(j), En(2 * n - 1 - j));
  }
}

Cotejo::Orilla Cotejo::OrillaDe(const Borde& borde) const {
  const auto& pie = forma_->contorno[static_cast<std::size_t>(borde[0])];
  Orilla orilla{Distancia(En(borde[0]), En(borde[1]))};
  if (pie.hacia < 0) return orilla;
  const auto en = [&](int punto) { return solido_->puntos[static_cast<std::size_t>(punto)]; };
  return {orilla.largo, true, Parte(borde[0]), Distancia(en(pie.punto), en(pie.hacia))};
}

namespace {

using Arista = std::pair<int, int>;  // of the vertices at its ends
Arista AristaDe(int a, int b) { return std::minmax(a, b); }

// Where a bend line has to be: where two facets of the solid meet. The triangles of a facet follow each other, and the
// first and the last of them have its borders.
std::set<Arista> Dobleces(const std::vector<Faceta>& facetas) {
  std::set<Arista> dobleces;
  std::map<Arista, int> cara;
  for (std::size_t k = 0; k < facetas.size(); ++k) {
    const auto& [v, suya] = facetas[k];
    const bool primera = k == 0 || facetas[k - 1].cara != suya;
    const bool ultima = k + 1 == facetas.size() || facetas[k + 1].cara != suya;
    for (std::size_t i = 0; (primera || ultima) && i < 3; ++i) {
      const Arista lado = AristaDe(v[i], v[(i + 1) % 3]);
      const auto [otra, nueva] = cara.emplace(lado, suya);
      if (!nueva && otra->second != suya) dobleces.insert(lado);
    }
  }
  return dobleces;
}

// The lines that part the shape: between two of its vertices that are not neighbours. Vertices may coincide.
std::size_t Parten(const FormaPatron& forma) {
  using Sitio = std::tuple<double, double, std::size_t>;  // x, y, place in the outline
  std::vector<Sitio> sitios;
  for (std::size_t i = 0; i < forma.contorno.size(); ++i) {
    sitios.emplace_back(forma.contorno[i].p.x, forma.contorno[i].p.y, i);
  }
  std::ranges::sort(sitios);
  const auto lugares = [&](Punto2 p) {
    std::vector<std::size_t> lista;
    for (auto s = std::ranges::lower_bound(sitios, Sitio(p.x, p.y, 0)); s != sitios.end(); ++s) {
      const auto [x, y, lugar] = *s;
      if (x != p.x || y != p.y) break;
      lista.push_back(lugar);
    }
    return lista;
  };
  return static_cast<std::size_t>(std::ranges::count_if(forma.lineas, [&](const Linea& linea) {
    if (linea.clase == Clase::borde) return false;
    const auto de = lugares(linea.p), a = lugares(linea.q);
    const bool vecinos = std::ranges::any_of(de, [&](std::size_t u) {
      return std::ranges::any_of(a, [&](std::size_t v) { return std::max(u, v) - std::min(u, v) <= 1; });
    });
    return !de.empty() && !a.empty() && !vecinos;
  }));
}

}  // namespace

Marcas CotejaMarcas(const FormaPatron& forma) {
  Marcas marcas;
  const std::size_t numeradas = forma.lineas.size() - forma.sinNumero;
  const std::set<Arista> dobleces = Dobleces(forma.facetas);
  std::set<Arista> faltan = dobleces;
  for (std::size_t i = 0; i < forma.lineas.size(); ++i) {
    const auto& [p, q, clase, enP, enQ, caras] = forma.lineas[i];
    const Punto2 P = enP < 0 ? p : forma.En(enP), Q = enQ < 0 ? q : forma.En(enQ);
    const bool enSitio = Distancia(0.5 * (p + q), 0.5 * (P + Q)) <= kCerca;
    if (i >= numeradas || !enSitio) marcas.numero.Anota(1, P, Q);
    if (clase == Clase::borde) continue;
    // The first line without a number may be drawn.
    if (p != P || q != Q || i > numeradas) marcas.doblez.Anota(1, P, Q);
    if (clase == Clase::doblez) faltan.erase(AristaDe(enP, enQ));
  }
  for (const Arista& una : faltan) marcas.doblez.Anota(1, forma.En(una.first), forma.En(una.second));
  if (Parten(forma) != dobleces.size()) marcas.doblez.Anota(1, forma.En(0), forma.En(0));
  return marcas;
}

}  // namespace duktores
