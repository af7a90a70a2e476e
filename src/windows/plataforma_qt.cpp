#include "windows/plataforma_qt.h"

#include <xcb/xcb.h>

#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QRegularExpression>
#include <QVBoxLayout>
#include <QWindow>
#include <cstdlib>
#include <cstring>
#include <memory>

#include "piece/numeros_texto.h"
#include "state/estado.h"
#include "state/textos.h"
#include "windows/sin_guardar.h"
#include "windows/ventanas.h"

namespace duktores {

namespace {

QString Q(std::string_view texto) { return QString::fromUtf8(texto.data(), static_cast<qsizetype>(texto.size())); }

QWidget* Padre() {
  return QApplication::activeModalWidget() ? QApplication::activeModalWidget() : QApplication::activeWindow();
}

xcb_connection_t* ConexionX() {
  auto* x11 = qApp->nativeInterface<QNativeInterface::QX11Application>();
  return x11 ? x11->connection() : nullptr;
}

struct Libera {
  void operator()(void* p) const { std::free(p); }
};

/// A property that is one number of 32 bits; 0 if it isn't there.
std::uint32_t Propiedad(xcb_connection_t* x, xcb_window_t ventana, const char* nombre) {
  const auto peticion = xcb_intern_atom(x, 1, static_cast<std::uint16_t>(std::strlen(nombre)), nombre);
  const std::unique_ptr<xcb_intern_atom_reply_t, Libera> atomo(xcb_intern_atom_reply(x, peticion, nullptr));
  if (!atomo || atomo->atom == XCB_ATOM_NONE) return 0;
  const auto lectura = xcb_get_property(x, 0, ventana, atomo->atom, XCB_ATOM_ANY, 0, 1);
  const std::unique_ptr<xcb_get_property_reply_t, Libera> valor(xcb_get_property_reply(x, lectura, nullptr));
  if (!valor || valor->format != 32 || xcb_get_property_value_length(valor.get()) < 4) return 0;
  std::uint32_t numero = 0;
  std::memcpy(&numero, xcb_get_property_value(valor.get()), sizeof numero);
  return numero;
}

/// A name may be longer than the screen is wide: it may be broken at a blank that has no width.
QString Partible(QString texto) {
  static const QRegularExpression larga("(\\S{60})(?=\\S)");
  return texto.replace(larga, "\\1\u200b");
}

}  // namespace

void PlataformaQt::CajaMensaje(std::string_view texto, EstiloMensaje estilo, std::string_view titulo) {
  const auto icono = estilo == EstiloMensaje::exclamacion ? QMessageBox::Warning : QMessageBox::Information;
  QMessageBox caja(icono, Q(titulo), {}, QMessageBox::Ok, Padre());
  caja.setTextFormat(Qt::PlainText);
  caja.setText(Partible(Q(texto)));
  caja.setInformativeText(Q(detalle_));
  caja.exec();
}

void PlataformaQt::VentanaMensaje(std::string_view texto) {
  QDialog ventana(Padre());
  ventana.setObjectName("FrMsgbox");
  auto* detalle = new QLabel(Q(detalle_), &ventana);
  detalle->setHidden(detalle_.empty());
  auto* lblmsgbox = new QLabel;
  lblmsgbox->setTextFormat(Qt::PlainText);
  lblmsgbox->setWordWrap(true);
  lblmsgbox->setText(Q(texto));
  lblmsgbox->setMinimumWidth(360);
  lblmsgbox->setObjectName("lblmsgbox");
  auto* aceptar = new QPushButton(Q(Texto(texto::kAceptar)));
  aceptar->setObjectName("CmdAceptar");
  auto* columna = new QVBoxLayout(&ventana);
  columna->addWidget(lblmsgbox);
  columna->addWidget(detalle);
  columna->addWidget(aceptar, 0, Qt::AlignHCenter);
  columna->setSizeConstraint(QLayout::SetFixedSize);
  QObject::connect(aceptar, &QPushButton::clicked, &ventana, &QDialog::accept);
  ventana.exec();
}

void PlataformaQt::PonCursorEspera(bool espera) {
  if (espera == espera_) return;
  espera_ = espera;
  espera ? QApplication::setOverrideCursor(Qt::WaitCursor) : QApplication::restoreOverrideCursor();
}

Ventana PlataformaQt::VentanaActiva() {
  xcb_connection_t* x = ConexionX();
  if (!x) return 0;
  const xcb_window_t raiz = xcb_setup_roots_iterator(xcb_get_setup(x)).data->root;
  const xcb_window_t activa = Propiedad(x, raiz, "_NET_ACTIVE_WINDOW");
  if (activa == 0 || Propiedad(x, activa, "_NET_WM_PID") == QApplication::applicationPid()) return 0;
  return activa;
}

void PlataformaQt::HabilitaVentana(Ventana ventana, bool habilitada) {
  if (ventana == 0 || !principal_ || !ConexionX()) return;
  if (!habilitada) principal_->setWindowFlag(Qt::Dialog);  // no other kind of window is kept above a foreign one
  principal_->setWindowModality(habilitada ? Qt::NonModal : Qt::ApplicationModal);
  principal_->winId();  // makes the native window
  QWindow* anterior = principal_->windowHandle()->transientParent();
  principal_->windowHandle()->setTransientParent(habilitada ? nullptr : QWindow::fromWinId(ventana));
  delete anterior;
}

QLabel* EtiquetaError() {
  auto* lblerror = new QLabel;
  lblerror->setObjectName("lblerror");
  lblerror->setTextFormat(Qt::PlainText);
  lblerror->setWordWrap(true);
  lblerror->setAlignment(Qt::AlignCenter);
  lblerror->setStyleSheet(
      "QLabel { background: #c62828; color: white; font-weight: bold; border-radius: 4px; padding: 6px; }");
  lblerror->hide();
  return lblerror;
}

bool Confirma(QWidget* padre, const QString& pregunta) {
  QMessageBox caja(QMessageBox::Question, {}, {}, QMessageBox::Yes | QMessageBox::No, padre);
  caja.setTextFormat(Qt::PlainText);
  caja.setText(Partible(pregunta));
  caja.setDefaultButton(QMessageBox::No);
  return caja.exec() == QMessageBox::Yes;
}

void TraeAlFrente(QWidget& ventana) {
  ventana.raise();
  ventana.activateWindow();
}

bool Termina() {
  if (!PuedeTerminar()) return false;
  if (estado.plataforma) estado.plataforma->HabilitaVentana(estado.hVentanaHost, true);
  QApplication::quit();
  return true;
}

}  // namespace duktores
