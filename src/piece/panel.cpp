#include "piece/panel.h"

#include "geometry/planas.h"

namespace duktores {

std::array<Punto2, 4> TiendePanel(const Lado& lado, Punto2 A) {
  const auto& [P11, P12, P21, P22] = lado;
  const Punto2 B = A - Punto2{Distancia(P11, P12), 0};
  const auto bajas = InterseccionCirculos(B, Distancia(P12, P21), A, Distancia(P11, P21));
  const Punto2 C = bajas.A.y < bajas.B.y ? bajas.A : bajas.B;
  const auto laterales = InterseccionCirculos(C, Distancia(P21, P22), A, Distancia(P11, P22));
  const Punto2 D = laterales.A.x > laterales.B.x ? laterales.A : laterales.B;
  return {A, B, C, D};
}

}  // namespace duktores
