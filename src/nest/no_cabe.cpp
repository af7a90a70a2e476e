#include "nest/no_cabe.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <span>

#include "geometry/planas.h"

namespace duktores {

namespace {

using ClipperLib::cInt;
using ClipperLib::IntPoint;
using ClipperLib::Path;
using ClipperLib::Paths;

constexpr double kRendija = 1e4;  // square units
constexpr double kRoto = 3;       // units: as wide as slits may be

// Exact: coordinates have less than 29 bits.
cInt Vuelta(IntPoint a, IntPoint b) { return a.X * b.Y - a.Y * b.X; }
IntPoint Resta(IntPoint a, IntPoint b) { return {a.X - b.X, a.Y - b.Y}; }
IntPoint Suma(IntPoint a, IntPoint b) { return {a.X + b.X, a.Y + b.Y}; }

/// The convolution of two outlines that run counter-clockwise: each edge of one at those vertices of the other where
/// that turns past its direction, backwards where it turns to the right. Its edges make closed paths, which wind round
/// just those points that are a sum of one of each inside.
class Convolucion {
 public:
  Convolucion(const Path& a, const Path& b) {
    Barre(a, b, true);
    Barre(b, a, false);
  }

  /// None where roundings have made a corner a spike, so that paths don't close.
  std::optional<Paths> Caminos() {
    std::ranges::sort(pasos_, [](const Paso& p, const Paso& q) { return Antes(p.desde, q.desde); });
    std::vector<std::size_t> usados(pasos_.size());  // at the first of those that leave a point: how many are used
    Paths caminos;
    for (std::size_t i = 0; i < pasos_.size(); ++i) {
      const std::size_t suyo = Primero(pasos_[i].desde);
      while (suyo + usados[suyo] <= i) {
        Path& camino = caminos.emplace_back();
        IntPoint donde = pasos_[i].desde;
        do {
          camino.push_back(donde);
          const std::size_t primero = Primero(donde);
          const bool sigue = primero < pasos_.size() && primero + usados[primero] < pasos_.size() &&
                             pasos_[primero + usados[primero]].desde == donde;
          if (!sigue) return std::nullopt;
          donde = pasos_[primero + usados[primero]++].hasta;
        } while (donde != pasos_[i].desde);
      }
    }
    return caminos;
  }

 private:
  struct Paso {
    IntPoint desde, hasta;
  };
  static bool Antes(IntPoint p, IntPoint q) { return p.X != q.X ? p.X < q.X : p.Y < q.Y; }

  std::size_t Primero(IntPoint p) const {
    const auto i = std::ranges::lower_bound(pasos_, p, Antes, &Paso::desde);
    return static_cast<std::size_t>(i - pasos_.begin());
  }

  // Of equal directions that of the second outline counts as the one further round.
  void Barre(const Path& esquinas, const Path& cantos, bool primera) {
    const std::size_t n = esquinas.size(), m = cantos.size();
    for (std::size_t i = 0; i < n; ++i) {
      const IntPoint p = esquinas[i], llega = Resta(p, esquinas[(i + n - 1) % n]),
                     sale = Resta(esquinas[(i + 1) % n], p);
      const bool derecha = Vuelta(llega, sale) < 0;
      const IntPoint desde = derecha ? sale : llega, hasta = derecha ? llega : sale;
      if (Vuelta(desde, hasta) == 0) continue;
      for (std::size_t j = 0; j < m; ++j) {
        const IntPoint q = cantos[j], r = cantos[(j + 1) % m], canto = Resta(r, q);
        const cInt tras = Vuelta(desde, canto), ante = Vuelta(canto, hasta);
        if (primera ? tras < 0 || ante <= 0 : tras <= 0 || ante < 0) continue;
        pasos_.push_back(derecha ? Paso{Suma(p, r), Suma(p, q)} : Paso{Suma(p, q), Suma(p, r)});
      }
    }
  }

