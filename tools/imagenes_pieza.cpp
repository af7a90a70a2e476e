#include "imagenes_pieza.h"

#include <cmath>

#include "geometry/rotacion.h"

namespace duktores {
namespace {

constexpr int kPasos = 24;           // of a corner's quarter turn
constexpr int kPasosGeneratriz = 4;  // steps between two lines that are shown

struct Esquina {
  double sx, sy;  // quadrant
  double inicio;  // angle of the arc's first point, degrees
};
constexpr std::array<Esquina, 4> kEsquinas{{{-1, -1, 270}, {-1, 1, 180}, {1, 1, 90}, {1, -1, 0}}};

Punto3 CentroEsquina(const Boca& boca, std::size_t c) {
  const auto& [sx, sy, inicio] = kEsquinas[c];
  return {sx * (boca.lx / 2 - boca.r[c]), sy * (boca.ly / 2 - boca.r[c]), 0};
}

Punto3 PuntoBorde(const Boca& boca, std::size_t c, double angulo) {
  const double coseno = std::cos(angulo), seno = std::sin(angulo);
  if (!boca.elipse) return CentroEsquina(boca, c) + boca.r[c] * Punto3{coseno, seno, 0};
  const double a = boca.lx / 2, b = boca.ly / 2;
  return a * b / std::hypot(b * coseno, a * seno) * Punto3{coseno, seno, 0};
}

Punto3 Gira(const Pieza& pieza, Punto3 p) { return Rota(p, {pieza.ax, pieza.ay, pieza.H}, {0, 1, 0}, pieza.alfa); }

// Where the line from `q` to `t` meets the tilted plane.
Punto3 Corta(const Pieza& pieza, Punto3 q, Punto3 t) {
  const Punto3 bisagra{pieza.ax - pieza.arriba.lx / 2, pieza.ay + pieza.arriba.ly / 2, pieza.H};
  const Punto3 normal = Rota(Rota({0, 0, 1}, {}, {0, 1, 0}, pieza.alfa), {}, {1, 0, 0}, pieza.beta);
  return q + Escalar(normal, bisagra - q) / Escalar(normal, t - q) * (t - q);
}

}  // namespace

Pieza Pieza::Inclinada(double nuevaAlfa, double nuevaBeta) const {
  Pieza otra = *this;
  otra.alfa = nuevaAlfa;
  otra.beta = nuevaBeta;
  return otra;
}

Anillo AnilloDe(const Pieza& pieza) {
  Anillo anillo;
  for (std::size_t c = 0; c < 4; ++c) {
    for (int k = 0; k <= kPasos; ++k) {
      const double angulo = Radianes(kEsquinas[c].inicio - 90.0 * k / kPasos);
      const Punto3 q = PuntoBorde(pieza.abajo, c, angulo);
      const Punto3 t = PuntoBorde(pieza.arriba, c, angulo) + Punto3{pieza.ax, pieza.ay, pieza.H};
      const Punto3 alto = pieza.inclinacion == Inclinacion::giro ? Gira(pieza, t) : Corta(pieza, q, t);
      const auto coincide = [&](const Elemento& e) { return Distancia(e.abajo, q) + Distancia(e.arriba, alto) < 1e-9; };
      if (anillo.empty() || !(coincide(anillo.back()) || coincide(anillo.front()))) {
        anillo.push_back({q, alto, k % kPasosGeneratriz == 0});
      }
    }
  }
  return anillo;
}

Punto3 NormalFaceta(const Anillo& anillo, std::size_t i) {
  const Elemento &e = anillo[i], &sig = anillo[(i + 1) % anillo.size()];
  return Vectorial(e.arriba - sig.abajo, sig.arriba - e.abajo);
}

Punto3 PuntoDe(const Pieza& pieza, Nivel nivel, Ancla ancla) {
  const Boca& boca = nivel == Nivel::abajo ? pieza.abajo : pieza.arriba;
  Punto3 p;
  switch (ancla) {
    case Ancla::centro:
      break;
    case Ancla::oeste:
      p.x = -boca.lx / 2;
      break;
    case Ancla::este:
      p.x = boca.lx / 2;
      break;
    case Ancla::sur:
      p.y = -boca.ly / 2;
      break;
    case Ancla::norte:
      p.y = boca.ly / 2;
      break;
    default:
      p = CentroEsquina(boca, static_cast<std::size_t>(ancla) - static_cast<std::size_t>(Ancla::esquina1));
  }
  if (nivel == Nivel::abajo) return p;
  p = p + Punto3{pieza.ax, pieza.ay, pieza.H};
  return pieza.inclinacion == Inclinacion::giro ? Gira(pieza, p) : p;
}

double RadioDe(const Pieza& pieza, Nivel nivel, Ancla esquina) {
  const Boca& boca = nivel == Nivel::abajo ? pieza.abajo : pieza.arriba;
  return boca.r.at(static_cast<std::size_t>(esquina) - static_cast<std::size_t>(Ancla::esquina1));
}

}  // namespace duktores
