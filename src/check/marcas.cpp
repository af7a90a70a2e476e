#include "check/marcas.h"

#include <algorithm>
#include <iterator>
#include <tuple>
#include <utility>

namespace duktores {

namespace {

using Arista = std::pair<int, int>;  // of the vertices at its ends
Arista AristaDe(int a, int b) { return std::minmax(a, b); }

// Where a bend line has to be: where two facets of the solid meet. The triangles of a facet follow each other, and the
// first and the last of them have its borders.
std::vector<Arista> Dobleces(const std::vector<Faceta>& facetas) {
  std::vector<std::pair<Arista, int>> bordes;  // with their facets
  for (std::size_t k = 0; k < facetas.size(); ++k) {
    const auto& [v, cara] = facetas[k];
    const bool dentro = k > 0 && facetas[k - 1].cara == cara && k + 1 < facetas.size() && facetas[k + 1].cara == cara;
    for (std::size_t i = 0; !dentro && i < 3; ++i) bordes.emplace_back(AristaDe(v[i], v[(i + 1) % 3]), cara);
  }
  std::ranges::sort(bordes);
  std::vector<Arista> dobleces;
  for (std::size_t i = 1; i < bordes.size(); ++i) {
    const auto& [una, suya] = bordes[i - 1];
    const auto& [otra, vecina] = bordes[i];
    if (una == otra && suya != vecina) dobleces.push_back(una);
  }
  return dobleces;
}

// The vertices of an outline by their places; several may coincide.
class Vertices {
 public:
  explicit Vertices(const std::vector<Vertice>& contorno) {
    sitios_.reserve(contorno.size());
    for (std::size_t i = 0; i < contorno.size(); ++i) sitios_.emplace_back(contorno[i].p.x, contorno[i].p.y, i);
    std::ranges::sort(sitios_);
  }
  /// Whether p-q runs between two vertices that are nowhere neighbours.
  bool Parte(Punto2 p, Punto2 q) const {
    const auto [deP, finP] = En(p);
    const auto [deQ, finQ] = En(q);
    for (auto u = deP; u != finP; ++u) {
      for (auto v = deQ; v != finQ; ++v) {
        const std::size_t a = std::get<2>(*u), b = std::get<2>(*v);
        if (std::max(a, b) - std::min(a, b) <= 1) return false;
      }
    }
    return deP != finP && deQ != finQ;
  }

 private:
  using Sitio = std::tuple<double, double, std::size_t>;  // x, y, place in the outline
  std::pair<std::vector<Sitio>::const_iterator, std::vector<Sitio>::const_iterator> En(Punto2 p) const {
    const auto de = std::ranges::lower_bound(sitios_, Sitio(p.x, p.y, 0));
    auto fin = de;
    while (fin != sitios_.end() && std::get<0>(*fin) == p.x && std::get<1>(*fin) == p.y) ++fin;
    return {de, fin};
  }
  std::vector<Sitio> sitios_;
};

}  // namespace

Marcas CotejaMarcas(const FormaPatron& forma) {
  constexpr double kCerca = 1e-3;
  Marcas marcas;
  const std::size_t numeradas = forma.lineas.size() - forma.sinNumero;
  const Vertices vertices(forma.contorno);
  const std::vector<Arista> dobleces = Dobleces(forma.facetas);
  std::vector<Arista> hay;
  std::size_t parten = 0;
  for (std::size_t i = 0; i < forma.lineas.size(); ++i) {
    const auto& [p, q, clase, enP, enQ, caras] = forma.lineas[i];
    const Punto2 P = enP < 0 ? p : forma.En(enP), Q = enQ < 0 ? q : forma.En(enQ);
    const Punto2 aparte = 0.5 * (p + q) - 0.5 * (P + Q);
    if (i >= numeradas || !(aparte.x * aparte.x + aparte.y * aparte.y <= kCerca * kCerca)) marcas.numero.Anota(1, P, Q);
    if (clase == Clase::borde) continue;
    // The first line without a number may be drawn.
    if (p != P || q != Q || i > numeradas) marcas.doblez.Anota(1, P, Q);
    if (clase == Clase::doblez) hay.push_back(AristaDe(enP, enQ));
    parten += vertices.Parte(p, q);
  }
  std::ranges::sort(hay);
  std::vector<Arista> faltan;
  std::ranges::set_difference(dobleces, hay, std::back_inserter(faltan));
  for (const auto& [a, b] : faltan) marcas.doblez.Anota(1, forma.En(a), forma.En(b));
  if (parten != dobleces.size()) marcas.doblez.Anota(1, forma.En(0), forma.En(0));
  return marcas;
}

}  // namespace duktores
