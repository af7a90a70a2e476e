#include "paint/sombreado.h"

#include <QPainter>
#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <string_view>
#include <unordered_map>

#include "piece/numeros_texto.h"
#include "state/textos.h"

namespace duktores {

namespace {

// Rims of a facet or of a strip of it, by their points; with the two points where it meets each neighbour.
struct Trozo {
  std::vector<int> bajo, alto;
  bool primero = true, ultimo = true;  // of its facet
};

std::vector<Trozo> TrozosDe(const Cara& cara, std::size_t pasos) {
  const std::size_t n = cara.bajo.size();
  if (n != cara.alto.size() || n < 3) return {{cara.bajo, cara.alto}};
  std::vector<Trozo> trozos;
  for (std::size_t i = 0; i + 1 < n; i += pasos) {
    const std::size_t j = std::min(i + pasos, n - 1);
    trozos.push_back({{cara.bajo[i], cara.bajo[j]}, {cara.alto[i], cara.alto[j]}, i == 0, j + 1 == n});
  }
  return trozos;
}

// Whether the lower rims on the sheet are those of the base, which lies in the plane z = 0.
bool BaseAbajo(const Solido& solido) {
  double lejos = 0;  // the upper rims from that plane more than the lower ones
  for (const Cara& cara : solido.caras) {
    if (cara.bajo.empty() || cara.alto.empty()) continue;
    const auto z = [&](const std::vector<int>& orilla) {
      return std::abs(solido.puntos[static_cast<std::size_t>(orilla.front())].z);
    };
    lejos += z(cara.alto) - z(cara.bajo);
  }
  return lejos >= 0;
}

class Mirada {
 public:
  Mirada(const Solido& solido, Punto3 direccion, int trozos)
      : solido_(solido), base_(BaseVista(direccion)), hacia_(Vectorial(base_.derecha, base_.arriba)) {
    constexpr double kIzquierda = -0.45, kArriba = 0.6, kHacia = 0.66;  // a vector of length 1
    luz_ = kIzquierda * base_.derecha + kArriba * base_.arriba + kHacia * hacia_;
    const bool baseAbajo = BaseAbajo(solido);
    bajo_ = baseAbajo ? ClaseArista::base : ClaseArista::boca;
    alto_ = baseAbajo ? ClaseArista::boca : ClaseArista::base;
    std::size_t pasos = 0;
    for (const Cara& cara : solido.caras) pasos += std::max(cara.bajo.size(), std::size_t{1}) - 1;
    const auto cuantos = static_cast<std::size_t>(std::max(trozos, 1));
    pasos_ = std::max((pasos + cuantos - 1) / cuantos, std::size_t{1});
  }

  SolidoVisto Mira() && {
    for (const Cara& cara : solido_.caras) {
      for (const Trozo& trozo : TrozosDe(cara, pasos_)) PonTrozo(cara, trozo);
    }
    std::ranges::stable_sort(visto_.facetas, [](const FacetaVista& a, const FacetaVista& b) {
      return a.interior != b.interior ? a.interior : a.fondo < b.fondo;
    });
    for (const auto& [clave, lado] : lados_) visto_.aristas.push_back(lado.arista);
    return std::move(visto_);
  }

 private:
  struct Lado {
    AristaVista arista;
    NombreForma forma;
  };

  Punto3 En(int i) const { return solido_.puntos[static_cast<std::size_t>(i)]; }
  QPointF Plano(int i) const { return AlPlano(base_, En(i)); }

  void PonTrozo(const Cara& cara, const Trozo& trozo) {
    std::vector<int> vuelta = trozo.bajo;
    vuelta.insert(vuelta.end(), trozo.alto.rbegin(), trozo.alto.rend());
    Punto3 normal, suma;
    QPolygonF plano;
    for (std::size_t i = 0; i < vuelta.size(); ++i) {
      const Punto3 p = En(vuelta[i]);
      normal = normal + Vectorial(p, En(vuelta[(i + 1) % vuelta.size()]));
      suma = suma + p;
      plano << Plano(vuelta[i]);
    }
    const double largo = Norma(normal);
    if (!std::isfinite(largo) || !std::isfinite(Norma(suma))) return;
    if (largo <= 1e-9 * std::pow(Distancia(En(trozo.bajo.front()), En(trozo.alto.back())), 2)) {
      return PonSinArea(cara.forma, trozo);
    }
    const bool exterior = Escalar(normal, hacia_) >= 0;
    const double claridad = Escalar(normal, luz_) / largo;
    visto_.facetas.push_back({plano, !exterior, std::max(exterior ? claridad : -claridad, 0.0),
                              Escalar(suma, hacia_) / static_cast<double>(vuelta.size())});
    PonOrilla(trozo.bajo, bajo_, exterior);
    PonOrilla(trozo.alto, alto_, exterior);
    PonLados(cara.forma, trozo, exterior);
  }

