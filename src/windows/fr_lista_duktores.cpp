#include "windows/fr_lista_duktores.h"

#include <QApplication>
#include <QDropEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QPushButton>
#include <QTimer>
#include <algorithm>
#include <utility>

#include "piece/numeros_texto.h"
#include "state/estado.h"
#include "state/textos.h"
#include "windows/boton_abre.h"
#include "windows/ficheros_pieza.h"
#include "windows/fr_ajustes.h"
#include "windows/fr_manual.h"
#include "windows/iconos.h"
#include "windows/teclas.h"
#include "windows/ventanas.h"

namespace duktores {

namespace {

constexpr QSize kDiseno{790, 476};
constexpr int kAltoRenglon = 23;

}  // namespace

FrListaDuktores::FrListaDuktores(const std::vector<std::string>& avisos)
    : proporcion_(*this, kDiseno),
      LstDuktores_(new QListWidget(this)),
      LblGeneral_(new QLabel(this)),
      LblAviso_(new QLabel(this)),
      PicDuktores_(new Imagen(this)),
      CmdGuardaPieza_(new QPushButton(this)) {
  setObjectName("FrListaDuktores");
  LstDuktores_->setObjectName("LstDuktores");
  LblGeneral_->setObjectName("LblGeneral");
  PicDuktores_->setObjectName("PicDuktores");
  LblAviso_->setObjectName("LblAviso");
  LblAviso_->setTextFormat(Qt::PlainText);
  LblAviso_->setWordWrap(true);
  LblAviso_->setCursor(Qt::PointingHandCursor);
  auto* continuar = new QPushButton(this);
  auto* salir = new QPushButton(this);
  auto* ajustes = new QPushButton(this);
  auto* manual = new QPushButton(this);
  textos_.Pon([=, this] {
    const bool chino = estado.dIdioma == kChino;
    continuar->setText(QString::fromStdString(Texto(texto::kContinuar)));
    salir->setText(QString::fromStdString(Texto(texto::kSalir)));
    PonBoton(*continuar, "CmdContinuar", chino ? QString() : continuar->text());
    PonBoton(*salir, "CmdSalir", chino ? QString() : salir->text());
    PonBoton(*ajustes, "CmdAjustes", QString::fromStdString(Texto(texto::kAjustes)) + TextoTeclas("CmdAjustes"));
    PonBotonManual(*manual);
    setWindowTitle(chino ? "duktores" : QString::fromStdString(Texto(texto::kDuktores)));
  });
  ConectaAjustes(*ajustes);
  ConectaManual(*manual);

  QFont negrita = font();
  negrita.setBold(true);
  negrita.setPointSize(13);
  LblGeneral_->setFont(negrita);
  LblGeneral_->setAlignment(Qt::AlignCenter);
  proporcion_.Coloca(*LstDuktores_, {12, 12, 334, 408});
  proporcion_.Coloca(*LblGeneral_, {358, 12, 420, 40});
  proporcion_.Coloca(*PicDuktores_, {358, 66, 420, 340});
  proporcion_.Coloca(*continuar, {508, 430, 130, 34});
  proporcion_.Coloca(*salir, {648, 430, 130, 34});
  proporcion_.Coloca(*ajustes, {12, 430, 44, 34});
  proporcion_.Coloca(*manual, {744, 12, 34, 34});  // no title reaches so far
  proporcion_.Coloca(*LblAviso_, {180, 424, 318, 46});

  AnadeFicheros();
  AnadeLista();
  textos_.Pon([this] {
    for (std::size_t i = 0; i < FilasCatalogo().size(); ++i) {
      LstDuktores_->item(static_cast<int>(i))->setText(QString::fromStdString(TextoFila(FilasCatalogo()[i])));
    }
    EligeFila();
  });
  PonAvisos(avisos);
  LstDuktores_->installEventFilter(this);
  LblAviso_->installEventFilter(this);
  PonAyuda(*this);
  connect(LstDuktores_, &QListWidget::currentRowChanged, this, &FrListaDuktores::EligeFila);
  connect(LstDuktores_, &QListWidget::itemDoubleClicked, this, &FrListaDuktores::CmdContinuar);
  connect(continuar, &QPushButton::clicked, this, &FrListaDuktores::CmdContinuar);
  connect(salir, &QPushButton::clicked, this, &FrListaDuktores::close);
}

void FrListaDuktores::AnadeLista() {
  QFont letra = LstDuktores_->font();
  letra.setPointSize(10);
  LstDuktores_->setFont(letra);
  for (const FilaCatalogo& fila : FilasCatalogo()) {
    auto* renglon = new QListWidgetItem(LstDuktores_);
    QFont propia = letra;
    propia.setBold(fila.clase == ClaseFila::categoria);
    renglon->setFont(propia);
    renglon->setSizeHint({0, kAltoRenglon});
  }
  LstDuktores_->setCurrentRow(0);
}

void FrListaDuktores::PonAvisos(const std::vector<std::string>& avisos) {
  LblAviso_->setVisible(!avisos.empty());
  if (avisos.empty()) return;
  const QString mas = avisos.size() > 1 ? QString(" (1/%1)").arg(avisos.size()) : QString();
  LblAviso_->setText(QString::fromStdString(avisos.front()) + mas);
  QStringList todos;
  for (const std::string& aviso : avisos) todos += QString::fromStdString(aviso).toHtmlEscaped();
  LblAviso_->setToolTip("<p>" + todos.join("</p><p>") + "</p>");
}

void FrListaDuktores::EligeFila() {
  const FilaCatalogo& fila = Fila();
  PicDuktores_->Carga(fila.imagen);
  LblGeneral_->setText(QString::fromStdString(RotuloFila(fila)));
  LblGeneral_->setVisible(!RotuloFila(fila).empty());
  CmdGuardaPieza_->setEnabled(fila.pieza && dialogos_.at(static_cast<std::size_t>(*fila.pieza)));
}

void FrListaDuktores::Activa() {
  LstDuktores_->setFocus();
  EligeFila();
}

void FrListaDuktores::CmdContinuar() {
  estado.sTipoPieza = TextoFila(Fila());
  if (!Fila().pieza) return;
  Muestra(DialogoDe(*Fila().pieza));
}

FrDialogo& FrListaDuktores::DialogoDe(TipoPieza tipo) {
  FrDialogo*& dialogo = dialogos_.at(static_cast<std::size_t>(tipo));
  if (!dialogo) {
    dialogo = new FrDialogo(FilaDe(tipo), this);
    connect(dialogo, &FrDialogo::otraPieza, this,
            [this](const PiezaAbierta& abierta) { siguiente_ = &Prepara(abierta); });
  }
  return *dialogo;
}

// As if its row had been chosen.
FrDialogo& FrListaDuktores::Prepara(const PiezaAbierta& abierta) {
  const auto filas = FilasCatalogo();
  const auto fila = std::ranges::find(filas, std::optional(abierta.fila.tipo), &FilaCatalogo::pieza);
  LstDuktores_->setCurrentRow(static_cast<int>(fila - filas.begin()));
  estado.sTipoPieza = TextoFila(Fila());
  FrDialogo& dialogo = DialogoDe(abierta.fila.tipo);
  dialogo.Pon(abierta);
  return dialogo;
}

void FrListaDuktores::Muestra(FrDialogo& primero) {
  for (FrDialogo* dialogo = &primero; dialogo; dialogo = std::exchange(siguiente_, nullptr)) dialogo->exec();
  if (!isVisible()) return;  // the program is ending
  TraeAlFrente(*this);
  Activa();
}

void FrListaDuktores::AnadeFicheros() {
  auto* abre = new BotonAbre(this);
  abre->setToolButtonStyle(Qt::ToolButtonIconOnly);
  proporcion_.Coloca(*abre, {62, 430, 60, 34});
  connect(abre, &BotonAbre::elegido, this, &FrListaDuktores::CmdAbre);
  textos_.Pon([this, abre] {
    abre->PonTexto();
    PonBoton(*CmdGuardaPieza_, "CmdGuardaPieza", QString::fromStdString(Texto(texto::kGuardaPieza)));
  });
  proporcion_.Coloca(*CmdGuardaPieza_, {128, 430, 44, 34});
  connect(CmdGuardaPieza_, &QPushButton::clicked, this, [this] { DialogoDe(*Fila().pieza).CmdGuardaPieza(); });
  setAcceptDrops(true);
}

void FrListaDuktores::CmdAbre(const QString& ruta) {
  if (const auto abierta = AbrePieza(*this, ruta.toStdString())) Muestra(Prepara(*abierta));
}

void FrListaDuktores::dragEnterEvent(QDragEnterEvent* suceso) {
  const bool fichero = suceso->mimeData()->hasUrls() && suceso->mimeData()->urls().front().isLocalFile();
  if (fichero && !QApplication::activeModalWidget()) suceso->acceptProposedAction();
}

// The sender waits for the answer, the file doesn't.
void FrListaDuktores::dropEvent(QDropEvent* suceso) {
  suceso->acceptProposedAction();
  const QString ruta = suceso->mimeData()->urls().front().toLocalFile();
  QTimer::singleShot(0, this, [this, ruta] { CmdAbre(ruta); });
}

void FrListaDuktores::showEvent(QShowEvent* suceso) {
  QWidget::showEvent(suceso);
  Activa();
}

void FrListaDuktores::resizeEvent(QResizeEvent*) { proporcion_.Escala(size()); }

void FrListaDuktores::closeEvent(QCloseEvent* suceso) { suceso->setAccepted(Termina()); }

void FrListaDuktores::customEvent(QEvent* suceso) {
  if (suceso->type() != ConfiguracionLeida::Tipo()) return;
  textos_.Renueva();
  PonAvisos(static_cast<ConfiguracionLeida*>(suceso)->avisos);
}

void FrListaDuktores::keyPressEvent(QKeyEvent* suceso) {
  if (!PulsaConEnter(*this, *suceso)) QWidget::keyPressEvent(suceso);
}

bool FrListaDuktores::eventFilter(QObject* objeto, QEvent* suceso) {
  if (objeto == LblAviso_ && suceso->type() == QEvent::MouseButtonRelease) AbreAjustes(*this);
  if (objeto == LstDuktores_ && suceso->type() == QEvent::KeyPress) {
    const int tecla = static_cast<QKeyEvent*>(suceso)->key();
    if (tecla == Qt::Key_Return || tecla == Qt::Key_Enter) {
      CmdContinuar();
      return true;
    }
  }
  return QWidget::eventFilter(objeto, suceso);
}

}  // namespace duktores