  std::vector<Paso> pasos_;
};

// The same, slower: one outline along the other, and where one lies within the other.
Paths Barrido(const Path& a, const Path& b) {
  const auto movido = [](const Path& que, IntPoint cuanto) {
    Path salida;
    for (const IntPoint p : que) salida.push_back(Suma(p, cuanto));
    return salida;
  };
  Paths barrido;
  ClipperLib::MinkowskiSum(a, b, barrido, true);
  barrido.push_back(movido(a, b[0]));
  barrido.push_back(movido(b, a[0]));
  return barrido;
}

}  // namespace

NoCabe NoCabeDe(const Silueta& fija, const Silueta& movida, double grados) {
  ClipperLib::Clipper union_;
  const Path vuelta = Girado(movida.contorno, grados + 180);
  const auto caminos = Convolucion(fija.contorno, vuelta).Caminos();
  union_.AddPaths(caminos ? *caminos : Barrido(fija.contorno, vuelta), ClipperLib::ptSubject, true);
  Paths anillos;
  union_.Execute(ClipperLib::ctUnion, anillos, ClipperLib::pftNonZero, ClipperLib::pftNonZero);
  // Nearly parallel edges leave slits that go far inside, and are no room.
  ClipperLib::CleanPolygons(anillos, kRoto);
  std::vector<NoCabe::Canto> cantos;
  for (const Path& anillo : anillos) {
    // Where roundings leave a gap between two pieces there is none.
    if (std::abs(ClipperLib::Area(anillo)) < kRendija) continue;
    const auto en = [&](std::size_t i) {
      return Punto2{static_cast<double>(anillo[i].X), static_cast<double>(anillo[i].Y)};
    };
    for (std::size_t i = 0; i < anillo.size(); ++i) cantos.push_back({en(i), en((i + 1) % anillo.size())});
  }
  return NoCabe(std::move(cantos));
}

NoCabe::NoCabe(std::vector<Canto> cantos) : cantos_(std::move(cantos)) {
  constexpr std::size_t kPorFranja = 2, kFranjas = 64;
  for (const Canto& canto : cantos_) caja_.Incluye(canto.p);
  if (cantos_.empty()) return;
  medio_ = 0.5 * (caja_.desde + caja_.hasta);
  for (std::size_t i = 0; i < cantos_.size(); ++i) {
    // The last group is filled up with its last edge.
    if (i % kALaVez == 0) grupos_.emplace_back();
    const Punto2 p = cantos_[i].p - medio_, u = cantos_[i].q - cantos_[i].p;
    const double largo = u.x * u.x + u.y * u.y;
    for (std::size_t k = i % kALaVez; k < kALaVez; ++k) {
      Grupo& g = grupos_.back();
      g.x[k] = static_cast<float>(p.x);
      g.y[k] = static_cast<float>(p.y);
      g.ux[k] = static_cast<float>(u.x);
      g.uy[k] = static_cast<float>(u.y);
      g.inverso[k] = static_cast<float>(largo > 0 ? 1 / largo : 0);
    }
  }
  const std::size_t franjas = std::clamp<std::size_t>(cantos_.size() / kPorFranja, 1, kFranjas);
  alto_ = std::max(1.0, caja_.Alto() / static_cast<double>(franjas));
  for (std::size_t i = 0; i < franjas; ++i) {
    inicios_.push_back(porFranja_.size());
    const double abajo = caja_.desde.y + static_cast<double>(i) * alto_ - kHolgura,
                 arriba = abajo + alto_ + 2 * kHolgura;
    for (const Canto& c : cantos_) {
      if (std::max(c.p.y, c.q.y) >= abajo && std::min(c.p.y, c.q.y) <= arriba) porFranja_.push_back(c);
    }
  }
  inicios_.push_back(porFranja_.size());
}

// And the edges that are on level with it.
bool NoCabe::Encierra(Punto2 p, std::span<const Canto>& suyos) const {
  if (p.x < caja_.desde.x || p.x > caja_.hasta.x || p.y < caja_.desde.y || p.y > caja_.hasta.y) return false;
  const auto franja = std::min(inicios_.size() - 2, static_cast<std::size_t>((p.y - caja_.desde.y) / alto_));
  suyos = {porFranja_.begin() + static_cast<std::ptrdiff_t>(inicios_[franja]),
           porFranja_.begin() + static_cast<std::ptrdiff_t>(inicios_[franja + 1])};
  bool dentro = false;
  for (const auto& [a, b] : suyos) {
    if ((a.y > p.y) != (b.y > p.y) && p.x < a.x + (p.y - a.y) / (b.y - a.y) * (b.x - a.x)) dentro = !dentro;
  }
  return dentro;
}

bool NoCabe::Tapa(Punto2 p) const {
  std::span<const Canto> suyos;
  return Encierra(p, suyos) && std::ranges::none_of(suyos, [&](const Canto& c) {
           return p.x >= std::min(c.p.x, c.q.x) - kHolgura && p.x <= std::max(c.p.x, c.q.x) + kHolgura &&
                  DistanciaASegmento(p, c.p, c.q) < kHolgura;
         });
}

double NoCabe::Hondura(Punto2 p) const {
  std::span<const Canto> suyos;
  if (!Encierra(p, suyos)) return 0;
  const auto px = static_cast<float>(p.x - medio_.x), py = static_cast<float>(p.y - medio_.y);
  const Cuatro cero{}, uno = cero + 1;
  Cuatro menor = cero + 1e30F;
  for (const Grupo& g : grupos_) {
    const Cuatro vx = px - g.x, vy = py - g.y;
    Cuatro t = (g.ux * vx + g.uy * vy) * g.inverso;
    t = t > cero ? t : cero;
    t = t < uno ? t : uno;
    const Cuatro x = vx - t * g.ux, y = vy - t * g.uy, d = x * x + y * y;
    menor = d < menor ? d : menor;
  }
  float ya = menor[0];
  for (std::size_t k = 1; k < kALaVez; ++k) ya = std::min(ya, menor[k]);
  return std::sqrt(static_cast<double>(ya));
}

std::shared_ptr<const NoCabe> NoCaben::De(std::size_t fija, std::size_t movida, std::size_t pasos, double grados) {
  constexpr std::size_t kMaximo = 3'000'000;  // edges on all shelves, some 400 MB
  const std::uint64_t clave = ((static_cast<std::uint64_t>(fija) << 28) + movida) * 512 + pasos;
  Estante& estante = estantes_[(clave * 0x9E3779B97F4A7C15U) >> 58];
  {
    const std::lock_guard guarda(estante.cerrojo);
    if (const auto esta = estante.guardados.find(clave); esta != estante.guardados.end()) return esta->second;
  }
  auto nuevo = std::make_shared<const NoCabe>(NoCabeDe(siluetas_[fija], siluetas_[movida], grados));
  const std::lock_guard guarda(estante.cerrojo);
  if (cantos_ < kMaximo && estante.guardados.emplace(clave, nuevo).second) cantos_ += nuevo->Cantos().size();
  return nuevo;
}

}  // namespace duktores
