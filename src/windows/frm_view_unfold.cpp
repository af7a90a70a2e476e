#include "windows/frm_view_unfold.h"

#include <QKeyEvent>
#include <QPointer>
#include <QShortcut>
#include <QTimer>
#include <array>
#include <utility>

#include "dxf/dibujo.h"
#include "piece/numeros_texto.h"
#include "shell/lista.h"
#include "shell/nombre_pieza.h"
#include "shell/visor.h"
#include "state/estado.h"
#include "state/nombres.h"
#include "state/textos.h"
#include "windows/guarda.h"
#include "windows/iconos.h"
#include "windows/teclas.h"
#include "windows/ventanas.h"

namespace duktores {

namespace {

constexpr QSize kDiseno{1000, 720};
constexpr int kMargen = 12, kBoton = 34, kPaso = kBoton + 2, kAltoGrupo = kBoton + 12;

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

FrmViewUnfold::FrmViewUnfold(QWidget* padre, Sitios conocidos)
    : QDialog(padre),
      proporcion_(*this, kDiseno),
      lienzo_(new Lienzo(EWdraw_, this)),
      colocador_(new Colocador(EWdraw_, *lienzo_)),
      FrmView_(new QGroupBox(this)),
      FrmZoom_(new QGroupBox(this)),
      LblEstado_(new QLabel(this)),
      aceptada_(*estado.pieza),
      formato_(FormatoDeEstado()),
      idioma_(estado.dIdioma),
      pieza_(aceptada_),
      conocidos_(std::move(conocidos)),
      guardados_(conocidos_) {
  setObjectName("FrmViewUnfold");
  setWindowFlag(Qt::WindowMaximizeButtonHint);
  const int nombre = FilaDe(estado.pieza.value().tipo).dialogo.textoTitulo;
  setWindowTitle(Q(Texto(nombre) + "  " + MedidasPrincipales(*estado.pieza, ' ')));
  FrmView_->setObjectName("FrmView");
  FrmZoom_->setObjectName("FrmZoom");
  LblEstado_->setObjectName("LblEstado");
  LblEstado_->setTextFormat(Qt::PlainText);
  Botones();
  Teclas();
  proporcion_.Coloca(*lienzo_, {kMargen, 70, kDiseno.width() - 2 * kMargen, 612});
  proporcion_.Coloca(*LblEstado_, {kMargen, 688, kDiseno.width() - 2 * kMargen, 24});
  connect(lienzo_, &Lienzo::eligiendo, this, &FrmViewUnfold::MuestraEleccion);
  connect(lienzo_, &Lienzo::apunta, this, &FrmViewUnfold::MuestraPunto);
  connect(colocador_, &Colocador::redibuja, this, &FrmViewUnfold::DespliegaHoja);
  connect(colocador_, &Colocador::arrastra, this, &FrmViewUnfold::MuestraArrastre);
  connect(lienzo_, &Lienzo::pasa, this, &FrmViewUnfold::MuestraLinea);
  connect(lienzo_, &Lienzo::girado, this, &FrmViewUnfold::MarcaVista);

  EWdraw_.EwInicia(true);
  solido_ = Dibuja3D(EWdraw_);
  CmdSave_->setEnabled(false);
  CmdSolido_->setEnabled(false);
  CmdExport_->setEnabled(false);
  ComandoVista(EWdraw_, "F5", false);
  MuestraSolido(true);
  CmdDesplegado_->setFocus();
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
    const auto mira = [this, &vista] {
      ComandoVista(EWdraw_, vista.clave, false);
      MarcaVista();
    };
    QPushButton* boton = Boton(FrmView_, vista.boton, vista.texto, {x, 6, kBoton, kBoton});
    const QString clave = QString::fromUtf8(vista.clave.data(), static_cast<qsizetype>(vista.clave.size()));
    boton->setToolTip(boton->toolTip() + " (" + clave + ")");
    boton->setCheckable(true);
    connect(boton, &QPushButton::clicked, this, mira);
    auto* tecla = new QShortcut(QKeySequence(clave), this);
    connect(tecla, &QShortcut::activated, this, [this, mira] {
      if (FrmView_->isEnabled()) mira();
    });
    x += kPaso;
  }
  cmdAlambre_ = Boton(FrmView_, "cmdAlambre", texto::kAlambre, {x, 6, kBoton, kBoton});
  cmdAlambre_->setCheckable(true);
  connect(cmdAlambre_, &QPushButton::clicked, this, [this] { MuestraSolido(true); });
  x += kPaso;
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

