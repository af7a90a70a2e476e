#include "check/comprueba.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <tuple>
#include <utility>

#include "check/cotejo.h"
#include "check/hoja.h"
#include "geometry/planas.h"

namespace duktores {

namespace {

void FaltaForma(Veredicto& veredicto, Forma forma, int numero, double ancho) {
  veredicto.desviacion = std::max(veredicto.desviacion, ancho);
  if (ancho > ToleranciaPatron()) veredicto.defectos.push_back({Falta::falta, NombreForma(forma, numero), 0});
}

// The shape, if it is there; that it is there twice is a fault.
const FormaEnHoja* Busca(const std::vector<FormaEnHoja>& hoja, Forma forma, int numero, Veredicto& veredicto) {
  const FormaEnHoja* una = nullptr;
  for (const FormaEnHoja& f : hoja) {
    if (f.forma != forma || f.numero != numero) continue;
    if (una) veredicto.defectos.push_back({Falta::repetida, NombreForma(forma, numero), 0});
    una = &f;
  }
  return una;
}

void Vecinas(Veredicto& veredicto, const std::string& donde, double a, double b) {
  const double diferencia = std::abs(a - b);
  veredicto.desviacion = std::max(veredicto.desviacion, diferencia);
  if (diferencia > ToleranciaPatron()) veredicto.defectos.push_back({Falta::vecinas, donde, diferencia});
}

// ---- Transitions. F: points of the mouth, from left to right; C: what stands below them, from the left end of the
// pattern by the corners of its fans to its right end. An end lies on a side of the rectangle and parts it in two.

struct Extremo {
  double alto = 0;   // length of the line up to the mouth
  double parte = 0;  // along the side, from the corner
};

struct Mitad {
  int desde, hasta, abanico;  // F(desde..hasta), the first fan
};

class CotejoTransicion {
 public:
  CotejoTransicion(const SolidoTransicion& solido, const FormaEnHoja& forma, Mitad mitad)
      : solido_(solido), cotejo_(forma), mitad_(mitad), nF_(static_cast<std::size_t>(mitad.hasta - mitad.desde + 1)) {
    const auto& p = forma.contorno;
    const std::size_t nC = forma.forma == Forma::entera ? 6 : 4;
    completa_ = p.size() == nF_ + nC + (nC == 6 ? 2 : 1);
    if (!completa_) return;
    F_.assign(p.begin(), p.begin() + static_cast<std::ptrdiff_t>(nF_));
    C_.assign(p.rbegin() + 1, p.rbegin() + 1 + static_cast<std::ptrdiff_t>(nC));
    if (nC == 6) cotejo_.Largo(p[nF_], p[nF_ + 1], 0);  // the last corner stands twice
  }

  bool Completa() const { return completa_; }

  // In the order of the numbers: fans with the side lines between them, the edges below, the mouth, both ends.
  void Coteja(Veredicto& veredicto) {
    const std::size_t abanicos = C_.size() - 2, q = (nF_ - 1) / abanicos;
    std::vector<Punto2> cadena{C_[0], C_[1]};
    for (std::size_t a = 0; a < abanicos; ++a) {
      if (a > 0) cadena.insert(cadena.end(), {Lado(a, F_[a * q]), C_[a + 1]});
      Abanico(a, a * q, (a + 1) * q);
    }
    cadena.push_back(C_.back());
    for (std::size_t i = 1; i < cadena.size(); ++i) cotejo_.Numero(cadena[i - 1], cadena[i]);
    for (std::size_t i = 1; i < nF_; ++i) cotejo_.Numero(F_[i - 1], F_[i]);
    izquierda = Fin(C_[0], C_[1], F_.front(), Boca(0), Esquina(0), Esquina(3));
    cotejo_.Cara(F_.front(), C_[0], C_[1], 1);
    derecha = Fin(C_.back(), C_[abanicos], F_.back(), Boca(nF_ - 1), Esquina(abanicos - 1), Esquina(abanicos));
    cotejo_.Cara(F_.back(), C_[abanicos], C_.back(), 1);
    cotejo_.Cierra(veredicto);
  }

  Extremo izquierda, derecha;

 private:
  Punto3 Esquina(std::size_t a) const { return solido_.esquinas[(static_cast<std::size_t>(mitad_.abanico) + a) % 4]; }
  Punto3 Boca(std::size_t i) const { return solido_.F(mitad_.desde + static_cast<int>(i)); }

