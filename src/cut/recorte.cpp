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

Punto2 Redondeado(Punto2 p) { return {Redondea(p.x, kDecimales), Redondea(p.y, kDecimales)}; }

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
      puntos.push_back(Redondeado(contorno[i].p - minimo));
    }
    vuelto = doble < 0;
    if (vuelto) std::reverse(puntos.begin(), puntos.end());
  }
  std::size_t En(int vertice) const {
    const std::size_t i = static_cast<std::size_t>(vertice) % puntos.size();
    return vuelto ? puntos.size() - 1 - i : i;
  }
};

double ConSigno(Doblez doblez) { return doblez.haciaArriba ? doblez.grados : -doblez.grados; }
Doblez SinSigno(double grados) { return {std::abs(grados), grados > 0}; }

struct Candidato {
  int numero;
  std::size_t p, q;  // in the whole outline
  Doblez doblez;
};

// Lines of too small an angle are left out and their angle goes to the next one, so that nothing of the bending is
// lost; but a shape that has no others is rolled rather than folded.
std::vector<Candidato> Candidatos(const Solido& solido, const FormaPatron& forma, const Rodeo& rodeo, double minimo) {
  std::vector<Candidato> candidatos;
  double suma = 0, mayor = 0;
  for (std::size_t i = 0; i < forma.lineas.size(); ++i) {
    const Linea& linea = forma.lineas[i];
    const auto doblez = DoblezDe(solido, linea);
    if (!doblez || linea.enP < 0 || linea.enQ < 0) continue;
    mayor = std::max(mayor, doblez->grados);
    suma += ConSigno(*doblez);
    if (std::abs(suma) < minimo) continue;
    candidatos.push_back({static_cast<int>(i) + 1, rodeo.En(linea.enP), rodeo.En(linea.enQ), SinSigno(suma)});
    suma = 0;
  }
  if (mayor < minimo) candidatos.clear();
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

std::vector<Trecho> Contorno(const std::vector<Punto2>& puntos, const std::vector<Queda>& quedan) {
  std::vector<Trecho> contorno;
  for (std::size_t i = 0; i < quedan.size(); ++i) {
    Trecho& trecho = contorno.emplace_back(Trecho{puntos[quedan[i].vertice]});
    if (!quedan[i].medio) continue;
    const Punto2 medio = puntos[*quedan[i].medio], fin = puntos[quedan[(i + 1) % quedan.size()].vertice];
    const auto circulo = PorTres(trecho.p, medio, fin);
    if (circulo) trecho.arco = {circulo->centro, circulo->radio, Vectorial2(medio - trecho.p, fin - medio) > 0};
  }
  return contorno;
}

// A fold ends on vertices that stay. Two between the same vertices are one, and what would run along the outline goes
// to the next one.
std::vector<DoblezRecorte> Dobleces(const std::vector<Candidato>& candidatos, const std::vector<Punto2>& puntos,
                                    const std::vector<Queda>& quedan, const std::vector<Trecho>& contorno) {
  const auto vertice = [&](std::size_t i) {
    const auto suyo = std::ranges::lower_bound(quedan, i, {}, &Queda::vertice);
    if (suyo != quedan.end() && suyo->vertice == i) return static_cast<std::size_t>(suyo - quedan.begin());
    const auto lejos = [&](const Trecho& t) { return Distancia(t.p, puntos[i]); };
    return static_cast<std::size_t>(std::ranges::min_element(contorno, {}, lejos) - contorno.begin());
  };
  std::vector<DoblezRecorte> dobleces;
  double suma = 0;
  for (const Candidato& c : candidatos) {
    const std::size_t p = vertice(c.p), q = vertice(c.q), n = contorno.size();
    suma += ConSigno(c.doblez);
    if (p == q || (p + 1) % n == q || (q + 1) % n == p) continue;
    const auto igual = [p, q](const DoblezRecorte& d) { return std::minmax(d.enP, d.enQ) == std::minmax(p, q); };
    const auto otro = std::ranges::find_if(dobleces, igual);
    if (otro == dobleces.end()) {
      dobleces.push_back({c.numero, p, q, SinSigno(suma)});
    } else {
      otro->doblez = SinSigno(ConSigno(otro->doblez) + suma);
    }
    suma = 0;
  }
  return dobleces;
}

// What thinning has taken away at the rim of the box is taken up again.
void Asienta(Recorte& recorte, double fino) {
  constexpr double kMitad = 0.5;
  Punto2 minimo = recorte.En(0), maximo = minimo;
  for (const Punto2 p : Poligono(recorte, kMitad * fino)) {
    minimo = {std::min(minimo.x, p.x), std::min(minimo.y, p.y)};
    maximo = {std::max(maximo.x, p.x), std::max(maximo.y, p.y)};
  }
  for (auto& [p, arco] : recorte.contorno) {
    p = Redondeado(p - minimo);
    if (arco) arco->centro = arco->centro - minimo;
  }
  recorte.tamano = Redondeado(maximo - minimo);
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

std::vector<Punto2> Poligono(const Recorte& recorte, double flecha) {
  std::vector<Punto2> poligono;
  for (std::size_t i = 0; i < recorte.contorno.size(); ++i) {
    const auto& [p, arco] = recorte.contorno[i];
    poligono.push_back(p);
    if (!arco) continue;
    const Punto2 u = p - arco->centro, v = recorte.En((i + 1) % recorte.contorno.size()) - arco->centro;
    const double vuelta = std::atan2(Vectorial2(u, v), u.x * v.x + u.y * v.y);
    const double pasos =
        std::ceil(std::abs(vuelta) / (2 * std::sqrt(2 * std::max(flecha, 1e-4 * arco->radio) / arco->radio)));
    for (int k = 1; k < pasos; ++k) {
      const double c = std::cos(vuelta * k / pasos), s = std::sin(vuelta * k / pasos);
      poligono.push_back(arco->centro + Punto2{c * u.x - s * u.y, s * u.x + c * u.y});
    }
  }
  return poligono;
}

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
  // A part is as large as the pattern has it.
  const auto [izquierda, derecha] = std::ranges::minmax_element(rodeo.puntos, {}, &Punto2::x);
  const auto [abajo, arriba] = std::ranges::minmax_element(rodeo.puntos, {}, &Punto2::y);
  for (const auto p : {izquierda, derecha, abajo, arriba})
    fijo[static_cast<std::size_t>(p - rodeo.puntos.begin())] = true;
  Gira(rodeo, candidatos, fijo);
  const Afinado afinado{maquina.tolerancia * milimetro, kPasoMinimo * milimetro, maquina.arcos};
  const std::vector<Queda> quedan = Adelgaza(rodeo.puntos, fijo, afinado);
  recorte.contorno = Contorno(rodeo.puntos, quedan);
  recorte.dobleces = Dobleces(candidatos, rodeo.puntos, quedan, recorte.contorno);
  Asienta(recorte, kPasoMinimo * milimetro);
  Mide(recorte);
  recorte.caja = CajaMinima(rodeo.puntos);
  const std::vector<Punto2> poligono = Poligono(recorte, maquina.tolerancia * milimetro);
  if (!(AnchoDe(poligono) > kPasoMinimo * milimetro)) {
    recorte.falta = FaltaRecorte::sinArea;
  } else if (!EsSimple(poligono, kHueco * milimetro)) {
    recorte.falta = FaltaRecorte::cruce;
  }
  return recorte;
}

}  // namespace duktores
