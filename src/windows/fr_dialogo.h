#pragma once
// The window of any dialog: a picture of the piece, a row for each field, the choice of pieces, the solid of what is
// typed so far, what a piece is made of by the settings, the error label and two buttons. What the fields are and take
// is the dialog object's.

#include <QDialog>
#include <QLabel>
#include <vector>

#include "shell/lista.h"
#include "windows/proporcion.h"
#include "windows/textos_vivos.h"

namespace duktores {

class Imagen;
class SolidoVivo;

class FrDialogo : public QDialog {
  Q_OBJECT
 public:
  FrDialogo(const FilaPieza& fila, QWidget* padre);

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
  void Activa();
  void CmdAceptar();
  void MuestraError(int campo, const QString& texto);
  void OlvidaError(int campo);

  Dialogo dialogo_;
  int columnas_;
  Proporcion proporcion_;
  std::vector<QWidget*> controles_;  // of the fields, in their order
  SolidoVivo* vivo_ = nullptr;
  QLabel* lblerror_ = nullptr;
  TextosVivos textos_;
  int campoError_ = 0;  // the field that it names
};

}  // namespace duktores
