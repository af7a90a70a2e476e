#include "nest/nido.h"

#include <cmath>

#include "geometry/planas.h"

namespace duktores {

std::vector<Punto2> ContornoEn(const ParteNido& parte, const Colocada& colocada) {
  const Giro giro(colocada.grados);
  std::vector<Punto2> puntos;
  puntos.reserve(parte.contorno.size());
  for (const Punto2 p : parte.contorno) puntos.push_back(giro(p) + colocada.sitio);
  return puntos;
}

double AreaDe(const std::vector<Punto2>& contorno) {
  double doble = 0;
  for (std::size_t i = 1; i + 1 < contorno.size(); ++i) {
    doble += Vectorial2(contorno[i] - contorno[0], contorno[i + 1] - contorno[0]);
  }
  return std::abs(doble) / 2;
}

double UsoDe(const EncargoNido& encargo, const ChapaPuesta& chapa) {
  double area = 0;
  for (const Colocada& c : chapa.partes) area += AreaDe(encargo.partes[c.parte].contorno);
  const Punto2 tamano = encargo.chapas[chapa.chapa].tamano;
  return area / (tamano.x * tamano.y);
}

double UsoDe(const EncargoNido& encargo, const Nido& nido) {
  double area = 0, chapas = 0;
  for (const ChapaPuesta& chapa : nido.chapas) {
    const Punto2 tamano = encargo.chapas[chapa.chapa].tamano;
    area += UsoDe(encargo, chapa) * tamano.x * tamano.y;
    chapas += tamano.x * tamano.y;
  }
  return chapas > 0 ? area / chapas : 0;
}

}  // namespace duktores
