#include "check/cotejo.h"

#include <algorithm>
#include <cmath>

namespace duktores {

namespace {

// A facet of less height has no sides to tell apart.
constexpr double kSinAltura = 1e-3;
// Of a shape with few vertices every two are compared.
constexpr int kPocos = 4;

double Largo2(Punto2 v) { return std::sqrt(v.x * v.x + v.y * v.y); }

bool Tiene(const Faceta& faceta, int vertice) { return std::ranges::find(faceta.v, vertice) != faceta.v.end(); }

}  // namespace

Cotejo::Cotejo(const Solido& solido, const FormaPatron& forma, Lectura lectura)
    : solido_(&solido), forma_(&forma), lectura_(lectura) {
  PonPuntos();
  const int vertices = static_cast<int>(forma.contorno.size()) - 1;
  for (int i = 0; vertices <= kPocos && i < vertices; ++i) {
    for (int j = i + 1; j < vertices; ++j) Largo(i, j);
  }
  // What a triangle shares with the one before has been compared.
  const Faceta* anterior = nullptr;
  for (const Faceta& faceta : forma.facetas) {
    const auto [i, j, k] = faceta.v;
    const bool deI = anterior && Tiene(*anterior, i), deJ = anterior && Tiene(*anterior, j);
    const bool deK = anterior && Tiene(*anterior, k);
    if (!(deI && deJ)) Largo(i, j);
    if (!(deJ && deK)) Largo(j, k);
    if (!(deI && deK)) Largo(i, k);
    Triangulo(faceta);
    anterior = &faceta;
  }
  if (forma.nombre.forma == Forma::esquina) Orillas();
}

// With n vertices on each rim, i and 2n - 1 - i are the ends of an element.
void Cotejo::PonPuntos() {
  const auto& contorno = forma_->contorno;
  const std::size_t n = (contorno.size() - 1) / 2;
  plano_.reserve(contorno.size());
  espacio_.reserve(contorno.size());
  for (std::size_t i = 0; i < contorno.size(); ++i) {
    std::size_t leido = i;
    if (lectura_.alReves && i < 2 * n) leido = i < n ? n - 1 - i : 3 * n - 1 - i;
    if (lectura_.cambiada && i < 2 * n) leido = 2 * n - 1 - leido;
    plano_.push_back(contorno[leido].p);
    const auto& [p, punto, hacia] = contorno[i];
    const Punto3 P = Punto(punto);
    const double arista = hacia < 0 ? 0 : Distancia(P, Punto(hacia));
    espacio_.push_back(arista > 0 ? P + Parte(i) / arista * (Punto(hacia) - P) : P);
  }
}

// How far a vertex on an edge lies from the end of the edge, which is its neighbour in the outline.
double Cotejo::Parte(std::size_t vertice) const {
  const auto& contorno = forma_->contorno;
  const std::size_t antes = vertice > 0 ? vertice - 1 : contorno.size() - 2;
  const bool enAntes = contorno[antes].punto == contorno[vertice].punto && contorno[antes].hacia < 0;
  return Distancia(contorno[vertice].p, contorno[enAntes ? antes : vertice + 1].p);
}

void Cotejo::Largo(int a, int b) {
  const Punto2 p = En(a), q = En(b);
  const double error = std::abs(Largo2(q - p) - Distancia(EnEspacio(a), EnEspacio(b)));
  largo_.Anota(std::isfinite(error) ? error : HUGE_VAL, p, q);
}

// Its height says by how much a facet has turned over.
void Cotejo::Triangulo(const Faceta& faceta) {
  const Punto2 a = En(faceta.v[0]), b = En(faceta.v[1]), c = En(faceta.v[2]), u = b - a, v = c - a;
  const double doble = u.x * v.y - u.y * v.x;
  if (!(doble < 0)) return;
  const double altura = -doble / std::max({Largo2(u), Largo2(v), Largo2(c - b)});
  if (altura > kSinAltura) vuelta_.Anota(altura, a, 0.5 * (b + c));
}

// The rims count with their lengths so far, too: small errors of one sign add up.
void Cotejo::Orillas() {
  const int n = (static_cast<int>(forma_->contorno.size()) - 1) / 2, primero = forma_->antes[0];
  const bool haciaAtras = primero != 0 && primero != 2 * n - 1;
  double andado[2]{}, verdad[2]{};
  for (int paso = 0; paso + 1 < n; ++paso) {
    const int i = haciaAtras ? n - 1 - paso : paso, j = haciaAtras ? i - 1 : i + 1;
    const auto avanza = [&](std::size_t orilla, int a, int b) {
      andado[orilla] += Largo2(En(b) - En(a));
      verdad[orilla] += Distancia(EnEspacio(a), EnEspacio(b));
      return std::abs(andado[orilla] - verdad[orilla]);
    };
    const double una = avanza(0, i, j), otra = avanza(1, 2 * n - 1 - i, 2 * n - 1 - j);
    largo_.Anota(std::max(una, otra), En(j), En(2 * n - 1 - j));
  }
}

// Each triangle stands on the edge that it shares with those before, by its lengths in space, counter-clockwise.
std::vector<std::optional<Punto2>> Cotejo::Tendida() const {
  std::vector<std::optional<Punto2>> tendida(plano_.size());
  const auto lugar = [&](int v) -> std::optional<Punto2>& { return tendida[static_cast<std::size_t>(v)]; };
  for (const Faceta& faceta : forma_->facetas) {
    std::array<int, 3> v = faceta.v;
    if (&faceta == forma_->facetas.data()) {
      lugar(v[0]) = Punto2{};
      lugar(v[1]) = Punto2{Distancia(EnEspacio(v[0]), EnEspacio(v[1])), 0};
    }
    for (int vez = 0; vez < 2 && lugar(v[2]); ++vez) std::rotate(v.begin(), v.begin() + 1, v.end());
    if (lugar(v[2]) || !lugar(v[0]) || !lugar(v[1])) continue;
    const Punto3 A = EnEspacio(v[0]), B = EnEspacio(v[1]), C = EnEspacio(v[2]);
    const double largo = Distancia(A, B);
    const Punto3 u = largo > 0 ? (1 / largo) * (B - A) : Punto3{};
    const Punto2 a = *lugar(v[0]), u2 = largo > 0 ? (1 / largo) * (*lugar(v[1]) - a) : Punto2{1, 0};
    const double adelante = Escalar(C - A, u), aparte = Norma(C - A - adelante * u);
    lugar(v[2]) = a + adelante * u2 + aparte * Punto2{-u2.y, u2.x};
  }
  return tendida;
}

Peor Cotejo::PeorFigura() const {
  const auto tendida = Tendida();
  Punto2 centro, suyo;
  double cuenta = 0, coseno = 0, seno = 0;
  const auto cada = [&](const auto& haz) {
    for (std::size_t i = 0; i + 1 < plano_.size(); ++i) {
      if (tendida[i]) haz(*tendida[i], plano_[i]);
    }
  };
  cada([&](Punto2 p, Punto2 q) {
    centro = centro + p;
    suyo = suyo + q;
    ++cuenta;
  });
  centro = (1 / std::max(cuenta, 1.0)) * centro;
  suyo = (1 / std::max(cuenta, 1.0)) * suyo;
  cada([&](Punto2 p, Punto2 q) {
    const Punto2 u = p - centro, v = q - suyo;
    coseno += u.x * v.x + u.y * v.y;
    seno += u.x * v.y - u.y * v.x;
  });
  const double r = std::hypot(coseno, seno), c = r > 0 ? coseno / r : 1, s = r > 0 ? seno / r : 0;
  Peor peor;
  cada([&](Punto2 p, Punto2 q) {
    const Punto2 u = p - centro, girado = suyo + Punto2{c * u.x - s * u.y, s * u.x + c * u.y};
    const double error = Largo2(girado - q);
    peor.Anota(std::isfinite(error) ? error : HUGE_VAL, q, q);
  });
  return peor;
}

Cotejo::Orilla Cotejo::OrillaDe(const Borde& borde) const {
  const auto [p, punto, hacia] = forma_->contorno[static_cast<std::size_t>(borde[0])];
  const double largo = Distancia(En(borde[0]), En(borde[1]));
  if (hacia < 0) return {largo};
  return {largo, true, Parte(static_cast<std::size_t>(borde[0])), Distancia(Punto(punto), Punto(hacia))};
}

}  // namespace duktores
