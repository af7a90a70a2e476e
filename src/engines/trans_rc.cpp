#include <cmath>

#include "engines/comun.h"
#include "engines/elecciones.h"
#include "engines/motor.h"
#include "geometry/rotacion.h"
#include "piece/numeros_texto.h"

namespace duktores {

namespace {

MotorTransicion::Vista Vista(const Pieza& pieza) {
  const double R = Aumento(pieza) * pieza.corregidas.abajo.r(1);
  const Punto3 centro{-pieza.AX, -pieza.AY, 0};
  auto esquinas = EsquinasCentradas(pieza.corregidas.arriba, pieza.H);
  for (Punto3& esquina : esquinas) esquina = Rota(esquina, {0, 0, pieza.H}, kEjeY, pieza.Alfa);
  return {PuntosCurva(pieza.divisiones, [&](double a) { return EnCirculo(centro, R, a); }),
          esquinas,
          {false, centro, R, R, 0}};
}

// F(h+1) and C(4). Above a start side that is tilted along its length F(h+1) doesn't stand square to its middle.
void PonPrincipio(EnEspacio& t, const PosicionInicio& inicio, const Boca& arriba, Punto2 desvio, bool inclinado) {
  constexpr double kAltoMinimo = 2.0;
  const Punto3 Q1 = t.dPuntos3D(1);
  const double d = Distancia(t.dPtoInicio, Q1);
  t.primera = {0, d};
  if (inicio.ladoY) {
    t.C4 = {arriba.LY / 2 + inicio.signo * desvio.y, 0};
  } else if (!inclinado) {
    t.C4 = {arriba.LX / 2 + inicio.signo * desvio.x, 0};
  } else {
    t.C4 = {arriba.LX / 2, 0};
    const auto AB = InterseccionCirculos({0, 0}, d, t.C4, Distancia(t.dVertices3D(1), Q1));
    t.primera = AB.A.y > kAltoMinimo ? AB.A : AB.B;
  }
}

EnEspacio Espacio(const Pieza& pieza) {
  const PosicionInicio& inicio = Inicio(pieza.inicio);
  const auto& [arriba, abajo] = pieza.corregidas;
  const double Ax = -pieza.AX, Ay = -pieza.AY, R = Aumento(pieza) * abajo.r(1), grados = PorRadianes(-pieza.Alfa);
  const Punto3 centro{arriba.LX / 2 + Ax, arriba.LY / 2 + Ay, pieza.H}, eje{arriba.LX / 2, arriba.LY / 2, 0};
  const auto enAngulo = [&](double a) { return EnCirculo(centro, R, a); };
  EnEspacio t = SobreRectangulo(Recorrido(pieza.divisiones, inicio.a0, enAngulo), inicio, arriba, {Ax, Ay});
  // A start side along X that is tilted positively takes its middle as the foot, in every other case the foot keeps the
  // offset. Any tilt counts as outside.
  if (!inicio.ladoY && grados > 0) t.dPtoInicio.x = arriba.LX / 2;
  if (grados != 0) (inicio.ladoY ? t.bFueraLado : t.bFueraCierre) = true;
  const auto inclina = [&](Punto3& p) { p = Rota(p, eje, kEjeY, grados); };
  for (int j = 1; j <= 5; ++j) inclina(t.dVertices3D(j));
  inclina(t.dPtoInicio);
  PonPrincipio(t, inicio, arriba, {Ax, Ay}, grados != 0);
  return t;
}

std::vector<FilaBloque> Filas(const Pieza& pieza) {
  constexpr double kPunto = 0.00001;  // this radius stands for a base that is a point
  const auto& [arriba, abajo] = pieza.entradas;
  std::vector<FilaBloque> filas = FilasNombre(pieza, texto::kTransRC);
  filas.insert(filas.end(), {FilaLongitud("H:", pieza.H),
                             FilaLongitud("LS:", arriba.LX),
                             FilaLongitud("AS:", arriba.LY),
                             {{.literal = "Alfa:"}, Angulo{pieza.Alfa}}});
  if (pieza.corregidas.abajo.r(1) != kPunto) filas.push_back(FilaLongitud("RI:", abajo.r(1)));
  AnadeDesvios(filas, pieza);
  return filas;
}

}  // namespace

constinit const MotorTransicion clTransRC{.vista = Vista,
                                          .espacio = Espacio,
                                          .reglas = kReglasRC,
                                          .sentido = -1,
                                          .girado = false,
                                          .cotas = ListaCotas::baseCircular,
                                          .cotasAntes = true,
                                          .bloque = EstiloBloque::transicion,
                                          .soloCaja1 = false,
                                          .filas = Filas};

}  // namespace duktores