  void Abanico(std::size_t a, std::size_t desde, std::size_t hasta) {
    const Punto2 C = C_[a + 1];
    for (std::size_t i = desde; i <= hasta; ++i) {
      cotejo_.Largo(F_[i], C, Distancia(Boca(i), Esquina(a)));
      cotejo_.Numero(F_[i], C);
      cotejo_.Doblez(F_[i], C);
      if (i == hasta) break;
      cotejo_.Largo(F_[i], F_[i + 1], Distancia(Boca(i), Boca(i + 1)));
      cotejo_.Cara(F_[i], C, F_[i + 1], 1);
    }
  }

  // A side of the rectangle with the line that stands on it. Its lower end parts the edge.
  Punto2 Lado(std::size_t a, Punto2 F) {
    const Punto2 p = C_[a], q = C_[a + 1];
    cotejo_.Largo(p, q, Distancia(Esquina(a - 1), Esquina(a)));
    cotejo_.Cara(F, p, q, 1);
    const Punto2 pie = cotejo_.FinDeLinea(F);
    cotejo_.Largo(pie, PieDePerpendicular(pie, p, q), 0);
    return pie.y < F.y ? pie : F;
  }

  // The end E beside the corner C: it lies on the side towards the next corner, as far from its own as on the sheet.
  Extremo Fin(Punto2 E, Punto2 C, Punto2 F, Punto3 boca, Punto3 esquina, Punto3 vecina) {
    const double parte = Distancia(E, C), lado = Distancia(esquina, vecina);
    const Punto3 pie = esquina + (lado > 0 ? parte / lado : 0) * (vecina - esquina);
    cotejo_.Largo(F, E, Distancia(boca, pie));
    cotejo_.Numero(F, E);
    return {Distancia(F, E), parte};
  }

  const SolidoTransicion& solido_;
  Cotejo cotejo_;
  Mitad mitad_;
  std::size_t nF_;
  bool completa_ = false;
  std::vector<Punto2> F_, C_;
};

// The two ends of one side: they make up the side, and the lines up to the mouth are one.
void Costura(Veredicto& veredicto, const std::string& donde, Extremo a, Extremo b, double lado) {
  Vecinas(veredicto, donde, a.alto, b.alto);
  Vecinas(veredicto, donde, a.parte + b.parte, lado);
}

Veredicto CompruebaTransicion(const SolidoTransicion& solido, const std::vector<FormaEnHoja>& hoja) {
  Veredicto veredicto;
  const int N = solido.F.Cuenta() - 1, h = N / 2;
  const auto& e = solido.esquinas;
  const double cierre = Distancia(e[0], e[3]), inicio = Distancia(e[1], e[2]);
  const double ancho = std::max({cierre, inicio, Distancia(solido.F(1), e[0])});
  const auto pieza = [&](Forma forma, int numero, Mitad mitad) -> std::optional<CotejoTransicion> {
    const FormaEnHoja* una = Busca(hoja, forma, numero, veredicto);
    if (una) {
      CotejoTransicion cotejo(solido, *una, mitad);
      if (cotejo.Completa()) {
        cotejo.Coteja(veredicto);
        return cotejo;
      }
    }
    FaltaForma(veredicto, forma, numero, ancho);
    return std::nullopt;
  };
  const std::string costura = NombreForma(Forma::entera, 1);
  if (std::ranges::any_of(hoja, [](const FormaEnHoja& f) { return f.forma == Forma::entera; })) {
    if (const auto una = pieza(Forma::entera, 1, {1, N + 1, 0})) {
      Costura(veredicto, costura, una->izquierda, una->derecha, cierre);
    }
    return veredicto;
  }
  const auto primera = pieza(Forma::mitad, 1, {1, h + 1, 0}), segunda = pieza(Forma::mitad, 2, {h + 1, N + 1, 2});
  if (primera && segunda) {
    Costura(veredicto, costura, primera->izquierda, segunda->derecha, cierre);
    Costura(veredicto, costura, primera->derecha, segunda->izquierda, inicio);
  }
  return veredicto;
}

// ---- Special pieces. p: elements of a corner, from 0, walked clockwise seen from above. With its outer side up a
// shape has the later element at the left.

struct CaraEsquina {
  std::vector<Elemento> e;
  std::vector<double> elemento, bajo, corte, diagonal;  // lengths: of p, and from p to p + 1
  double ancho = 0;                                     // of the wider rim

  CaraEsquina(const SolidoEspecial& solido, const PlanoCorte& plano, int c) {
    const int q = solido.n / 4;
    double abajo = 0, arriba = 0;
    for (int p = 0; p <= q; ++p) {
      e.push_back(ElementoDe(solido.pieza, plano, c, p + 1, solido.n));
      elemento.push_back(Distancia(e.back().bajo, e.back().corte));
      if (p == 0) continue;
      const Elemento &a = e[e.size() - 2], &b = e.back();
      bajo.push_back(Distancia(a.bajo, b.bajo));
      corte.push_back(Distancia(a.corte, b.corte));
      diagonal.push_back(Distancia(a.bajo, b.corte));
      abajo += bajo.back();
      arriba += corte.back();
    }
    ancho = std::max(abajo, arriba);
  }
};

// One way to read a sector's outline: which of its rims is the lower one, and whether its elements run as the corner's.
struct Lectura {
  const std::vector<Punto2>& contorno;
  bool bajoPrimero, derecho;

