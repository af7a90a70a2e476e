#include "imagenes_lamina.h"

#include <cmath>

#include "imagenes_vista.h"

namespace duktores {
namespace {

const Vista kFrente{{1, 0, 0}, {0, 0, 1}, {250, 264}};
const Vista kPlanta{{1, 0, 0}, {0, 1, 0}, {250, 480}};
const Vista kLado{{0, -1, 0}, {0, 0, 1}, {662, 264}};
const QPointF kOrigenChapa{648, 560};
constexpr double kEscalaChapa = 0.78;

const Vista& VistaDe(Lugar lugar) {
  switch (lugar) {
    case Lugar::frente:
      return kFrente;
    case Lugar::planta:
      return kPlanta;
    default:
      return kLado;
  }
}

// The piece as a view shows it. A cut keeps the plan whole, where its letters hold, and shows in each elevation the
// angle that one reads there.
Pieza PiezaEn(const Pieza& pieza, Lugar lugar) {
  if (pieza.inclinacion == Inclinacion::giro) return pieza;
  return pieza.Inclinada(lugar == Lugar::frente ? pieza.alfa : 0, lugar == Lugar::lado ? pieza.beta : 0);
}

Papel::Medida MedidaDe(const CotaPieza& cota, const Vista& vista, QPointF a, QPointF b) {
  const bool eje = cota.lugar == Lugar::planta && cota.de == Ancla::centro;
  Papel::Medida medida{a, b, a, b, eje ? Trazo::eje : Trazo::cota};
  if (cota.tipo == TipoCota::horizontal) {
    medida.a2.setY(vista.origen.y() - cota.sitio);
    medida.b2.setY(medida.a2.y());
  } else if (cota.tipo == TipoCota::vertical) {
    medida.a2.setX(vista.origen.x() + cota.sitio);
    medida.b2.setX(medida.a2.x());
  } else {
    const QPointF d = b - a;
    const QPointF aparte = cota.sitio / std::hypot(d.x(), d.y()) * QPointF(d.y(), -d.x());
    medida.a2 += aparte;
    medida.b2 += aparte;
  }
  return medida;
}

void DibujaCotaPieza(Papel& papel, const Pieza& pieza, const CotaPieza& cota) {
  const Vista& vista = VistaDe(cota.lugar);
  const QPointF de = vista.AlPapel(PuntoDe(pieza, cota.nivelDe, cota.de));
  const QPointF a = vista.AlPapel(PuntoDe(pieza, cota.nivelA, cota.a));
  const QString letra = QString::fromUtf8(cota.letra.data(), static_cast<qsizetype>(cota.letra.size()));
  switch (cota.tipo) {
    case TipoCota::radio:
      return papel.CotaRadio(de, RadioDe(pieza, cota.nivelDe, cota.de), cota.sitio, cota.largo, letra);
    case TipoCota::angulo:
      return papel.CotaAngulo(de, cota.sitio, cota.lugar == Lugar::lado ? pieza.beta : pieza.alfa, letra);
    default:
      return papel.Cota(MedidaDe(cota, vista, de, a), letra);
  }
}

void DibujaVistas(Papel& papel, const Pieza& pieza) {
  for (const Lugar lugar : {Lugar::frente, Lugar::lado, Lugar::planta}) {
    const Anillo anillo = AnilloDe(PiezaEn(pieza, lugar));
    DibujaLineas(papel, anillo, VistaDe(lugar));
    if (pieza.inclinacion == Inclinacion::corte && lugar != Lugar::planta) {
      DibujaFantasma(papel, AnilloDe(pieza.Inclinada(0, 0)), anillo, VistaDe(lugar));
    }
  }
}

}  // namespace

void Dibuja(Papel& papel, const Lamina& lamina) {
  const Pieza& pieza = lamina.pieza;
  // The legs of an angle lie below the edges that they prolong.
  for (const bool angulos : {true, false}) {
    for (const CotaPieza& cota : lamina.cotas) {
      if ((cota.tipo == TipoCota::angulo) == angulos) DibujaCotaPieza(papel, pieza, cota);
    }
    if (angulos) DibujaVistas(papel, pieza);
  }
  DibujaChapa(papel, AnilloDe(pieza), VistaCaballera(kOrigenChapa, kEscalaChapa));
}

void Dibuja(Papel& papel, const Portada& portada) {
  for (const Figura& figura : portada.figuras) {
    DibujaChapa(papel, AnilloDe(*figura.pieza), VistaCaballera(figura.origen, figura.escala));
  }
}

}  // namespace duktores
