#include "windows/fr_dialogo.h"

#include <QRadioButton>
#include <QShortcut>
#include <algorithm>
#include <utility>

#include "jobs/llenado.h"
#include "jobs/memoria.h"
#include "piece/numeros_texto.h"
#include "state/estado.h"
#include "state/textos.h"
#include "windows/boton_abre.h"
#include "windows/campo_texto.h"
#include "windows/ficheros_pieza.h"
#include "windows/fr_ajustes.h"
#include "windows/fr_manual.h"
#include "windows/iconos.h"
#include "windows/imagen.h"
#include "windows/registros.h"
#include "windows/solido_vivo.h"
#include "windows/teclas.h"
#include "windows/ventanas.h"

namespace duktores {

namespace {

constexpr int kMargen = 12, kAltoFila = 31, kAltoControl = 26;
constexpr int kAnchoRotulo = 186, kAnchoControl = 96, kAnchoColumna = kAnchoRotulo + kAnchoControl + 24;
constexpr int kAnchoImagen = 420, kAltoImagen = 340, kAltoPie = 46, kAltoAjustes = 34, kAltoBarra = 44;
constexpr int kFilasPorColumna = 11, kAltoBoton = 34;

int Columnas(const DefDialogo& def) { return static_cast<int>(def.campos.size()) > kFilasPorColumna ? 2 : 1; }

int Filas(const DefDialogo& def) { return (static_cast<int>(def.campos.size()) + Columnas(def) - 1) / Columnas(def); }

// The solid stands beside one column of fields and below two.
QRect LugarVivo(const DefDialogo& def) {
  constexpr int kAnchoVivo = 260, kAltoVivo = 212;
  const int x = 2 * kMargen + kAnchoImagen, bajo = 2 * kMargen + Filas(def) * kAltoFila;
  if (Columnas(def) == 1) return {x + kAnchoColumna, kMargen, kAnchoVivo, kAltoImagen};
  return {x, bajo, 2 * kAnchoColumna - kMargen, std::max(kAltoVivo, kMargen + kAltoImagen - bajo)};
}

QSize Diseno(const DefDialogo& def) {
  const QRect vivo = LugarVivo(def);
  return {vivo.x() + vivo.width() + kMargen, vivo.y() + vivo.height() + kMargen + kAltoAjustes + kAltoPie + kAltoBarra};
}

QString Q(std::string_view texto) { return QString::fromUtf8(texto.data(), static_cast<qsizetype>(texto.size())); }

}  // namespace

FrDialogo::FrDialogo(const FilaPieza& fila, QWidget* padre)
    : QDialog(padre),
      dialogo_(fila.dialogo),
      columnas_(Columnas(fila.dialogo)),
      proporcion_(*this, Diseno(fila.dialogo)) {
  const DefDialogo& def = fila.dialogo;
  setObjectName(Q(def.nombre));
  textos_.Pon([this] { setWindowTitle(dialogo_.Titulo() ? Q(*dialogo_.Titulo()) : Q("duktores")); });
  auto* image1 = new Imagen(this);
  image1->setObjectName("Image1");
  image1->Carga(fila.imagen);
  const int pie = Diseno(def).height() - kAltoBarra - kAltoPie;
  proporcion_.Coloca(*image1, {kMargen, kMargen, kAnchoImagen, pie - 2 * kMargen});
  Campos();
  vivo_ = new SolidoVivo(this);
  proporcion_.Coloca(*vivo_, LugarVivo(def));
  Vivo();
  Ajustes(pie - kAltoAjustes);
  Pie(pie);
  Barra(pie + kAltoPie);
  PonAyuda(*this);
}

void FrDialogo::Campos() {
  const int cuenta = static_cast<int>(dialogo_.Definicion().campos.size());
  const int filas = Filas(dialogo_.Definicion());
  for (int i = 0; i < cuenta; ++i) {
    const int x = 2 * kMargen + kAnchoImagen + i / filas * kAnchoColumna, y = kMargen + i % filas * kAltoFila;
    auto* rotulo = new QLabel(this);
    textos_.Pon([=, this] { rotulo->setText(Q(dialogo_.TextoRotulo(i))); });
    proporcion_.Coloca(*rotulo, {x, y, kAnchoRotulo, kAltoControl});
    controles_.push_back(ControlDe(i));
    proporcion_.Coloca(*controles_.back(), {x + kAnchoRotulo, y, kAnchoControl, kAltoControl});
    rotulo->setBuddy(controles_.back());
  }
  if (!dialogo_.Definicion().opcionPiezas) return;
  const int x = 2 * kMargen + kAnchoImagen, y = kMargen + filas * kAltoFila;
  auto* una = new QRadioButton(this);
  auto* dos = new QRadioButton(this);
  textos_.Pon([=] {
    una->setText(Q(Texto(texto::kUnaPieza)));
    dos->setText(Q(Texto(texto::kDosPiezas)));
  });
  una->setObjectName("OpUnapieza");
  dos->setObjectName("OpDosPiezas");
  dos->setChecked(dialogo_.dosPiezas);
  connect(dos, &QRadioButton::toggled, this, [this](bool elegido) {
    dialogo_.dosPiezas = elegido;
    Vivo();
  });
  proporcion_.Coloca(*una, {x, y, kAnchoColumna / 2, kAltoControl});
  proporcion_.Coloca(*dos, {x + kAnchoColumna / 2, y, kAnchoColumna / 2 - kMargen, kAltoControl});
}

// The widget holds the text, the dialog object a copy of it.
QWidget* FrDialogo::ControlDe(int campo) {
  const DefCampo& def = dialogo_.Definicion().campos[static_cast<std::size_t>(campo)];
  if (def.filtro) {
    auto* texto = new TextoFiltrado(def.filtro, this);
    texto->setObjectName(Q(def.nombre));
    texto->setText(Q(dialogo_.CampoDe(campo).texto));
    connect(texto, &QLineEdit::textChanged, this, [this, campo](const QString& nuevo) {
      dialogo_.CampoDe(campo).texto = nuevo.toStdString();
      OlvidaError(campo);
      Vivo();
    });
    connect(texto, &TextoFiltrado::rechazado, this,
            [this, campo](const QString& motivo) { MuestraError(campo, motivo); });
    return texto;
  }
  auto* lista = new ListaFija(this);
  lista->setObjectName(Q(def.nombre));
  for (const std::string_view valor : def.valores) lista->addItem(Q(valor));
  lista->setCurrentIndex(-1);
  connect(lista, &QComboBox::currentTextChanged, this, [this, campo](const QString& nuevo) {
    dialogo_.Elige(campo, nuevo.toStdString());
    OlvidaError(campo);
    Vivo();
  });
  return lista;
}

void FrDialogo::Vivo() {
  LimpiaRegistros();
  vivo_->Muestra(dialogo_.Lee());
}

// Under the fields: what isn't typed here but by the settings.
void FrDialogo::Ajustes(int y) {
  auto* ajustes = new QPushButton(this);
  ajustes->setFlat(true);
  ajustes->setStyleSheet("text-align: left");
  ajustes->setCursor(Qt::PointingHandCursor);
  textos_.Pon([ajustes] {
    ajustes->setText(ResumenAjustes());
    PonBoton(*ajustes, "CmdAjustes", Q(Texto(texto::kAjustes)) + TextoTeclas("CmdAjustes"));
  });
  ConectaAjustes(*ajustes);
  auto* manual = new QPushButton(this);
  textos_.Pon([manual] { PonBotonManual(*manual); });
  ConectaManual(*manual);
  const int x = 2 * kMargen + kAnchoImagen, fin = Diseno(dialogo_.Definicion()).width() - kMargen;
  proporcion_.Coloca(*ajustes, {x, y, fin - kAltoBoton - kMargen - x, kAltoAjustes - 4});
  proporcion_.Coloca(*manual, {fin - kAltoBoton, y, kAltoBoton, kAltoAjustes - 4});
}

void FrDialogo::Pie(int y) {
  constexpr int kAnchoBoton = 130;
  lblerror_ = new QLabel(this);
  lblerror_->setObjectName("lblerror");
  lblerror_->setAlignment(Qt::AlignCenter);
  lblerror_->setTextFormat(Qt::PlainText);
  lblerror_->setWordWrap(true);
  lblerror_->setStyleSheet("QLabel { background: #c62828; color: white; font-weight: bold; border-radius: 4px; }");
  lblerror_->hide();
  proporcion_.Coloca(*lblerror_, {kMargen, y, kAnchoImagen, kAltoBoton});

  auto* aceptar = new QPushButton(this);
  auto* cancelar = new QPushButton(this);
  textos_.Pon([=, this] {
    const bool chino = estado.dIdioma == kChino;
    aceptar->setText(Q(Texto(texto::kAceptar)));
    cancelar->setText(Q(Texto(texto::kCancelar)));
    PonBoton(*aceptar, "CmdAceptar", chino ? QString() : aceptar->text());
    PonBoton(*cancelar, "CmdCancelar", chino ? QString() : cancelar->text());
    if (!chino) cancelar->setToolTip(cancelar->toolTip() + TextoTeclas("CmdCancelar"));
    if (lblerror_->toolTip().isEmpty()) return lblerror_->hide();  // why something wasn't pasted
    lblerror_->setText(Q(Texto(dialogo_.Definicion().textoError)));
    lblerror_->setToolTip(Q(dialogo_.Lee().reparo));
  });
  aceptar->setDefault(true);
  const int derecha = Diseno(dialogo_.Definicion()).width() - kMargen;
  proporcion_.Coloca(*aceptar, {derecha - 2 * kAnchoBoton - kMargen, y, kAnchoBoton, kAltoBoton});
  proporcion_.Coloca(*cancelar, {derecha - kAnchoBoton, y, kAnchoBoton, kAltoBoton});
  connect(aceptar, &QPushButton::clicked, this, &FrDialogo::CmdAceptar);
  connect(cancelar, &QPushButton::clicked, this, &FrDialogo::reject);
}

void FrDialogo::MuestraError(int campo, const QString& texto) {
  campoError_ = campo;
  lblerror_->setText(texto);
  lblerror_->setToolTip({});
  lblerror_->setVisible(!texto.isEmpty());
}

// What it says of a field holds until that field changes.
void FrDialogo::OlvidaError(int campo) {
  if (campo == campoError_) lblerror_->hide();
}

// What spares typing, in four cells of one width.
void FrDialogo::Barra(int y) {
  constexpr int kHueco = 6, kCeldas = 4;
  const int ancho = (Diseno(dialogo_.Definicion()).width() - 2 * kMargen - (kCeldas - 1) * kHueco) / kCeldas;
  int x = kMargen;
  const auto coloca = [&](QAbstractButton& boton) {
    boton.setIconSize({18, 18});
    proporcion_.Coloca(boton, {x, y, ancho, kAltoBoton});
    x += ancho + kHueco;
  };
  const auto boton = [&](std::string_view nombre, int texto, auto hace) {
    auto* nuevo = new QPushButton(this);
    textos_.Pon([=] {
      nuevo->setText(Q(Texto(texto)));
      PonBoton(*nuevo, nombre, nuevo->text() + TextoTeclas(Q(nombre)));
    });
    nuevo->setAutoDefault(false);
    coloca(*nuevo);
    connect(nuevo, &QPushButton::clicked, this, hace);
    return nuevo;
  };
  CmdUltimos_ = boton("CmdUltimos", texto::kUltimosValores, [this] {
    if (Dialogo lleno = dialogo_; LlenaUltimos(lleno)) Pon(lleno);
  });
  connect(new QShortcut(Qt::CTRL | Qt::Key_L, this), &QShortcut::activated, CmdUltimos_, &QPushButton::click);
  QStringList ceros;
  for (const DefCampo& campo : dialogo_.Definicion().campos) {
    if (campo.uso == Uso::desvio) ceros += Q(campo.palabra);
  }
  auto* cero = boton("CmdCeros", texto::kCeros, [this] {
    Dialogo lleno = dialogo_;
    lleno.PonCeros();
    Pon(lleno);
  });
  textos_.Pon([=] { cero->setText(ceros.join(", ") + " = 0"); });
  auto* abre = new BotonAbre(this);
  textos_.Pon([abre] { abre->PonTexto(); });
  coloca(*abre);
  connect(abre, &BotonAbre::elegido, this, &FrDialogo::CmdAbre);
  boton("CmdGuardaPieza", texto::kGuardaPieza, [this] { CmdGuardaPieza(); });
}

void FrDialogo::Pon(const Dialogo& lleno) {
  dialogo_ = lleno;
  for (std::size_t i = 0; i < controles_.size(); ++i) {
    const QString texto = Q(lleno.CampoDe(static_cast<int>(i)).texto);
    if (auto* campo = qobject_cast<QLineEdit*>(controles_[i])) {
      if (campo->text() == texto) continue;
      campo->selectAll();
      campo->insert(texto);  // which the field can undo
    } else if (auto* lista = qobject_cast<QComboBox*>(controles_[i])) {
      lista->setCurrentIndex(lista->findText(texto));
    }
  }
  for (const char* opcion : {"OpUnapieza", "OpDosPiezas"}) {
    auto* boton = findChild<QRadioButton*>(opcion);
    if (boton && (boton->objectName() == "OpDosPiezas") == lleno.dosPiezas) boton->setChecked(true);
  }
}

void FrDialogo::Pon(const PiezaAbierta& abierta) {
  if (FrmViewUnfold::Colocando()) return;
  Pon(abierta.dialogo);
  abierta_ = TrabajoDe(dialogo_, abierta.trabajo.nombre);
  abierta_.puntos = abierta.trabajo.puntos;
  if (abierta_.puntos) SueltaVisor();  // which may show the same values in other places
  recienAbierta_ = !isVisible();
}

Trabajo FrDialogo::Pieza() const {
  Trabajo trabajo = TrabajoDe(dialogo_, abierta_.nombre);
  if (trabajo.valores == abierta_.valores) trabajo.puntos = abierta_.puntos;
  if (MuestraVisor(trabajo)) trabajo.puntos = visor_->SitiosPatron();
  return trabajo;
}

bool FrDialogo::MuestraVisor(const Trabajo& trabajo) const {
  return visor_ && trabajo.valores == aceptados_ && !visor_->SitiosPatron().empty();
}

void FrDialogo::CmdGuardaPieza() {
  const Trabajo trabajo = Pieza();
  QWidget* sobre = isVisible() ? this : parentWidget();  // the catalogue saves it too
  if (GuardaPieza(*sobre, trabajo) && MuestraVisor(trabajo)) visor_->SitiosGuardados();
}

void FrDialogo::CmdAbre(const QString& ruta) {
  const auto abierta = AbrePieza(*this, ruta.toStdString());
  if (!abierta) return;
  if (abierta->fila.tipo == dialogo_.Definicion().tipo) return Pon(*abierta);
  emit otraPieza(*abierta);
  reject();
}

void FrDialogo::Activa() {
  dialogo_.Activa();
  if (auto* dos = findChild<QRadioButton*>("OpDosPiezas"); dos && dialogo_.dosPiezas) dos->setChecked(true);
  controles_.front()->setFocus(Qt::ActiveWindowFocusReason);
}

void FrDialogo::showEvent(QShowEvent* suceso) {
  QDialog::showEvent(suceso);
  const Dialogo abierto = dialogo_;
  Activa();
  CmdUltimos_->setEnabled(HayUltimos(dialogo_));
  if (std::exchange(recienAbierta_, false)) Pon(abierto);  // with the file's choice of pieces
}

void FrDialogo::resizeEvent(QResizeEvent*) { proporcion_.Escala(size()); }

// What is typed stays as it is, under new labels.
void FrDialogo::customEvent(QEvent* suceso) {
  if (suceso->type() != ConfiguracionLeida::Tipo()) return;
  textos_.Renueva();
  Vivo();
  CmdUltimos_->setEnabled(HayUltimos(dialogo_));
}

// A window that it has closed may still be on its way back to it.
void FrDialogo::SueltaVisor() {
  if (visor_) visor_.release()->deleteLater();
}

void FrDialogo::CmdAceptar() {
  if (FrmViewUnfold::Colocando()) return;
  const Respuesta respuesta = dialogo_.CmdAceptar();
  if (respuesta != Respuesta::campoVacio) {  // which has had its box
    MuestraError(dialogo_.Foco(), Q(dialogo_.lblerror()));
    lblerror_->setToolTip(Q(dialogo_.Lee().reparo));
  }
  if (respuesta != Respuesta::aceptado) {
    controles_[static_cast<std::size_t>(dialogo_.Foco())]->setFocus(Qt::OtherFocusReason);
    return;
  }
  PonUltimos(dialogo_);
  CmdUltimos_->setEnabled(HayUltimos(dialogo_));
  const auto antes = std::exchange(aceptados_, TrabajoDe(dialogo_, {}).valores);
  if (!visor_ || !visor_->Muestra(*estado.pieza)) {
    const bool deFichero = aceptados_ == abierta_.valores && abierta_.puntos;
    auto nuevo = std::make_unique<FrmViewUnfold>(this, deFichero ? *abierta_.puntos : Sitios());
    if (visor_ && aceptados_ == antes) nuevo->Hereda(*visor_);
    SueltaVisor();
    visor_ = std::move(nuevo);
  }
  visor_->exec();
  Activa();
}

}  // namespace duktores
