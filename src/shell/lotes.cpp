#include "shell/lotes.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace duktores {

namespace {

// What the search makes small: area of sheets; of the emptiest only what is used of it; less that of the parts.
double Coste(const EncargoNido& encargo, const Nido& nido) {
  constexpr double kPuesta = 4;
  double coste = 0, menor = 0, ahorro = 0;
  for (const ChapaPuesta& chapa : nido.chapas) {
    const Punto2 tamano = encargo.chapas[chapa.chapa].tamano;
    const double entera = tamano.x * tamano.y, area = entera * UsoDe(encargo, chapa);
    coste += entera - kPuesta * area;
    if (&chapa != &nido.chapas.front() && area >= menor) continue;
    double derecha = 0;
    for (const Colocada& c : chapa.partes) {
      for (const Punto2 p : ContornoEn(encargo.partes[c.parte], c)) derecha = std::max(derecha, p.x);
    }
    menor = area;
    ahorro = entera - (area + derecha * tamano.y) / 2;
  }
  return coste - ahorro;
}

bool Entero(const Nido& nido) {
  return std::ranges::none_of(nido.faltan, [](const NoPuesta& f) { return f.motivo == FaltaNido::interrumpido; });
}

bool EsPeor(const EncargoNido& encargo, const Nido& nuevo, const Nido& viejo) {
  constexpr double kRoce = 1e-9;
  if (Entero(nuevo) != Entero(viejo)) return Entero(viejo);
  const double antes = Coste(encargo, viejo);
  return Coste(encargo, nuevo) > antes + kRoce * std::abs(antes);
}

}  // namespace

EncargoNido ConLoQueQueda(const std::vector<Lote>& lotes, const std::vector<Nido>& nidos, std::size_t lote) {
  EncargoNido encargo = lotes[lote].encargo;
  const auto& suyas = lotes[lote].existencias;
  for (std::size_t i = 0; i < lotes.size(); ++i) {
    if (i == lote) continue;
    for (const ChapaPuesta& chapa : nidos[i].chapas) {
      const auto suya = std::ranges::find(suyas, lotes[i].existencias[chapa.chapa]);
      if (suya == suyas.end()) continue;
      auto& cuantas = encargo.chapas[static_cast<std::size_t>(suya - suyas.begin())].cuantas;
      if (cuantas) --*cuantas;
    }
  }
  return encargo;
}

std::vector<Nido> AnidaLotes(const std::vector<Lote>& lotes, const EsfuerzoNido& esfuerzo, const VigiaLotes& vigia) {
  std::vector<Nido> nidos(lotes.size());
  std::size_t partes = 0;
  for (const Lote& lote : lotes) partes += lote.partes.size();
  for (const bool mejora : {false, true}) {
    if (!mejora && lotes.size() == 1) continue;
    for (std::size_t i = 0; i < lotes.size(); ++i) {
      if (mejora && lotes.size() > 1 && !vigia.sigue()) return nidos;
      const EncargoNido encargo = ConLoQueQueda(lotes, nidos, i);
      EsfuerzoNido suyo = esfuerzo;
      suyo.segundos *= mejora ? static_cast<double>(lotes[i].partes.size()) / static_cast<double>(partes) : 0;
      if (suyo.vueltas && !mejora) suyo.vueltas = 0;
      const bool hay = !nidos[i].chapas.empty() || !nidos[i].faltan.empty();
      const auto vale = [&](const Nido& nido) { return !hay || !EsPeor(encargo, nido, nidos[i]); };
      Nido nido = Anida(encargo, suyo, {vigia.sigue, [&](const Nido& n) {
                                          if (vale(n)) vigia.mejora(i, n);
                                        }});
      if (vale(nido)) nidos[i] = std::move(nido);
    }
  }
  return nidos;
}

}  // namespace duktores
