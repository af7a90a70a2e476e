#include "shell/chapas.h"

#include <algorithm>
#include <cmath>
#include <map>

#include "geometry/planas.h"

namespace duktores {

namespace {

// An outline that no arc of the part reaches over: arcs that bulge out become tangents, others chords.
std::vector<Punto2> ContornoDe(const Recorte& recorte) {
  constexpr double kPaso = 3;  // degrees
  std::vector<Punto2> puntos;
  for (std::size_t i = 0; i < recorte.contorno.size(); ++i) {
    const auto& [p, arco] = recorte.contorno[i];
    puntos.push_back(p);
    if (!arco) continue;
    const Punto2 q = recorte.En((i + 1) % recorte.contorno.size()), radio = p - arco->centro;
    const double cuerda = std::min(1.0, Distancia(p, q) / (2 * arco->radio));
    const double vuelta = (arco->antihorario ? 2 : -2) * Grados(std::asin(cuerda));
    const int pasos = static_cast<int>(std::ceil(std::abs(vuelta) / kPaso));
    const double paso = vuelta / pasos, lejos = arco->antihorario ? 1 / std::cos(Radianes(paso / 2)) : 1;
    for (int k = arco->antihorario ? 0 : 1; k < pasos; ++k) {
      puntos.push_back(arco->centro + lejos * Giro((arco->antihorario ? k + 0.5 : k) * paso)(radio));
    }
  }
  return puntos;
}

}  // namespace

std::vector<Lote> LotesDe(const std::vector<ParteChapa>& partes, const std::vector<Existencia>& existencias,
                          const ReglasChapa& reglas, double milimetro) {
  constexpr double kHueco = 5, kMargen = 10;
  std::map<double, Lote> lotes;
  for (const ParteChapa& parte : partes) {
    Lote& lote = lotes[parte.espesor];
    lote.partes.push_back(&parte);
    lote.encargo.partes.push_back({ContornoDe(parte.corte.recorte), parte.cantidad});
  }
  std::vector<Lote> todos;
  for (auto& [espesor, lote] : lotes) {
    lote.espesor = espesor;
    for (std::size_t i = 0; i < existencias.size(); ++i) {
      if (existencias[i].espesor.value_or(espesor) != espesor) continue;
      lote.encargo.chapas.push_back(existencias[i].chapa);
      lote.existencias.push_back(i);
    }
    lote.encargo.hueco = reglas.hueco.value_or(kHueco * milimetro);
    lote.encargo.margen = reglas.margen.value_or(kMargen * milimetro);
    lote.encargo.giro = reglas.giro;
    lote.encargo.milimetro = milimetro;
    todos.push_back(std::move(lote));
  }
  return todos;
}

std::vector<ParteCorte> PartesEn(const Lote& lote, const ChapaPuesta& chapa) {
  std::vector<ParteCorte> partes;
  for (const Colocada& c : chapa.partes) partes.push_back(ColocadaEn(lote.partes[c.parte]->corte, c.grados, c.sitio));
  return partes;
}

void DibujaChapa(EWdraw& axew, const std::vector<ParteCorte>& partes, Punto2 tamano) {
  constexpr std::int32_t kBorde = 8, kCorte = 7, kDoblez = 3, kMarca = 1;
  const auto cerrada = [&](const std::vector<Punto2>& puntos, std::int32_t color) {
    axew.EwBeginPolyline();
    for (const Punto2 p : puntos) axew.EwAddVertex(p.x, p.y, 0);
    axew.EwSetColor(axew.EwEndPolyline(true), color);
  };
  const auto linea = [&](Punto2 p, Punto2 q, std::int32_t color) {
    axew.EwSetColor(axew.EwAddLine({p.x, p.y, 0}, {q.x, q.y, 0}), color);
  };
  cerrada({{0, 0}, {tamano.x, 0}, tamano, {0, tamano.y}}, kBorde);
  for (const auto& [recorte, marca, sitio] : partes) {
    std::vector<Punto2> puntos = ContornoDe(recorte);
    for (Punto2& p : puntos) p = p + sitio;
    cerrada(puntos, kCorte);
    for (const DoblezRecorte& d : recorte.dobleces) {
      linea(recorte.En(d.enP) + sitio, recorte.En(d.enQ) + sitio, kDoblez);
    }
    for (const auto& [p, q] : marca) linea(p + sitio, q + sitio, kMarca);
  }
}

}  // namespace duktores
