#pragma once
// The window of any dialog: a picture of the piece, a row for each field, the choice of pieces, the solid of what is
// typed so far, what a piece is made of by the settings, the error label and two buttons; below them what spares
// typing: the last values, zeros, pieces from files. What the fields are and take is the dialog object's. It keeps them
// while it is hidden, and so does the viewer with its pattern.

#include <QDialog>
#include <QLabel>
#include <QPushButton>
#include <memory>
#include <vector>

#include "jobs/lista.h"
#include "shell/lista.h"
#include "windows/frm_view_unfold.h"
#include "windows/proporcion.h"
#include "windows/textos_vivos.h"

namespace duktores {

class SolidoVivo;
struct PiezaAbierta;

class FrDialogo : public QDialog {
  Q_OBJECT
 public:
  FrDialogo(const FilaPieza& fila, QWidget* padre);

  /// Takes over the values of a piece of its type.
  void Pon(const PiezaAbierta& abierta);
  /// What is typed, with the places of the shapes where they are known. Its name is that of the file's piece.
  Trabajo Pieza() const;
  void CmdGuardaPieza();

 signals:
  /// A piece of another type has been opened; the dialog is closing.
  void otraPieza(const duktores::PiezaAbierta& abierta);

 protected:
  void showEvent(QShowEvent* suceso) override;
  void resizeEvent(QResizeEvent* suceso) override;
  void customEvent(QEvent* suceso) override;

 private:
  void Campos();
  QWidget* ControlDe(int campo);
  void Vivo();
  void Ajustes(int y);
  void Pie(int y);
  void Barra(int y);
  void Pon(const Dialogo& lleno);
  void CmdAbre(const QString& ruta);
  bool MuestraVisor(const Trabajo& trabajo) const;
  void Activa();
  void CmdAceptar();
  void SueltaVisor();
  void MuestraError(int campo, const QString& texto);
  void OlvidaError(int campo);

  Dialogo dialogo_;
  int columnas_;
  Proporcion proporcion_;
  std::vector<QWidget*> controles_;  // of the fields, in their order
  SolidoVivo* vivo_ = nullptr;
  QLabel* lblerror_ = nullptr;
  QPushButton* CmdUltimos_ = nullptr;
  TextosVivos textos_;
  int campoError_ = 0;  // the field that it names
  std::unique_ptr<FrmViewUnfold> visor_;
  decltype(Trabajo::valores) aceptados_;  // which the viewer shows
  Trabajo abierta_;                       // of a file: its places hold for its values
  bool recienAbierta_ = false;            // and not shown yet
};

}  // namespace duktores
