#include "nest/separa.h"

#include <algorithm>
#include <cmath>

namespace duktores {

namespace {

constexpr double kFuera = 1e9;            // what a part off its sheet counts as
constexpr double kSegura = kHolgura / 2;  // so deep parts may overlap, by depths that are rounded

Punto2 Acotado(Punto2 p, const Extremos& donde) {
  return {std::clamp(p.x, donde.desde.x, donde.hasta.x), std::clamp(p.y, donde.desde.y, donde.hasta.y)};
}

}  // namespace

Extremos Separador::Sitios(std::size_t parte, std::size_t giro, std::size_t hoja) const {
  const Extremos& caja = moldes_.ExtremosEn(parte, giro);
  const Punto2 borde{margen_, margen_};
  return {borde - caja.desde, (*tamanos_)[hoja] - borde - caja.hasta};
}

bool Separador::Dentro(const Suelta& parte) const {
  if (parte.vedada == parte.hoja) return false;
  const Extremos donde = Sitios(parte.parte, parte.giro, parte.hoja);
  const Punto2 p = parte.sitio;
  return p.x >= donde.desde.x - kRoce && p.x <= donde.hasta.x + kRoce && p.y >= donde.desde.y - kRoce &&
         p.y <= donde.hasta.y + kRoce;
}

// How much overlaps, and which parts; the weights of those pairs grow, all others shrink.
double Separador::Mide(std::vector<bool>& solapan) {
  constexpr double kCrece = 1.2, kCreceMas = 0.8, kMengua = 0.95, kMaximo = 1e15;
  struct Par {
    std::size_t i, j;
    double hondura;
  };
  std::vector<Par> pares;
  double suma = 0, mayor = 0;
  solapan.assign(partes_->size(), false);
  for (const auto& hoja : enHoja_) {
    for (std::size_t a = 0; a < hoja.size(); ++a) {
      const Suelta& fija = (*partes_)[hoja[a]];
      for (std::size_t b = a + 1; b < hoja.size(); ++b) {
        const Suelta& otra = (*partes_)[hoja[b]];
        const auto no = moldes_.NoCabeEntre(fija.parte, fija.giro, otra.parte, otra.giro);
        const Punto2 donde = moldes_.ContragiroDe(fija.giro)(otra.sitio - fija.sitio);
        if (!no->Tapa(donde)) continue;
        const double d = std::max(kHolgura, no->Hondura(donde));
        pares.push_back({hoja[a], hoja[b], d});
        suma += d;
        mayor = std::max(mayor, d);
      }
    }
  }
  for (double& peso : pesos_) peso = std::max(1.0, kMengua * peso);
  for (const Par& par : pares) {
    solapan[par.i] = solapan[par.j] = true;
    double& peso = Peso(par.i, par.j);
    peso = std::min(kMaximo, peso * (kCrece + kCreceMas * par.hondura / mayor) / kMengua);
  }
  for (std::size_t i = 0; i < partes_->size(); ++i) {
    if (Dentro((*partes_)[i])) continue;
    solapan[i] = true;
    suma += kFuera;
  }
  return suma;
}

double Separador::Valor(const Lugar& lugar, Punto2 sitio, double tope) {
  double suma = 0;
  for (const Vecino& v : lugar.vecinos) {
    const double d = v.no->Hondura(v.contragiro(sitio - v.sitio));
    if (d <= kSegura) continue;
    suma += v.peso * d;
    if (suma >= tope) break;
  }
  return suma;
}

// Null where the sheet is too small for it.
const Separador::Lugar* Separador::LugarDe(std::size_t cual, std::size_t hoja, std::size_t giro) {
  for (const auto& lugar : lugares_) {
    if (lugar->hoja == hoja && lugar->giro == giro) return lugar.get();
  }
  const std::size_t parte = (*partes_)[cual].parte;
  if ((*partes_)[cual].vedada == hoja) return nullptr;
  Extremos donde = Sitios(parte, giro, hoja);
  if (donde.Ancho() < -kRoce || donde.Alto() < -kRoce) return nullptr;
  donde.hasta = {std::max(donde.desde.x, donde.hasta.x), std::max(donde.desde.y, donde.hasta.y)};
  auto lugar = std::make_unique<Lugar>(Lugar{hoja, giro, donde, {}});
  for (const std::size_t i : enHoja_[hoja]) {
    const Suelta& otra = (*partes_)[i];
    if (i == cual) continue;
    lugar->vecinos.push_back({moldes_.NoCabeEntre(otra.parte, otra.giro, parte, giro), otra.sitio,
                              moldes_.ContragiroDe(otra.giro), Peso(i, cual)});
  }
  return lugares_.emplace_back(std::move(lugar)).get();
}

// Downhill in eight directions, with shorter and shorter steps.
void Separador::Afina(Postura& postura, double paso, double fino) const {
  constexpr double kDiagonal = 0.7071067811865476;
  constexpr Punto2 kRumbos[]{{1, 0},
                             {0, 1},
                             {-1, 0},
                             {0, -1},
                             {kDiagonal, kDiagonal},
                             {-kDiagonal, kDiagonal},
                             {-kDiagonal, -kDiagonal},
                             {kDiagonal, -kDiagonal}};
  std::size_t rumbo = 0;
  while (paso >= fino && postura.valor > 0) {
    bool baja = false;
    for (std::size_t k = 0; k < std::size(kRumbos) && !baja; ++k) {
      const std::size_t r = (rumbo + k) % std::size(kRumbos);
      const Punto2 sitio = Acotado(postura.sitio + paso * kRumbos[r], postura.lugar->donde);
      const double valor = Valor(*postura.lugar, sitio, postura.valor);
      baja = valor < postura.valor;
      if (!baja) continue;
      postura = {valor, postura.lugar, sitio};
      rumbo = r;
    }
    paso = baja ? 1.3 * paso : paso / 2;
  }
}

// Places all over the sheets, and some near where it lies.
void Separador::Prueba(std::size_t cual) {
  constexpr std::size_t kPruebas = 40, kCerca = 16, kQuedan = 3;
  const Suelta& parte = (*partes_)[cual];
  const Extremos& caja = moldes_.ExtremosEn(parte.parte, parte.giro);
  const double talla = std::min(caja.Ancho(), caja.Alto());
  mejores_.clear();
  for (std::size_t i = 0; i < kPruebas + kCerca; ++i) {
    const bool cerca = i < kCerca;
    const bool aqui = cerca || azar_.Parte() < 0.5;
    const std::size_t hoja = aqui ? parte.hoja : azar_.Menor(tamanos_->size());
    const std::size_t giro = cerca && azar_.Parte() < 0.7 ? parte.giro : azar_.Menor(moldes_.Giros().size());
    const Lugar* lugar = LugarDe(cual, hoja, giro);
    if (!lugar) continue;
    const Extremos& donde = lugar->donde;
    const Punto2 suerte{azar_.Parte(), azar_.Parte()};
    const Punto2 sitio =
        cerca ? Acotado(parte.sitio + talla * (suerte - Punto2{0.5, 0.5}), donde)
              : Punto2{donde.desde.x + suerte.x * donde.Ancho(), donde.desde.y + suerte.y * donde.Alto()};
    const double tope = mejores_.size() < kQuedan ? 1e300 : mejores_.back().valor;
    const double valor = Valor(*lugar, sitio, tope);
    if (valor >= tope) continue;
    if (mejores_.size() == kQuedan) mejores_.pop_back();
    const auto puesto = std::ranges::upper_bound(mejores_, valor, {}, &Postura::valor);
    mejores_.insert(puesto, {valor, lugar, sitio});
  }
  for (Postura& postura : mejores_) Afina(postura, talla / 16, talla / 2000);
}

void Separador::Mueve(std::size_t cual) {
  Suelta& parte = (*partes_)[cual];
  lugares_.clear();
  Postura ahora{1e300, nullptr, parte.sitio};
  if (Dentro(parte)) {
    ahora.lugar = LugarDe(cual, parte.hoja, parte.giro);
    ahora.valor = Valor(*ahora.lugar, ahora.sitio, 1e300);
  }
  if (ahora.valor <= 0) return;
  Prueba(cual);
  if (mejores_.empty()) return;
  Postura mejor = *std::ranges::min_element(mejores_, {}, &Postura::valor);
  Afina(mejor, 64 * kHolgura, kHolgura);
  if (mejor.valor >= ahora.valor) return;
  if (mejor.lugar->hoja != parte.hoja) {
    std::erase(enHoja_[parte.hoja], cual);
    enHoja_[mejor.lugar->hoja].push_back(cual);
  }
  parte = {parte.parte, mejor.lugar->giro, mejor.lugar->hoja, mejor.sitio, parte.vedada};
}

bool Separador::Separa(std::vector<Suelta>& partes, const std::vector<Punto2>& tamanos,
                       const std::function<bool()>& sigue) {
  constexpr std::size_t kPaciencia = 25;  // moves of each part without getting better
  constexpr double kMejora = 0.98;
  partes_ = &partes;
  tamanos_ = &tamanos;
  enHoja_.assign(tamanos.size(), {});
  for (std::size_t i = 0; i < partes.size(); ++i) enHoja_[partes[i].hoja].push_back(i);
  pesos_.assign(partes.size() * (partes.size() - 1) / 2, 1);
  double menor = 1e300;
  std::vector<bool> solapan;
  for (std::size_t fallos = 0; fallos < kPaciencia * partes.size();) {
    const double suma = Mide(solapan);
    if (suma <= 0) return true;
    if (suma < kMejora * menor) fallos = 0;
    menor = std::min(menor, suma);
    std::vector<std::size_t> orden;
    for (std::size_t i = 0; i < partes.size(); ++i) {
      if (solapan[i]) orden.push_back(i);
    }
    for (std::size_t i = orden.size(); i > 1; --i) std::swap(orden[i - 1], orden[azar_.Menor(i)]);
    for (const std::size_t i : orden) {
      if (!sigue()) return false;
      Mueve(i);
      ++fallos;
    }
  }
  return false;
}

}  // namespace duktores
