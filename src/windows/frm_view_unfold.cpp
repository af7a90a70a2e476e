#include "windows/frm_view_unfold.h"

#include <QKeyEvent>
#include <QPointer>
#include <QShortcut>
#include <array>

#include "dxf/dibujo.h"
#include "piece/numeros_texto.h"
#include "shell/juicio.h"
#include "shell/lista.h"
#include "shell/nombre_pieza.h"
#include "shell/nombres.h"
#include "shell/texto_linea.h"
#include "shell/texto_veredicto.h"
#include "shell/visor.h"
#include "state/estado.h"
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
constexpr const char* kAviso = "background: #c00000; color: white; font-weight: bold;";
QString Q(const std::string& texto) { return QString::fromStdString(texto); }

}  // namespace

FrmViewUnfold::FrmViewUnfold(QWidget* padre)
    : QDialog(padre),
      proporcion_(*this, kDiseno),
      lienzo_(new Lienzo(EWdraw_, this)),
      colocador_(new Colocador(EWdraw_, *lienzo_)),
      FrmView_(new QGroupBox(this)),
      FrmZoom_(new QGroupBox(this)),
      LblEstado_(new QLabel(this)) {
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
  connect(suelto("CmdCancelar", texto::kCierraVisor), &QPushButton::clicked, this, &FrmViewUnfold::reject);
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

void FrmViewUnfold::CmdDesplegado() {
  colocador_->Empieza([this] { return DesarrolloDe(*estado.pieza, solido_); });
  DespliegaHoja();
}

// The window may be closed, or the program end, while the unfolding waits for a pick.
void FrmViewUnfold::DespliegaHoja() {
  const QPointer<FrmViewUnfold> vivo(this);
  lienzo_->setFocus();  // a disabled button would hand its focus to the one that closes the window
  hoja_ = {};
  LimpiaEstado();
  CmdSave_->setEnabled(false);
  CmdExport_->setEnabled(false);
  CmdDesplegado_->setEnabled(false);
  CmdExacto_->setEnabled(false);
  CmdSolido_->setEnabled(false);
  if (FrmView_->isEnabled()) EWdraw_.CambiaModelo(otra_);
  MuestraSolido(false);
  Corrida corrida = colocador_->Despliega();
  if (!vivo) return;
  MuestraVeredicto(corrida);
  hoja_ = std::move(corrida.hoja);
  CmdDesplegado_->setEnabled(true);
  CmdExacto_->setEnabled(true);
  CmdSolido_->setEnabled(true);
  CmdSave_->setEnabled(estado.oDrawing->Count() > 0);
  CmdExport_->setEnabled(!hoja_.formas.empty());
}

// The other rule has another solid, and another pattern where one stands.
void FrmViewUnfold::CmdExacto() {
  CambiaRegla();
  solido_ = SolidoDe(*estado.pieza);
  DibujaSolido(FrmView_->isEnabled() ? EWdraw_ : otra_, solido_);
  if (CmdSolido_->isEnabled()) return CmdDesplegado();
  EWdraw_.EwRegen();
}

void FrmViewUnfold::CmdSolido() {
  lienzo_->setFocus();
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

void FrmViewUnfold::CmdSave() {
  const std::string fichero = GuardaConNombre(*this);
  if (fichero.empty()) return;
  const bool portatil = EsNombrePortatil(fichero.substr(fichero.rfind('/') + 1));
  PonHecho(Q(Texto(texto::kGuardadoEn) + " " + fichero + (portatil ? "" : " - " + Texto(texto::kNombreAjeno))));
}

void FrmViewUnfold::PonHecho(const QString& hecho) { PonEstado(hecho + " - " + lineaVeredicto_); }

void FrmViewUnfold::LimpiaEstado() {
  LblEstado_->clear();
  LblEstado_->setToolTip({});
  LblEstado_->setStyleSheet({});
}

// What stands there while nothing is pointed at. The tooltip has what the line has no room for.
void FrmViewUnfold::PonEstado(const QString& linea) {
  LblEstado_->setText(LblEstado_->fontMetrics().elidedText(linea, Qt::ElideRight, LblEstado_->width()));
  LblEstado_->setToolTip(linea);
}

void FrmViewUnfold::MuestraEleccion(bool empieza) {
  CursorEspera(!empieza);
  FrmZoom_->setEnabled(!empieza);  // the left button places the shape; wheel and middle button still move the view
  LimpiaEstado();
  if (empieza) lienzo_->setFocus();
}

void FrmViewUnfold::MuestraPunto(QPointF punto) {
  const int decimales = estado.iUnidad == 1 ? 2 : 3;
  const std::string& rotulo = EWdraw_.RotuloFantasma();
  const QString solapes = colocador_->SolapesEn(punto), estilo = solapes.isEmpty() ? "" : kAviso;
  if (LblEstado_->styleSheet() != estilo) LblEstado_->setStyleSheet(estilo);
  LblEstado_->setText((rotulo.empty() ? QString() : Q(rotulo) + ": ") +
                      (solapes.isEmpty() ? Q(Texto(texto::kElige)) : solapes) +
                      QString("    X %1   Y %2").arg(punto.x(), 0, 'f', decimales).arg(punto.y(), 0, 'f', decimales));
}

// A pattern that is incomplete or not true is told in a colour that nobody overlooks; it never stops the work.
void FrmViewUnfold::MuestraVeredicto(const Corrida& corrida) {
  const bool completo = corrida.fin == FinCorrida::completo;
  veredicto_ = completo ? Juzga(*estado.pieza, solido_, corrida.hoja) : Veredicto();
  const QString solapes = colocador_->Solapes();
  lineaVeredicto_ = (solapes.isEmpty() ? QString() : solapes + ". ") +
                    Q(completo ? TextoVeredicto(veredicto_) : Texto(texto::kIncompleto));
  const bool bien = completo && veredicto_.Cierto() && solapes.isEmpty();
  LblEstado_->setStyleSheet(bien ? "" : kAviso);
  LblEstado_->ensurePolished();  // bold letters are wider
  PonEstado(lineaVeredicto_);
}

// What the line under the pointer is; away from all lines the verdict.
void FrmViewUnfold::MuestraLinea(QPointF punto, double alcance) {
  if (hoja_.formas.empty()) return;
  const auto cercana = FrmView_->isEnabled() ? std::nullopt : LineaCercana(hoja_, {punto.x(), punto.y()}, alcance);
  cercana ? LblEstado_->setText(Q(TextoLinea(*cercana, solido_))) : MuestraArrastre({});
}

// What is dragged onto something; else the verdict.
void FrmViewUnfold::MuestraArrastre(const QString& solapes) {
  const QString linea = solapes.isEmpty() ? LblEstado_->toolTip() : solapes;
  LblEstado_->setText(LblEstado_->fontMetrics().elidedText(linea, Qt::ElideRight, LblEstado_->width()));
}

void FrmViewUnfold::done(int resultado) {
  lienzo_->CancelaEleccion();
  QDialog::done(resultado);
}

void FrmViewUnfold::showEvent(QShowEvent* suceso) {
  QDialog::showEvent(suceso);
  TraeAlFrente(*this);
}

void FrmViewUnfold::resizeEvent(QResizeEvent*) { proporcion_.Escala(size()); }

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
