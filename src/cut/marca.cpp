#include "cut/marca.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <optional>

#include "cut/letras.h"

namespace duktores {

namespace {

constexpr std::array kAlturas{10.0, 7.0, 5.0, 3.5};  // millimetres
constexpr double kMargen = 2;                        // likewise, around the name

/// A strip without an edge in it, in a frame whose x runs along `u`.
struct Hueco {
  Punto2 u;
  double x = 0, y = 0, ancho = 0;
};

struct Canto {
  Punto2 p, q;
  bool borde;
};

class Sitios {
 public:
  Sitios(const Recorte& recorte, double fino) {
    const std::vector<Punto2> borde = Poligono(recorte, fino);
    for (std::size_t i = 0; i < borde.size(); ++i) cantos_.push_back({borde[i], borde[(i + 1) % borde.size()], true});
    for (const DoblezRecorte& d : recorte.dobleces) cantos_.push_back({recorte.En(d.enP), recorte.En(d.enQ), false});
    Rumbos(recorte);
  }

  /// The first strip of this height that is so wide, else the widest.
  Hueco Busca(double alto, double ancho) {
    Hueco mejor;
    for (const Punto2 u : rumbos_) {
      Gira(u);
      for (const double parte : {0.5, 0.35, 0.65, 0.2, 0.8, 0.1, 0.9, 0.275, 0.725, 0.425, 0.575}) {
        const Hueco hueco = EnFranja(u, abajo_ + parte * (arriba_ - abajo_) - alto / 2, alto);
        if (hueco.ancho > mejor.ancho) mejor = hueco;
        if (mejor.ancho >= ancho) return mejor;
      }
    }
    return mejor;
  }

 private:
  // Level, upright, and along some of the folds.
  void Rumbos(const Recorte& recorte) {
    constexpr std::size_t kMuestras = 6;
    rumbos_ = {{1, 0}, {0, 1}};
    const std::size_t n = recorte.dobleces.size(), paso = std::max<std::size_t>(1, n / kMuestras);
    for (std::size_t i = 0; i < n; i += paso) {
      const Punto2 lado = recorte.En(recorte.dobleces[i].enQ) - recorte.En(recorte.dobleces[i].enP);
      const double largo = std::hypot(lado.x, lado.y);
      if (largo > 0) rumbos_.push_back((lado.x < 0 ? -1 : 1) / largo * lado);
    }
  }

  void Gira(Punto2 u) {
    girados_.clear();
    abajo_ = std::numeric_limits<double>::infinity();
    arriba_ = -abajo_;
    const auto gira = [u](Punto2 p) { return Punto2{u.x * p.x + u.y * p.y, u.x * p.y - u.y * p.x}; };
    for (const Canto& c : cantos_) {
      girados_.push_back({gira(c.p), gira(c.q), c.borde});
      abajo_ = std::min(abajo_, girados_.back().p.y);
      arriba_ = std::max(arriba_, girados_.back().p.y);
    }
  }

  // Between two neighbours of the edges that enter the strip, and inside the outline.
  Hueco EnFranja(Punto2 u, double y, double alto) {
    tapados_.clear();
    const double medio = y + alto / 2;
    for (const Canto& c : girados_) {
      const double abajo = std::min(c.p.y, c.q.y), arriba = std::max(c.p.y, c.q.y);
      if (arriba < y || abajo > y + alto) continue;
      const auto en = [&](double altura) {
        const double t = c.q.y == c.p.y ? 0 : std::clamp((altura - c.p.y) / (c.q.y - c.p.y), 0.0, 1.0);
        return c.p.x + t * (c.q.x - c.p.x);
      };
      const bool nivel = c.q.y == c.p.y;
      const double a = nivel ? c.p.x : en(y), b = nivel ? c.q.x : en(y + alto);
      const bool pasa = c.borde && (c.p.y < medio) != (c.q.y < medio);
      tapados_.push_back({std::min(a, b), std::max(a, b), pasa});
    }
    std::ranges::sort(tapados_, {}, &Tapado::desde);
    Hueco mejor;
    bool dentro = false;
    double hasta = 0;
    for (std::size_t i = 0; i < tapados_.size(); ++i) {
      const Tapado& t = tapados_[i];
      const double ancho = i > 0 && dentro ? t.desde - hasta : 0;
      if (ancho > mejor.ancho) mejor = {u, hasta, y, ancho};
      hasta = i > 0 ? std::max(hasta, t.hasta) : t.hasta;
      dentro = dentro != t.pasa;
    }
    return mejor;
  }

  struct Tapado {
    double desde, hasta;
    bool pasa;
  };
  std::vector<Canto> cantos_, girados_;
  std::vector<Punto2> rumbos_;
  std::vector<Tapado> tapados_;
  double abajo_ = 0, arriba_ = 0;
};

std::vector<Trazo> Escribe(std::string_view nombre, const Hueco& hueco, double unidad, double margen) {
  std::vector<Trazo> trazos;
  const double sobra = hueco.ancho - 2 * margen - unidad * (kPasoLetra * static_cast<double>(nombre.size()) - 2);
  const Punto2 u = hueco.u, v{-u.y, u.x};
  double x = hueco.x + margen + sobra / 2;
  const double y = hueco.y + margen;
  for (const char letra : nombre) {
    for (const auto& linea : TrazosLetra(letra)) {
      for (std::size_t i = 1; i < linea.size(); ++i) {
        const auto en = [&](Punto2 p) { return (x + unidad * p.x) * u + (y + unidad * p.y) * v; };
        trazos.emplace_back(en(linea[i - 1]), en(linea[i]));
      }
    }
    x += unidad * kPasoLetra;
  }
  return trazos;
}

}  // namespace

std::vector<Trazo> MarcaDe(const Recorte& recorte, std::string_view nombre, double milimetro) {
  if (recorte.falta || nombre.empty()) return {};
  const double margen = kMargen * milimetro;
  Sitios sitios(recorte, margen / 20);
  const auto ancho = [](std::size_t letras, double unidad) {
    return unidad * (kPasoLetra * static_cast<double>(letras) - (kPasoLetra - kAnchoLetra));
  };
  for (const double altura : kAlturas) {
    const double alto = altura * milimetro, unidad = alto / kAltoLetra;
    const Hueco hueco = sitios.Busca(alto + 2 * margen, ancho(nombre.size(), unidad) + 2 * margen);
    std::size_t caben = nombre.size();
    while (caben > 0 && ancho(caben, unidad) + 2 * margen > hueco.ancho) --caben;
    if (caben == nombre.size() || (altura == kAlturas.back() && caben > 0)) {
      return Escribe(nombre.substr(0, caben), hueco, unidad, margen);
    }
  }
  return {};
}

}  // namespace duktores
