#include "check/comprueba.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <tuple>
#include <utility>

#include "check/cotejo.h"
#include "check/cruce.h"
#include "check/marcas.h"

namespace duktores {

namespace {

constexpr double kSinAncho = 1e-3;  // crossings and turned facets below it are noise

// The shapes that the solid asks for, in ring order, each with its facets' greatest rim.
struct Esperada {
  NombreForma nombre;
  double bajo = 0, alto = 0;
  double Ancho() const { return std::max(bajo, alto); }
};

std::vector<Esperada> Esperadas(const Solido& solido) {
  std::vector<Esperada> esperadas;
  const auto largo = [&](const std::vector<int>& orilla) {
    double suma = 0;
    for (std::size_t i = 1; i < orilla.size(); ++i) {
      suma += Distancia(solido.puntos[static_cast<std::size_t>(orilla[i - 1])],
                        solido.puntos[static_cast<std::size_t>(orilla[i])]);
    }
    return suma;
  };
  for (const Cara& cara : solido.caras) {
    auto una = std::ranges::find(esperadas, cara.forma, &Esperada::nombre);
    if (una == esperadas.end()) una = esperadas.insert(una, {cara.forma});
    una->bajo += largo(cara.bajo);
    una->alto += largo(cara.alto);
  }
  return esperadas;
}

class Examen {
 public:
  Examen(const Solido& solido, const Patron& patron, double tolerancia)
      : solido_(solido), patron_(patron), tolerancia_(tolerancia) {}

  Veredicto Haz() && {
    for (const Esperada& esperada : Esperadas(solido_)) {
      const FormaPatron* forma = Busca(esperada.nombre);
      if (forma && !forma->facetas.empty()) {
        Compara(*forma);
      } else if (forma) {
        Anota(Falta::falta, {esperada.nombre});
        anillo_.emplace_back();
      } else {
        FaltaForma(esperada);
      }
    }
    Vecinas();
    BajoBase();
    std::ranges::stable_sort(veredicto_.defectos, [](const Defecto& a, const Defecto& b) {
      return std::tuple(a.falta, -a.medida) < std::tuple(b.falta, -b.medida);
    });
    return std::move(veredicto_);
  }

 private:
  // A shape's borders as they lie; none where a shape is missing.
  struct Eslabon {
    NombreForma nombre;
    std::optional<Cotejo::Orilla> antes{}, despues{};
  };

  void Anota(Falta falta, const Lugar& donde, double medida = 0) {
    veredicto_.defectos.push_back({falta, donde, medida});
  }
  void Desvia(double medida) { veredicto_.desviacion = std::max(veredicto_.desviacion, medida); }

  // The shape, if there is an outline of it; that there are two is a fault.
  const FormaPatron* Busca(NombreForma nombre) {
    const FormaPatron* una = nullptr;
    for (const FormaPatron& f : patron_.formas) {
      if (f.nombre != nombre || f.contorno.empty()) continue;
      if (una) Anota(Falta::repetida, {nombre});
      una = &f;
    }
    return una;
  }

  // What is missing leaves a gap, unless it is too narrow to part its neighbours.
  void FaltaForma(const Esperada& esperada) {
    Desvia(esperada.Ancho());
    if (!(esperada.Ancho() > tolerancia_)) return;
    Anota(Falta::falta, {esperada.nombre});
    anillo_.emplace_back();
  }

  // A sector that is its own mirror image, or nearly, fits in two ways: one that lies right counts. Usually the wider
  // rim is the lower one, drawn first, with its elements against their order.
  Cotejo Lee(const FormaPatron& forma) const {
    if (forma.nombre.forma != Forma::esquina) return {solido_, forma, {}};
    const int n = (static_cast<int>(forma.contorno.size()) - 1) / 2, primero = forma.antes[0];
    const bool bajoPrimero = primero < n, derecho = primero == 0 || primero == 2 * n - 1;
    std::optional<Cotejo> mejor;
    for (const auto& [bajo, alDerecho] : {std::pair(true, false), {false, true}, {true, true}, {false, false}}) {
      const Cotejo otro(solido_, forma, {.alReves = alDerecho != derecho, .cambiada = bajo != bajoPrimero});
      if (!mejor || Preferible(otro, *mejor)) mejor = otro;
      if (mejor->PeorLargo().medida < kSinAncho && mejor->PeorVuelta().medida == 0) break;
    }
    return *mejor;
  }

  bool Preferible(const Cotejo& a, const Cotejo& b) const {
    constexpr double kIgual = 1e-6;
    const auto sano = [&](const Cotejo& c) {
      return c.PeorVuelta().medida == 0 && c.PeorLargo().medida <= tolerancia_;
    };
    return sano(a) != sano(b) ? sano(a) : a.PeorLargo().medida < b.PeorLargo().medida - kIgual;
  }

