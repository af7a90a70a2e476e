#pragma once
// A flat pattern as data: its shapes in the order in which their places are asked for, each in a frame of its own with
// the outer side up. Indices of points and facets are those of the solid that the pattern was made for.

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

#include "geometry/puntos.h"
#include "piece/bloque.h"
#include "piece/panel.h"
#include "piece/pieza.h"
#include "piece/reglas_cotas.h"
#include "piece/solido.h"

namespace duktores {

/// A vertex of an outline: a point of the solid, or on its edge from `punto` towards `hacia`; -1 is none.
struct Vertice {
  Punto2 p;
  int punto = -1, hacia = -1;
};

/// A bend line; the height of a plane triangle, which bends nothing; a part of the outline.
enum class Clase : std::uint8_t { doblez, lado, borde };

/// A line that bears a number: that of its place in the list, from 1.
struct Linea {
  Punto2 p, q;
  Clase clase = Clase::borde;
  int enP = -1, enQ = -1;            ///< the vertices of the outline at its ends; -1: a foot on an edge
  std::array<int, 2> caras{-1, -1};  ///< the facets at the left and at the right of a bend line
};

/// A triangle of three vertices, counter-clockwise as it has to lie, and the facet that it is a part of.
struct Faceta {
  std::array<int, 3> v;
  int cara;
};

/// A border towards a neighbouring shape: the vertices of its lower and its upper end.
using Borde = std::array<int, 2>;

struct FormaPatron {
  NombreForma nombre;
  std::vector<Vertice> contorno;  ///< the first vertex stands again at the end; empty: there is nothing to draw
  std::vector<Linea> lineas;
  std::vector<Faceta> facetas;  ///< none: the outline doesn't tell which points it stands for
  Borde antes{}, despues{};     ///< towards the shape before and behind, round the piece

  Punto2 ancla;               ///< what goes to the place that is picked
  std::optional<Lado> panel;  ///< laid out anew at its place, not moved
  int aviso = 0;              ///< text that asks for the place; 0: the shape stays where it lies
  int rotulo = 0;             ///< text that names it on the pointer; 0: none

  ReglaCotas cotas;
  bool cotasAntes = false;  ///< the dimensions before the numbers of the edges, else behind them
  Bloque bloque;

  std::size_t sinNumero = 0;  ///< on a sheet: how many of the last lines could not be drawn with their numbers

  Punto2 En(int vertice) const { return contorno[static_cast<std::size_t>(vertice)].p; }
};

struct Patron {
  std::vector<FormaPatron> formas;
  bool sinRepetir = false;      ///< an outline is drawn without vertices on the place of their neighbours
  bool otroExtremo = false;     ///< the seam lies at the other end of the piece than where it was asked for
  bool sigueTrasFallo = false;  ///< a shape that can't be drawn doesn't keep the next ones from being drawn
};

/// What an unfolding gives: the pattern, and the mouths as the usual rules of some pieces adjust them.
struct Desarrollo {
  Patron patron;
  std::optional<Bocas> ajustadas;
};

/// Where the number of a line stands.
Punto2 SitioNumero(Forma forma, const Linea& linea);

}  // namespace duktores
