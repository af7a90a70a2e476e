#include "windows/fr_manual.h"

#include <QApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QFileInfo>
#include <QPushButton>
#include <QTextBrowser>
#include <QTextTable>
#include <QVBoxLayout>

#include "piece/numeros_texto.h"
#include "state/estado.h"
#include "state/textos.h"
#include "windows/proporcion.h"

namespace duktores {

namespace {

constexpr const char* kNombre = "FrManual";
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

}  // namespace

void AbreManual(QWidget& padre) {
  const QUrl indice = Indice();
  if (!Esta(indice)) return;
  for (QWidget* abierto : QApplication::topLevelWidgets()) {
    if (abierto->objectName() == kNombre) abierto->close();
  }
  auto* ventana = new QDialog(&padre);
  ventana->setObjectName(kNombre);
  ventana->setAttribute(Qt::WA_DeleteOnClose);
  ventana->setWindowTitle(Q(Texto(texto::kManual)));
  QTextBrowser* paginas = Paginas();
  auto* botones = new QDialogButtonBox(QDialogButtonBox::Close);
  auto* atras = botones->addButton(Q(Texto(texto::kAtras)), QDialogButtonBox::ActionRole);
  auto* primera = botones->addButton(Q(Texto(texto::kIndice)), QDialogButtonBox::ActionRole);
  atras->setEnabled(false);
  QObject::connect(paginas, &QTextBrowser::backwardAvailable, atras, &QPushButton::setEnabled);
  QObject::connect(atras, &QPushButton::clicked, paginas, &QTextBrowser::backward);
  QObject::connect(primera, &QPushButton::clicked, paginas, [paginas, indice] { paginas->setSource(indice); });
  QObject::connect(botones, &QDialogButtonBox::rejected, ventana, &QDialog::reject);
  auto* columna = new QVBoxLayout(ventana);
  columna->addWidget(paginas);
  columna->addWidget(botones);
  ventana->resize(kTamano.boundedTo(SitioLibre(padre)));
  paginas->setSource(indice);
  paginas->setFocus();
  ventana->show();
}

void ConectaManual(QPushButton& boton) {
  boton.setAutoDefault(false);
  boton.setFocusPolicy(Qt::NoFocus);
  QObject::connect(&boton, &QPushButton::clicked, &boton, [&boton] { AbreManual(*boton.window()); });
}

}  // namespace duktores