  // A side of no length between two arcs faces where its neighbour does.
  void PonSinArea(NombreForma forma, const Trozo& trozo) {
    for (const auto clave :
         {Clave(trozo.bajo.front(), trozo.alto.front()), Clave(trozo.bajo.back(), trozo.alto.back())}) {
      if (const auto lado = lados_.find(clave); lado != lados_.end()) {
        return PonLados(forma, trozo, lado->second.arista.delante);
      }
    }
  }

  void PonLados(NombreForma forma, const Trozo& trozo, bool exterior) {
    PonLado(forma, trozo.bajo.front(), trozo.alto.front(), trozo.primero, exterior);
    PonLado(forma, trozo.bajo.back(), trozo.alto.back(), trozo.ultimo, exterior);
  }

  void PonOrilla(const std::vector<int>& orilla, ClaseArista clase, bool exterior) {
    for (std::size_t i = 1; i < orilla.size(); ++i) {
      visto_.aristas.push_back({{Plano(orilla[i - 1]), Plano(orilla[i])}, clase, exterior, false});
    }
  }

  static std::uint64_t Clave(int bajo, int alto) {
    return static_cast<std::uint64_t>(bajo) << 32U | static_cast<std::uint32_t>(alto);
  }

  // A line from rim to rim comes twice, from the facets on its sides.
  void PonLado(NombreForma forma, int bajo, int alto, bool deFaceta, bool exterior) {
    const auto clase = deFaceta ? ClaseArista::doblez : ClaseArista::tersa;
    const auto [lugar, nuevo] =
        lados_.try_emplace(Clave(bajo, alto), Lado{{{Plano(bajo), Plano(alto)}, clase, exterior, false}, forma});
    if (nuevo) return;
    auto& [arista, otra] = lugar->second;
    if (otra != forma) arista.clase = ClaseArista::canto;
    arista.silueta = arista.delante != exterior;
    arista.delante = arista.delante || exterior;
  }

  const Solido& solido_;
  Base3 base_;
  Punto3 hacia_, luz_;
  ClaseArista bajo_{}, alto_{};
  std::size_t pasos_ = 1;
  SolidoVisto visto_;
  std::unordered_map<std::uint64_t, Lado> lados_;
};

constexpr QRgb kFondo = qRgb(27, 31, 37), kBoca = qRgb(255, 170, 60), kBase = qRgb(80, 200, 255);
constexpr QRgb kFuera = qRgb(176, 196, 214), kDentro = qRgb(196, 160, 112), kLinea = qRgb(16, 20, 26);

QColor Tono(const FacetaVista& faceta) {
  constexpr double kSombra = 0.42;
  const QColor color(faceta.interior ? kDentro : kFuera);
  const double luz = (kSombra + (1 - kSombra) * faceta.luz) * (faceta.interior ? 0.85 : 1);
  return QColor::fromRgbF(static_cast<float>(color.redF() * luz), static_cast<float>(color.greenF() * luz),
                          static_cast<float>(color.blueF() * luz));
}

// How strong the bend lines are: where they lie close they would cover the shading.
double Fuerza(const SolidoVisto& visto, double escala) {
  constexpr double kNada = 2.5, kToda = 8;  // device units between two of them
  double orillas = 0, dobleces = 0;
  for (const AristaVista& arista : visto.aristas) {
    if (arista.clase == ClaseArista::boca || arista.clase == ClaseArista::base) orillas += arista.plano.length() / 2;
    if (arista.clase == ClaseArista::doblez) ++dobleces;
  }
  if (dobleces == 0) return 0;
  return std::clamp((orillas * escala / dobleces - kNada) / (kToda - kNada), 0.0, 1.0);
}

struct Trazo {
  QRgb color;
  double alfa, ancho;
};
Trazo TrazoDe(const AristaVista& arista, double fuerza) {
  switch (arista.clase) {
    case ClaseArista::boca:
      return {kBoca, 1, 2};
    case ClaseArista::base:
      return {kBase, 1, 2};
    case ClaseArista::canto:
      return {kLinea, 0.9, 1};
    case ClaseArista::doblez:
      if (arista.silueta) break;
      return {kLinea, 0.55 * fuerza, 1};
    case ClaseArista::tersa:
      if (!arista.silueta) return {kLinea, 0, 1};
      break;
  }
  return {kLinea, 0.9, 1};
}

// In pieces of at most so many device units, if it is translucent: Qt shares out one of many pixels to other threads,
// which takes a hundred times as long as to paint it.
void AnadeTramos(std::vector<QLineF>& lineas, const QLineF& linea, double tramo) {
  const int n = std::max(1, static_cast<int>(std::ceil(linea.length() / tramo)));
  for (int i = 0; i < n; ++i) lineas.emplace_back(linea.pointAt(1.0 * i / n), linea.pointAt((i + 1.0) / n));
}

class Trazador {
 public:
  Trazador(QPainter& pintor, const SolidoVisto& visto, const Encuadre& encuadre, QSizeF lienzo, Esmero esmero)
      : pintor_(pintor),
        visto_(visto),
        encuadre_(encuadre),
        lienzo_(lienzo),
        esmero_(esmero),
        fuerza_(esmero == Esmero::fino ? Fuerza(visto, encuadre.escala) : 0) {}

