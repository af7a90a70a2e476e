#include "special/solido_especial.h"

#include <cstdint>
#include <vector>

#include "state/textos.h"

namespace duktores {

namespace {

constexpr int kPasosPorDivision = 36;

struct Borde {
  std::vector<Elemento> elementos;
  const Elemento& Primero() const { return elementos.front(); }
  const Elemento& Ultimo() const { return elementos.back(); }
};

// A side that the arcs take whole has no length but that of its rounding.
void DibujaLado(EWdraw& axew, Punto3 p, Punto3 q) {
  constexpr double kIgual = 1e-9;
  if (Distancia(p, q) > kIgual) axew.EwSetColor(axew.EwAddLine(p, q), kColorSolido);
}

void DibujaRim(EWdraw& axew, const Borde& borde, Punto3 Elemento::*punto) {
  axew.EwBeginPolyline3D();
  for (const Elemento& e : borde.elementos) axew.EwAddVertex3D((e.*punto).x, (e.*punto).y, (e.*punto).z);
  axew.EwSetColor(axew.EwEndPolyline3D(false), kColorSolido);
}

Borde DibujaEsquina(EWdraw& axew, const PiezaEspecial& pieza, const PlanoCorte& plano, int c, int n) {
  Borde borde;
  for (int p = 1; p <= n / 4 + 1; ++p) borde.elementos.push_back(ElementoDe(pieza, plano, c, p, n));
  DibujaRim(axew, borde, &Elemento::bajo);
  DibujaRim(axew, borde, &Elemento::corte);
  for (std::size_t k = 0; k < borde.elementos.size(); ++k) {
    const bool extremo = k + 1 == borde.elementos.size();
    const Elemento& e = borde.elementos[k];
    if (extremo || k % kPasosPorDivision == 0) axew.EwSetColor(axew.EwAddLine(e.bajo, e.corte), kColorSolido);
  }
  return borde;
}

}  // namespace

void GeneraDibujo3D(const PiezaEspecial& pieza, int divisiones, EWdraw& axew) {
  CursorEspera(true);
  axew.EwClear();
  const PlanoCorte plano = PlanoDeCorte(pieza);
  std::array<Borde, 4> bordes;
  for (int c = 1; c <= 4; ++c) {
    bordes[static_cast<std::size_t>(c - 1)] = DibujaEsquina(axew, pieza, plano, c, kPasosPorDivision * divisiones);
  }
  for (const auto punto : {&Elemento::corte, &Elemento::bajo}) {
    for (const int c : {2, 3, 4, 1}) {
      const Borde& de = bordes[static_cast<std::size_t>(c - 1)];
      const Borde& a = bordes[static_cast<std::size_t>(Siguiente(c) - 1)];
      DibujaLado(axew, de.Ultimo().*punto, a.Primero().*punto);
    }
  }
  CursorEspera(false);
}

bool CompruebaValido(const PiezaEspecial& pieza, int n) {
  constexpr double kBajoCero = -1e-9;
  const PlanoCorte plano = PlanoDeCorte(pieza);
  for (int c = 1; c <= 4; ++c) {
    for (int p = 1; p <= n / 4 + 1; ++p) {
      if (ElementoDe(pieza, plano, c, p, n).corte.z < kBajoCero) return false;
    }
  }
  return true;
}

}  // namespace duktores
