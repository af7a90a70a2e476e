#include "check/hoja.h"

#include <algorithm>
#include <charconv>
#include <tuple>

#include "state/textos.h"

namespace duktores {

namespace {

Punto2 Plano(Punto3 p) { return {p.x, p.y}; }

bool Antes(const std::array<Punto2, 2>& a, const std::array<Punto2, 2>& b) {
  return std::tie(a[0].x, a[0].y, a[1].x, a[1].y) < std::tie(b[0].x, b[0].y, b[1].x, b[1].y);
}

// Numbers are the red texts.
void LeeMarca(FormaEnHoja& forma, const Entidad& e) {
  static const std::int32_t rojo = EwRgb(256, 0, 0);
  if (e.tipo == TipoEntidad::linea) forma.lineas.push_back({Plano(e.puntos[0]), Plano(e.puntos[1])});
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

bool FormaEnHoja::HayNumero(Punto2 sitio) const {
  constexpr double kCerca = 1e-3;
  const auto x = [](const Numero& n) { return n.sitio.x; };
  for (auto n = std::ranges::lower_bound(numeros, sitio.x - kCerca, {}, x); n != numeros.end(); ++n) {
    if (n->sitio.x > sitio.x + kCerca) break;
    if (std::abs(n->sitio.y - sitio.y) <= kCerca) return true;
  }
  return false;
}

bool FormaEnHoja::NumerosHasta(std::size_t n) const {
  std::vector<bool> visto(n);
  for (const auto& [sitio, valor] : numeros) {
    const auto i = static_cast<std::size_t>(valor - 1);
    if (i >= n || visto[i]) return false;
    visto[i] = true;
  }
  return numeros.size() == n;
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
    std::ranges::sort(una.numeros, {}, [](const FormaEnHoja::Numero& n) { return n.sitio.x; });
  }
  return hoja;
}

}  // namespace duktores
