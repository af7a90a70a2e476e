#pragma once
// The drawing widget: shows a control's model and answers its picks. At any time the wheel zooms about the pointer, the
// middle button pans and, where the model may be turned, the right button orbits; the left button does what the current
// command says. A pick gives the left button to the placing of a shape, which hangs on the pointer meanwhile.

#include <QWidget>
#include <functional>
#include <memory>
#include <optional>

#include "paint/sombreado.h"
#include "viewer/ewdraw.h"

namespace duktores {

class Lienzo : public QWidget, public VistaEWdraw {
  Q_OBJECT
 public:
  /// `axew` must outlive the widget; its view is this one until the widget dies.
  Lienzo(EWdraw& axew, QWidget* padre);
  ~Lienzo() override;

  std::optional<Punto3> EligePunto(EWdraw& axew) override;
  void Regenera(EWdraw& axew) override;
  void Manda(EWdraw& axew, MandoVista mando) override;

  bool Eligiendo() const { return eleccion_ != nullptr; }
  /// Ends a waiting pick without a point.
  void CancelaEleccion();
  /// Ends the command of the left button; false if there was none.
  bool TerminaMando();
  /// Moves what is seen by so many points, or zooms it about a place of the widget.
  void Desplaza(QPointF paso);
  void Amplia(double factor, QPointF sobre);
  /// A flat pattern keeps its view from above.
  void PermiteOrbitar(bool permite);
  /// Shows this solid, shaded, in place of the model's lines, which still say what is in view; null: the lines.
  void PonSolido(const Solido* solido);
  bool Orbitable() const { return orbita_; }
  bool ConMando() const { return mando_.has_value(); }
  /// Where the model is under a place of the widget.
  QPointF Modelo(QPointF raton) const { return encuadre_.DelDispositivo(raton, size()); }
  QPointF Puntero() const { return Modelo(raton_); }
  /// What is painted over the model.
  void PonEncima(std::function<void(QPainter&, const Encuadre&)> pinta) { encima_ = std::move(pinta); }

 signals:
  /// Coordinates of the pointer during a pick, in model units.
  void apunta(QPointF punto);
  /// The pointer passes over the model outside a pick; `alcance` is how near it points, in model units.
  void pasa(QPointF punto, double alcance);
  /// A pick begins or ends.
  void eligiendo(bool empieza);
  /// Whether the model may be turned.
  void orbitable(bool permite);
  /// The command of the left button, null for none.
  void mandoCambiado(std::optional<duktores::MandoVista> mando);
  /// The model has been turned by hand.
  void girado();

 protected:
  void paintEvent(QPaintEvent* suceso) override;
  void resizeEvent(QResizeEvent* suceso) override;
  void wheelEvent(QWheelEvent* suceso) override;
  void mousePressEvent(QMouseEvent* suceso) override;
  void mouseMoveEvent(QMouseEvent* suceso) override;
  void mouseReleaseEvent(QMouseEvent* suceso) override;

 private:
  struct Eleccion;  // a waiting pick; outlives the widget if need be

  void Encuadra(QRectF plano);
  void EncuadraEleccion();
  void EmpiezaOrbita();
  void Orbita(QPointF paso);
  void PonMando(std::optional<MandoVista> mando);
  void PonPuntero();
  void Reencuadrado();
  void PintaCuadro(Esmero esmero);
  void PintaFantasma(QPainter& pintor) const;

  EWdraw& axew_;
  Encuadre encuadre_;
  std::optional<MandoVista> mando_;     // of the left button
  std::optional<MandoVista> arrastre_;  // what the pressed button does
  bool lento_ = false;                  // the last fine painting was
  QPointF inicio_, raton_;
  bool orbita_ = true;
  const Solido* solido_ = nullptr;
  // Where turning by hand began, a turn back leads there; and where it stands.
  struct {
    Encuadre encuadre;
    Punto3 eje;
    bool entero = false;
    Encuadre ahora;
    Punto3 direccion;
  } orbitado_;
  std::shared_ptr<Eleccion> eleccion_;
  std::function<void(QPainter&, const Encuadre&)> encima_;
};

}  // namespace duktores
