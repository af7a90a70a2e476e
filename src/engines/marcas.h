#pragma once
// The marks of a pattern: bend lines, side lines, and the running numbers at the middle of every line and edge. A
// reader of the sheet matches the numbers with the rows of the table.
//
// Four fans of bend lines: F(1)..F(q+1) on C(2), F(q+1)..F(2q+1) on C(3), F(2q+1)..F(3q+1) on C(4), F(3q+1)..F(N+1) on
// C(5), and a side line wherever two of them meet. All is drawn translated by `dPtoBase`.

#include "engines/transicion.h"
#include "viewer/ewdraw.h"

namespace duktores {

/// Which fans a pattern holds: all, or those of one piece of two.
enum class Parte { entera, primera, segunda };

/// Bend lines and side lines with their numbers, from 1. Leaves the records of the side lines; each piece has one, in
/// `dPieLado1` and `dLongLado1`.
void GeneraDoblados(Transicion& t, EWdraw& axew, Parte parte);

// The numbers of the outline's edges, going on from those of GeneraDoblados. The pieces need CortePieza1.
void GeneraRestoNumeros(Transicion& t, EWdraw& axew);
void GeneraRestoNumerosPieza1(Transicion& t, EWdraw& axew);
void GeneraRestoNumerosPieza2(Transicion& t, EWdraw& axew);

}  // namespace duktores
