#pragma once
// Paints the model of a drawing control with QPainter: for the screen and for pictures alike, as a parallel view along
// the control's direction. Points of the model go to the viewing plane (x to the right, y up, model units) and from
// there to the device (y down). Texts stand on their baseline with their height as height of capitals. Entities with
// coordinates that are no numbers are left out.
//
// Texts need a QGuiApplication; apart from that everything works in any thread.

#include <QLineF>
#include <QPointF>
#include <QRectF>
#include <QSizeF>
#include <optional>
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
  friend bool operator==(const Encuadre&, const Encuadre&) = default;
};

/// Light paper (dark ink for colours that would not show) or the dark drawing area of the screen.
enum class Fondo { claro, oscuro };
/// Fine, or fast for a view that is moving: thin lines without smoothed edges.
enum class Esmero { fino, veloz };

/// The rectangle of the viewing plane that the model covers, texts with their width included; null if it is empty.
QRectF ExtensionPintada(const EWdraw& axew);
/// Fits the model into `lienzo` with a margin; an empty model gives a sensible default region.
Encuadre Ajusta(const EWdraw& axew, QSizeF lienzo);
/// The same of a rectangle of the viewing plane.
Encuadre Ajusta(QRectF zona, QSizeF lienzo);
/// The part of a line inside a rectangle.
std::optional<QLineF> Recorta(const QLineF& linea, const QRectF& caja);
/// A page of a printer has so many device units to an inch as its resolution; a pixel of a picture counts as one of
/// 144.
inline constexpr double kPorPulgada = 144;
/// Fills `lienzo` with the background and paints the model. Device units are those of the painter, whose transformation
/// should be the one it starts with, but for a translation. On paper, lines are a quarter of a millimetre wide,
/// outlines more.
void Pinta(QPainter& pintor, const EWdraw& axew, const Encuadre& encuadre, QSizeF lienzo, Fondo fondo,
           double porPulgada = kPorPulgada, Esmero esmero = Esmero::fino);
/// Paints entities over what is there, seen from above.
void PintaEntidades(QPainter& pintor, std::span<const Entidad> entidades, const Encuadre& encuadre, QSizeF lienzo,
                    Fondo fondo);

enum class Formato { png, svg, pdf };
/// The ending of its files, with the point.
std::string Sufijo(Formato formato);
/// Whether a picture shows the whole model on a page of some size, or on one of its own size a unit of the model is the
/// millimetre or inch that it stands for. PNG pictures are always fitted: they are as large as it takes to read them.
enum class Escala { ajustada, milimetros, pulgadas };
/// A picture of the whole model on light paper, written whole or not at all.
Guardado GuardaImagen(const EWdraw& axew, const std::string& ruta, Formato formato, Escala escala);

}  // namespace duktores