  void Facetas(bool interior) {
    pintor_.setRenderHint(QPainter::Antialiasing, false);  // else the background shines through between two of them
    pintor_.setPen(Qt::NoPen);
    QPolygonF poligono;
    for (const FacetaVista& faceta : visto_.facetas) {
      if (faceta.interior != interior) continue;
      poligono.clear();
      for (const QPointF p : faceta.plano) poligono << En(p);
      if (!poligono.boundingRect().intersects(QRectF(QPointF(), lienzo_))) continue;
      pintor_.setBrush(Tono(faceta));
      pintor_.drawPolygon(poligono);
    }
  }

  // Hidden lines are drawn once more, faintly, over what hides them.
  void Aristas(bool delante, double alfa) {
    pintor_.setRenderHint(QPainter::Antialiasing, esmero_ == Esmero::fino);
    for (const auto clase :
         {ClaseArista::tersa, ClaseArista::doblez, ClaseArista::canto, ClaseArista::base, ClaseArista::boca}) {
      for (const bool silueta : {false, true}) Clase(clase, delante, silueta, alfa);
    }
  }

 private:
  QPointF En(QPointF plano) const { return encuadre_.AlDispositivo(plano, lienzo_); }

  void Clase(ClaseArista clase, bool delante, bool silueta, double alfa) {
    std::vector<QLineF> lineas;
    const Trazo trazo = TrazoDe({{}, clase, delante, silueta}, fuerza_);
    if (trazo.alfa <= 0) return;
    const bool opaca = trazo.alfa * alfa >= 1;
    constexpr double kPixels = 14;
    const double tramo = opaca ? HUGE_VAL : kPixels / pintor_.device()->devicePixelRatioF();
    for (const AristaVista& arista : visto_.aristas) {
      if (arista.clase != clase || arista.delante != delante || arista.silueta != silueta) continue;
      const QLineF linea(En(arista.plano.p1()), En(arista.plano.p2()));
      if (const auto visible = Recorta(linea, QRectF(QPointF(), lienzo_).adjusted(-8, -8, 8, 8))) {
        AnadeTramos(lineas, *visible, tramo);
      }
    }
    QColor color(trazo.color);
    color.setAlphaF(static_cast<float>(trazo.alfa * alfa));
    pintor_.setPen(QPen(color, trazo.ancho, Qt::SolidLine, opaca ? Qt::SquareCap : Qt::FlatCap));
    pintor_.drawLines(lineas.data(), static_cast<int>(lineas.size()));
  }

