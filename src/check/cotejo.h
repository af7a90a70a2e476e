#pragma once
// A shape against the solid: the worst length and the worst turned facet.

#include <vector>

#include "piece/patron.h"

namespace duktores {

/// The worst so far, and where on the sheet.
struct Peor {
  double medida = 0;
  Punto2 sitio;
  void Anota(double otra, Punto2 p, Punto2 q) {
    if (otra > medida) *this = {otra, 0.5 * (p + q)};
  }
};

/// How the outline of a sector, which runs along one rim and back along the other, is read: with its elements in the
/// order that the pattern says or against it, with its rims as the pattern says or exchanged.
struct Lectura {
  bool alReves = false, cambiada = false;
};

class Cotejo {
 public:
  Cotejo(const Solido& solido, const FormaPatron& forma, Lectura lectura);

  const Peor& PeorLargo() const { return largo_; }
  const Peor& PeorVuelta() const { return vuelta_; }

  /// A border as it lies on the sheet, and what of it stands on an edge of the solid: its lower end parts the edge, and
  /// `parte` is its distance from the edge's end.
  struct Orilla {
    double largo = 0;
    bool enArista = false;
    double parte = 0, arista = 0;
  };
  Orilla OrillaDe(const Borde& borde) const;

 private:
  std::size_t Lugar(int vertice) const;
  Punto2 En(int vertice) const { return forma_->contorno[Lugar(vertice)].p; }
  Punto3 EnEspacio(int vertice) const;
  double Parte(int vertice) const;
  void Largo(int a, int b);
  void Triangulo(const Faceta& faceta);
  void Orillas();

  const Solido* solido_;
  const FormaPatron* forma_;
  Lectura lectura_;
  Peor largo_, vuelta_;
};

/// Where two lines of the pattern don't stand, or don't bear their numbers, as the shape asks for.
struct Marcas {
  Peor numero, doblez;
};
Marcas CotejaMarcas(const FormaPatron& forma);

}  // namespace duktores
