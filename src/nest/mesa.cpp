#include "nest/mesa.h"

#include <algorithm>
#include <cmath>

#include "geometry/planas.h"

namespace duktores {

namespace {

bool Toca(const Extremos& a, const Extremos& b) {
  return a.desde.x <= b.hasta.x && b.desde.x <= a.hasta.x && a.desde.y <= b.hasta.y && b.desde.y <= a.hasta.y;
}

bool Contiene(const Extremos& caja, Punto2 p) {
  return p.x >= caja.desde.x && p.x <= caja.hasta.x && p.y >= caja.desde.y && p.y <= caja.hasta.y;
}

}  // namespace

// The edges of all no-fit polygons that reach where the part may lie.
void Tanteo::Reune(std::size_t parte, std::size_t giro, const std::vector<Puesta>& puestas) {
  lados_.clear();
  obstaculos_.clear();
  for (const Puesta& puesta : puestas) {
    const auto no = moldes_.NoCabeEntre(puesta.parte, puesta.giro, parte, giro);
    const Giro& gira = moldes_.GiroDe(puesta.giro);
    const std::size_t desde = lados_.size();
    Extremos caja;
    Punto2 fin{};
    for (const auto& [a, b] : no->Cantos()) {
      const Punto2 p = a == fin && lados_.size() > desde ? lados_.back().q : gira(a) + puesta.sitio;
      const Punto2 q = gira(b) + puesta.sitio;
      fin = b;
      caja.Incluye(q);
      lados_.push_back(
          {p, q, std::min(p.x, q.x), std::max(p.x, q.x), std::min(p.y, q.y), std::max(p.y, q.y), obstaculos_.size()});
    }
    if (Toca(caja, donde_)) {
      obstaculos_.push_back({no, puesta.sitio, moldes_.ContragiroDe(puesta.giro)});
    } else {
      lados_.resize(desde);
    }
  }
}

void Tanteo::Propon(Punto2 sitio) {
  if (!Contiene(donde_, sitio)) return;
  const double valor = gusto_.Valor(*caja_, sitio);
  if (valor < cota_) candidatos_.push_back({valor, sitio});
}

// Where edges of different polygons cross each other, or the border of where the part may lie.
void Tanteo::ProponCruces() {
  orden_.clear();
  for (const Lado& lado : lados_) {
    if (lado.izquierda > donde_.hasta.x || lado.derecha < donde_.desde.x || lado.abajo > donde_.hasta.y ||
        lado.arriba < donde_.desde.y) {
      continue;
    }
    orden_.push_back(lado);
    const Punto2 v = lado.q - lado.p;
    for (const double x : {donde_.desde.x, donde_.hasta.x}) {
      if (lado.izquierda <= x && x <= lado.derecha && v.x != 0) Propon({x, lado.p.y + (x - lado.p.x) / v.x * v.y});
    }
    for (const double y : {donde_.desde.y, donde_.hasta.y}) {
      if (lado.abajo <= y && y <= lado.arriba && v.y != 0) Propon({lado.p.x + (y - lado.p.y) / v.y * v.x, y});
    }
  }
  std::ranges::sort(orden_, {}, &Lado::izquierda);
  for (std::size_t i = 0; i < orden_.size(); ++i) {
    const Lado& a = orden_[i];
    const Punto2 u = a.q - a.p;
    for (std::size_t j = i + 1; j < orden_.size() && orden_[j].izquierda <= a.derecha; ++j) {
      const Lado& b = orden_[j];
      if (b.abajo > a.arriba || b.arriba < a.abajo || a.de == b.de) continue;
      const Punto2 v = b.q - b.p, w = b.p - a.p;
      const double det = Vectorial2(u, v);
      if (det == 0) continue;
      const double s = Vectorial2(w, v) / det, t = Vectorial2(w, u) / det;
      if (s >= 0 && s <= 1 && t >= 0 && t <= 1) Propon(a.p + s * u);
    }
  }
}

// What covered the place before covers most places near it.
bool Tanteo::Libre(Punto2 sitio) {
  const auto tapa = [&](const Obstaculo& o) { return o.no->Tapa(o.contragiro(sitio - o.sitio)); };
  if (ultimo_ < obstaculos_.size() && tapa(obstaculos_[ultimo_])) return false;
  for (std::size_t i = 0; i < obstaculos_.size(); ++i) {
    if (i == ultimo_ || !tapa(obstaculos_[i])) continue;
    ultimo_ = i;
    return false;
  }
  return true;
}

std::optional<Puesta> Tanteo::Busca(std::size_t parte, std::optional<std::size_t> giro,
                                    const std::vector<Puesta>& puestas, Punto2 tamano, double margen, Gusto gusto) {
  std::optional<Puesta> mejor;
  gusto_ = gusto;
  cota_ = 1e300;
  const Punto2 borde{margen, margen};
  for (std::size_t g = giro.value_or(0); g < (giro ? *giro + 1 : moldes_.Giros().size()); ++g) {
    caja_ = &moldes_.ExtremosEn(parte, g);
    donde_ = {borde - caja_->desde, tamano - borde - caja_->hasta};
    if (donde_.Ancho() < -kRoce || donde_.Alto() < -kRoce) continue;
    donde_.hasta = {std::max(donde_.desde.x, donde_.hasta.x), std::max(donde_.desde.y, donde_.hasta.y)};
    candidatos_.clear();
    if (gusto_.Valor(*caja_, donde_.desde) >= cota_) continue;
    Reune(parte, g, puestas);
    for (const Punto2 p :
         {donde_.desde, donde_.hasta, Punto2{donde_.desde.x, donde_.hasta.y}, Punto2{donde_.hasta.x, donde_.desde.y}}) {
      Propon(p);
    }
    for (const Lado& lado : lados_) Propon(lado.p);
    ProponCruces();
    std::make_heap(candidatos_.begin(), candidatos_.end());
    ultimo_ = 0;
    while (!candidatos_.empty()) {
      std::pop_heap(candidatos_.begin(), candidatos_.end());
      const Candidato c = candidatos_.back();
      candidatos_.pop_back();
      if (!Libre(c.sitio)) continue;
      mejor = Puesta{parte, g, c.sitio};
      cota_ = c.valor;
      break;
    }
  }
  return mejor;
}

}  // namespace duktores
