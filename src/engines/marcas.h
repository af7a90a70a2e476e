#pragma once
// The marks of a pattern: bend lines, side lines, and a running number at the middle of every line and edge. The same
// list of lines gives the numbers on the sheet and the rows of the table, so that they agree.
//
// Four fans of bend lines: F(1)..F(q+1) on C(2), F(q+1)..F(2q+1) on C(3), F(2q+1)..F(3q+1) on C(4), F(3q+1)..F(N+1) on
// C(5), and a side line wherever two of them meet.

#include <vector>

#include "engines/transicion.h"
#include "viewer/ewdraw.h"

namespace duktores {

/// Which fans a pattern holds: all, or those of one piece of two.
enum class Parte { entera, primera, segunda };

enum class Clase { doblez, lado, borde };

/// A line that bears a number: its ends, in flat coordinates.
struct LineaNumerada {
  Punto2 p, q;
  Clase clase;
};

/// All lines in the order of their numbers, from 1: bend and side lines, then the edges. The pieces need CortePieza1.
std::vector<LineaNumerada> LineasNumeradas(const Transicion& t, Parte parte);

/// Draws bend lines and side lines with their numbers, translated by `base`.
void GeneraDoblados(EWdraw& axew, const std::vector<LineaNumerada>& lineas, Punto2 base);
/// The numbers of the edges, which the outline has drawn already.
void GeneraRestoNumeros(EWdraw& axew, const std::vector<LineaNumerada>& lineas, Punto2 base);

}  // namespace duktores
