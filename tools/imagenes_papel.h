#pragma once
// A sheet of drawing paper: lines, dimensions and lettering in the one style of all pictures. Coordinates are pixels of
// the bitmap, x to the right, y down. Letters are kept back until the end, so that their white halo clears every line.
//
// The bitmaps are shown at half their size: thin lines that run straight along an axis are laid so that their two
// pixels become one.

#include <QImage>
#include <QPainter>
#include <QPointF>
#include <QPolygonF>
#include <QString>
#include <vector>

namespace duktores {

inline constexpr QSize kLienzo{840, 680};

/// The inks: visible edge, generator, dimension, centre line, part that is cut away.
enum class Trazo { arista, generatriz, cota, eje, fantasma };

/// The tone of sheet metal of a brightness from 0 to 1: dark tones lean towards blue.
QRgb Acero(double claridad);

class Papel {
 public:
  Papel();

  void Linea(Trazo trazo, QPointF a, QPointF b);
  void Rellena(const QPolygonF& contorno, QRgb color);
  /// A line of any tone and width, for the shaded views.
  void Perfil(QPointF a, QPointF b, QRgb color, double ancho);

  /// The dimension line runs from `a2` to `b2`; extension lines come from the points `a` and `b` that are measured. The
  /// letter sits in the middle. In a narrow place the arrows stand outside and the letter below or to the right.
  struct Medida {
    QPointF a, b, a2, b2;
    Trazo extension = Trazo::cota;
  };
  void Cota(const Medida& medida, const QString& letra);
  /// An arrow that touches the arc from the outside (`largo` above 0) or the inside, and the letter at its end.
  /// `angulo` in degrees, counter-clockwise.
  void CotaRadio(QPointF centro, double radio, double angulo, double largo, const QString& letra);
  /// Arc with an arrow at either end from the horizontal to the right down by `angulo` degrees, with both its legs.
  void CotaAngulo(QPointF vertice, double radio, double angulo, const QString& letra);

  /// Writes the letters and saves: 8 bit palette image. False if the file can't be written.
  bool Guarda(const QString& ruta);

 private:
  void Flecha(QPointF punta, QPointF hacia);  // slim arrow head, `hacia` a unit vector
  void Rotulo(const QString& letra, QPointF centro);
  void EscribeRotulos();
  double AnchoRotulo(const QString& letra) const;

  QImage imagen_;
  QPainter pintor_;
  QFont fuente_;
  struct Letrero {
    QString letra;
    QPointF centro;
  };
  std::vector<Letrero> letreros_;
};

}  // namespace duktores
