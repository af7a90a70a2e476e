#pragma once
// The fields of the sheets' window: sizes of sheets, distances, turning, time. What was last laid with is remembered
// for each unit.

#include <QWidget>
#include <deque>
#include <optional>
#include <string>

#include "windows/obra_chapas.h"

class QComboBox;
class QGridLayout;
class QLineEdit;

namespace duktores {

class FormaChapas : public QWidget {
 public:
  explicit FormaChapas(QWidget* padre);

  /// What the fields say, which is remembered. None if something won't do: `reparo` says what, and it has the focus.
  std::optional<PedidoChapas> Lee(QString& reparo);

 private:
  struct Campo {
    std::string clave;
    QLineEdit* texto;
    QString rotulo;
    double minimo, maximo;
    bool entero;
  };
  Campo& Anade(const std::string& clave, int rotulo, double minimo, double maximo);
  void AnadeTamanos(QGridLayout& rejilla);
  void AnadeReglas(QGridLayout& rejilla);
  std::optional<double> Numero(const Campo& campo, QString& reparo) const;
  bool LeeTamanos(PedidoChapas& pedido, QString& reparo) const;
  void Recuerda() const;

  std::deque<Campo> campos_;
  QComboBox* CmbGiro_;
};

}  // namespace duktores
