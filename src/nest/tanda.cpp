#include "nest/tanda.h"

#include <algorithm>
#include <map>
#include <numeric>

namespace duktores {

namespace {

constexpr double kFalta = 4;  // what a part without a sheet costs, times its area

}  // namespace

Tanda::Tanda(const EncargoNido& encargo, Moldes& moldes)
    : encargo_(&encargo), moldes_(&moldes), porTamano_(encargo.chapas.size()) {
  std::iota(porTamano_.begin(), porTamano_.end(), std::size_t{0});
  std::ranges::stable_sort(porTamano_, {}, [this](std::size_t chapa) { return AreaDe(chapa); });
}

double Tanda::AreaDe(std::size_t chapa) const { return Tamano(chapa).x * Tamano(chapa).y; }

// The turn at which it fits and is lowest.
std::optional<std::size_t> Tanda::GiroEn(std::size_t parte, std::size_t chapa) const {
  const double borde = 2 * moldes_->Escala() * encargo_->margen;
  const Punto2 hay = Tamano(chapa) - Punto2{borde, borde};
  std::optional<std::size_t> mejor;
  for (std::size_t g = 0; g < moldes_->Giros().size(); ++g) {
    const Extremos& caja = moldes_->ExtremosEn(parte, g);
    if (caja.Ancho() > hay.x + kRoce || caja.Alto() > hay.y + kRoce) continue;
    if (!mejor || caja.Alto() < moldes_->ExtremosEn(parte, *mejor).Alto()) mejor = g;
  }
  return mejor;
}

// The smallest kind of sheet that takes it and of which one is left.
std::optional<std::size_t> Tanda::ChapaPara(std::size_t parte) const {
  for (const std::size_t chapa : porTamano_) {
    const auto& cuantas = encargo_->chapas[chapa].cuantas;
    const bool queda = !cuantas || std::ranges::count(hojas_, chapa, &Hoja::chapa) < *cuantas;
    if (queda && CabeEn(parte, chapa)) return chapa;
  }
  return {};
}

void Tanda::Estantes() {
  struct Estante {
    std::size_t hoja;
    double x, y, alto;
  };
  const double margen = moldes_->Escala() * encargo_->margen, hueco = moldes_->Escala() * encargo_->hueco + kHolgura;
  Rebobina(0);
  std::vector<Estante> estantes;
  std::vector<double> techos;  // of each sheet, where its next shelf goes
  const auto alto = [&](const Turno& t) {
    const auto giro = porTamano_.empty() ? std::nullopt : GiroEn(t.parte, porTamano_.back());
    return moldes_->ExtremosEn(t.parte, giro.value_or(0)).Alto();
  };
  std::ranges::stable_sort(turnos, std::ranges::greater{}, alto);
  // The shelf that takes it, made if it has to be.
  const auto busca = [&](std::size_t parte) -> Estante* {
    const auto cabe = [&](double x, double y, double techo, std::size_t hoja) {
      const auto giro = GiroEn(parte, hojas_[hoja].chapa);
      if (!giro) return false;
      const Extremos& caja = moldes_->ExtremosEn(parte, *giro);
      return x + caja.Ancho() <= Tamano(hojas_[hoja].chapa).x - margen + kRoce && y + caja.Alto() <= techo + kRoce;
    };
    for (Estante& e : estantes) {
      if (cabe(e.x, e.y, e.y + e.alto, e.hoja)) return &e;
    }
    const auto nuevo = [&](std::size_t hoja) {
      const double y = techos[hoja], suyo = moldes_->ExtremosEn(parte, *GiroEn(parte, hojas_[hoja].chapa)).Alto();
      techos[hoja] += suyo + hueco;
      return &estantes.emplace_back(Estante{hoja, margen, y, suyo});
    };
    for (std::size_t hoja = 0; hoja < hojas_.size(); ++hoja) {
      if (cabe(margen, techos[hoja], Tamano(hojas_[hoja].chapa).y - margen, hoja)) return nuevo(hoja);
    }
    const auto chapa = ChapaPara(parte);
    if (!chapa) return nullptr;
    hojas_.push_back({*chapa, {}, {}});
    techos.push_back(margen);
    return nuevo(hojas_.size() - 1);
  };
  for (; hechos_ < turnos.size(); ++hechos_) {
    const std::size_t parte = turnos[hechos_].parte;
    Estante* estante = busca(parte);
    if (!estante) {
      faltan_.push_back(hechos_);
      faltaArea_ += moldes_->Area(parte);
      continue;
    }
    Hoja& hoja = hojas_[estante->hoja];
    const std::size_t giro = *GiroEn(parte, hoja.chapa);
    const Extremos& caja = moldes_->ExtremosEn(parte, giro);
    hoja.puestas.push_back({parte, giro, Punto2{estante->x, estante->y} - caja.desde});
    hoja.turnos.push_back(hechos_);
    estante->x += caja.Ancho() + hueco;
  }
  for (Hoja& hoja : hojas_) Suma(hoja);
}

bool Tanda::CabeEnAlguna(std::size_t parte) const {
  return std::ranges::any_of(porTamano_, [&](std::size_t chapa) { return CabeEn(parte, chapa); });
}

// The state as it was when the turns before this one had been laid.
void Tanda::Rebobina(std::size_t desde) {
  for (Hoja& hoja : hojas_) {
    const std::size_t habia = hoja.turnos.size();
    while (!hoja.turnos.empty() && hoja.turnos.back() >= desde) {
      hoja.turnos.pop_back();
      hoja.puestas.pop_back();
    }
    if (hoja.turnos.size() < habia && hoja.apartada) {
      hoja.llena.clear();
      hoja.apartada = false;
    }
    while (!hoja.llena.empty() && hoja.llena.back().first >= desde) hoja.llena.pop_back();
    Suma(hoja);
  }
  std::erase_if(hojas_, [](const Hoja& hoja) { return hoja.puestas.empty(); });
  while (!faltan_.empty() && faltan_.back() >= desde) faltan_.pop_back();
  faltaArea_ = 0;
  for (const std::size_t turno : faltan_) faltaArea_ += moldes_->Area(turnos[turno].parte);
  hechos_ = std::min(hechos_, desde);
}

void Tanda::Suma(Hoja& hoja) const {
  hoja.area = hoja.derecha = 0;
  for (const Puesta& p : hoja.puestas) {
    hoja.area += moldes_->Area(p.parte);
    hoja.derecha = std::max(hoja.derecha, p.sitio.x + moldes_->ExtremosEn(p.parte, p.giro).hasta.x);
  }
}

std::vector<Suelta> Tanda::Sueltas(const std::vector<std::size_t>& hojas) const {
  std::vector<Suelta> sueltas;
  for (std::size_t i = 0; i < hojas.size(); ++i) {
    for (const Puesta& p : hojas_[hojas[i]].puestas) sueltas.push_back({p.parte, p.giro, i, p.sitio});
  }
  return sueltas;
}

void Tanda::Toma(const std::vector<std::size_t>& hojas, const std::vector<Suelta>& partes) {
  for (const std::size_t hoja : hojas) hojas_[hoja].puestas.clear();
  for (const Suelta& s : partes) hojas_[hojas[s.hoja]].puestas.push_back({s.parte, s.giro, s.sitio});
  std::vector<Turno> orden, sinHoja;
  for (const std::size_t turno : faltan_) sinHoja.push_back(turnos[turno]);
  for (Hoja& hoja : hojas_) {
    hoja.turnos.clear();
    hoja.llena.clear();
    hoja.apartada = false;
    for (const Puesta& p : hoja.puestas) {
      hoja.turnos.push_back(orden.size());
      orden.push_back({p.parte});
    }
    Suma(hoja);
  }
  std::erase_if(hojas_, [](const Hoja& hoja) { return hoja.puestas.empty(); });
  for (std::size_t i = 0; i < faltan_.size(); ++i) faltan_[i] = orden.size() + i;
  orden.insert(orden.end(), sinHoja.begin(), sinHoja.end());
  turnos = std::move(orden);
  hechos_ = turnos.size();
}

std::size_t Tanda::Aparta(const std::vector<std::size_t>& hojas) {
  std::vector<bool> aparte(turnos.size());
  for (const std::size_t i : hojas) {
    for (const std::size_t turno : hojas_[i].turnos) aparte[turno] = true;
  }
  for (const std::size_t turno : faltan_) aparte[turno] = true;
  std::vector<std::size_t> nuevo(turnos.size());
  std::vector<Turno> orden;
  std::size_t desde = 0;
  for (const bool vez : {false, true}) {
    if (vez) desde = orden.size();
    for (std::size_t i = 0; i < turnos.size(); ++i) {
      if (aparte[i] != vez) continue;
      nuevo[i] = orden.size();
      orden.push_back(turnos[i]);
    }
  }
  turnos = std::move(orden);
  for (std::size_t& turno : faltan_) turno = nuevo[turno];
  for (Hoja& hoja : hojas_) {
    for (std::size_t& turno : hoja.turnos) turno = nuevo[turno];
    // What found no room beside all that lies there finds none as long as that does.
    for (auto& [turno, area] : hoja.llena) turno = 0;
    hoja.apartada = true;
  }
  return desde;
}

bool Tanda::PonEn(Tanteo& tanteo, Hoja& hoja, std::size_t turno) {
  const auto& [parte, giro] = turnos[turno];
  const double area = moldes_->Area(parte);
  if (hoja.area + area > AreaDe(hoja.chapa) || (!hoja.llena.empty() && area >= hoja.llena.back().second)) return false;
  const auto puesta =
      tanteo.Busca(parte, giro, hoja.puestas, Tamano(hoja.chapa), moldes_->Escala() * encargo_->margen, gusto);
  if (!puesta) {
    hoja.llena.emplace_back(turno, area);
    return false;
  }
  hoja.puestas.push_back(*puesta);
  hoja.turnos.push_back(turno);
  hoja.area += area;
  hoja.derecha = std::max(hoja.derecha, puesta->sitio.x + moldes_->ExtremosEn(parte, puesta->giro).hasta.x);
  return true;
}

// The smallest sheet that serves and that there still is.
bool Tanda::Empieza(Tanteo& tanteo, std::size_t turno) {
  for (const std::size_t chapa : porTamano_) {
    const auto& cuantas = encargo_->chapas[chapa].cuantas;
    if (cuantas && std::ranges::count(hojas_, chapa, &Hoja::chapa) >= *cuantas) continue;
    Hoja nueva{chapa, {}, {}};
    if (!PonEn(tanteo, nueva, turno)) continue;
    hojas_.push_back(std::move(nueva));
    return true;
  }
  return false;
}

bool Tanda::Coloca(Tanteo& tanteo, std::size_t desde, double tope, const std::function<bool()>& sigue) {
  Rebobina(desde);
  for (; hechos_ < turnos.size(); ++hechos_) {
    if (!sigue() || Coste() > tope) return false;
    const bool puesta = std::ranges::any_of(hojas_, [&](Hoja& hoja) { return PonEn(tanteo, hoja, hechos_); }) ||
                        Empieza(tanteo, hechos_);
    if (puesta) continue;
    faltan_.push_back(hechos_);
    faltaArea_ += moldes_->Area(turnos[hechos_].parte);
  }
  return Coste() <= tope;
}

double Tanda::Coste() const {
  double coste = kFalta * faltaArea_;
  const auto floja = std::ranges::min_element(hojas_, {}, &Hoja::area);
  for (auto hoja = hojas_.begin(); hoja != hojas_.end(); ++hoja) {
    coste += hoja == floja ? (hoja->area + hoja->derecha * Tamano(hoja->chapa).y) / 2 : AreaDe(hoja->chapa);
  }
  return coste;
}

Nido Tanda::Resultado() const {
  Nido nido;
  for (const Hoja& hoja : hojas_) {
    ChapaPuesta& chapa = nido.chapas.emplace_back(ChapaPuesta{hoja.chapa, {}});
    for (const Puesta& p : hoja.puestas) {
      chapa.partes.push_back({p.parte, moldes_->Giros()[p.giro], 1 / moldes_->Escala() * p.sitio});
    }
  }
  std::map<std::size_t, int> sinChapa, sinTurno;
  for (const std::size_t turno : faltan_) ++sinChapa[turnos[turno].parte];
  for (std::size_t i = hechos_; i < turnos.size(); ++i) ++sinTurno[turnos[i].parte];
  for (const auto& [parte, cantidad] : sinChapa) nido.faltan.push_back({parte, cantidad, FaltaNido::sinChapas});
  for (const auto& [parte, cantidad] : sinTurno) nido.faltan.push_back({parte, cantidad, FaltaNido::interrumpido});
  return nido;
}

}  // namespace duktores
