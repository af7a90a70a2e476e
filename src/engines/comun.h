#pragma once
// What the engines' own files share.

#include <array>
#include <functional>
#include <vector>

#include "geometry/puntos.h"
#include "piece/bloque.h"
#include "piece/pieza.h"
#include "piece/reglas_cotas.h"

namespace duktores {

/// The point of a level circle at an angle.
inline Punto3 EnCirculo(Punto3 centro, double R, double angulo) {
  return centro + Punto3{R * std::cos(angulo), R * std::sin(angulo), 0};
}

/// Points 1..N+1 of a curve, at the angles (i - 1) * 2*pi/N.
Puntos3 PuntosCurva(int N, const std::function<Punto3(double)>& enAngulo);

/// By the exact rule the polygon of N chords is as long as the curve that it stands for: by how much a circle is
/// larger.
double Aumento(const Pieza& pieza);

/// Corners of a rectangle centred on the Z axis: of the quarters (+,+), (-,+), (-,-), (+,-), as the curve passes them.
std::array<Punto3, 4> EsquinasCentradas(const Boca& boca, double z);

/// The first lines of a title block, which name the piece, and the last ones: tilt, offsets that aren't 0, divisions,
/// start.
std::vector<FilaBloque> FilasNombre(const Pieza& pieza, int nombre);
inline FilaBloque FilaLongitud(const char* rotulo, double v) { return {{.literal = rotulo}, Longitud{v}}; }
void AnadeDesvios(std::vector<FilaBloque>& filas, const Pieza& pieza);

}  // namespace duktores
