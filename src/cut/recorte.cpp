#include "cut/recorte.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

#include "check/cruce.h"
#include "cut/adelgaza.h"
#include "cut/caja_minima.h"
#include "geometry/planas.h"
#include "geometry/redondeo.h"

namespace duktores {

namespace {

constexpr int kDecimales = 6;
constexpr double kHueco = 1e-5;  // edges that come nearer touch

// The outline of the shape in the frame of the part, counter-clockwise, without its last vertex, and where the vertices
// of the shape are in it.
struct Rodeo {
  std::vector<Punto2> puntos;
  bool vuelto = false;

  explicit Rodeo(const FormaPatron& forma) {
    const auto& contorno = forma.contorno;
    constexpr double kInfinito = std::numeric_limits<double>::infinity();
    Punto2 minimo{kInfinito, kInfinito};
    double doble = 0;
    for (std::size_t i = 0; i + 1 < contorno.size(); ++i) {
      const Punto2 p = contorno[i].p;
      minimo = {std::min(minimo.x, p.x), std::min(minimo.y, p.y)};
      doble += Vectorial2(p - contorno[0].p, contorno[i + 1].p - contorno[0].p);
    }
    for (std::size_t i = 0; i + 1 < contorno.size(); ++i) {
      const Punto2 p = contorno[i].p - minimo;
      puntos.push_back({Redondea(p.x, kDecimales), Redondea(p.y, kDecimales)});
    }
    vuelto = doble < 0;
    if (vuelto) std::reverse(puntos.begin(), puntos.end());
  }
  std::size_t En(int vertice) const {
    const std::size_t i = static_cast<std::size_t>(vertice) % puntos.size();
    return vuelto ? puntos.size() - 1 - i : i;
  }
};

struct Candidato {
  int numero;
  std::size_t p, q;  // in the whole outline
  Doblez doblez;
};

std::vector<Candidato> Candidatos(const Solido& solido, const FormaPatron& forma, const Rodeo& rodeo, double minimo) {
  std::vector<Candidato> candidatos;
  for (std::size_t i = 0; i < forma.lineas.size(); ++i) {
    const Linea& linea = forma.lineas[i];
    const auto doblez = DoblezDe(solido, linea);
    if (!doblez || !(doblez->grados >= minimo) || linea.enP < 0 || linea.enQ < 0) continue;
    candidatos.push_back({static_cast<int>(i) + 1, rodeo.En(linea.enP), rodeo.En(linea.enQ), *doblez});
  }
  return candidatos;
}

// The outline begins at a vertex that stays.
void Gira(Rodeo& rodeo, std::vector<Candidato>& candidatos, std::vector<bool>& fijo) {
  const auto primero = std::find(fijo.begin(), fijo.end(), true);
  if (primero == fijo.end()) return;
  const auto paso = primero - fijo.begin();
  const std::size_t n = fijo.size(), salto = static_cast<std::size_t>(paso);
  std::rotate(fijo.begin(), primero, fijo.end());
  std::rotate(rodeo.puntos.begin(), rodeo.puntos.begin() + paso, rodeo.puntos.end());
  for (Candidato& c : candidatos) {
    c.p = (c.p + n - salto) % n;
    c.q = (c.q + n - salto) % n;
  }
}

std::vector<Tramo> Contorno(const std::vector<Punto2>& puntos, const std::vector<Queda>& quedan) {
  std::vector<Tramo> contorno;
  for (std::size_t i = 0; i < quedan.size(); ++i) {
    Tramo& tramo = contorno.emplace_back(Tramo{puntos[quedan[i].vertice]});
    if (!quedan[i].medio) continue;
    const Punto2 medio = puntos[*quedan[i].medio], fin = puntos[quedan[(i + 1) % quedan.size()].vertice];
    const auto circulo = PorTres(tramo.p, medio, fin);
    if (circulo) tramo.arco = {circulo->centro, circulo->radio, Vectorial2(medio - tramo.p, fin - medio) > 0};
  }
  return contorno;
}

// A fold ends on vertices that stay, and isn't one if it runs along the outline. Two between the same vertices are one.
std::vector<DoblezRecorte> Dobleces(const std::vector<Candidato>& candidatos, const std::vector<Punto2>& puntos,
                                    const std::vector<Queda>& quedan, const std::vector<Tramo>& contorno) {
  const auto vertice = [&](std::size_t i) {
    const auto suyo = std::ranges::lower_bound(quedan, i, {}, &Queda::vertice);
    if (suyo != quedan.end() && suyo->vertice == i) return static_cast<std::size_t>(suyo - quedan.begin());
    const auto lejos = [&](const Tramo& t) { return Distancia(t.p, puntos[i]); };
    return static_cast<std::size_t>(std::ranges::min_element(contorno, {}, lejos) - contorno.begin());
  };
  std::vector<DoblezRecorte> dobleces;
  for (const Candidato& c : candidatos) {
    const std::size_t p = vertice(c.p), q = vertice(c.q), n = contorno.size();
    if (p == q || (p + 1) % n == q || (q + 1) % n == p) continue;
    const auto igual = [p, q](const DoblezRecorte& d) { return std::minmax(d.enP, d.enQ) == std::minmax(p, q); };
    if (std::ranges::none_of(dobleces, igual)) dobleces.push_back({c.numero, p, q, c.doblez});
  }
  return dobleces;
}

void Mide(Recorte& recorte) {
  double doble = 0;
  for (std::size_t i = 0; i < recorte.contorno.size(); ++i) {
    const auto& [p, arco] = recorte.contorno[i];
    const Punto2 q = recorte.En((i + 1) % recorte.contorno.size());
    const double cuerda = Distancia(p, q);
    doble += Vectorial2(p, q);
    if (!arco) {
      recorte.largo += cuerda;
      continue;
    }
    const double vuelta = 2 * std::asin(std::min(1.0, cuerda / (2 * arco->radio)));
    recorte.largo += arco->radio * vuelta;
    doble += (arco->antihorario ? 1 : -1) * arco->radio * arco->radio * (vuelta - std::sin(vuelta));
  }
  recorte.area = doble / 2;
}

}  // namespace

Recorte RecorteDe(const Solido& solido, const FormaPatron& forma, const Maquina& maquina, double milimetro) {
  Recorte recorte;
  recorte.forma = forma.nombre;
  Rodeo rodeo(forma);
  const auto finito = [](Punto2 p) { return std::isfinite(p.x) && std::isfinite(p.y); };
  if (rodeo.puntos.size() < 3 || !std::ranges::all_of(rodeo.puntos, finito)) {
    recorte.falta = FaltaRecorte::sinArea;
    return recorte;
  }
  std::vector<Candidato> candidatos = Candidatos(solido, forma, rodeo, maquina.anguloMinimo);
  std::vector<bool> fijo(rodeo.puntos.size());
  for (const Candidato& c : candidatos) fijo[c.p] = fijo[c.q] = true;
  for (const int v : {forma.antes[0], forma.antes[1], forma.despues[0], forma.despues[1]}) fijo[rodeo.En(v)] = true;
  Gira(rodeo, candidatos, fijo);
  const Afinado afinado{maquina.tolerancia * milimetro, kPasoMinimo * milimetro, maquina.arcos};
  const std::vector<Queda> quedan = Adelgaza(rodeo.puntos, fijo, afinado);
  recorte.contorno = Contorno(rodeo.puntos, quedan);
  recorte.dobleces = Dobleces(candidatos, rodeo.puntos, quedan, recorte.contorno);
  Mide(recorte);
  for (const Punto2 p : rodeo.puntos)
    recorte.tamano = {std::max(recorte.tamano.x, p.x), std::max(recorte.tamano.y, p.y)};
  recorte.caja = CajaMinima(rodeo.puntos);
  std::vector<Punto2> esquinas;
  for (const Tramo& tramo : recorte.contorno) esquinas.push_back(tramo.p);
  if (!(AnchoDe(esquinas) > kPasoMinimo * milimetro)) {
    recorte.falta = FaltaRecorte::sinArea;
  } else if (!EsSimple(esquinas, kHueco * milimetro)) {
    recorte.falta = FaltaRecorte::cruce;
  }
  return recorte;
}

}  // namespace duktores