  x = kDiseno.width() - kMargen - 7 * (kPaso + 8);
  const auto suelto = [&](std::string_view nombre, int texto) {
    QPushButton* boton = Boton(this, nombre, texto, {x, 14, kBoton + 6, kBoton + 4});
    x += kPaso + 8;
    return boton;
  };
  CmdExacto_ = suelto("CmdExacto", texto::kExacto);
  CmdExacto_->setCheckable(true);
  CmdExacto_->setChecked(estado.pieza->regla == Regla::exacta);
  CmdSolido_ = suelto("CmdSolido", texto::kSolidoODesarrollo);
  CmdDesplegado_ = suelto("CmdDesplegado", texto::kDesplegado);
  CmdSave_ = suelto("CmdSave", texto::kGuarda);
  CmdExport_ = new Exportador(
      [this] {
        return Exportable{FrmView_->isEnabled() ? otra_ : EWdraw_, solido_, veredicto_};
      },
      this);
  proporcion_.Coloca(*CmdExport_, {x, 14, kBoton + 6, kBoton + 4});
  connect(CmdExport_, &Exportador::escrito, this, &FrmViewUnfold::PonHecho);
  x += kPaso + 8;
  for (QPushButton* boton : {cmdAlambre_, CmdExacto_, CmdSolido_, CmdDesplegado_, CmdSave_}) PonTeclas(*boton);
  connect(CmdExacto_, &QPushButton::clicked, this, &FrmViewUnfold::CmdExacto);
  connect(CmdSolido_, &QPushButton::clicked, this, &FrmViewUnfold::CmdSolido);
  connect(CmdDesplegado_, &QPushButton::clicked, this, &FrmViewUnfold::CmdDesplegado);
  connect(CmdSave_, &QPushButton::clicked, this, &FrmViewUnfold::CmdSave);
  QPushButton* cierra = suelto("CmdCancelar", texto::kCierraVisor);
  cierra->setToolTip(cierra->toolTip() + TextoTeclas("CmdCancelar"));
  connect(cierra, &QPushButton::clicked, this, &FrmViewUnfold::reject);
  connect(suelto("CmdExit", texto::kSalir), &QPushButton::clicked, this, [] { Termina(); });
}

// These go on while a shape is being placed, when the buttons rest.
void FrmViewUnfold::Teclas() {
  constexpr double kAmpliacion = 1.25;
  constexpr int kTrecho = 60;
  constexpr QPoint kSentidos[]{{kTrecho, 0}, {-kTrecho, 0}, {0, kTrecho}, {0, -kTrecho}};  // of the keys' row
  const auto boton = [this](const char* nombre) -> QPushButton& { return *FrmZoom_->findChild<QPushButton*>(nombre); };
  PonTeclas(boton("CmdZoomAll"), [this](int) { EWdraw_.EwZoomAll(); });
  PonTeclas(boton("CmdZoom"),
            [this](int i) { lienzo_->Amplia(i == 0 ? kAmpliacion : 1 / kAmpliacion, lienzo_->rect().center()); });
  PonTeclas(boton("cmdmove"), [this, kSentidos](int i) { lienzo_->Desplaza(kSentidos[i]); });
  PonAyuda(*this);
}

// The drawing widget looks at the control, which would go before it.
FrmViewUnfold::~FrmViewUnfold() { delete lienzo_; }

// An undo brings back what stood: the key may have been hit by mistake.
void FrmViewUnfold::CmdDesplegado() {
  if (conocidos_.empty()) guardados_.clear();
  Empieza(std::exchange(conocidos_, {}), colocador_->Elegidas());
}

void FrmViewUnfold::Empieza(Sitios conocidos, Sitios antes) {
  colocador_->Empieza([this] { return DesarrolloDe(*estado.pieza, solido_); }, std::move(conocidos), std::move(antes));
  DespliegaHoja();
}

void FrmViewUnfold::Hereda(const FrmViewUnfold& otro) {
  if (otro.pieza_.regla != pieza_.regla) CmdExacto_->click();
  const FormatoHoja& suyo = otro.formato_;
  if (otro.sitios_.empty() || suyo.milimetros != formato_.milimetros || suyo.caja != formato_.caja) return;
  conocidos_ = otro.sitios_;
  guardados_ = otro.guardados_;
  heredada_ = true;
}

// The window may be closed, or the program end, while the unfolding waits for a pick.
void FrmViewUnfold::DespliegaHoja() {
  const QPointer<FrmViewUnfold> vivo(this);
  lienzo_->setFocus();  // a disabled button would hand its focus to the one that closes the window
  hoja_ = {};
  sitios_.clear();
  pendiente_ = descartada_ = false;
  LimpiaEstado();
  CmdSave_->setEnabled(false);
  CmdExport_->setEnabled(false);
  CmdDesplegado_->setEnabled(false);
  CmdExacto_->setEnabled(false);
  CmdSolido_->setEnabled(false);
  if (FrmView_->isEnabled()) EWdraw_.CambiaModelo(otra_);
  MuestraSolido(false);
  ++corridas_;
  Corrida corrida = colocador_->Despliega();
  --corridas_;
  if (!vivo) return;
  pendiente_ = corrida.sitios != guardados_ && !colocador_->Repartida() && estado.oDrawing->Count() > 0;
  if (corrida.fin == FinCorrida::completo) sitios_ = std::move(corrida.sitios);
  AnotaEstado();
  MuestraVeredicto(corrida);
  hoja_ = std::move(corrida.hoja);
  CmdDesplegado_->setEnabled(true);
  CmdExacto_->setEnabled(true);
  CmdSolido_->setEnabled(true);
  CmdSave_->setEnabled(estado.oDrawing->Count() > 0);
  CmdExport_->setEnabled(!hoja_.formas.empty());
}

// The other rule has another solid, and another pattern in the same places where one stands.
void FrmViewUnfold::CmdExacto() {
  CambiaRegla();
  AnotaEstado();
  solido_ = SolidoDe(*estado.pieza);
  DibujaSolido(FrmView_->isEnabled() ? EWdraw_ : otra_, solido_);
  if (CmdSolido_->isEnabled()) return Empieza(colocador_->Elegidas(), {});
  EWdraw_.EwRegen();
}

void FrmViewUnfold::CmdSolido() {
  lienzo_->setFocus();
  colocador_->CancelaArrastre();
  EWdraw_.CambiaModelo(otra_);
  MuestraSolido(!FrmView_->isEnabled());
  EWdraw_.EwRegen();
}

void FrmViewUnfold::MuestraSolido(bool solido) {
  FrmView_->setEnabled(solido);
  FrmZoom_->findChild<QPushButton*>("cmdorbit")->setEnabled(solido);
  lienzo_->PermiteOrbitar(solido);
  lienzo_->PonSolido(solido && !cmdAlambre_->isChecked() ? &solido_ : nullptr);
  MarcaVista();
}

void FrmViewUnfold::MarcaVista() {
  for (const VistaFija& vista : VistasFijas()) {
    const bool suya = FrmView_->isEnabled() && EWdraw_.DireccionVista() == vista.direccion;
    FrmView_->findChild<QPushButton*>(QString::fromUtf8(vista.boton.data()))->setChecked(suya);
  }
}

bool FrmViewUnfold::CmdSave() {
  RecuperaEstado();
  const std::string fichero = GuardaConNombre(*this);
  if (fichero.empty()) return false;
  SitiosGuardados();
  const bool portatil = EsNombrePortatil(fichero.substr(fichero.rfind('/') + 1));
  PonHecho(Q(Texto(texto::kGuardadoEn) + " " + fichero + (portatil ? "" : " - " + Texto(texto::kNombreAjeno))));
  return true;
}

void FrmViewUnfold::SitiosGuardados() {
  pendiente_ = false;
  guardados_ = sitios_;
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
  if (std::exchange(heredada_, false)) QTimer::singleShot(0, this, &FrmViewUnfold::CmdDesplegado);
}

void FrmViewUnfold::resizeEvent(QResizeEvent*) {
  proporcion_.Escala(size());
  if (!lienzo_->Eligiendo()) PonEstado(LblEstado_->toolTip());
}

// Escape ends what is going on, the innermost first: a pick, a drag, a command of the mouse, the window.
void FrmViewUnfold::keyPressEvent(QKeyEvent* suceso) {
  if (suceso->key() == Qt::Key_Escape && lienzo_->Eligiendo()) {
    lienzo_->CancelaEleccion();
  } else if (suceso->key() == Qt::Key_Escape && colocador_->CancelaArrastre()) {
    return;
  } else if (suceso->key() == Qt::Key_Escape ? !lienzo_->TerminaMando() : !PulsaConEnter(*this, *suceso)) {
    QDialog::keyPressEvent(suceso);
  }
}

}  // namespace duktores
