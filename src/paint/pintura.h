#pragma once
// Paints the model of a drawing control with QPainter: for the screen and for pictures alike, as a parallel view along
// the control's direction. Points of the model go to the viewing plane (x to the right, y up, model units) and from
// there to the device (y down). Texts stand on their baseline with their height as height of capitals. Entities with
// coordinates that are no numbers are left out.
//
// Texts need a QGuiApplication; apart from that everything works in any thread.

#include <QPointF>
#include <QRectF>
#include <QSizeF>
#include <span>
#include <string>

#include "geometry/puntos.h"
#include "state/guardado.h"

class QPainter;

namespace duktores {

class EWdraw;
struct Entidad;

/// The axes of the viewing plane as unit vectors of the model.
struct Base3 {
  Punto3 derecha, arriba;
};
/// The view from `direccion`: z points up, or y if one looks along z.
Base3 BaseVista(Punto3 direccion);
inline QPointF AlPlano(const Base3& base, Punto3 p) { return {Escalar(p, base.derecha), Escalar(p, base.arriba)}; }

/// How the model lies on the device: the view direction is the control's, `centro` the point of the viewing plane in
/// the middle of the device, `escala` device units per model unit.
struct Encuadre {
  QPointF centro;
  double escala = 1;

  QPointF AlDispositivo(QPointF plano, QSizeF lienzo) const;
  QPointF DelDispositivo(QPointF punto, QSizeF lienzo) const;
};

/// Light paper (dark ink for colours that would not show) or the dark drawing area of the screen.
enum class Fondo { claro, oscuro };

/// The rectangle of the viewing plane that the model covers, texts with their width included; null if it is empty.
QRectF ExtensionPintada(const EWdraw& axew);
/// Fits the model into `lienzo` with a margin; an empty model gives a sensible default region.
Encuadre Ajusta(const EWdraw& axew, QSizeF lienzo);
/// Fills `lienzo` with the background and paints the model. Device units are those of the painter, whose transformation
/// should be the one it starts with.
void Pinta(QPainter& pintor, const EWdraw& axew, const Encuadre& encuadre, QSizeF lienzo, Fondo fondo);
/// Paints entities over what is there, seen from above.
void PintaEntidades(QPainter& pintor, std::span<const Entidad> entidades, const Encuadre& encuadre, QSizeF lienzo,
                    Fondo fondo);

enum class Formato { png, svg, pdf };
/// A picture of the whole model on light paper, written whole or not at all.
Guardado GuardaImagen(const EWdraw& axew, const std::string& ruta, Formato formato);

}  // namespace duktores