  std::size_t Cuenta() const { return (contorno.size() - 1) / 2; }
  Punto2 En(std::size_t p, bool primero) const {
    const std::size_t i = derecho ? p : Cuenta() - 1 - p;
    return contorno[primero ? i : contorno.size() - 2 - i];
  }
  Punto2 Bajo(std::size_t p) const { return En(p, bajoPrimero); }
  Punto2 Corte(std::size_t p) const { return En(p, !bajoPrimero); }
};

// The rims count with their lengths so far, too: small errors of one sign add up.
Cotejo CotejaSector(const FormaEnHoja& forma, const Lectura& plano, const CaraEsquina& cara) {
  Cotejo cotejo(forma);
  double andadoBajo = 0, andadoCorte = 0, verdadBajo = 0, verdadCorte = 0;
  for (std::size_t p = 0; p < cara.e.size(); ++p) {
    const Punto2 b = plano.Bajo(p), c = plano.Corte(p);
    cotejo.Largo(b, c, cara.elemento[p]);
    if (p + 1 == cara.e.size()) break;
    const Punto2 b1 = plano.Bajo(p + 1), c1 = plano.Corte(p + 1);
    cotejo.Largo(b, b1, cara.bajo[p]);
    cotejo.Largo(c, c1, cara.corte[p]);
    cotejo.Largo(b, c1, cara.diagonal[p]);
    // Seen from outside the later element lies at the left; below the base everything is upside down.
    cotejo.Cara(b, b1, c1, cara.e[p + 1].corte.z < 0 ? 1 : -1);
    cotejo.Cara(b, c1, c, cara.e[p].corte.z < 0 ? 1 : -1);
    andadoBajo += Distancia(b, b1);
    andadoCorte += Distancia(c, c1);
    verdadBajo += cara.bajo[p];
    verdadCorte += cara.corte[p];
    cotejo.Suma(std::max(std::abs(andadoBajo - verdadBajo), std::abs(andadoCorte - verdadCorte)), b1, c1);
  }
  return cotejo;
}

// Lengths of a shape's two borders as it lies on the sheet: towards the shape before, and the one behind.
struct Bordes {
  bool hay = false;
  double antes = 0, despues = 0;
};

// A sector that is its own mirror image, or nearly, fits in two ways: one that lies right counts.
bool Preferible(const Cotejo& a, const Cotejo& b) {
  const auto sano = [](const Cotejo& c) {
    return c.PeorVuelta().medida == 0 && c.PeorLargo().medida <= ToleranciaPatron();
  };
  return sano(a) != sano(b) ? sano(a) : a.PeorLargo().medida < b.PeorLargo().medida - 1e-6;
}

Bordes CompruebaEsquina(const FormaEnHoja& forma, const CaraEsquina& cara, std::size_t paso, Veredicto& veredicto) {
  if (forma.contorno.size() != 2 * cara.e.size() + 1) {
    veredicto.defectos.push_back({Falta::falta, NombreForma(forma.forma, forma.numero), 0});
    return {};
  }
  // Usually the wider rim is drawn first.
  std::optional<Cotejo> mejor;
  Lectura lectura{forma.contorno, true, false};
  for (const auto& [bajoPrimero, derecho] : {std::pair(true, false), {false, true}, {true, true}, {false, false}}) {
    const Lectura una{forma.contorno, bajoPrimero, derecho};
    const Cotejo cotejo = CotejaSector(forma, una, cara);
    if (!mejor || Preferible(cotejo, *mejor)) {
      mejor = cotejo;
      lectura.bajoPrimero = bajoPrimero;
      lectura.derecho = derecho;
    }
    if (mejor->PeorLargo().medida < 1e-3 && mejor->PeorVuelta().medida == 0) break;
  }
  const std::size_t ultimo = cara.e.size() - 1;
  for (std::size_t i = 0; i < ultimo + paso; i += paso) {
    // Marked from the left, whatever the corner's own order.
    const std::size_t p = std::min(i, ultimo);
    const Punto2 a = forma.contorno[p], b = forma.contorno[forma.contorno.size() - 2 - p];
    mejor->Numero(a, b);
    if (p != 0 && p != ultimo) mejor->Doblez(a, b);
  }
  mejor->Cierra(veredicto);
  return {true, Distancia(lectura.Bajo(0), lectura.Corte(0)), Distancia(lectura.Bajo(ultimo), lectura.Corte(ultimo))};
}

// A panel A, B, C, D: the border towards the corner before lies at the right.
Bordes CompruebaLado(const FormaEnHoja& forma, const Elemento& antes, const Elemento& despues, Veredicto& veredicto) {
  const auto& p = forma.contorno;
  if (p.size() != 5) {
    veredicto.defectos.push_back({Falta::falta, NombreForma(forma.forma, forma.numero), 0});
    return {};
  }
  const std::array espacio{antes.corte, despues.corte, despues.bajo, antes.bajo};
  Cotejo cotejo(forma);
  for (std::size_t i = 0; i < 4; ++i) {
    for (std::size_t j = i + 1; j < 4; ++j) cotejo.Largo(p[i], p[j], Distancia(espacio[i], espacio[j]));
  }
  for (const auto& [i, j] : {std::pair(0, 3), {1, 2}, {2, 3}, {0, 1}}) {
    cotejo.Numero(p[static_cast<std::size_t>(i)], p[static_cast<std::size_t>(j)], {1, 0});
  }
  const double altoAntes = antes.corte.z < 0 ? -1 : 1, altoDespues = despues.corte.z < 0 ? -1 : 1;
  cotejo.Cara(p[0], p[2], p[3], altoAntes);
  cotejo.Cara(p[0], p[1], p[2], altoDespues);
  cotejo.Cierra(veredicto);
  return {true, Distancia(p[0], p[3]), Distancia(p[1], p[2])};
}

Veredicto CompruebaEspecial(const SolidoEspecial& solido, const std::vector<FormaEnHoja>& hoja) {
  Veredicto veredicto;
  const PlanoCorte plano = PlanoDeCorte(solido.pieza);
  std::vector<CaraEsquina> caras;
  for (int c = 1; c <= 4; ++c) caras.emplace_back(solido, plano, c);
  // Round the piece. What is missing leaves a gap, unless it is too narrow to part its neighbours.
  std::vector<std::pair<std::string, Bordes>> anillo;
  const auto hueco = [&](Forma forma, int numero, double ancho) {
    FaltaForma(veredicto, forma, numero, ancho);
    if (ancho > ToleranciaPatron()) anillo.emplace_back(std::string(), Bordes{});
  };
  for (int c = 1; c <= 4; ++c) {
    const CaraEsquina& cara = caras[static_cast<std::size_t>(c - 1)];
    if (const auto* esquina = Busca(hoja, Forma::esquina, c, veredicto)) {
      const auto paso = static_cast<std::size_t>(solido.paso);
      anillo.emplace_back(NombreForma(Forma::esquina, c), CompruebaEsquina(*esquina, cara, paso, veredicto));
    } else {
      hueco(Forma::esquina, c, cara.ancho);
    }
    const Elemento &antes = cara.e.back(), &despues = caras[static_cast<std::size_t>(Siguiente(c) - 1)].e.front();
    if (const auto* lado = Busca(hoja, Forma::lado, c, veredicto)) {
      anillo.emplace_back(NombreForma(Forma::lado, c), CompruebaLado(*lado, antes, despues, veredicto));
    } else {
      hueco(Forma::lado, c, std::max(Distancia(antes.bajo, despues.bajo), Distancia(antes.corte, despues.corte)));
    }
  }
  for (std::size_t i = 0; i < anillo.size(); ++i) {
    const auto& [nombre, bordes] = anillo[i];
    const auto& [vecina, suyos] = anillo[(i + 1) % anillo.size()];
    if (!bordes.hay || !suyos.hay) continue;
    std::string ambas = nombre;
    (ambas += " - ") += vecina;
    Vecinas(veredicto, ambas, bordes.despues, suyos.antes);
  }
  return veredicto;
}

}  // namespace

Veredicto Comprueba(const Solido& solido, const EWdraw& axew) {
  const std::vector<FormaEnHoja> hoja = LeeHoja(axew);
  const auto* transicion = std::get_if<SolidoTransicion>(&solido);
  Veredicto veredicto =
      transicion ? CompruebaTransicion(*transicion, hoja) : CompruebaEspecial(std::get<SolidoEspecial>(solido), hoja);
  if (Contornos(axew) > hoja.size()) {
    veredicto.defectos.push_back({Falta::repetida, NombreForma(Forma::entera, 1), 0});
  }
  std::ranges::stable_sort(veredicto.defectos, [](const Defecto& a, const Defecto& b) {
    return std::tuple(a.falta, -a.medida) < std::tuple(b.falta, -b.medida);
  });
  return veredicto;
}

}  // namespace duktores
