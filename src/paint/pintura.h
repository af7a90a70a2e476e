#pragma once
// Paints the model of a drawing control with QPainter: for the screen and for pictures alike. y points up in the model
// and down on the device; texts stand on their baseline with their height as height of capitals.

#include <QRectF>
#include <QSize>
#include <QString>
#include <string>

class QPainter;

namespace duktores {

class EWdraw;

/// How the model lies on the device: the view direction is the control's, `centro` the point of the viewing plane in the
/// middle of the device, `escala` device units per model unit.
struct Encuadre {
  QPointF centro;
  double escala = 1;
};

/// Light paper (dark ink for colours that would not show) or the dark drawing area of the screen.
enum class Fondo { claro, oscuro };

/// The rectangle of the viewing plane that the model covers, texts with their width included; null if it is empty.
QRectF ExtensionPintada(const EWdraw& axew);
/// Fits the model into `lienzo` with a margin; an empty model gives a sensible default region.
Encuadre Ajusta(const EWdraw& axew, QSizeF lienzo);
void Pinta(QPainter& pintor, const EWdraw& axew, const Encuadre& encuadre, QSizeF lienzo, Fondo fondo);

enum class Formato { png, svg, pdf };
/// A picture of the whole model on light paper. False if the file can't be written; a former file is then still there.
/// Texts need a QGuiApplication.
bool GuardaImagen(const EWdraw& axew, const QString& ruta, Formato formato);

}  // namespace duktores
