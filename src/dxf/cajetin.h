#pragma once
// The title block of a pattern, hung below the point that the user picks for its upper left corner: a frame with a head
// and a foot, in the head a column that names the piece and one with the figures of its sheet, in the foot the lengths
// of its lines. Its texts are 11 high, whatever the height of the annotation.

#include <string>
#include <string_view>
#include <vector>

#include "geometry/puntos.h"
#include "viewer/ewdraw.h"

namespace duktores {

/// What the blocks of the engines differ in. Heights count from the corner downwards.
struct EstiloCajetin {
  double cabeza, alto;               ///< of the frame's head, of the whole frame
  double yIzquierda, pasoIzquierda;  ///< first line of the left column, from line to line
  double yDerecha;                   ///< first line of the right column
  double yLista;                     ///< first row of the lengths
  double letra;                      ///< width of a label's character
  double letraPrimera;               ///< the same on the first line of the left column
  double desvioUltimo;               ///< how much further right the last value of the right column stands
  bool siempreMilimetros;            ///< also where inches are configured
  int decimalesRectangulo;           ///< of the rectangle's area in inches
  std::string_view finDesperdicio;   ///< behind the share of waste
};

/// Rows by which the frame, and by which the right column makes room for the lengths: three columns of 30 fit without.
struct FilasCajetin {
  int marco, columna;
};

/// A label and its value, on one line.
struct Renglon {
  std::string rotulo, valor;
};

/// Asks for the corner, the frame hanging on the pointer, and draws the frame, `pieza` in the left column and the right
/// column, which measures the first closed outline on the control. Returns the corner.
Punto2 DibujaCajetin(EWdraw& axew, const EstiloCajetin& estilo, FilasCajetin filas, const std::vector<Renglon>& pieza);

/// Whether a column of the list may end before a row.
enum class Salto { siLlena, nunca };

/// The lengths in the foot: rows of running number and length, 30 to a column.
class ListaLargos {
 public:
  ListaLargos(EWdraw& axew, const EstiloCajetin& estilo, Punto2 esquina);
  /// The next row; `conUnidad` writes the unit behind the length.
  void Fila(double largo, bool conUnidad, Salto salto = Salto::siLlena);

 private:
  EWdraw& axew_;
  Punto2 primera_, sitio_;
  bool milimetros_;
  int numero_ = 0, enColumna_ = 0;
};

/// A length with its unit, as the left column shows it.
std::string TextoLongitud(double v);
/// The text of the configured fibre; empty outside 1..3.
std::string TextoFibra();
/// A side or radius of `estado` as it was entered, before the fibre correction.
double LadoEntrado(double lado);
double RadioEntrado(double radio);

}  // namespace duktores
