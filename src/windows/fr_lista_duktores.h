#pragma once
// The catalogue: the list of the pieces, the picture of the selected one, and the way to its dialog. Closing it ends
// the program.

#include <QLabel>
#include <QListWidget>
#include <QWidget>
#include <string>
#include <vector>

#include "shell/catalogo.h"
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
  bool eventFilter(QObject* objeto, QEvent* suceso) override;

 private:
  const FilaCatalogo& Fila() const { return FilasCatalogo()[static_cast<std::size_t>(LstDuktores_->currentRow())]; }
  void AnadeLista();
  void PonAvisos(const std::vector<std::string>& avisos);
  void EligeFila();
  void Activa();
  void CmdContinuar();

  Proporcion proporcion_;
  QListWidget* LstDuktores_;
  QLabel *LblGeneral_, *LblAviso_;
  Imagen* PicDuktores_;
  TextosVivos textos_;
};

}  // namespace duktores
