#include "engines/comun.h"
#include "engines/elecciones.h"
#include "engines/motor.h"
#include "geometry/rotacion.h"
#include "piece/numeros_texto.h"

namespace duktores {

namespace {

MotorTransicion::Vista Vista(const Pieza& pieza) {
  const double R = Aumento(pieza) * pieza.corregidas.arriba.r(1);
  const Punto3 centro{pieza.AX, pieza.AY, pieza.H};
  const auto enAngulo = [&](double a) { return Rota(EnCirculo(centro, R, a), centro, kEjeY, pieza.Alfa); };
  return {PuntosCurva(pieza.divisiones, enAngulo),
          EsquinasCentradas(pieza.corregidas.abajo, 0),
          {false, centro, R, R, pieza.Alfa}};
}

EnEspacio Espacio(const Pieza& pieza) {
  const PosicionInicio& inicio = Inicio(pieza.inicio);
  const auto& [arriba, abajo] = pieza.corregidas;
  const double Ax = pieza.AX, Ay = -pieza.AY, R = Aumento(pieza) * arriba.r(1), grados = PorRadianes(pieza.Alfa);
  const Punto3 centro{abajo.LX / 2 + Ax, abajo.LY / 2 + Ay, pieza.H};
  const auto enAngulo = [&](double a) { return Rota(EnCirculo(centro, R, a), centro, kEjeY, grados); };
  return SobreRectangulo(Recorrido(pieza.divisiones, inicio.a0, enAngulo), inicio, abajo, {Ax, Ay});
}

std::vector<FilaBloque> Filas(const Pieza& pieza) {
  const auto& [arriba, abajo] = pieza.entradas;
  std::vector<FilaBloque> filas = FilasNombre(pieza, texto::kTransCR);
  filas.insert(filas.end(), {FilaLongitud("H:", pieza.H),
                             FilaLongitud("RS:", arriba.r(1)),
                             FilaLongitud("LI:", abajo.LX),
                             FilaLongitud("AI:", abajo.LY),
                             {{.literal = "Alfa:"}, Angulo{pieza.Alfa}}});
  AnadeDesvios(filas, pieza);
  return filas;
}

}  // namespace

constinit const MotorTransicion clTransCR{.vista = Vista,
                                          .espacio = Espacio,
                                          .reglas = kReglasCR,
                                          .sentido = 1,
                                          .girado = false,
                                          .cotas = ListaCotas::baseRectangular,
                                          .cotasAntes = false,
                                          .bloque = EstiloBloque::transicion,
                                          .soloCaja1 = false,
                                          .filas = Filas};

}  // namespace duktores
