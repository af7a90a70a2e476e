#include "engines/comun.h"

#include <cmath>

#include "piece/numeros_texto.h"

namespace duktores {

Puntos3 PuntosCurva(int N, const std::function<Punto3(double)>& enAngulo) {
  Puntos3 curva(N + 1);
  for (int i = 1; i <= N + 1; ++i) curva(i) = enAngulo((i - 1) * 2 * dPi / N);
  return curva;
}

double Aumento(const Pieza& pieza) {
  const double medio = dPi / pieza.divisiones;
  return pieza.regla == Regla::exacta ? medio / std::sin(medio) : 1;
}

std::array<Punto3, 4> EsquinasCentradas(const Boca& boca, double z) {
  const double x = boca.LX / 2, y = boca.LY / 2;
  return {{{x, y, z}, {-x, y, z}, {-x, -y, z}, {x, -y, z}}};
}

std::vector<FilaBloque> FilasNombre(const Pieza& pieza, int nombre) {
  return {{{.texto = texto::kDenominacion}, TextoNumero{nombre}},
          {{.texto = texto::kFibra}, pieza.fibra},
          {{.texto = texto::kEspesor}, Longitud{pieza.espesor}}};
}

void AnadeDesvios(std::vector<FilaBloque>& filas, const Pieza& pieza) {
  if (pieza.AX != 0) filas.push_back(FilaLongitud("AX:", pieza.AX));
  if (pieza.AY != 0) filas.push_back(FilaLongitud("AY:", pieza.AY));
  filas.push_back({{.texto = texto::kDivisiones}, pieza.divisiones});
  filas.push_back({{.texto = texto::kPosicionInicio}, pieza.inicio});
}

}  // namespace duktores