  QPainter& pintor_;
  const SolidoVisto& visto_;
  Encuadre encuadre_;
  QSizeF lienzo_;
  Esmero esmero_;
  double fuerza_;
};

// What stands there lies on the solid.
void PintaPlaca(QPainter& pintor, QRectF sitio) {
  constexpr double kEsquina = 6, kOpaca = 0.7;
  QColor color(kFondo);
  color.setAlphaF(static_cast<float>(kOpaca));
  pintor.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
  pintor.setPen(Qt::NoPen);
  pintor.setBrush(color);
  pintor.drawRoundedRect(sitio, kEsquina, kEsquina);
}

}  // namespace

SolidoVisto Mira(const Solido& solido, Punto3 direccion, int trozos) {
  return Mirada(solido, direccion, trozos).Mira();
}

void PintaSombreado(QPainter& pintor, const SolidoVisto& visto, const Encuadre& encuadre, QSizeF lienzo,
                    Esmero esmero) {
  constexpr double kOculta = 0.28;
  pintor.save();
  pintor.fillRect(QRectF(QPointF(), lienzo), QColor(kFondo));
  Trazador trazador(pintor, visto, encuadre, lienzo, esmero);
  trazador.Facetas(true);
  trazador.Aristas(false, 1);
  trazador.Facetas(false);
  trazador.Aristas(false, kOculta);
  trazador.Aristas(true, 1);
  pintor.restore();
}

void PintaEjes(QPainter& pintor, Punto3 direccion, QSizeF lienzo) {
  constexpr double kLargo = 26, kOrigen = 40;
  struct Eje {
    Punto3 hacia;
    QRgb color;
    const char* letra;
  };
  constexpr std::array kEjes{Eje{{1, 0, 0}, qRgb(255, 110, 100), "X"}, Eje{{0, 1, 0}, qRgb(120, 220, 110), "Y"},
                             Eje{{0, 0, 1}, qRgb(120, 170, 255), "Z"}};
  const Base3 base = BaseVista(direccion);
  const QPointF origen(kOrigen, lienzo.height() - kOrigen);
  pintor.save();
  PintaPlaca(pintor, QRectF(origen, QSizeF()).adjusted(-kOrigen, -kOrigen, kOrigen, kOrigen));
  for (const auto& [hacia, color, letra] : kEjes) {
    const QPointF plano = AlPlano(base, hacia), vector(plano.x(), -plano.y());
    pintor.setPen(QPen(QColor(color), 1.6, Qt::SolidLine, Qt::RoundCap));
    pintor.drawLine(origen, origen + kLargo * vector);
    const QPointF sitio = origen + (kLargo + 8) * vector;
    if (std::hypot(plano.x(), plano.y()) < 0.2) continue;  // towards the viewer
    pintor.drawText(QRectF(sitio.x() - 10, sitio.y() - 10, 20, 20), Qt::AlignCenter, letra);
  }
  pintor.restore();
}

void PintaLeyenda(QPainter& pintor) {
  constexpr double kMargen = 12, kRenglon = 18;
  pintor.save();
  const std::array renglones{std::pair{QString::fromStdString(Texto(texto::kBoca)), kBoca},
                             std::pair{QString::fromStdString(Texto(texto::kBase)), kBase}};
  double ancho = 0;
  for (const auto& [texto, color] : renglones) {
    ancho = std::max(ancho, QFontMetricsF(pintor.font()).horizontalAdvance(texto));
  }
  PintaPlaca(pintor, {kMargen / 2, kMargen / 2, ancho + kMargen, 2 * kRenglon + kMargen / 2});
  double y = kMargen / 2 + kRenglon - 2;
  for (const auto& [texto, color] : renglones) {
    pintor.setPen(QColor(color));
    pintor.drawText(QPointF(kMargen, y), texto);
    y += kRenglon;
  }
  pintor.restore();
}

Punto3 Girada(Punto3 direccion, QPointF arrastre) {
  constexpr double kTope = 89.9;  // short of the poles, where up has no direction
  constexpr double kGradosPorPunto = 0.4;
  const auto [x, y, z] = direccion;
  const double plano = std::hypot(x, y);
  const double giro = plano > 0 ? Grados(std::atan2(y, x)) : (z > 0 ? -90 : 90);
  const double altura = Grados(std::atan2(z, plano)) + kGradosPorPunto * arrastre.y();
  const double g = Radianes(giro - kGradosPorPunto * arrastre.x()), a = Radianes(std::clamp(altura, -kTope, kTope));
  return {std::cos(a) * std::cos(g), std::cos(a) * std::sin(g), std::sin(a)};
}

}  // namespace duktores
