#include "windows/renglon_ajuste.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFileDialog>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QStyle>
#include <QToolButton>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>

#include "piece/numeros_texto.h"
#include "state/caracteres.h"
#include "state/numeros.h"
#include "state/textos.h"

namespace duktores {

namespace {

constexpr int kAnchoNumero = 120;
constexpr int kLargoMaximo = 127;  // what a configuration holds of a text

QString Q(std::string_view texto) { return QString::fromUtf8(texto.data(), static_cast<qsizetype>(texto.size())); }

QString TextoQ(int n) { return Q(Texto(n)); }

std::string ConPunto(std::string texto) {
  std::ranges::replace(texto, ',', '.');
  return std::string(Recorta(texto));
}

/// The wheel scrolls the page and changes nothing.
class ListaQuieta : public QComboBox {
 public:
  using QComboBox::QComboBox;

 protected:
  void wheelEvent(QWheelEvent* suceso) override { suceso->ignore(); }
};

bool EsIdioma(const std::string& valor) {
  return std::ranges::find(Idiomas(), Mayusculas(Recorta(valor))) != Idiomas().end();
}

/// What counts, if it makes sense: then it needn't be written.
std::optional<std::string> Cuenta(const FilaAjuste& fila, const ClaveLeida& clave) {
  const std::string valor = clave.escrito.value_or(clave.limites ? ConPunto(clave.vale) : clave.vale);
  bool sirve = true;
  if (clave.limites) sirve = TieneSentido(*clave.limites, valor);
  if (fila.clase == ClaseAjuste::idioma) sirve = EsIdioma(valor);
  if (fila.clase == ClaseAjuste::nombre) sirve = valor == clave.vale;
  return sirve ? std::optional(valor) : std::nullopt;
}

}  // namespace

RenglonAjuste::RenglonAjuste(const FilaAjuste& fila, const ClaveLeida& clave, bool propone, QWidget& padre)
    : fila_(&fila), clave_(clave), cuenta_(Cuenta(fila, clave)) {
  if (fila.limites) clave_.limites = fila.limites;
  const bool propuesto = !cuenta_ || (propone && !fila.propuesta.empty());
  const std::string mostrado = clave.escrito.value_or(propuesto ? std::string(fila.propuesta) : *cuenta_);
  switch (fila.clase) {
    case ClaseAjuste::idioma:
    case ClaseAjuste::lista:
      HazLista(mostrado, padre);
      break;
    case ClaseAjuste::siNo:
      control_ = marca_ = new QCheckBox(&padre);
      marca_->setChecked(Encendido(mostrado));
      break;
    case ClaseAjuste::numero:
    case ClaseAjuste::nombre:
    case ClaseAjuste::carpeta:
      HazTexto(mostrado, padre);
  }
  Foco()->setObjectName(Q(fila.clave));
  Foco()->setAccessibleName(Rotulo());
}

QWidget* RenglonAjuste::Foco() const { return texto_ != nullptr ? texto_ : control_; }

void RenglonAjuste::HazLista(const std::string& mostrado, QWidget& padre) {
  control_ = lista_ = new ListaQuieta(&padre);
  if (fila_->clase == ClaseAjuste::idioma) {
    double base = 0;
    for (const std::string_view idioma : Idiomas()) {
      lista_->addItem(Q(TextoIdioma(base + texto::kNombreIdioma)), Q(idioma));
      base += kPasoIdioma;
    }
    lista_->setCurrentIndex(lista_->findData(Q(Mayusculas(Recorta(mostrado)))));
    return;
  }
  int valor = fila_->primera;
  for (const int opcion : fila_->opciones) lista_->addItem(TextoQ(opcion), QString::number(valor++));
  lista_->setCurrentIndex(lista_->findData(Q(TextoDeNumero(NumeroEntero(mostrado).value_or(NAN)))));
}

void RenglonAjuste::HazTexto(const std::string& mostrado, QWidget& padre) {
  control_ = texto_ = new QLineEdit(Q(mostrado), &padre);
  texto_->setMaxLength(kLargoMaximo);
  if (fila_->clase == ClaseAjuste::numero) texto_->setMaximumWidth(kAnchoNumero);
  if (fila_->clase != ClaseAjuste::carpeta) return;
  control_ = new QWidget(&padre);
  auto* fila = new QHBoxLayout(control_);
  fila->setContentsMargins(0, 0, 0, 0);
  auto* busca = new QToolButton(control_);
  busca->setIcon(control_->style()->standardIcon(QStyle::SP_DirOpenIcon));
  busca->setToolTip(Rotulo());
  fila->addWidget(texto_);
  fila->addWidget(busca);
  QObject::connect(busca, &QToolButton::clicked, texto_, [campo = texto_, rotulo = Rotulo()] {
    const QString elegida = QFileDialog::getExistingDirectory(campo->window(), rotulo, campo->text());
    if (!elegida.isEmpty()) campo->setText(elegida);
  });
}

bool RenglonAjuste::Encendido(const std::string& valor) const {
  const double v = NumeroEntero(valor).value_or(0);
  return clave_.limites && clave_.limites->maximo == 1 ? v == 1 : v != 0;
}

std::string RenglonAjuste::Valor() const {
  if (lista_ != nullptr) return lista_->currentData().toString().toStdString();
  if (marca_ != nullptr) return marca_->isChecked() ? "1" : "0";
  const std::string texto = texto_->text().toStdString();
  return fila_->clase == ClaseAjuste::numero ? ConPunto(texto) : texto;
}

bool RenglonAjuste::Cambiado() const {
  const std::string valor = Valor();
  if (!cuenta_) return true;
  if (marca_ != nullptr) return marca_->isChecked() != Encendido(*cuenta_);
  if (fila_->clase == ClaseAjuste::idioma) return valor != Mayusculas(Recorta(*cuenta_));
  return clave_.limites ? NumeroEntero(valor) != NumeroEntero(*cuenta_) : valor != *cuenta_;
}

bool RenglonAjuste::Sirve() const {
  const std::string valor = Valor();
  if (lista_ != nullptr) return !valor.empty();
  if (fila_->clase == ClaseAjuste::carpeta) return valor.empty() || QFileInfo(Q(valor)).isDir();
  if (fila_->clase == ClaseAjuste::nombre) return EsCapa(valor);
  return !clave_.limites || TieneSentido(*clave_.limites, valor);
}

QString RenglonAjuste::Rotulo() const {
  QString rotulo = TextoQ(fila_->rotulo);
  if (rotulo.endsWith(':')) rotulo.chop(1);
  return rotulo.trimmed();
}

QString RenglonAjuste::Regla() const {
  if (lista_ != nullptr) return TextoQ(texto::kDeLaLista);
  if (fila_->clase == ClaseAjuste::carpeta) return TextoQ(texto::kCarpetaQueExiste);
  if (fila_->clase == ClaseAjuste::nombre) return TextoQ(texto::kReglaCapa);
  if (marca_ != nullptr || !clave_.limites) return {};
  const auto [minimo, maximo, paso] = *clave_.limites;
  const QString desde = Q(TextoDeNumero(minimo)), hasta = Q(TextoDeNumero(maximo));
  if (maximo == kSinTope) return TextoQ(texto::kNumeroDesde).arg(desde);
  if (paso > 1) return TextoQ(texto::kMultiplo).arg(desde, hasta, Q(TextoDeNumero(paso)));
  return TextoQ(paso == 1 ? texto::kEnteroEntre : texto::kNumeroEntre).arg(desde, hasta);
}

}  // namespace duktores
