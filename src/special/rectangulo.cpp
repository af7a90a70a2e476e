#include "special/rectangulo.h"

#include <algorithm>
#include <string>

#include "dxf/anotacion.h"
#include "geometry/planas.h"
#include "special/coloca.h"
#include "state/estado.h"

namespace duktores {

namespace {

// The exact panel lies in its own plane: along the upper edge, or along the lower one where the upper is a point.
std::array<Punto2, 4> AplanaExacto(const Lado& lado, Punto2 A) {
  const Punto3 P11 = lado[0], P12 = lado[1], P21 = lado[2], P22 = lado[3];
  const bool conBoca = Distancia(P11, P12) > 1e-9;
  const Punto3 borde = conBoca ? P12 - P11 : P21 - P22, u = (1 / Norma(borde)) * borde;
  const auto aparte = [&](Punto3 P) { return P - P11 - Escalar(P - P11, u) * u; };
  const Punto3 abajo = Norma(aparte(P21)) > Norma(aparte(P22)) ? aparte(P21) : aparte(P22);
  const Punto3 v = (1 / Norma(abajo)) * abajo;
  const auto plano = [&](Punto3 P) { return A - Punto2{Escalar(P - P11, u), Escalar(P - P11, v)}; };
  return {A, plano(P12), plano(P21), plano(P22)};
}

std::array<Punto2, 4> Aplana(const Lado& lado, Punto2 A) {
  if (estado.iExacto != 0) return AplanaExacto(lado, A);
  const auto& [P11, P12, P21, P22] = lado;
  const Punto2 B = A - Punto2{Distancia(P11, P12), 0};
  const auto bajas = InterseccionCirculos(B, Distancia(P12, P21), A, Distancia(P11, P21));
  const Punto2 C = bajas.A.y < bajas.B.y ? bajas.A : bajas.B;
  const auto laterales = InterseccionCirculos(C, Distancia(P21, P22), A, Distancia(P11, P22));
  const Punto2 D = laterales.A.x > laterales.B.x ? laterales.A : laterales.B;
  return {A, B, C, D};
}

std::vector<Punto2> Contorno(const std::array<Punto2, 4>& p) { return {p[0], p[1], p[2], p[3], p[0]}; }

}  // namespace

void clRectangulo::GeneraDesarrollo(EWdraw& axew, const Lado& lado, int numero) {
  estado.PoliContorno.clear();
  const Punto2 sitio = PideSitio(axew, Forma::lado, numero, Contorno(Aplana(lado, {})));
  dPuntosPieza_ = Aplana(lado, sitio);
  DibujaForma(axew, Forma::lado, numero, Contorno(dPuntosPieza_));
  DibujaNumerosLados(axew);
}

void clRectangulo::DibujaNumerosLados(EWdraw& axew) const {
  const auto& [A, B, C, D] = dPuntosPieza_;
  const Punto2 medios[]{PuntoMedio(A, D), PuntoMedio(B, C), PuntoMedio(C, D), PuntoMedio(A, B)};
  for (int i = 0; i < 4; ++i) {
    std::string numero = std::to_string(i + 1);
    DibujaTexto(axew, medios[i].x + 1, medios[i].y, numero, estado.dTamanoTexto, kColorNumero, 0);
  }
}

void clRectangulo::GeneraCota(EWdraw& axew) const {
  const auto& [A, B, C, D] = dPuntosPieza_;
  const double dx = estado.dPasoTablaX, dy = estado.dPasoTablaY;
  const double izquierda = std::min(B.x, C.x), abajo = std::min(C.y, D.y), derecha = std::max(A.x, D.x);
  Acota(axew, {A.x, B.y}, {B.x, B.y}, {A.x, B.y + dy});
  Acota(axew, {izquierda, B.y}, {izquierda, C.y}, {izquierda - dx, B.y});
  B.x > C.x + kNivel ? Extiende(axew, B, {C.x, B.y}) : Extiende(axew, {B.x, C.y}, C);
  Acota(axew, {C.x, abajo}, {D.x, abajo}, {C.x, abajo - dy});
  C.y > D.y + kNivel ? Extiende(axew, C, {C.x, D.y}) : Extiende(axew, {D.x, C.y}, D);
  Acota(axew, {derecha, A.y}, {derecha, D.y}, {derecha + dx, A.y});
  A.x > D.x + kNivel ? Extiende(axew, {A.x, D.y}, D) : Extiende(axew, A, {D.x, A.y});
}

}  // namespace duktores
