#include "engines/formas.h"

#include <utility>

#include "piece/numeros_texto.h"

namespace duktores {

namespace {

int Resto(int a, int b) { return (a % b + b) % b; }

// One shape in the making. The outline runs along the mouth from left to right and back along the corners, ends of the
// seam or of the split included.
class Trazado {
 public:
  Trazado(const Transicion& t, const OrdenPatron& orden, Parte parte, const Corte& corte)
      : t_(t),
        orden_(orden),
        parte_(parte),
        corte_(corte),
        q_(orden.N() / 4),
        primero_(parte == Parte::segunda ? 2 : 0),
        ultimo_(parte == Parte::primera ? 1 : 3) {}

  FormaPatron Traza() && {
    PonContorno();
    PonLineas();
    PonFacetas();
    f_.antes = {EnIzquierda(), EnF(Desde())};
    f_.despues = {EnDerecha(), EnF(Hasta())};
    if (parte_ == Parte::entera) return std::move(f_);
    f_.nombre = {Forma::mitad, parte_ == Parte::primera ? 1 : 2};
    f_.aviso = parte_ == Parte::primera ? texto::kColocarPieza : texto::kColocarSegunda;
    return std::move(f_);
  }

 private:
  int Desde() const { return primero_ * q_ + 1; }
  int Hasta() const { return (ultimo_ + 1) * q_ + 1; }
  Punto2 F(int k) const { return t_.dPuntosPlano(k); }
  Punto2 C(int abanico) const { return t_.dVerticesPlano(abanico + 2); }
  Punto2 Izquierda() const { return parte_ == Parte::segunda ? corte_.dCorteBajo2 : t_.dVerticesPlano(1); }
  Punto2 Derecha() const { return parte_ == Parte::primera ? corte_.dCorteBajo : t_.dVerticesPlano(6); }
  // Places in the outline. The right end of the pattern in one piece stands twice.
  int EnF(int k) const { return k - Desde(); }
  int EnDerecha() const { return EnF(Hasta()) + (parte_ == Parte::entera ? 2 : 1); }
  int EnC(int abanico) const { return EnDerecha() + 1 + ultimo_ - abanico; }
  int EnIzquierda() const { return EnC(primero_) + 1; }

  void PonContorno() {
    auto& contorno = f_.contorno;
    for (int k = Desde(); k <= Hasta(); ++k) contorno.push_back({F(k), orden_.Punto(k)});
    const Vertice derecha{Derecha(), orden_.Esquina(ultimo_), orden_.Esquina(ultimo_ + 1)};
    contorno.push_back(derecha);
    if (parte_ == Parte::entera) contorno.push_back(derecha);
    for (int a = ultimo_; a >= primero_; --a) contorno.push_back({C(a), orden_.Esquina(a)});
    contorno.push_back({Izquierda(), orden_.Esquina(primero_), orden_.Esquina(primero_ - 1)});
    contorno.push_back(contorno.front());
  }

  // Bend and side lines, then the edges: below the fans from left to right, with the feet of the side lines, the mouth,
  // and both ends.
  void PonLineas() {
    struct Extremo {
      Punto2 p;
      int en;
    };
    std::vector<Extremo> cadena{{Izquierda(), EnIzquierda()}, {C(primero_), EnC(primero_)}};
    for (int a = primero_; a <= ultimo_; ++a) {
      if (a > primero_) {
        const LineaLado lado = LineaDeLado(t_, a);
        const int cara = orden_.Lado(a - 1);
        f_.lineas.push_back({lado.alto, lado.bajo, Clase::lado, EnF(a * q_ + 1), -1, {cara, cara}});
        cadena.insert(cadena.end(), {{lado.Pie(), -1}, {C(a), EnC(a)}});
      }
      for (int i = 0; i <= q_; ++i) {
        const int k = a * q_ + i + 1, izquierda = i > 0 ? orden_.Triangulo(a, i - 1) : orden_.Lado(a - 1);
        f_.lineas.push_back({F(k), C(a), Clase::doblez, EnF(k), EnC(a), {izquierda, orden_.Triangulo(a, i)}});
      }
    }
    cadena.push_back({parte_ == Parte::primera ? corte_.dCorteBajo2 : Derecha(), EnDerecha()});
    const auto borde = [&](Extremo a, Extremo b) { f_.lineas.push_back({a.p, b.p, Clase::borde, a.en, b.en}); };
    for (std::size_t i = 1; i < cadena.size(); ++i) borde(cadena[i - 1], cadena[i]);
    for (int k = Desde(); k < Hasta(); ++k) borde({F(k), EnF(k)}, {F(k + 1), EnF(k + 1)});
    borde({F(Desde()), EnF(Desde())}, {Izquierda(), EnIzquierda()});
    borde({F(Hasta()), EnF(Hasta())}, {Derecha(), EnDerecha()});
  }

  void PonFacetas() {
    const auto pon = [&](int a, int b, int c, int cara) { f_.facetas.push_back({{a, b, c}, cara}); };
    for (int a = primero_; a <= ultimo_; ++a) {
      if (a > primero_) pon(EnF(a * q_ + 1), EnC(a - 1), EnC(a), orden_.Lado(a - 1));
      for (int i = 0; i < q_; ++i) pon(EnF(a * q_ + i + 1), EnC(a), EnF(a * q_ + i + 2), orden_.Triangulo(a, i));
    }
    pon(EnF(Desde()), EnIzquierda(), EnC(primero_), orden_.Lado(primero_ - 1));
    pon(EnF(Hasta()), EnC(ultimo_), EnDerecha(), orden_.Lado(ultimo_));
  }

  const Transicion& t_;
  const OrdenPatron& orden_;
  Parte parte_;
  const Corte& corte_;
  int q_, primero_, ultimo_;
  FormaPatron f_;
};

}  // namespace

// The start side lies at the angle (inicio - 1) * 90 degrees, in the pattern's sense; the corner of quarter c covers
// the curve's points from c * 90 degrees on.
OrdenPatron Orden(const Pieza& pieza, int sentido, int inicio) {
  const int N = pieza.divisiones, h = N / 2, q = N / 4;
  OrdenPatron orden{{}, {}};
  for (int k = 1; k <= N + 1; ++k) orden.F.push_back(Resto(sentido * ((inicio - 1) * q + k - h - 1), N));
  for (int abanico = 0; abanico < 4; ++abanico) {
    const int cuartos = inicio - 1 + abanico - 2, cuarto = sentido > 0 ? cuartos : -cuartos - 1;
    orden.esquinas[static_cast<std::size_t>(abanico)] = N + 1 + Resto(cuarto, 4);
  }
  return orden;
}

std::vector<Cara> Caras(const OrdenPatron& orden, bool dosPiezas) {
  const int q = orden.N() / 4;
  std::vector<Cara> caras;
  for (int a = 0; a < 4; ++a) {
    const NombreForma nombre = dosPiezas ? NombreForma{Forma::mitad, a / 2 + 1} : NombreForma{Forma::entera, 1};
    const int esquina = orden.Esquina(a), desde = a * q + 1;
    for (int k = desde; k < desde + q; ++k) caras.push_back({nombre, {esquina}, {orden.Punto(k), orden.Punto(k + 1)}});
    caras.push_back({nombre, {esquina, orden.Esquina(a + 1)}, {orden.Punto(desde + q)}});
  }
  return caras;
}

FormaPatron FormaDe(const Transicion& t, const OrdenPatron& orden, Parte parte, const Corte& corte) {
  return Trazado(t, orden, parte, corte).Traza();
}

}  // namespace duktores