  void Compara(const FormaPatron& forma) {
    const Cotejo cotejo = Lee(forma);
    const Marcas marcas = CotejaMarcas(forma);
    const Peor figura = cotejo.PeorFigura();
    std::vector<Punto2> contorno;
    for (const Vertice& v : forma.contorno) contorno.push_back(v.p);
    const auto en = [&](const Peor& peor) { return Lugar{forma.nombre, NumeroCercano(forma, peor.sitio)}; };
    Peor largo = cotejo.PeorLargo();
    largo.Anota(Distancia(contorno.front(), contorno.back()), contorno.front(), contorno.back());
    Desvia(std::max(largo.medida, figura.medida));
    if (largo.medida > tolerancia_) Anota(Falta::largo, en(largo), largo.medida);
    if (figura.medida > tolerancia_) Anota(Falta::figura, en(figura), figura.medida);
    if (AnchoDe(contorno) <= tolerancia_) {
      veredicto_.notas.emplace_back(Nota::delgada, Lugar{forma.nombre});
    } else {
      const double vuelta = cotejo.PeorVuelta().medida;
      if (vuelta > 0) Anota(Falta::vuelta, en(cotejo.PeorVuelta()), vuelta);
      if (const auto cruce = Cruce(contorno, kSinAncho, tolerancia_)) Anota(Falta::cruce, en({1, *cruce}));
    }
    if (marcas.numero.medida > 0) Anota(Falta::numeros, en(marcas.numero));
    if (marcas.doblez.medida > 0) Anota(Falta::doblez, en(marcas.doblez));
    anillo_.push_back({forma.nombre, cotejo.OrillaDe(forma.antes), cotejo.OrillaDe(forma.despues)});
  }

  // The number that stands nearest on the sheet; 0 if there is none.
  static int NumeroCercano(const FormaPatron& forma, Punto2 sitio) {
    int cercano = 0;
    double cerca = 0;
    for (std::size_t i = 0; i + forma.sinNumero < forma.lineas.size(); ++i) {
      const double d = Distancia(SitioNumero(forma.nombre.forma, forma.lineas[i]), sitio);
      if (cercano != 0 && !(d < cerca)) continue;
      cerca = d;
      cercano = static_cast<int>(i) + 1;
    }
    return cercano;
  }

  // The base lies in the plane z = 0.
  void BajoBase() {
    constexpr double kNivel = 1e-6;
    double hondo = kNivel;
    const Cara* cual = nullptr;
    for (const Cara& cara : solido_.caras) {
      for (const auto* orilla : {&cara.bajo, &cara.alto}) {
        for (const int i : *orilla) {
          const double z = -solido_.puntos[static_cast<std::size_t>(i)].z;
          if (!(z > hondo)) continue;
          hondo = z;
          cual = &cara;
        }
      }
    }
    if (cual) AnotaImposible(veredicto_, Causa::bocaBajoBase, {cual->forma}, hondo);
  }

  void Vecinas() {
    for (std::size_t i = 0; i < anillo_.size(); ++i) {
      const Eslabon &una = anillo_[i], &otra = anillo_[(i + 1) % anillo_.size()];
      if (!una.despues || !otra.antes) continue;
      const auto& [largo, enArista, parte, arista] = *una.despues;
      // Ends on one edge are a cut through the pattern, not a border of one of its shapes.
      const Lugar donde = enArista ? Lugar{} : Lugar{una.nombre, 0, otra.nombre};
      Iguales(donde, largo, otra.antes->largo);
      if (enArista) Iguales(donde, parte + otra.antes->parte, arista);
    }
  }

  void Iguales(const Lugar& donde, double a, double b) {
    const double diferencia = std::abs(a - b);
    Desvia(diferencia);
    if (diferencia > tolerancia_) Anota(Falta::vecinas, donde, diferencia);
  }

  const Solido& solido_;
  const Patron& patron_;
  double tolerancia_;
  Veredicto veredicto_;
  std::vector<Eslabon> anillo_;
};

}  // namespace

void AnotaImposible(Veredicto& veredicto, Causa causa, const Lugar& donde, double medida) {
  veredicto.causa = causa;
  veredicto.desviacion = std::max(veredicto.desviacion, medida);
  veredicto.defectos.push_back({Falta::imposible, donde, medida});
}

Veredicto Comprueba(const Solido& solido, const Patron& patron, double tolerancia) {
  return Examen(solido, patron, tolerancia).Haz();
}

}  // namespace duktores
