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

namespace duktores {

class FrListaDuktores : public QWidget {
  Q_OBJECT
 public:
  /// `avisos` says what is wrong with the configuration, a line a key; the foot shows the first and tells all.
  explicit FrListaDuktores(const std::vector<std::string>& avisos = {});

 protected:
  void showEvent(QShowEvent* suceso) override;
  void resizeEvent(QResizeEvent* suceso) override;
  void closeEvent(QCloseEvent* suceso) override;
  void keyPressEvent(QKeyEvent* suceso) override;
  bool eventFilter(QObject* objeto, QEvent* suceso) override;

 private:
  const FilaCatalogo& Fila() const { return FilasCatalogo()[static_cast<std::size_t>(LstDuktores_->currentRow())]; }
  void AnadeLista();
  void AnadeAvisos(const std::vector<std::string>& avisos);
  void EligeFila();
  void Activa();
  void CmdContinuar();

  Proporcion proporcion_;
  QListWidget* LstDuktores_;
  QLabel* LblGeneral_;
  Imagen* PicDuktores_;
};

}  // namespace duktores
