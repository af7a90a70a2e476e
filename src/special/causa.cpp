#include "special/causa.h"

#include <algorithm>

#include "special/orden.h"

namespace duktores {

namespace {

// Where the cut lies on an element: 0 on the base, 1 on the uncut mouth.
double Altura(const PiezaEspecial& pieza, const PlanoCorte& plano, int c, int p, int n) {
  const Elemento corte = ElementoDe(pieza, plano, c, p, n), entero = ElementoDe(pieza, {}, c, p, n);
  const Punto3 eje = entero.corte - entero.bajo;
  return Escalar(corte.corte - corte.bajo, eje) / Escalar(eje, eje);
}

class Examen {
 public:
  // A radius or an edge with its measures on the base and on the uncut mouth, cut at `altura`.
  void Mide(int esquina, double abajo, double arriba, double altura) {
    Anota(ImposibleEspecial::radio, esquina, -std::min(abajo, arriba));
    if (altura > 1) Anota(ImposibleEspecial::corteSobreVertice, esquina, -(abajo + altura * (arriba - abajo)));
  }
  const std::optional<CausaEspecial>& Peor() const { return peor_; }

 private:
  void Anota(ImposibleEspecial causa, int esquina, double medida) {
    constexpr double kIgual = 1e-9;
    if (medida > kIgual && (!peor_ || medida > peor_->medida)) peor_ = {causa, esquina, medida};
  }
  std::optional<CausaEspecial> peor_;
};

}  // namespace

std::optional<CausaEspecial> Imposible(const Pieza& pieza) {
  const PiezaEspecial especial = ComoEspecial(pieza);
  const auto& [boca, base] = especial.bocas;
  const PlanoCorte plano = PlanoDeCorte(especial);
  const OrdenEspecial orden(pieza.divisiones);
  Examen examen;
  for (int c = 1; c <= 4; ++c) {
    double alta = 0;
    for (int p = 1; p <= orden.q + 1; ++p) alta = std::max(alta, Altura(especial, plano, c, p, orden.n));
    examen.Mide(c, base.r(c), boca.r(c), alta);
    const int d = Siguiente(c);
    const bool enY = c % 2 == 1;
    const double abajo = (enY ? base.LY : base.LX) - base.r(c) - base.r(d);
    const double arriba = (enY ? boca.LY : boca.LX) - boca.r(c) - boca.r(d);
    for (const double altura :
         {Altura(especial, plano, c, orden.q + 1, orden.n), Altura(especial, plano, d, 1, orden.n)})
      examen.Mide(c, abajo, arriba, altura);
  }
  return examen.Peor();
}

}  // namespace duktores
