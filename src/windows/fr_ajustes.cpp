#include "windows/fr_ajustes.h"

#include <QApplication>
#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QShortcut>
#include <QTabWidget>
#include <algorithm>
#include <iterator>
#include <string>
#include <vector>

#include "piece/numeros_texto.h"
#include "state/ajustes.h"
#include "state/caracteres.h"
#include "state/estado.h"
#include "state/numeros.h"
#include "state/textos.h"
#include "windows/iconos.h"
#include "windows/idioma_qt.h"
#include "windows/proporcion.h"
#include "windows/teclas.h"
#include "windows/ventanas.h"

namespace duktores {

namespace {

constexpr QSize kTamano{900, 600};
constexpr int kAltoFila = 30;

QString Q(const std::string& texto) { return QString::fromStdString(texto); }

/// "of the sheet, in the chosen unit (a number from 0 to 100)"; where one can only choose there are no limits.
QString Significado(const RenglonAjuste& renglon) {
  const QString significado = Q(Texto(renglon.Fila().significado));
  return qobject_cast<QLineEdit*>(renglon.Foco()) ? significado + " (" + renglon.Regla() + ")" : significado;
}

}  // namespace

FrAjustes::FrAjustes(QWidget* padre)
    : QDialog(padre), lectura_(ReleeConfiguracion(false)), paginas_(new QTabWidget), lblerror_(EtiquetaError()) {
  setObjectName("FrAjustes");
  setWindowTitle(Q(Texto(texto::kAjustes)));
  for (const int pagina : {texto::kPiezasYDibujos, texto::kMaquina}) {
    if (QWidget* hoja = Pagina(pagina)) paginas_->addTab(hoja, Q(Texto(pagina)));
  }
  paginas_->setTabBarAutoHide(true);
  for (const auto* campo : paginas_->findChildren<QLineEdit*>()) {
    connect(campo, &QLineEdit::textChanged, lblerror_, &QLabel::hide);
  }
  for (const auto* lista : paginas_->findChildren<QComboBox*>()) {
    connect(lista, &QComboBox::currentIndexChanged, lblerror_, &QLabel::hide);
  }
  auto* columna = new QVBoxLayout(this);
  columna->addWidget(paginas_);
  columna->addWidget(lblerror_);
  columna->addWidget(Pie());
  resize(kTamano.boundedTo(SitioLibre(*this)));
  PonAyuda(*this);
  renglones_.front().Foco()->setFocus();
}

/// Null if the configuration knows no key of it.
QWidget* FrAjustes::Pagina(int pagina) {
  auto* hoja = new QWidget;
  auto* rejilla = new QGridLayout(hoja);
  int fila = 0;
  const auto escrita = [](const ClaveLeida& leida) { return leida.escrito.has_value(); };
  const bool propone = std::ranges::none_of(lectura_.claves, escrita);
  for (const FilaAjuste& def : FilasAjuste()) {
    const auto clave = std::ranges::find_if(lectura_.claves, [&](const ClaveLeida& leida) {
      return leida.seccion == def.seccion && leida.clave == def.clave;
    });
    if (def.pagina != pagina || clave == lectura_.claves.end()) continue;
    const RenglonAjuste& renglon = renglones_.emplace_back(def, *clave, propone, *hoja);
    auto* rotulo = new QLabel(renglon.Rotulo());
    rotulo->setBuddy(renglon.Foco());
    auto* significado = new QLabel(Significado(renglon));
    significado->setWordWrap(true);
    rejilla->setRowMinimumHeight(fila, kAltoFila);
    rejilla->addWidget(rotulo, fila, 0);
    rejilla->addWidget(renglon.Control(), fila, 1);
    rejilla->addWidget(significado, fila++, 2);
  }
  rejilla->setColumnStretch(1, 2);
  rejilla->setColumnStretch(2, 3);
  rejilla->setRowStretch(fila, 1);
  auto* rollo = new QScrollArea;
  rollo->setWidgetResizable(true);
  rollo->setFrameShape(QFrame::NoFrame);
  rollo->setWidget(hoja);
  if (fila > 0) return rollo;
  delete rollo;
  return nullptr;
}

QWidget* FrAjustes::Pie() {
  auto* pie = new QWidget(this);  // the default button has to know its window
  auto* fila = new QHBoxLayout(pie);
  fila->setContentsMargins(0, 0, 0, 0);
  auto* LblFichero = new QLabel(Q(Texto(texto::kSeGuardan) + " " + RutaAjustes()));
  LblFichero->setObjectName("LblFichero");
  LblFichero->setTextFormat(Qt::PlainText);
  LblFichero->setWordWrap(true);
  LblFichero->setToolTip(Q(RutaAjustes()));
  auto* aceptar = new QPushButton(Q(Texto(texto::kAceptar)));
  auto* cancelar = new QPushButton(Q(Texto(texto::kCancelar)));
  PonBoton(*aceptar, "CmdAceptar", {});
  PonBoton(*cancelar, "CmdCancelar", {});
  connect(aceptar, &QPushButton::clicked, this, &FrAjustes::accept);
  connect(cancelar, &QPushButton::clicked, this, &FrAjustes::reject);
  fila->addWidget(LblFichero, 1);
  fila->addWidget(aceptar);
  fila->addWidget(cancelar);
  aceptar->setDefault(true);
  return pie;
}

void FrAjustes::Rechaza(const QString& porque) {
  lblerror_->setText(porque);
  lblerror_->show();
}

void FrAjustes::Enfoca(QWidget& control) {
  for (int i = 0; i < paginas_->count(); ++i) {
    auto* rollo = static_cast<QScrollArea*>(paginas_->widget(i));
    if (!rollo->isAncestorOf(&control)) continue;
    paginas_->setCurrentIndex(i);
    layout()->activate();  // the error's line takes its place first
    rollo->ensureWidgetVisible(&control);
  }
  control.setFocus(Qt::OtherFocusReason);
}

/// Two layers of one name would be one to the machine.
bool FrAjustes::Repetido(const RenglonAjuste& renglon) const {
  const auto igual = [&](const RenglonAjuste& otro) {
    return otro.Fila().clase == ClaseAjuste::nombre && Mayusculas(otro.Valor()) == Mayusculas(renglon.Valor());
  };
  return renglon.Fila().clase == ClaseAjuste::nombre && std::ranges::count_if(renglones_, igual) > 1;
}

void FrAjustes::accept() {
  std::vector<std::string> valores;
  std::vector<EntradaIni> cambios;
  valores.reserve(renglones_.size());  // the changes are views of them
  for (const RenglonAjuste& renglon : renglones_) {
    if (!renglon.Cambiado()) continue;
    if (!renglon.Sirve() || Repetido(renglon)) {
      Rechaza(renglon.Rotulo() + ": " + renglon.Regla());
      return Enfoca(*renglon.Foco());
    }
    valores.push_back(renglon.Valor());
    cambios.push_back({renglon.Fila().seccion, renglon.Fila().clave, valores.back()});
  }
  const std::string ruta = RutaAjustes();
  if (const Guardado guardado = GuardaAjustes(cambios); !guardado) return Rechaza(Q(TextoNoGuardado(ruta, guardado)));
  const bool divisiones = std::ranges::count(cambios, "NDivi", &EntradaIni::clave) > 0;
  lectura_ = ReleeConfiguracion(divisiones);
  QDialog::accept();
}

void AbreAjustes(QWidget& padre) {
  FrAjustes ventana(&padre);
  ventana.exec();
  PonIdiomaQt();
  ConfiguracionLeida suceso(AvisosDe(ventana.Lectura()));
  for (QWidget* abierta : QApplication::topLevelWidgets()) QApplication::sendEvent(abierta, &suceso);
}

void ConectaAjustes(QPushButton& boton) {
  const auto abre = [&boton] { AbreAjustes(*boton.window()); };
  boton.setAutoDefault(false);
  boton.setFocusPolicy(Qt::NoFocus);
  QObject::connect(&boton, &QPushButton::clicked, &boton, abre);
  QObject::connect(new QShortcut(Qt::CTRL | Qt::Key_Comma, boton.window()), &QShortcut::activated, &boton, abre);
}

QString ResumenAjustes() {
  constexpr int kNombres[]{texto::kSuperficieInterior, texto::kSuperficieMedia, texto::kSuperficieExterior};
  const bool hay = estado.iFibra >= 1 && estado.iFibra <= static_cast<int>(std::size(kNombres));
  const QString unidad = Q(Texto(estado.iUnidad == 1 ? texto::kMilimetros : texto::kPulgadas));
  return Q(TextoDeNumero(estado.dEspesor)) + " " + unidad + ", " +
         (hay ? Q(Texto(kNombres[estado.iFibra - 1])) : QString("?")) + ", " + unidad;
}

}  // namespace duktores
