#pragma once
// The catalogue: the list of the pieces, the picture of the selected one, and the way to its dialog, which is made once
// and kept. A file of pieces opens by its button or dropped on it. Closing it ends the program.

#include <QLabel>
#include <QListWidget>
#include <QWidget>
#include <array>
#include <memory>
#include <string>
#include <vector>

#include "shell/catalogo.h"
#include "windows/fr_dialogo.h"
#include "windows/imagen.h"
#include "windows/proporcion.h"
#include "windows/textos_vivos.h"

namespace duktores {

class FrListaDuktores : public QWidget {
  Q_OBJECT
 public:
  /// `avisos` says what is wrong with the configuration, a line a key; the foot shows the first and tells all; a click
  /// there opens the settings.
  explicit FrListaDuktores(const std::vector<std::string>& avisos = {});

 protected:
  void showEvent(QShowEvent* suceso) override;
  void resizeEvent(QResizeEvent* suceso) override;
  void closeEvent(QCloseEvent* suceso) override;
  void customEvent(QEvent* suceso) override;
  void keyPressEvent(QKeyEvent* suceso) override;
  void dragEnterEvent(QDragEnterEvent* suceso) override;
  void dropEvent(QDropEvent* suceso) override;
  bool eventFilter(QObject* objeto, QEvent* suceso) override;

 private:
  const FilaCatalogo& Fila() const { return FilasCatalogo()[static_cast<std::size_t>(LstDuktores_->currentRow())]; }
  void AnadeLista();
  void PonAvisos(const std::vector<std::string>& avisos);
  void EligeFila();
  void Activa();
  void CmdContinuar();
  void AnadeFicheros();
  void CmdAbre(const QString& ruta);
  FrDialogo& DialogoDe(TipoPieza tipo);
  FrDialogo& Prepara(const PiezaAbierta& abierta);
  void Muestra(FrDialogo& primero);

  Proporcion proporcion_;
  QListWidget* LstDuktores_;
  QLabel *LblGeneral_, *LblAviso_;
  Imagen* PicDuktores_;
  QPushButton* CmdGuardaPieza_;
  std::array<FrDialogo*, kTiposPieza> dialogos_{};  // by type; null until it is opened
  FrDialogo* siguiente_ = nullptr;                  // to be shown behind the present one
  TextosVivos textos_;
};

}  // namespace duktores
