#include "nest/revisa.h"

#include <algorithm>
#include <cmath>

#include "geometry/planas.h"

namespace duktores {

namespace {

constexpr double kTolerancia = 1e-6;  // millimetres

using Contorno = std::vector<Punto2>;

struct Tendida {
  Contorno puntos;
  Punto2 desde{HUGE_VAL, HUGE_VAL}, hasta{-HUGE_VAL, -HUGE_VAL};

  explicit Tendida(Contorno contorno) : puntos(std::move(contorno)) {
    for (const Punto2 p : puntos) {
      desde = {std::min(desde.x, p.x), std::min(desde.y, p.y)};
      hasta = {std::max(hasta.x, p.x), std::max(hasta.y, p.y)};
    }
  }
};

struct Canto {
  Punto2 a, b;
  double Izquierda() const { return std::min(a.x, b.x); }
  double Derecha() const { return std::max(a.x, b.x); }
};

// Those edges that come so near to a box.
std::vector<Canto> CantosCerca(const Contorno& contorno, const Tendida& otra, double cerca) {
  std::vector<Canto> cantos;
  Punto2 a = contorno.back();
  for (const Punto2 b : contorno) {
    const Canto canto{a, b};
    a = b;
    if (canto.Derecha() < otra.desde.x - cerca || canto.Izquierda() > otra.hasta.x + cerca) continue;
    if (std::max(canto.a.y, canto.b.y) < otra.desde.y - cerca) continue;
    if (std::min(canto.a.y, canto.b.y) > otra.hasta.y + cerca) continue;
    cantos.push_back(canto);
  }
  std::ranges::sort(cantos, {}, &Canto::Izquierda);
  return cantos;
}

bool SeCruzan(const Canto& p, const Canto& q) {
  const auto lado = [](const Canto& c, Punto2 r) { return Vectorial2(c.b - c.a, r - c.a); };
  return (lado(p, q.a) > 0) != (lado(p, q.b) > 0) && (lado(q, p.a) > 0) != (lado(q, p.b) > 0);
}

double Separacion(const Canto& p, const Canto& q) {
  if (SeCruzan(p, q)) return 0;
  return std::min({DistanciaASegmento(p.a, q.a, q.b), DistanciaASegmento(p.b, q.a, q.b),
                   DistanciaASegmento(q.a, p.a, p.b), DistanciaASegmento(q.b, p.a, p.b)});
}

bool EstaDentro(Punto2 p, const Contorno& contorno) {
  bool dentro = false;
  Punto2 a = contorno.back();
  for (const Punto2 b : contorno) {
    if ((a.y > p.y) != (b.y > p.y) && p.x < a.x + (p.y - a.y) / (b.y - a.y) * (b.x - a.x)) dentro = !dentro;
    a = b;
  }
  return dentro;
}

std::optional<FaltaRevision> FaltaEntre(const Tendida& una, const Tendida& otra, double hueco, double tolerancia) {
  if (una.desde.x > otra.hasta.x + hueco || otra.desde.x > una.hasta.x + hueco || una.desde.y > otra.hasta.y + hueco ||
      otra.desde.y > una.hasta.y + hueco) {
    return std::nullopt;
  }
  const auto suyos = CantosCerca(una.puntos, otra, hueco), ajenos = CantosCerca(otra.puntos, una, hueco);
  for (const Canto& p : suyos) {
    for (const Canto& q : ajenos) {
      if (q.Izquierda() > p.Derecha() + hueco) break;
      if (q.Derecha() < p.Izquierda() - hueco) continue;
      const double separacion = Separacion(p, q);
      if (separacion < hueco - tolerancia || SeCruzan(p, q)) return FaltaRevision::demasiadoCerca;
    }
  }
  const bool dentro = EstaDentro(una.puntos[0], otra.puntos) || EstaDentro(otra.puntos[0], una.puntos);
  return dentro ? std::optional(FaltaRevision::dentroDeOtra) : std::nullopt;
}

bool Permitido(double grados, double paso) {
  const double vueltas = paso > 0 ? grados / paso : grados;
  return std::abs(vueltas - std::round(vueltas)) < kTolerancia && (paso > 0 || grados == 0);
}

void RevisaUna(const EncargoNido& encargo, const ChapaPuesta& chapa, std::size_t numero,
               std::vector<FallaNido>& fallas) {
  const double tolerancia = kTolerancia * encargo.milimetro, margen = encargo.margen - tolerancia;
  const Punto2 tamano = encargo.chapas[chapa.chapa].tamano;
  std::vector<Tendida> tendidas;
  for (std::size_t i = 0; i < chapa.partes.size(); ++i) {
    const Colocada& c = chapa.partes[i];
    const Tendida& t = tendidas.emplace_back(ContornoEn(encargo.partes[c.parte], c));
    const bool cabe =
        t.desde.x >= margen && t.desde.y >= margen && t.hasta.x <= tamano.x - margen && t.hasta.y <= tamano.y - margen;
    if (!cabe) fallas.push_back({numero, FaltaRevision::fueraDeChapa, i, i});
    if (!Permitido(c.grados, encargo.giro)) fallas.push_back({numero, FaltaRevision::giroProhibido, i, i});
  }
  for (std::size_t i = 0; i < tendidas.size(); ++i) {
    for (std::size_t j = i + 1; j < tendidas.size(); ++j) {
      const auto falta = FaltaEntre(tendidas[i], tendidas[j], encargo.hueco, tolerancia);
      if (falta) fallas.push_back({numero, *falta, i, j});
    }
  }
}

}  // namespace

std::vector<FallaNido> RevisaChapas(const EncargoNido& encargo, const Nido& nido) {
  std::vector<FallaNido> fallas;
  for (std::size_t i = 0; i < nido.chapas.size(); ++i) RevisaUna(encargo, nido.chapas[i], i, fallas);
  return fallas;
}

bool CuadranCantidades(const EncargoNido& encargo, const Nido& nido) {
  std::vector<long> partes(encargo.partes.size()), chapas(encargo.chapas.size());
  for (const ChapaPuesta& chapa : nido.chapas) {
    ++chapas[chapa.chapa];
    for (const Colocada& c : chapa.partes) ++partes[c.parte];
  }
  for (const NoPuesta& falta : nido.faltan) partes[falta.parte] += falta.cantidad;
  for (std::size_t i = 0; i < partes.size(); ++i) {
    if (partes[i] != std::max(0, encargo.partes[i].cantidad)) return false;
  }
  for (std::size_t i = 0; i < chapas.size(); ++i) {
    const auto& cuantas = encargo.chapas[i].cuantas;
    if (cuantas && chapas[i] > *cuantas) return false;
  }
  return true;
}

}  // namespace duktores
