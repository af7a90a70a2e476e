#include "windows/frm_view_unfold.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QKeyEvent>
#include <QMessageBox>
#include <QPointer>
#include <QShortcut>
#include <array>
#include <utility>

#include "dxf/dibujo.h"
#include "piece/numeros_texto.h"
#include "shell/juicio.h"
#include "shell/texto_linea.h"
#include "shell/texto_veredicto.h"
#include "shell/visor.h"
#include "state/estado.h"
#include "state/textos.h"
#include "windows/iconos.h"
#include "windows/ventanas.h"

namespace duktores {

namespace {

constexpr QSize kDiseno{1000, 720};
constexpr int kMargen = 12, kBoton = 38, kPaso = kBoton + 2, kAltoGrupo = kBoton + 12;

struct BotonZoom {
  const char* nombre;
  int texto;
  MandoVista mando;
  void (EWdraw::*orden)();
};
constexpr std::array kZoom{
    BotonZoom{"cmdmove", texto::kMueve, MandoVista::pan, &EWdraw::EwPan},
    BotonZoom{"cmdorbit", texto::kOrbita, MandoVista::orbit, &EWdraw::EwOrbit},
    BotonZoom{"CmdZoom", texto::kZoom, MandoVista::zoom, &EWdraw::EwZoom},
    BotonZoom{"CmdZoomAll", texto::kZoomTodo, MandoVista::zoomAll, &EWdraw::EwZoomAll},
    BotonZoom{"CmdZoomwindow", texto::kZoomVentana, MandoVista::zoomWindow, &EWdraw::EwZoomWindow},
};
QString Q(const std::string& texto) { return QString::fromStdString(texto); }

}  // namespace

FrmViewUnfold::FrmViewUnfold(QWidget* padre, std::vector<Punto2> conocidos)
    : QDialog(padre),
      proporcion_(*this, kDiseno),
      lienzo_(new Lienzo(EWdraw_, this)),
      FrmView_(new QGroupBox(this)),
      FrmZoom_(new QGroupBox(this)),
      LblEstado_(new QLabel(this)),
      aceptada_(*estado.pieza),
      formato_(FormatoDeEstado()),
      idioma_(estado.dIdioma),
      pieza_(aceptada_),
      conocidos_(std::move(conocidos)) {
  setObjectName("FrmViewUnfold");
  setWindowFlag(Qt::WindowMaximizeButtonHint);
  setWindowTitle(padre ? padre->windowTitle() : QString("duktores"));
  FrmView_->setObjectName("FrmView");
  FrmZoom_->setObjectName("FrmZoom");
  LblEstado_->setObjectName("LblEstado");
  Botones();
  proporcion_.Coloca(*lienzo_, {kMargen, 70, kDiseno.width() - 2 * kMargen, 612});
  proporcion_.Coloca(*LblEstado_, {kMargen, 688, kDiseno.width() - 2 * kMargen, 24});
  connect(lienzo_, &Lienzo::eligiendo, this, &FrmViewUnfold::MuestraEleccion);
  connect(lienzo_, &Lienzo::apunta, this, &FrmViewUnfold::MuestraPunto);
  connect(lienzo_, &Lienzo::pasa, this, &FrmViewUnfold::MuestraLinea);

  EWdraw_.EwInicia(true);
  solido_ = Dibuja3D(EWdraw_);
  CmdSave_->setEnabled(false);
  ComandoVista(EWdraw_, "F5", false);
}

QPushButton* FrmViewUnfold::Boton(QWidget* padre, std::string_view nombre, int texto, QRect lugar) {
  auto* boton = new QPushButton(padre);
  PonBoton(*boton, nombre, Q(Texto(texto)));
  boton->setAutoDefault(false);
  proporcion_.Coloca(*boton, lugar);
  return boton;
}

void FrmViewUnfold::Botones() {
  int x = 6;
  for (const VistaFija& vista : VistasFijas()) {
    const auto mira = [this, &vista] { ComandoVista(EWdraw_, vista.clave, false); };
    QPushButton* boton = Boton(FrmView_, vista.boton, vista.texto, {x, 6, kBoton, kBoton});
    const QString clave = QString::fromUtf8(vista.clave.data(), static_cast<qsizetype>(vista.clave.size()));
    boton->setToolTip(boton->toolTip() + " (" + clave + ")");
    connect(boton, &QPushButton::clicked, this, mira);
    auto* tecla = new QShortcut(QKeySequence(clave), this);
    connect(tecla, &QShortcut::activated, this, [this, mira] {
      if (FrmView_->isEnabled()) mira();
    });
    x += kPaso;
  }
  proporcion_.Coloca(*FrmView_, {kMargen, 10, x + 4, kAltoGrupo});

  const int inicioZoom = FrmView_->geometry().right() + kMargen;
  x = 6;
  for (const BotonZoom& zoom : kZoom) {
    QPushButton* boton = Boton(FrmZoom_, zoom.nombre, zoom.texto, {x, 6, kBoton, kBoton});
    boton->setCheckable(zoom.mando != MandoVista::zoomAll);
    connect(boton, &QPushButton::clicked, this, [this, &zoom] { (EWdraw_.*zoom.orden)(); });
    connect(lienzo_, &Lienzo::mandoCambiado, boton,
            [boton, &zoom](std::optional<MandoVista> mando) { boton->setChecked(mando == zoom.mando); });
    x += kPaso;
  }
  proporcion_.Coloca(*FrmZoom_, {inicioZoom, 10, x + 4, kAltoGrupo});

  x = kDiseno.width() - kMargen - 5 * (kPaso + 8);
  const auto suelto = [&](std::string_view nombre, int texto) {
    QPushButton* boton = Boton(this, nombre, texto, {x, 14, kBoton + 6, kBoton + 4});
    x += kPaso + 8;
    return boton;
  };
  CmdExacto_ = suelto("CmdExacto", texto::kExacto);
  CmdExacto_->setCheckable(true);
  CmdExacto_->setChecked(estado.pieza->regla == Regla::exacta);
  CmdExacto_->setShortcut(Qt::Key_E);
  CmdDesplegado_ = suelto("CmdDesplegado", texto::kDesplegado);
  CmdSave_ = suelto("CmdSave", texto::kGuarda);
  connect(CmdExacto_, &QPushButton::clicked, this, &FrmViewUnfold::CmdExacto);
  connect(CmdDesplegado_, &QPushButton::clicked, this, &FrmViewUnfold::CmdDesplegado);
  connect(CmdSave_, &QPushButton::clicked, this, &FrmViewUnfold::CmdSave);
  connect(suelto("CmdCancelar", texto::kCierraVisor), &QPushButton::clicked, this, &FrmViewUnfold::reject);
  connect(suelto("CmdExit", texto::kSalir), &QPushButton::clicked, this, [] { Termina(); });
}

// The drawing widget looks at the control, which would go before it.
FrmViewUnfold::~FrmViewUnfold() { delete lienzo_; }

// The window may be closed, or the program end, while the unfolding waits for a pick.
void FrmViewUnfold::CmdDesplegado() {
  const QPointer<FrmViewUnfold> vivo(this);
  lienzo_->setFocus();  // a disabled button would hand its focus to the one that closes the window
  hoja_ = {};
  sitios_.clear();
  pendiente_ = descartada_ = false;
  CmdSave_->setEnabled(false);
  CmdDesplegado_->setEnabled(false);
  CmdExacto_->setEnabled(false);
  FrmView_->setEnabled(false);
  FrmZoom_->findChild<QPushButton*>("cmdorbit")->setEnabled(false);
  lienzo_->PermiteOrbitar(false);
  const std::vector<Punto2> conocidos = std::exchange(conocidos_, {});
  Corrida corrida = DesplegadoEn(EWdraw_, conocidos);
  if (!vivo) return;
  pendiente_ = corrida.sitios.size() > conocidos.size() && estado.oDrawing->Count() > 0;
  if (corrida.fin == FinCorrida::completo) sitios_ = std::move(corrida.sitios);
  AnotaEstado();
  MuestraVeredicto(corrida);
  hoja_ = std::move(corrida.hoja);
  CmdDesplegado_->setEnabled(true);
  CmdExacto_->setEnabled(true);
  CmdSave_->setEnabled(estado.oDrawing->Count() > 0);
}

// The other rule has another solid, and another pattern where one stands.
void FrmViewUnfold::CmdExacto() {
  CambiaRegla();
  AnotaEstado();
  solido_ = SolidoDe(*estado.pieza);
  if (!FrmView_->isEnabled()) return CmdDesplegado();
  DibujaSolido(EWdraw_, solido_);
  EWdraw_.EwRegen();
}

bool FrmViewUnfold::CmdSave() {
  RecuperaEstado();
  QFileDialog dialogo(this, CmdSave_->toolTip(), Q(estado.sRutaDuct), ".dxf Files (*.dxf)");
  dialogo.setAcceptMode(QFileDialog::AcceptSave);
  dialogo.setDefaultSuffix("dxf");
  while (dialogo.exec() == QDialog::Accepted) {
    const QString elegido = dialogo.selectedFiles().value(0), final = Q(NombreDxf(elegido.toStdString()));
    // The dialog has asked about the name as it was typed.
    const bool otro = final != elegido && QFileInfo::exists(final);
    if (otro && QMessageBox::question(this, {}, Q(Texto(texto::kReemplazar)) + " " + final) != QMessageBox::Yes)
      continue;
    const bool guardado = GuardaDibujo(final.toStdString());
    if (guardado) pendiente_ = false;
    return guardado;
  }
  return false;
}

void FrmViewUnfold::MuestraEleccion(bool empieza) {
  CursorEspera(!empieza);
  FrmZoom_->setEnabled(!empieza);  // the left button places the shape; wheel and middle button still move the view
  LblEstado_->clear();
  LblEstado_->setToolTip({});
  LblEstado_->setStyleSheet({});
  if (empieza) lienzo_->setFocus();
}

void FrmViewUnfold::MuestraPunto(QPointF punto) {
  const int decimales = estado.iUnidad == 1 ? 2 : 3;
  const std::string& rotulo = EWdraw_.RotuloFantasma();
  LblEstado_->setText((rotulo.empty() ? QString() : Q(rotulo) + ": ") + Q(Texto(texto::kElige)) +
                      QString("    X %1   Y %2").arg(punto.x(), 0, 'f', decimales).arg(punto.y(), 0, 'f', decimales));
}

// A pattern that is incomplete or not true is told in a colour that nobody overlooks; it never stops the work.
void FrmViewUnfold::MuestraVeredicto(const Corrida& corrida) {
  const bool completo = corrida.fin == FinCorrida::completo;
  const Veredicto veredicto = completo ? Juzga(*estado.pieza, solido_, corrida.hoja) : Veredicto();
  const QString linea = Q(completo ? TextoVeredicto(veredicto) : Texto(texto::kIncompleto));
  const bool bien = completo && veredicto.Cierto();
  LblEstado_->setStyleSheet(bien ? "" : "background: #c00000; color: white; font-weight: bold;");
  LblEstado_->ensurePolished();  // bold letters are wider
  LblEstado_->setText(LblEstado_->fontMetrics().elidedText(linea, Qt::ElideRight, LblEstado_->width()));
  LblEstado_->setToolTip(linea);
}

// What the line under the pointer is; away from all lines the verdict.
void FrmViewUnfold::MuestraLinea(QPointF punto, double alcance) {
  if (hoja_.formas.empty()) return;
  const auto cercana = LineaCercana(hoja_, {punto.x(), punto.y()}, alcance);
  LblEstado_->setText(
      cercana ? Q(TextoLinea(*cercana, solido_))
              : LblEstado_->fontMetrics().elidedText(LblEstado_->toolTip(), Qt::ElideRight, LblEstado_->width()));
}

bool FrmViewUnfold::Muestra(const Pieza& pieza) const {
  return pieza == aceptada_ && FormatoDeEstado() == formato_ && estado.dIdioma == idioma_;
}

FrmViewUnfold::Pendiente FrmViewUnfold::SinGuardar() const {
  if (descartada_) return Pendiente::nada;
  if (lienzo_->Eligiendo()) return estado.oDrawing->Count() > 0 ? Pendiente::parte : Pendiente::nada;
  return pendiente_ ? Pendiente::patron : Pendiente::nada;
}

void FrmViewUnfold::AnotaEstado() {
  pieza_ = *estado.pieza;
  oDrawing_ = estado.oDrawing;
  oDXF_ = estado.oDXF;
}

void FrmViewUnfold::RecuperaEstado() {
  estado.pieza = pieza_;
  estado.oDrawing = oDrawing_;
  estado.oDXF = oDXF_;
}

void FrmViewUnfold::done(int resultado) {
  lienzo_->CancelaEleccion();
  QDialog::done(resultado);
}

void FrmViewUnfold::showEvent(QShowEvent* suceso) {
  QDialog::showEvent(suceso);
  RecuperaEstado();
  TraeAlFrente(*this);
}

void FrmViewUnfold::resizeEvent(QResizeEvent*) { proporcion_.Escala(size()); }

// Escape ends what is going on, the innermost first: a pick, a command of the mouse, the window.
void FrmViewUnfold::keyPressEvent(QKeyEvent* suceso) {
  if (suceso->key() == Qt::Key_Escape && lienzo_->Eligiendo()) {
    lienzo_->CancelaEleccion();
  } else if (suceso->key() != Qt::Key_Escape || !lienzo_->TerminaMando()) {
    QDialog::keyPressEvent(suceso);
  }
}

}  // namespace duktores
