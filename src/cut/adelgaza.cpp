#include "cut/adelgaza.h"

#include <algorithm>
#include <cmath>

#include "geometry/planas.h"

namespace duktores {

namespace {

constexpr std::size_t kPasosDeArco = 4;  // fewer are no curve

class Adelgazador {
 public:
  Adelgazador(const std::vector<Punto2>& contorno, const Afinado& afinado) : contorno_(contorno), afinado_(afinado) {}

  // Appends what stays of the vertices from `desde` up to and without `hasta`.
  void Recorre(std::size_t desde, std::size_t hasta, std::vector<Queda>& quedan) const {
    while (desde < hasta) {
      const auto recto = [&](std::size_t fin) { return EsRecto(desde, fin); };
      const auto curvo = [&](std::size_t fin) { return EsArco(desde, fin); };
      const std::size_t linea = MasLejos(desde, desde + 1, hasta, recto);
      const std::size_t primero = desde + kPasosDeArco;
      const bool puede = afinado_.arcos && primero <= hasta && curvo(primero);
      const std::size_t arco = puede ? MasLejos(desde, primero, hasta, curvo) : desde;
      if (arco > linea) {
        quedan.push_back({desde, Medio(desde, arco)});
      } else {
        quedan.push_back({desde});
      }
      desde = std::max(arco, linea);
    }
  }

 private:
  Punto2 En(std::size_t i) const { return contorno_[i % contorno_.size()]; }
  static std::size_t Medio(std::size_t desde, std::size_t hasta) { return desde + (hasta - desde) / 2; }

  // From one end that will do on: by steps that double, then that halve.
  template <class Vale>
  static std::size_t MasLejos(std::size_t desde, std::size_t sirve, std::size_t hasta, Vale vale) {
    std::size_t falla = hasta + 1;
    for (std::size_t paso = sirve - desde; sirve < hasta && falla > hasta; paso *= 2) {
      const std::size_t otro = std::min(sirve + paso, hasta);
      (vale(otro) ? sirve : falla) = otro;
    }
    while (falla <= hasta && falla - sirve > 1) {
      const std::size_t otro = Medio(sirve, falla);
      (vale(otro) ? sirve : falla) = otro;
    }
    return sirve;
  }

  bool EsRecto(std::size_t desde, std::size_t hasta) const {
    for (std::size_t i = desde + 1; i < hasta; ++i) {
      if (DistanciaASegmento(En(i), En(desde), En(hasta)) > afinado_.tolerancia) return false;
    }
    return true;
  }

  // The rim's own edges must lie along the arc too, not only its vertices, and go round it one way.
  bool EsArco(std::size_t desde, std::size_t hasta) const {
    const auto circulo = PorTres(En(desde), En(Medio(desde, hasta)), En(hasta));
    if (!circulo) return false;
    const auto cerca = [&](double alCentro) { return std::abs(alCentro - circulo->radio) <= afinado_.tolerancia; };
    double vuelta = 0;
    for (std::size_t i = desde; i < hasta; ++i) {
      if (!cerca(Distancia(En(i), circulo->centro))) return false;
      if (!cerca(DistanciaASegmento(circulo->centro, En(i), En(i + 1)))) return false;
      const Punto2 u = En(i) - circulo->centro, v = En(i + 1) - circulo->centro;
      const double giro = Vectorial2(u, v);
      if (vuelta * giro < 0) return false;
      vuelta += giro;
    }
    return std::abs(vuelta) < dPi * circulo->radio * circulo->radio;
  }

  const std::vector<Punto2>& contorno_;
  const Afinado& afinado_;
};

// Of two vertices that are too near that one goes which isn't fixed, else that which is missed least.
void Aparta(const std::vector<Punto2>& contorno, const std::vector<bool>& fijo, double paso,
            std::vector<Queda>& quedan) {
  const auto en = [&](std::size_t i) { return contorno[quedan[i % quedan.size()].vertice]; };
  const auto error = [&](std::size_t i) { return DistanciaASegmento(en(i), en(i + quedan.size() - 1), en(i + 1)); };
  for (std::size_t i = 0; i < quedan.size() && quedan.size() > 3;) {
    const std::size_t otro = (i + 1) % quedan.size();
    if (Distancia(en(i), en(otro)) >= paso) {
      ++i;
      continue;
    }
    const bool fijoEste = fijo[quedan[i].vertice], fijoOtro = fijo[quedan[otro].vertice];
    const bool vaEste = fijoEste == fijoOtro ? error(i) < error(otro) : fijoOtro;
    quedan.erase(quedan.begin() + static_cast<std::ptrdiff_t>(vaEste ? i : otro));
    i = i > 0 ? i - 1 : 0;
  }
}

}  // namespace

std::optional<Circunferencia> PorTres(Punto2 a, Punto2 b, Punto2 c) {
  constexpr double kRecto = 1e-6;  // of the chord: how far the middle one stands off it
  const Punto2 u = b - a, v = c - a;
  const double doble = 2 * Vectorial2(u, v), uu = u.x * u.x + u.y * u.y, vv = v.x * v.x + v.y * v.y;
  if (!(std::abs(doble) > 2 * kRecto * vv)) return std::nullopt;
  const Punto2 aCentro{(v.y * uu - u.y * vv) / doble, (u.x * vv - v.x * uu) / doble};
  return Circunferencia{a + aCentro, std::hypot(aCentro.x, aCentro.y)};
}

std::vector<Queda> Adelgaza(const std::vector<Punto2>& contorno, const std::vector<bool>& fijo,
                            const Afinado& afinado) {
  const Adelgazador adelgazador(contorno, afinado);
  std::vector<Queda> quedan;
  std::size_t desde = 0;
  for (std::size_t i = 1; i <= contorno.size(); ++i) {
    if (i < contorno.size() && !fijo[i]) continue;
    adelgazador.Recorre(desde, i, quedan);
    desde = i;
  }
  Aparta(contorno, fijo, afinado.paso, quedan);
  return quedan;
}

}  // namespace duktores
