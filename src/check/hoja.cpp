#include "check/hoja.h"

#include <algorithm>
#include <charconv>
#include <tuple>

#include "dxf/anotacion.h"
#include "state/textos.h"

namespace duktores {

namespace {

Punto2 Plano(Punto3 p) { return {p.x, p.y}; }

bool Antes(const std::array<Punto2, 2>& a, const std::array<Punto2, 2>& b) {
  return std::tie(a[0].x, a[0].y, a[1].x, a[1].y) < std::tie(b[0].x, b[0].y, b[1].x, b[1].y);
}

// Numbers are the red texts. Dimension lines may happen to join vertices too: they don't count, if the bend lines have
// another colour.
void LeeMarca(FormaEnHoja& forma, const Entidad& e) {
  static const std::int32_t rojo = EwRgb(256, 0, 0), cian = EwRgb(0, 255, 255);
  const bool cota = e.color == cian && estado.iColorDoblez != kColorCota;
  if (e.tipo == TipoEntidad::linea && !cota) forma.lineas.push_back({Plano(e.puntos[0]), Plano(e.puntos[1])});
  if (e.tipo != TipoEntidad::texto || e.color != rojo) return;
  int valor = 0;
  std::from_chars(e.texto.data(), e.texto.data() + e.texto.size(), valor);
  forma.numeros.push_back({Plano(e.puntos[0]), valor});
}

}  // namespace

bool FormaEnHoja::HayLinea(Punto2 p, Punto2 q) const {
  return std::ranges::binary_search(lineas, std::array{p, q}, Antes) ||
         std::ranges::binary_search(lineas, std::array{q, p}, Antes);
}

std::size_t FormaEnHoja::Dobleces() const {
  using Vertice = std::tuple<double, double, std::size_t>;  // x, y, place in the outline
  std::vector<Vertice> vertices;
  for (std::size_t i = 0; i < contorno.size(); ++i) vertices.emplace_back(contorno[i].x, contorno[i].y, i);
  std::ranges::sort(vertices);
  // Places of a point in the outline; it may stand there more than once.
  const auto lugares = [&](Punto2 p) {
    std::vector<std::size_t> lista;
    for (auto v = std::ranges::lower_bound(vertices, Vertice(p.x, p.y, 0)); v != vertices.end(); ++v) {
      const auto [x, y, lugar] = *v;
      if (x != p.x || y != p.y) break;
      lista.push_back(lugar);
    }
    return lista;
  };
  std::size_t cuenta = 0;
  for (const auto& [p, q] : lineas) {
    const auto de = lugares(p), a = lugares(q);
    const bool lado = std::ranges::any_of(de, [&](std::size_t u) {
      return std::ranges::any_of(a, [&](std::size_t v) { return std::max(u, v) - std::min(u, v) <= 1; });
    });
    if (!de.empty() && !a.empty() && !lado) ++cuenta;
  }
  return cuenta;
}

bool FormaEnHoja::HayNumero(std::size_t valor, Punto2 sitio) const {
  constexpr double kCerca = 1e-3;
  return valor <= numeros.size() && Distancia(numeros[valor - 1].sitio, sitio) <= kCerca;
}

bool FormaEnHoja::NumerosHasta(std::size_t n) const {
  int valor = 0;
  return numeros.size() == n && std::ranges::all_of(numeros, [&](const Numero& uno) { return uno.valor == ++valor; });
}

std::string FormaEnHoja::Donde(Punto2 cerca) const {
  const auto cercano =
      std::ranges::min_element(numeros, {}, [&](const Numero& n) { return Distancia(n.sitio, cerca); });
  const std::string nombre = NombreForma(forma, numero);
  return cercano == numeros.end() ? nombre : nombre + " (" + std::to_string(cercano->valor) + ")";
}

std::string NombreForma(Forma forma, int numero) {
  constexpr std::array kTextos{117, 118, 103, 104};  // in the order of Forma
  const std::string nombre = Texto(kTextos[static_cast<std::size_t>(forma)]);
  return forma == Forma::entera ? nombre : nombre + " " + std::to_string(numero);
}

std::vector<FormaEnHoja> LeeHoja(const EWdraw& axew) {
  const auto& todo = axew.Entidades();
  std::vector<FormaEnHoja> hoja;
  for (std::size_t i = 0; i < estado.Formas.size(); ++i) {
    const auto& [forma, numero, id] = estado.Formas[i];
    auto e = std::ranges::lower_bound(todo, id, {}, &Entidad::id);
    if (e == todo.end() || e->id != id) continue;
    FormaEnHoja& una = hoja.emplace_back(FormaEnHoja{forma, numero, {}, {}, {}});
    for (const Punto3& p : e->puntos) una.contorno.push_back(Plano(p));
    const bool ultima = i + 1 == estado.Formas.size();
    for (++e; e != todo.end() && (ultima || e->id < estado.Formas[i + 1].id); ++e) LeeMarca(una, *e);
    std::ranges::sort(una.lineas, Antes);
    std::ranges::sort(una.numeros, {}, &FormaEnHoja::Numero::valor);
  }
  return hoja;
}

std::size_t Contornos(const EWdraw& axew) {
  return static_cast<std::size_t>(std::ranges::count(axew.Entidades(), TipoEntidad::contorno, &Entidad::tipo));
}

}  // namespace duktores
