#include "imagenes_vista.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace duktores {
namespace {

const QRgb kCuerpo = Acero(0.955), kSombra = Acero(0.905);
constexpr QRgb kPerfil = 0xff1d2b3a, kPerfilInterior = 0xff4d5f72;

struct Caras {
  std::vector<bool> alOjo;  // facet i shows its outer side
  bool bocaAlOjo;           // one looks into the upper mouth
  bool Antes(std::size_t i) const { return alOjo[(i + alOjo.size() - 1) % alOjo.size()]; }
};

Caras CarasDe(const Anillo& anillo, const Vista& vista) {
  const Punto3 ojo = vista.HaciaOjo();
  Caras caras;
  Punto3 boca;
  for (std::size_t i = 0; i < anillo.size(); ++i) {
    const Punto3 normal = NormalFaceta(anillo, i);
    caras.alOjo.push_back(Escalar(normal, ojo) > 1e-6 * Distancia(normal, {}));
    boca = boca + Vectorial(anillo[(i + 1) % anillo.size()].arriba, anillo[i].arriba);
  }
  caras.bocaAlOjo = Escalar(boca, ojo) > 1e-6 * Distancia(boca, {});
  return caras;
}

QPolygonF Faceta(const Anillo& anillo, std::size_t i, const Vista& vista) {
  const Elemento &e = anillo[i], &sig = anillo[(i + 1) % anillo.size()];
  return {vista.AlPapel(e.abajo), vista.AlPapel(sig.abajo), vista.AlPapel(sig.arriba), vista.AlPapel(e.arriba)};
}

void DibujaContorno(Papel& papel, const Anillo& anillo, const Vista& vista, const Caras& caras) {
  for (std::size_t i = 0; i < anillo.size(); ++i) {
    const QPolygonF f = Faceta(anillo, i, vista);
    if (caras.alOjo[i]) papel.Linea(Trazo::arista, f[0], f[1]);
    if (caras.alOjo[i] || caras.bocaAlOjo) papel.Linea(Trazo::arista, f[3], f[2]);
    if (caras.alOjo[i] != caras.Antes(i)) papel.Linea(Trazo::arista, f[0], f[3]);
  }
}

// Where the light throws a point's shadow on the ground.
Punto3 Sombra(Punto3 p) { return p - p.z * Punto3{-0.30, 0.22, 1}; }

double Claridad(Punto3 normal, bool exterior) {
  const Punto3 luz{-0.36, -0.62, 0.70};
  const double coseno = Escalar(normal, luz) / Distancia(normal, {});
  return exterior ? 0.60 + 0.34 * std::max(coseno, -0.4) : 0.50 + 0.16 * std::max(-coseno, -0.4);
}

void PintaCara(Papel& papel, const Anillo& anillo, std::size_t i, const Vista& vista, bool exterior) {
  const QPolygonF f = Faceta(anillo, i, vista);
  const double claridad = Claridad(NormalFaceta(anillo, i), exterior);
  papel.Rellena(f, Acero(claridad));
  const QRgb raya = Acero(claridad - (exterior ? 0.11 : 0.05));
  const double ancho = std::clamp(2.2 * vista.escala, 1.2, 2.0);
  if (anillo[i].generatriz) papel.Perfil(f[0], f[3], raya, ancho);
  if (anillo[(i + 1) % anillo.size()].generatriz) papel.Perfil(f[1], f[2], raya, ancho);
}

}  // namespace

Vista VistaCaballera(QPointF origen, double escala) {
  const double giro = Radianes(36), alto = Radianes(30);
  const Punto3 derecha{std::cos(giro), std::sin(giro), 0};
  const Punto3 frente{std::sin(giro), -std::cos(giro), 0};
  return {derecha, std::cos(alto) * Punto3{0, 0, 1} - std::sin(alto) * frente, origen, escala};
}

void DibujaLineas(Papel& papel, const Anillo& anillo, const Vista& vista) {
  const Caras caras = CarasDe(anillo, vista);
  for (std::size_t i = 0; i < anillo.size(); ++i) {
    if (caras.alOjo[i]) papel.Rellena(Faceta(anillo, i, vista), kCuerpo);
  }
  for (std::size_t i = 0; i < anillo.size(); ++i) {
    if (!anillo[i].generatriz || !(caras.alOjo[i] || caras.Antes(i))) continue;
    papel.Linea(Trazo::generatriz, vista.AlPapel(anillo[i].abajo), vista.AlPapel(anillo[i].arriba));
  }
  DibujaContorno(papel, anillo, vista, caras);
}

void DibujaFantasma(Papel& papel, const Anillo& entero, const Anillo& cortado, const Vista& vista) {
  const auto [izquierda, derecha] =
      std::minmax_element(entero.begin(), entero.end(), [&](const Elemento& a, const Elemento& b) {
        return Escalar(a.arriba, vista.derecha) < Escalar(b.arriba, vista.derecha);
      });
  for (const auto extremo : {izquierda, derecha}) {
    const Elemento& corte = cortado[static_cast<std::size_t>(extremo - entero.begin())];
    if (Distancia(corte.arriba, extremo->arriba) < 1) continue;
    papel.Linea(Trazo::fantasma, vista.AlPapel(corte.arriba), vista.AlPapel(extremo->arriba));
  }
}

void DibujaChapa(Papel& papel, const Anillo& anillo, const Vista& vista) {
  Anillo sombra = anillo;
  for (Elemento& e : sombra) e.arriba = Sombra(e.arriba);
  QPolygonF suelo;
  for (std::size_t i = 0; i < sombra.size(); ++i) {
    papel.Rellena(Faceta(sombra, i, vista), kSombra);
    suelo << vista.AlPapel(sombra[i].abajo);
  }
  papel.Rellena(suelo, kSombra);

  const Caras caras = CarasDe(anillo, vista);
  const Punto3 ojo = vista.HaciaOjo();
  const auto hondura = [&](std::size_t i) {
    const Elemento &e = anillo[i], &sig = anillo[(i + 1) % anillo.size()];
    return Escalar(e.abajo + e.arriba + sig.abajo + sig.arriba, ojo);
  };
  std::vector<std::size_t> orden(anillo.size());
  std::iota(orden.begin(), orden.end(), std::size_t{0});
  // From the back to the front; the far walls show their inner side and come before all near ones.
  std::sort(orden.begin(), orden.end(), [&](std::size_t i, std::size_t j) {
    return caras.alOjo[i] != caras.alOjo[j] ? !caras.alOjo[i] : hondura(i) < hondura(j);
  });
  const double ancho = std::clamp(3.4 * vista.escala, 2.2, 3.4);
  for (const bool exterior : {false, true}) {
    for (const std::size_t i : orden) {
      if (caras.alOjo[i] == exterior) PintaCara(papel, anillo, i, vista, exterior);
    }
    for (std::size_t i = 0; i < anillo.size(); ++i) {
      const QPolygonF f = Faceta(anillo, i, vista);
      if (exterior && caras.alOjo[i] != caras.Antes(i)) papel.Perfil(f[0], f[3], kPerfil, ancho);
      if (caras.alOjo[i] != exterior) continue;
      papel.Perfil(f[0], f[1], exterior ? kPerfil : kPerfilInterior, exterior ? ancho : 1.6);
      papel.Perfil(f[3], f[2], kPerfil, ancho);
    }
  }
}

}  // namespace duktores
