#pragma once
// The lengths and facets of a shape against the solid: the worst of each.

#include <optional>
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

  /// The shape as a whole: how far a vertex lies from where the facets have it, laid flat one beside the other and
  /// moved and turned, not mirrored, to fit best.
  Peor PeorFigura() const;

  /// A border as it lies on the sheet, and what of it stands on an edge of the solid: its lower end parts the edge, and
  /// `parte` is its distance from the edge's end.
  struct Orilla {
    double largo = 0;
    bool enArista = false;
    double parte = 0, arista = 0;
  };
  Orilla OrillaDe(const Borde& borde) const;

 private:
  void PonPuntos();
  void Largo(int a, int b);
  void Triangulo(const Faceta& faceta);
  void Orillas();
  Punto2 En(int vertice) const { return plano_[static_cast<std::size_t>(vertice)]; }
  Punto3 EnEspacio(int vertice) const { return espacio_[static_cast<std::size_t>(vertice)]; }
  Punto3 Punto(int i) const { return solido_->puntos[static_cast<std::size_t>(i)]; }
  double Parte(std::size_t vertice) const;
  std::vector<std::optional<Punto2>> Tendida() const;

  const Solido* solido_;
  const FormaPatron* forma_;
  Lectura lectura_;
  std::vector<Punto2> plano_;    // the vertices as they are read
  std::vector<Punto3> espacio_;  // and what they stand for
  Peor largo_, vuelta_;
};

}  // namespace duktores
