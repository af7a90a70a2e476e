#pragma once
// The viewer: first the solid of the accepted piece, on command its flat pattern, and from there the DXF file. It may
// be shown again, with all that it showed; what of `estado` belongs to that comes back with it.

#include <QDialog>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <memory>
#include <vector>

#include "shell/corrida.h"
#include "viewer/ewdraw.h"
#include "windows/colocador.h"
#include "windows/exportador.h"
#include "windows/lienzo.h"
#include "windows/proporcion.h"

namespace duktores {

class cDrawing;
class cDXF;

class FrmViewUnfold : public QDialog {
  Q_OBJECT
 public:
  /// Draws the solid of the accepted piece. The first unfolding puts the shapes at these places and asks for the
  /// others.
  explicit FrmViewUnfold(QWidget* padre, Sitios conocidos = {});
  ~FrmViewUnfold() override;

  /// All ways to close the window come through here; a waiting pick ends first.
  void done(int resultado) override;

  /// Whether shapes are being placed in some viewer: until then it must stay, and no other piece be accepted.
  static bool Colocando() { return corridas_ > 0; }
  /// Takes over rule and places of a viewer of the same values under other settings: its pattern comes as soon as this
  /// one shows. Not with another unit, or title blocks where there were none.
  void Hereda(const FrmViewUnfold& otro);
  /// Whether it was made for this piece, and drawn as `estado` says now.
  bool Muestra(const Pieza& pieza) const;
  /// The places of a complete pattern, in the order in which they are asked for.
  const Sitios& SitiosPatron() const { return sitios_; }
  /// They are in a file now.
  void SitiosGuardados();

  /// What a person has placed since the last save: nothing, part of a pattern that is being placed, a pattern.
  enum class Pendiente { nada, parte, patron };
  Pendiente SinGuardar() const;
  void Descarta() { descartada_ = true; }
  /// False if the user has not saved it.
  bool CmdSave();

 protected:
  void showEvent(QShowEvent* suceso) override;
  void resizeEvent(QResizeEvent* suceso) override;
  void keyPressEvent(QKeyEvent* suceso) override;

 private:
  void Botones();
  void Teclas();
  QPushButton* Boton(QWidget* padre, std::string_view nombre, int texto, QRect lugar);
  void CmdDesplegado();
  void Empieza(Sitios conocidos, Sitios antes);
  void DespliegaHoja();
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
  void AnotaEstado();
  void RecuperaEstado();

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

  const Pieza aceptada_;
  const FormatoHoja formato_;
  const double idioma_;
  Pieza pieza_;  // the same, under the rule that shows; with it what of `estado` is this viewer's
  std::shared_ptr<cDrawing> oDrawing_;
  std::shared_ptr<cDXF> oDXF_;
  Sitios conocidos_, sitios_, guardados_;  // to begin with; of the pattern; those that a file has
  inline static int corridas_ = 0;
  bool pendiente_ = false, descartada_ = false;  // placed by hand and not saved; which the user doesn't mind
  bool bien_ = true;                             // what the verdict's line says
  bool heredada_ = false;                        // a pattern that is to come with the window
};

}  // namespace duktores
