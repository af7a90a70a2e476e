#pragma once
// The sheet as a reader sees it: the shapes of a pattern with what stands on them.

#include <array>
#include <string>
#include <vector>

#include "geometry/puntos.h"
#include "state/estado.h"
#include "viewer/ewdraw.h"

namespace duktores {

struct FormaEnHoja {
  Forma forma;
  int numero;
  std::vector<Punto2> contorno;  ///< as it was drawn: the first vertex stands again at the end
  struct Numero {
    Punto2 sitio;
    int valor;
  };
  std::vector<Numero> numeros;                ///< by their values
  std::vector<std::array<Punto2, 2>> lineas;  ///< in ascending order

  bool HayLinea(Punto2 p, Punto2 q) const;
  /// Lines between two vertices of the outline that are not its neighbours.
  std::size_t Dobleces() const;
  /// Whether this number stands there, to a thousandth.
  bool HayNumero(std::size_t valor, Punto2 sitio) const;
  /// Whether the numbers are 1..n, each once.
  bool NumerosHasta(std::size_t n) const;
  /// The shape's name, in the configured language, and the number nearest to a point.
  std::string Donde(Punto2 cerca) const;
};

/// A shape's name in the configured language.
std::string NombreForma(Forma forma, int numero);

/// The shapes of `estado.Formas` whose outlines are on the control, each with the numbers and lines that were drawn
/// after it and before the next one.
std::vector<FormaEnHoja> LeeHoja(const EWdraw& axew);

/// All outlines on the control.
std::size_t Contornos(const EWdraw& axew);

}  // namespace duktores
