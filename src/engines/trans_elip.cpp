#include "engines/comun.h"
#include "engines/elecciones.h"
#include "engines/elipse.h"
#include "engines/motor.h"
#include "geometry/rotacion.h"
#include "piece/numeros_texto.h"

namespace duktores {

namespace {

MotorTransicion::Vista Vista(const Pieza& pieza) {
  const Elipse elipse(pieza);
  const Punto3 centro{pieza.AX, pieza.AY, pieza.H};
  const auto enAngulo = [&](double a) { return Rota(elipse.En(centro, a), centro, kEjeY, pieza.Alfa); };
  return {PuntosCurva(pieza.divisiones, enAngulo),
          EsquinasCentradas(pieza.corregidas.abajo, 0),
          {true, centro, elipse.a(), elipse.b(), pieza.Alfa}};
}

// The usual pattern tilts against the solid's sense.
EnEspacio Espacio(const Pieza& pieza) {
  const PosicionInicio& inicio = Inicio(pieza.inicio);
  const Elipse elipse(pieza);
  const Boca& abajo = pieza.corregidas.abajo;
  const double Ax = pieza.AX, Ay = -pieza.AY, grados = pieza.regla == Regla::exacta ? pieza.Alfa : -pieza.Alfa;
  const Punto3 centro{abajo.LX / 2 + Ax, abajo.LY / 2 + Ay, pieza.H};
  const auto enAngulo = [&](double a) { return Rota(elipse.En(centro, a), centro, kEjeY, grados); };
  return SobreRectangulo(Recorrido(pieza.divisiones, inicio.a0, enAngulo), inicio, abajo, {Ax, Ay});
}

std::vector<FilaBloque> Filas(const Pieza& pieza) {
  const auto& [arriba, abajo] = pieza.entradas;
  const auto comun = [](int numero, ValorBloque valor) { return FilaBloque{{.texto = numero, .comun = true}, valor}; };
  std::vector<FilaBloque> filas = FilasNombre(pieza, texto::kTransElip);
  filas.insert(filas.end(), {comun(texto::kH, Longitud{pieza.H}), comun(texto::kEjeMayor, Longitud{arriba.LX}),
                             comun(texto::kEjeMenor, Longitud{arriba.LY}), comun(texto::kLi, Longitud{abajo.LX}),
                             comun(texto::kAi, Longitud{abajo.LY}), comun(texto::kAlfa, Angulo{pieza.Alfa})});
  if (pieza.AX != 0) filas.push_back(comun(texto::kAX, Longitud{pieza.AX}));
  if (pieza.AY != 0) filas.push_back(comun(texto::kAY, Longitud{pieza.AY}));
  filas.push_back({{.texto = texto::kDivisionesElip}, pieza.divisiones});
  filas.push_back({{.texto = texto::kPosicionInicioElip}, pieza.inicio});
  return filas;
}

}  // namespace

constinit const MotorTransicion clTransBaRectBoElip{.vista = Vista,
                                                    .espacio = Espacio,
                                                    .reglas = kReglasElip,
                                                    .sentido = 1,
                                                    .girado = true,
                                                    .cotas = ListaCotas::baseRectangular,
                                                    .cotasAntes = false,
                                                    .bloque = EstiloBloque::eliptica,
                                                    .soloCaja1 = true,
                                                    .filas = Filas};

}  // namespace duktores
