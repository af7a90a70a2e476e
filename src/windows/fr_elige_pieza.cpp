#include "windows/fr_elige_pieza.h"

#include <QDialog>
#include <QHeaderView>
#include <QPushButton>
#include <QTreeWidget>
#include <algorithm>

#include "piece/numeros_texto.h"
#include "shell/lista.h"
#include "state/textos.h"
#include "windows/fr_chapas.h"
#include "windows/proporcion.h"
#include "windows/teclas.h"

namespace duktores {

namespace {

constexpr QSize kDiseno{720, 440};
constexpr int kMaximoColumna = 260, kHueco = 12;
enum Columna { nombre, pieza, valores };

QString Q(const std::string& texto) { return QString::fromStdString(texto); }

class FrEligePieza : public QDialog {
 public:
  FrEligePieza(QWidget& sobre, std::span<const Trabajo> trabajos)
      : QDialog(&sobre), proporcion_(*this, kDiseno), lista_(new QTreeWidget(this)) {
    setObjectName("FrEligePieza");
    setWindowTitle(Q(Texto(texto::kEligePieza)));
    lista_->setObjectName("LstPiezas");
    lista_->setRootIsDecorated(false);
    lista_->setHeaderHidden(true);
    lista_->setColumnCount(valores + 1);
    lista_->setUniformRowHeights(true);
    for (const Trabajo& trabajo : trabajos) Anade(trabajo);
    lista_->header()->setStretchLastSection(true);
    for (const Columna columna : {nombre, pieza}) {
      lista_->resizeColumnToContents(columna);
      lista_->setColumnWidth(columna, std::min(lista_->columnWidth(columna) + kHueco, kMaximoColumna));
    }
    proporcion_.Coloca(*lista_, {12, 12, kDiseno.width() - 24, kDiseno.height() - 70});
    connect(lista_, &QTreeWidget::itemActivated, this, &QDialog::accept);
    Boton(texto::kAceptar, "CmdAceptar", 2)->setDefault(true);
    connect(findChild<QPushButton*>("CmdAceptar"), &QPushButton::clicked, this, &QDialog::accept);
    connect(Boton(texto::kCancelar, "CmdCancelar", 1), &QPushButton::clicked, this, &QDialog::reject);
    QPushButton* chapas = Boton(texto::kChapas, "CmdChapas", kALaIzquierda);
    chapas->setAutoDefault(false);
    connect(chapas, &QPushButton::clicked, this, [this, trabajos] { FrChapas(this, trabajos).exec(); });
    PonAyuda(*this);
  }

  /// -1 if none is.
  int Elegida() const {
    QTreeWidgetItem* renglon = lista_->currentItem();
    return renglon && !renglon->isDisabled() ? lista_->indexOfTopLevelItem(renglon) : -1;
  }

 protected:
  void resizeEvent(QResizeEvent*) override { proporcion_.Escala(size()); }

 private:
  void Anade(const Trabajo& trabajo) {
    const FilaPieza* fila = FilaDeClave(trabajo.pieza);
    auto* renglon = new QTreeWidgetItem(lista_);
    renglon->setText(nombre, Q(trabajo.nombre));
    renglon->setText(pieza, Q(fila ? Texto(fila->dialogo.textoTitulo) : EnUnaLinea(trabajo.pieza)));
    std::string textos;
    if (trabajo.cantidad != 1) textos += "quantity " + std::to_string(trabajo.cantidad) + "   ";
    if (trabajo.espesor) textos += "thickness " + TextoTecleado(*trabajo.espesor) + "   ";
    for (const auto& [clave, texto] : trabajo.valores) textos += clave + " " + texto + "   ";
    if (trabajo.rechazo) textos = trabajo.rechazo->texto;
    if (!fila && !trabajo.rechazo) textos = Texto(texto::kPiezaDesconocida) + " " + trabajo.pieza;
    renglon->setText(valores, Q(EnUnaLinea(textos)));
    renglon->setDisabled(!fila || trabajo.rechazo);
    if (!lista_->currentItem() && !renglon->isDisabled()) lista_->setCurrentItem(renglon);
  }
  /// One of those at the foot, counted from the right.
  static constexpr int kALaIzquierda = 5;
  QPushButton* Boton(int texto, const char* objeto, int sitio) {
    auto* boton = new QPushButton(Q(Texto(texto)), this);
    boton->setObjectName(objeto);
    proporcion_.Coloca(*boton, {kDiseno.width() - sitio * 142, kDiseno.height() - 46, 130, 34});
    return boton;
  }

  Proporcion proporcion_;
  QTreeWidget* lista_;
};

}  // namespace

std::size_t EligePieza(QWidget& sobre, std::span<const Trabajo> trabajos) {
  FrEligePieza ventana(sobre, trabajos);
  const int n = ventana.exec() == QDialog::Accepted ? ventana.Elegida() : -1;
  return n < 0 ? trabajos.size() : static_cast<std::size_t>(n);
}

}  // namespace duktores
