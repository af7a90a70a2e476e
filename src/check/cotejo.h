#pragma once
// Gathers what is found while a shape is compared: the worst length and the worst turned facet, and the marks.

#include "check/hoja.h"
#include "check/veredicto.h"

namespace duktores {

/// The worst so far, and where on the sheet.
struct Peor {
  double medida = 0;
  Punto2 sitio;
  void Anota(double otra, Punto2 p, Punto2 q) {
    if (otra > medida) *this = {otra, 0.5 * (p + q)};
  }
};

class Cotejo {
 public:
  explicit Cotejo(const FormaEnHoja& forma) : forma_(&forma) {}

  /// The line p-q against its length in space.
  void Largo(Punto2 p, Punto2 q, double verdadero);
  /// A length that is off by `error`, somewhere about p-q.
  void Suma(double error, Punto2 p, Punto2 q) { largo_.Anota(error, p, q); }
  /// The facet a, b, c runs counter-clockwise (`signo` 1) or clockwise (-1) with its right side up; its height says by
  /// how much it has turned over.
  void Cara(Punto2 a, Punto2 b, Punto2 c, double signo);
  /// A number stands in the middle of p-q, `aparte` from it.
  void Numero(Punto2 p, Punto2 q, Punto2 aparte = {});
  void Doblez(Punto2 p, Punto2 q);
  void Numeros(std::size_t cuantos);

  const Peor& PeorLargo() const { return largo_; }
  const Peor& PeorVuelta() const { return vuelta_; }

  /// Enters the deviation, and what is beyond the tolerance, into the verdict; with it, whether the outline crosses
  /// itself.
  void Cierra(Veredicto& veredicto) const;

 private:
  const FormaEnHoja* forma_;
  Peor largo_, vuelta_, numero_, doblez_;
};

}  // namespace duktores
