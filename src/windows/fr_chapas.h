#pragma once
// The sheets of a list: lays the parts of its pieces on sheets while one looks on, and writes the sheets.

#include <QDialog>
#include <QElapsedTimer>
#include <memory>
#include <span>

#include "windows/forma_chapas.h"
#include "windows/vista_chapas.h"

class QLabel;
class QListWidget;
class QProgressBar;
class QPushButton;

namespace duktores {

class FrChapas : public QDialog {
  Q_OBJECT
 public:
  /// Begins to lay them as they were last laid.
  FrChapas(QWidget* padre, std::span<const Trabajo> trabajos);

  /// Not while sheets are written.
  void reject() override;

 private:
  QWidget* Panel();
  QWidget* Pie();
  void Distribuye();
  void Para();
  void Exporta();
  void Mira();
  void MiraObra();
  void MiraEscritura();
  void Muestra(const Reparto& reparto);
  void Rechaza(const QString& porque);
  void Habilita();

  std::vector<Trabajo> trabajos_;
  FormaChapas* forma_;
  VistaChapas* vista_;
  QListWidget* LstFaltan_;
  QLabel *lblerror_, *LblEstado_;
  QProgressBar* avance_;
  QPushButton *CmdDistribuye_, *CmdPara_, *CmdExport_;
  QElapsedTimer reloj_;
  double segundos_ = 0;
  bool hay_ = false;  // a layout of the work that goes on
  std::optional<Reparto> reparto_;
  std::unique_ptr<ObraChapas> obra_;
  std::unique_ptr<EscrituraChapas> escritura_;
};

}  // namespace duktores
