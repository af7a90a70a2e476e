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
  /// The next number stands in the middle of p-q, `aparte` from it.
  void Numero(Punto2 p, Punto2 q, Punto2 aparte = {});
  void Doblez(Punto2 p, Punto2 q);
  /// Where the next number says that a line from p ends; it must be drawn.
  Punto2 FinDeLinea(Punto2 p);

  const Peor& PeorLargo() const { return largo_; }
  const Peor& PeorVuelta() const { return vuelta_; }

  /// Enters the deviation, and what is beyond the tolerance, into the verdict; with it, whether the outline closes and
  /// crosses itself, and whether there are more numbers or bend lines than were asked for.
  void Cierra(Veredicto& veredicto);

 private:
  const FormaEnHoja* forma_;
  Peor largo_, vuelta_, numero_, doblez_;
  std::size_t numeros_ = 0, dobleces_ = 0;  // so far
};

}  // namespace duktores
