#include "windows/teclas.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QKeyEvent>
#include <QPushButton>
#include <QShortcut>
#include <QTextBrowser>
#include <QTextDocument>
#include <QVBoxLayout>
#include <algorithm>
#include <array>

#include "piece/numeros_texto.h"
#include "state/textos.h"
#include "windows/fr_manual.h"
#include "windows/proporcion.h"

namespace duktores {

namespace {

struct FilaTecla {
  int lugar;           // heading of the page: the window
  const char* nombre;  // of the button; in each window that has it its keys are the same
  const char* teclas;  // one behind the other
  int texto;           // what they do
};

// clang-format off
constexpr std::array kTeclas{
    //        window            button           keys                         what they do
    FilaTecla{texto::kCatalogo, "",              "Up; Down",                  texto::kEligeFila},
    FilaTecla{texto::kCatalogo, "",              "Return",                    texto::kContinuar},
    FilaTecla{texto::kCatalogo, "CmdAjustes",    "Ctrl+,",                    texto::kAjustes},
    FilaTecla{texto::kMedidas,  "",              "Tab; Return",               texto::kCampoSiguiente},
    FilaTecla{texto::kMedidas,  "",              "F4; Alt+Down",              texto::kAbreLista},
    FilaTecla{texto::kMedidas,  "CmdAjustes",    "Ctrl+,",                    texto::kAjustes},
    FilaTecla{texto::kMedidas,  "CmdUltimos",    "Ctrl+L",                    texto::kUltimosValores},
    FilaTecla{texto::kMedidas,  "CmdCancelar",   "Esc",                       texto::kCancelar},
    FilaTecla{texto::kVisor,    "CmdDesplegado", "U",                         texto::kDesplegado},
    FilaTecla{texto::kVisor,    "CmdExacto",     "E",                         texto::kExacto},
    FilaTecla{texto::kVisor,    "CmdSolido",     "B",                         texto::kSolidoODesarrollo},
    FilaTecla{texto::kVisor,    "cmdAlambre",    "W",                         texto::kAlambre},
    FilaTecla{texto::kVisor,    "CmdSave",       "S; Ctrl+S",                 texto::kGuarda},
    FilaTecla{texto::kVisor,    "CmdZoomAll",    "0; Home",                   texto::kZoomTodo},
    FilaTecla{texto::kVisor,    "CmdZoom",       "+; -",                      texto::kZoom},
    FilaTecla{texto::kVisor,    "cmdmove",       "Left; Right; Up; Down",     texto::kMueve},
    FilaTecla{texto::kVisor,    "",              "Return",                    texto::kPonTodas},
    FilaTecla{texto::kVisor,    "",              "N",                         texto::kPonJunta},
    FilaTecla{texto::kVisor,    "",              "Backspace; Ctrl+Z",         texto::kDeshace},
    FilaTecla{texto::kVisor,    "",              "Ctrl+Y; Ctrl+Shift+Z",      texto::kRehace},
    FilaTecla{texto::kVisor,    "",              "L",                         texto::kNombres},
    FilaTecla{texto::kVisor,    "",              "F1; F2; F3; F4; F5; F6; F7; F8; F9; F10; F11", texto::kVistasFijas},
    FilaTecla{texto::kVisor,    "CmdCancelar",   "Esc",                       texto::kCierraVisor},
    FilaTecla{texto::kTodas,    "",              "Space; Return",             texto::kPulsaBoton},
    FilaTecla{texto::kTodas,    "ayuda",         "F12; ?",                    texto::kAyuda},
};
// clang-format on

QString Q(const std::string& texto) { return QString::fromStdString(texto); }

QList<QKeySequence> Teclas(const FilaTecla& fila) { return QKeySequence::listFromString(fila.teclas); }

// As they stand on the keyboard: arrows are drawn.
QString NombreTecla(const QKeySequence& tecla) {
  constexpr std::pair<Qt::Key, char16_t> kFlechas[]{
      {Qt::Key_Left, u'←'}, {Qt::Key_Up, u'↑'}, {Qt::Key_Right, u'→'}, {Qt::Key_Down, u'↓'}};
  QString nombre = tecla.toString(QKeySequence::NativeText);
  const auto* flecha = std::ranges::find(kFlechas, tecla[0].key(), &std::pair<Qt::Key, char16_t>::first);
  if (flecha == std::end(kFlechas)) return nombre;
  return nombre.left(nombre.lastIndexOf('+') + 1) + QChar(flecha->second);
}

// Of more than four keys the first and the last.
QString NombreTeclas(const FilaTecla& fila) {
  constexpr qsizetype kTodas = 4;
  const auto teclas = Teclas(fila);
  if (teclas.size() > kTodas) return NombreTecla(teclas.first()) + " ... " + NombreTecla(teclas.last());
  QStringList nombres;
  for (const QKeySequence& tecla : teclas) nombres += NombreTecla(tecla);
  return nombres.join(", ");
}

const FilaTecla* FilaDe(const QString& nombre) {
  const auto* fila = std::ranges::find_if(kTeclas, [&](const FilaTecla& f) { return nombre == f.nombre; });
  return fila == kTeclas.end() ? nullptr : fila;
}

void Atajos(const FilaTecla& fila, QWidget& ventana, const std::function<void(int)>& hace) {
  const auto teclas = Teclas(fila);
  for (int i = 0; i < teclas.size(); ++i) {
    auto* atajo = new QShortcut(teclas[i], &ventana);
    QObject::connect(atajo, &QShortcut::activated, &ventana, [hace, i] { hace(i); });
  }
}

QString Pagina() {
  QString pagina;
  int lugar = 0;
  for (const FilaTecla& fila : kTeclas) {
    if (fila.lugar != lugar) {
      pagina += QString("<tr><td colspan='2'><b>%1</b></td></tr>").arg(Q(Texto(fila.lugar)));
      lugar = fila.lugar;
    }
    pagina += QString("<tr><td style='padding-left: 16px; padding-right: 24px'>%1</td><td>%2</td></tr>")
                  .arg(NombreTeclas(fila).toHtmlEscaped(), Q(Texto(fila.texto)).toHtmlEscaped());
  }
  return "<table cellpadding='2'>" + pagina + "</table>";
}

}  // namespace

QString TextoTeclas(const QString& boton) {
  const FilaTecla* fila = FilaDe(boton);
  return fila ? " (" + NombreTeclas(*fila) + ")" : QString();
}

void PonTeclas(QPushButton& boton, const std::function<void(int)>& hace) {
  const FilaTecla* fila = FilaDe(boton.objectName());
  if (!fila) return;
  boton.setToolTip(boton.toolTip() + TextoTeclas(boton.objectName()));
  Atajos(
      *fila, *boton.window(), hace ? hace : [&boton](int) { boton.click(); });
}

void PonAyuda(QWidget& ventana) {
  Atajos(*FilaDe("ayuda"), ventana, [&ventana](int) { MuestraAyuda(ventana); });
}

void MuestraAyuda(QWidget& padre) {
  auto& ventana = *new QDialog(&padre);  // the manual may go, with all that is its own, while this waits
  ventana.setAttribute(Qt::WA_DeleteOnClose);
  ventana.setObjectName("FrAyuda");
  ventana.setWindowTitle(Q(Texto(texto::kAyuda)));
  auto* pagina = new QTextBrowser;
  pagina->setFrameShape(QFrame::NoFrame);
  pagina->setHtml(Pagina() + "<p>duktores " DUKTORES_VERSION "</p>");
  auto* botones = new QDialogButtonBox(QDialogButtonBox::Close);
  auto* manual = botones->addButton(Q(Texto(texto::kManual)), QDialogButtonBox::ActionRole);
  manual->setObjectName("CmdManual");
  QObject::connect(manual, &QPushButton::clicked, &ventana, &QDialog::accept);
  QObject::connect(botones, &QDialogButtonBox::rejected, &ventana, &QDialog::reject);
  auto* columna = new QVBoxLayout(&ventana);
  columna->addWidget(pagina);
  columna->addWidget(botones);
  constexpr QSize kBorde{60, 70};  // round the page
  pagina->document()->adjustSize();
  const QSize toda = pagina->document()->size().toSize();
  ventana.resize((toda + kBorde).boundedTo(SitioLibre(padre)));
  if (ventana.exec() == QDialog::Accepted) AbreManual(padre);
}

bool PulsaConEnter(const QWidget& ventana, const QKeyEvent& suceso) {
  if (suceso.key() != Qt::Key_Return && suceso.key() != Qt::Key_Enter) return false;
  auto* boton = qobject_cast<QPushButton*>(ventana.focusWidget());
  if (!boton) return false;
  if (!suceso.isAutoRepeat()) boton->click();  // a key that is held down has pressed another window's button
  return true;
}

}  // namespace duktores
