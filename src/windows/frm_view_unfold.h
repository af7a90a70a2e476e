#pragma once
// The viewer: first the solid of the accepted piece, on command its flat pattern, and from there the DXF file.

#include <QDialog>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>

#include "shell/corrida.h"
#include "viewer/ewdraw.h"
#include "windows/colocador.h"
#include "windows/lienzo.h"
#include "windows/proporcion.h"

namespace duktores {

class FrmViewUnfold : public QDialog {
  Q_OBJECT
 public:
  /// Draws the solid of the accepted piece.
  explicit FrmViewUnfold(QWidget* padre);
  ~FrmViewUnfold() override;

  /// All ways to close the window come through here; a waiting pick ends first.
  void done(int resultado) override;

 protected:
  void showEvent(QShowEvent* suceso) override;
  void resizeEvent(QResizeEvent* suceso) override;
  void keyPressEvent(QKeyEvent* suceso) override;

 private:
  void Botones();
  QPushButton* Boton(QWidget* padre, std::string_view nombre, int texto, QRect lugar);
  void CmdDesplegado();
  void DespliegaHoja();
  void CmdSave();
  void CmdExacto();
  void MuestraEleccion(bool empieza);
  void MuestraPunto(QPointF punto);
  void MuestraLinea(QPointF punto, double alcance);
  void MuestraArrastre(const QString& solapes);
  void MuestraVeredicto(const Corrida& corrida);

  Proporcion proporcion_;
  Solido solido_;
  Patron hoja_;  // as it stands on the control; empty while the solid shows
  EWdraw EWdraw_;
  Lienzo* lienzo_;
  Colocador* colocador_;
  QGroupBox *FrmView_, *FrmZoom_;
  QPushButton *CmdDesplegado_, *CmdSave_, *CmdExacto_;
  QLabel* LblEstado_;
};

}  // namespace duktores
