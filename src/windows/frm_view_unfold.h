#pragma once
// The viewer: first the solid of the accepted piece, on command its flat pattern, and from there the DXF file.

#include <QDialog>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>

#include "shell/corrida.h"
#include "viewer/ewdraw.h"
#include "windows/colocador.h"
#include "windows/exportador.h"
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
  void Teclas();
  QPushButton* Boton(QWidget* padre, std::string_view nombre, int texto, QRect lugar);
  void CmdDesplegado();
  void DespliegaHoja();
  void CmdSave();
  void CmdExacto();
  void CmdSolido();
  void MuestraSolido(bool solido);
  void MarcaVista();
  void MuestraEleccion(bool empieza);
  void MuestraPunto(QPointF punto);
  void MuestraLinea(QPointF punto, double alcance);
  void LimpiaEstado();
  void PonEstado(const QString& linea);
  void PonHecho(const QString& hecho);
  void MuestraArrastre(const QString& solapes);
  void MuestraVeredicto(const Corrida& corrida);

  Proporcion proporcion_;
  Solido solido_;
  Patron hoja_;           // as it stands on its control; empty while there is none
  Veredicto veredicto_;   // on it
  EWdraw EWdraw_, otra_;  // what shows; solid or pattern, whichever doesn't
  Lienzo* lienzo_;
  Colocador* colocador_;
  QGroupBox *FrmView_, *FrmZoom_;
  QPushButton *CmdDesplegado_, *CmdSave_, *CmdExacto_, *CmdSolido_, *cmdAlambre_;
  Exportador* CmdExport_;
  QLabel* LblEstado_;
  QString lineaVeredicto_;
};

}  // namespace duktores
