#pragma once
// Places the things of a pattern in the drawing widget: what keys, a button and the mouse do to the list of places, and
// what is shown over the model meanwhile: the hanging thing in full, names, overlaps in a colour of warning. While a
// thing hangs on the pointer Enter places it and all that follow, N puts it beside the last; Backspace and Ctrl+Z take
// back, at any time and one thing after the other, Ctrl+Y goes the other way. When all stands the left button drags.

#include <QObject>
#include <QPushButton>
#include <optional>

#include "shell/colocacion.h"
#include "windows/lienzo.h"
#include "windows/rotulo_forma.h"
#include "windows/tecla_sostenida.h"

namespace duktores {

class Colocador : public QObject {
  Q_OBJECT
 public:
  /// Lives and dies with the widget, and works while a flat pattern shows there.
  Colocador(EWdraw& axew, Lienzo& lienzo);

  /// A new pattern: but for the first, at places known before, nothing has a place. An undo brings back all that stood
  /// `antes`.
  void Empieza(HaceDesarrollo hace, Sitios conocidos, Sitios antes = {});
  /// Draws the pattern, asking for places that are missing.
  Corrida Despliega();

  /// The places that have been asked for, and whether all lies where it would by itself.
  Sitios Elegidas() const { return colocacion_ ? colocacion_->Elegidas() : Sitios(); }
  bool Repartida() const { return colocacion_ && colocacion_->Repartida(); }

  /// The overlaps that stand, in words; those of the hanging thing with the pointer at `punto`.
  QString Solapes() const { return solapes_; }
  QString SolapesEn(QPointF punto);
  /// Puts what is dragged back; false if nothing is.
  bool CancelaArrastre();

 signals:
  /// What stood has changed: Despliega is due.
  void redibuja();
  /// What the dragged thing overlaps, in words; empty when it is free or back.
  void arrastra(const QString& solapes);

 protected:
  bool eventFilter(QObject* objeto, QEvent* suceso) override;

 private:
  struct Arrastre {
    std::size_t cosa;
    QPointF desde, hasta;
    Punto2 Paso() const { return {hasta.x() - desde.x(), hasta.y() - desde.y()}; }
  };

  void Panel();
  void Teclas();
  void Cambia(bool (Colocacion::*cambio)());
  bool VariasFormas() const;
  void Recuenta();
  void Muestra();
  QString Palabras(std::size_t cosa, const std::vector<std::size_t>& con) const;
  QString Frase(const QStringList& solapes) const;
  std::optional<std::size_t> CosaEn(QPointF punto) const;
  void Arrastra();
  void Suelta();

  void Pinta(QPainter& pintor, const Encuadre& encuadre) const;
  void PintaNombre(QPainter& pintor, Encuadre encuadre, std::size_t cosa, Punto2 sitio) const;
  void PintaMal(QPainter& pintor, Encuadre encuadre, std::size_t cosa, Punto2 sitio) const;
  void PintaCosa(QPainter& pintor, Encuadre encuadre, std::size_t cosa, Punto2 sitio) const;

  EWdraw& axew_;
  Lienzo& lienzo_;
  std::optional<Colocacion> colocacion_;
  TeclaSostenida* sostenida_;
  QWidget* panel_;
  QPushButton *CmdTodas_, *CmdNombres_;
  std::vector<RotuloForma> nombres_;  // of each thing, relative to its place; without a text for a title block
  std::vector<std::size_t> malas_;    // placed things that overlap others
  QString solapes_;
  std::optional<Arrastre> arrastre_;
  bool malaPuntero_ = false;  // what hangs or is dragged overlaps
};

}  // namespace duktores
