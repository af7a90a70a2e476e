#include "engines/motor.h"

#include "engines/formas.h"

namespace duktores {

Solido MotorTransicion::GeneraDibujo(const Pieza& pieza) const {
  const auto [curva, esquinas, entera] = vista(pieza);
  const int N = pieza.divisiones;
  Solido solido;
  solido.curva = entera;
  for (int i = 1; i <= N + 1; ++i) solido.puntos.push_back(curva(i));
  solido.puntos.insert(solido.puntos.end(), esquinas.begin(), esquinas.end());
  solido.caras = Caras(Orden(pieza, sentido, pieza.inicio), pieza.dosPiezas);
  // The four sides, and from each corner a fan of generators to its quarter of the curve's points, of which the last
  // repeats the first. The points where two quarters meet get a generator from both corners.
  for (int lado = 4; lado > 0; --lado) solido.alambre.push_back({N + 1 + lado % 4, N + lado});
  for (int cuarto = 0; cuarto < 4; ++cuarto) {
    for (int i = cuarto * N / 4; i <= (cuarto + 1) * N / 4; ++i) solido.alambre.push_back({N + 1 + cuarto, i});
  }
  return solido;
}

Transicion MotorTransicion::GeneraPuntos(const Pieza& pieza) const {
  return ColocaPlano(espacio(pieza), reglas, pieza.regla);
}

Desarrollo MotorTransicion::GeneraDesarrollo(const Pieza& pieza) const {
  // Turned by half a turn about Z, a piece without offsets is the one that tilts the other way.
  const bool otroExtremo = girado && pieza.regla == Regla::usual && pieza.Alfa != 0 && pieza.AX == 0 && pieza.AY == 0;
  const OrdenPatron orden = Orden(pieza, sentido, pieza.inicio + (otroExtremo ? 2 : 0));
  const Transicion t = GeneraPuntos(pieza);
  const Corte corte = CortePieza1(t);
  Desarrollo desarrollo;
  desarrollo.patron.otroExtremo = otroExtremo;
  desarrollo.patron.sinRepetir = pieza.regla == Regla::exacta;
  const auto anade = [&](Parte parte) {
    FormaPatron forma = FormaDe(t, orden, parte, corte);
    const int N = pieza.divisiones, entera = 2 * N + 2, media = N + 2;
    forma.cotas = CotasDe(t, parte, corte.dCorteBajo2, cotas);
    forma.cotasAntes = parte != Parte::entera || cotasAntes;
    forma.bloque = {bloque, entera, parte == Parte::entera ? entera : media, filas(pieza), soloCaja1};
    desarrollo.patron.formas.push_back(std::move(forma));
  };
  if (pieza.dosPiezas) {
    anade(Parte::primera);
    anade(Parte::segunda);
  } else {
    anade(Parte::entera);
  }
  return desarrollo;
}

}  // namespace duktores
