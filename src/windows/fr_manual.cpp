#include "windows/fr_manual.h"

#include <QApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QFileInfo>
#include <QPushButton>
#include <QScreen>
#include <QTextBrowser>
#include <QTextTable>
#include <QVBoxLayout>
#include <QWindow>

#include "piece/numeros_texto.h"
#include "state/estado.h"
#include "state/textos.h"
#include "windows/iconos.h"
#include "windows/proporcion.h"
#include "windows/teclas.h"
#include "windows/ventanas.h"

namespace duktores {

namespace {

constexpr QSize kTamano{900, 740};

QString Q(const std::string& texto) { return QString::fromStdString(texto); }

QUrl Indice() {
  const std::string idioma = estado.dIdioma == 0 ? "es" : "en";
  return QUrl::fromLocalFile(Q(estado.sRutaPrograma + "Manual/" + idioma + "/index.md"));
}

bool Esta(const QUrl& pagina) {
  if (QFileInfo(pagina.toLocalFile()).isReadable()) return true;
  MuestraMensaje(Texto(texto::kSinManual) + " " + pagina.toLocalFile().toStdString(), EstiloMensaje::exclamacion, "");
  CursorEspera(false);
  return false;
}

// Tables as they come from Markdown stand too close.
void Compone(const QTextBrowser& paginas) {
  constexpr int kRelleno = 6, kAire = 8;
  for (QTextFrame* marco : paginas.document()->rootFrame()->childFrames()) {
    auto* tabla = qobject_cast<QTextTable*>(marco);
    if (!tabla) continue;
    QTextTableFormat formato = tabla->format();
    formato.setBorderCollapse(true);
    formato.setBorderStyle(QTextFrameFormat::BorderStyle_Solid);
    formato.setBorderBrush(paginas.palette().mid());
    formato.setCellPadding(kRelleno);
    formato.setMargin(kAire);
    tabla->setFormat(formato);
  }
}

QTextBrowser* Paginas() {
  constexpr double kMasGrande = 1.5;  // than a window's labels: it is read at length
  auto* paginas = new QTextBrowser;
  QFont letra = paginas->font();
  letra.setPointSizeF(letra.pointSizeF() + kMasGrande);
  paginas->setFont(letra);
  paginas->setFrameShape(QFrame::NoFrame);
  paginas->document()->setDocumentMargin(16);
  paginas->setOpenLinks(false);
  QObject::connect(paginas, &QTextBrowser::sourceChanged, paginas, [paginas] { Compone(*paginas); });
  QObject::connect(paginas, &QTextBrowser::anchorClicked, paginas, [paginas](const QUrl& enlace) {
    const QUrl pagina = paginas->source().resolved(enlace);
    if (pagina.isLocalFile() && Esta(pagina)) paginas->setSource(pagina);
  });
  return paginas;
}

// A window of its own, and no dialog of the opener's: so the desktop lets the user look at either. What waits for an
// answer lets through only windows that belong to it, so the manual belongs to what waits at the time.
class FrManual : public QDialog {
 public:
  explicit FrManual(QWidget& padre);
  /// The page that is open, in the language that is configured.
  void PonIdioma();

 protected:
  bool event(QEvent* suceso) override;
  bool eventFilter(QObject* objeto, QEvent* suceso) override;

 private:
  void Sigue();

  QTextBrowser* paginas_ = Paginas();
  QPushButton* atras_;
  QPushButton* primera_;
  QMetaObject::Connection sigue_;
};

FrManual::FrManual(QWidget& padre) : QDialog(&padre, Qt::Window) {
  setObjectName("FrManual");
  setAttribute(Qt::WA_DeleteOnClose);
  padre.installEventFilter(this);
  auto* botones = new QDialogButtonBox(QDialogButtonBox::Close);
  atras_ = botones->addButton(QString(), QDialogButtonBox::ActionRole);
  primera_ = botones->addButton(QString(), QDialogButtonBox::ActionRole);
  atras_->setEnabled(false);
  connect(paginas_, &QTextBrowser::backwardAvailable, atras_, &QPushButton::setEnabled);
  connect(atras_, &QPushButton::clicked, paginas_, &QTextBrowser::backward);
  connect(primera_, &QPushButton::clicked, paginas_, [this] { paginas_->setSource(Indice()); });
  connect(botones, &QDialogButtonBox::rejected, this, &QDialog::reject);
  auto* columna = new QVBoxLayout(this);
  columna->addWidget(paginas_);
  columna->addWidget(botones);
  PonAyuda(*this);
  // At the side, so that most of the opener can be seen.
  const QSize libre = SitioLibre(padre), tamano = kTamano.boundedTo(libre), sobra = libre - tamano;
  resize(tamano);
  move(padre.screen()->availableGeometry().topLeft() + QPoint(sobra.width(), sobra.height() / 2));
  paginas_->setSource(Indice());
  PonIdioma();
  paginas_->setFocus();
}

void FrManual::PonIdioma() {
  setWindowTitle(Q(Texto(texto::kManual)));
  atras_->setText(Q(Texto(texto::kAtras)));
  primera_->setText(Q(Texto(texto::kIndice)));
  const QUrl pagina = Indice().resolved(QUrl(paginas_->source().fileName()));
  if (pagina == paginas_->source()) return;
  paginas_->setSource(pagina);
  paginas_->clearHistory();
}

void FrManual::Sigue() {
  QWindow* espera = QGuiApplication::modalWindow();
  if (espera && windowHandle()->isAncestorOf(espera, QWindow::IncludeTransients)) return;
  disconnect(sigue_);
  if (espera) sigue_ = connect(espera, &QWindow::visibleChanged, this, &FrManual::Sigue, Qt::QueuedConnection);
  windowHandle()->setTransientParent(espera ? espera : parentWidget()->windowHandle());
}

bool FrManual::event(QEvent* suceso) {
  if (suceso->type() == QEvent::WindowBlocked) QMetaObject::invokeMethod(this, &FrManual::Sigue, Qt::QueuedConnection);
  if (suceso->type() == ConfiguracionLeida::Tipo()) PonIdioma();
  return QDialog::event(suceso);
}

bool FrManual::eventFilter(QObject* objeto, QEvent* suceso) {
  if (objeto == parentWidget() && suceso->type() == QEvent::Hide && !suceso->spontaneous()) close();
  return QDialog::eventFilter(objeto, suceso);
}

}  // namespace

void AbreManual(QWidget& padre) {
  if (!Esta(Indice())) return;
  FrManual* manual = nullptr;
  for (QWidget* abierto : QApplication::topLevelWidgets()) {
    if (abierto->isVisible() && !manual) manual = dynamic_cast<FrManual*>(abierto);
  }
  manual ? manual->PonIdioma() : (manual = new FrManual(padre))->show();
  TraeAlFrente(*manual);
}

void PonBotonManual(QPushButton& boton) {
  PonBoton(boton, "CmdManual", Q(Texto(texto::kManual)));
  boton.setToolTip(boton.toolTip() + " - " + Q(Texto(texto::kAyuda)) + TextoTeclas("ayuda"));
}

void ConectaManual(QPushButton& boton) {
  boton.setAutoDefault(false);
  boton.setFocusPolicy(Qt::NoFocus);
  QObject::connect(&boton, &QPushButton::clicked, &boton, [&boton] { AbreManual(*boton.window()); });
}

}  // namespace duktores
