#include "windows/colocador.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QShortcut>
#include <algorithm>
#include <cmath>

#include "piece/numeros_texto.h"
#include "state/textos.h"

namespace duktores {

namespace {

QString Q(const std::string& texto) { return QString::fromStdString(texto); }

}  // namespace

Colocador::Colocador(EWdraw& axew, Lienzo& lienzo)
    : QObject(&lienzo), axew_(axew), lienzo_(lienzo), sostenida_(new TeclaSostenida(this)) {
  Panel();
  Teclas();
  lienzo_.installEventFilter(this);
  lienzo_.PonEncima([this](QPainter& pintor, const Encuadre& encuadre) { Pinta(pintor, encuadre); });
  connect(&lienzo_, &Lienzo::orbitable, this, &Colocador::Muestra);
  connect(&lienzo_, &Lienzo::eligiendo, this, [this](bool empieza) {
    malaPuntero_ = false;
    if (empieza && colocacion_) Recuenta();
    Muestra();
  });
}

void Colocador::Panel() {
  panel_ = new QWidget(&lienzo_);
  panel_->setCursor(Qt::ArrowCursor);
  panel_->move(8, 8);
  auto* fila = new QHBoxLayout(panel_);
  fila->setContentsMargins(0, 0, 0, 0);
  fila->setSizeConstraint(QLayout::SetFixedSize);
  const auto boton = [&](const char* nombre, const QString& texto, int ayuda) {
    auto* nuevo = new QPushButton(texto, panel_);
    nuevo->setObjectName(nombre);
    nuevo->setToolTip(Q(Texto(ayuda)));
    nuevo->setAccessibleName(nuevo->toolTip());
    nuevo->setAutoDefault(false);
    nuevo->setFocusPolicy(Qt::NoFocus);  // the keys stay with the placing
    fila->addWidget(nuevo);
    return nuevo;
  };
  CmdNombres_ = boton("CmdNombres", "Abc", texto::kNombres);
  CmdNombres_->setToolTip(CmdNombres_->toolTip() + " (L)");
  CmdTodas_ = boton("CmdTodas", Q(Texto(texto::kPonTodas)) + " ⏎", texto::kPonTodasAyuda);
  CmdNombres_->setCheckable(true);
  CmdNombres_->setChecked(true);
  panel_->hide();
  connect(CmdTodas_, &QPushButton::clicked, this, [this] { Cambia(&Colocacion::PonTodas); });
  connect(CmdNombres_, &QPushButton::toggled, &lienzo_, [this] { lienzo_.update(); });
}

// The Enter that has closed a prompt's box must not place, however long it is held.
void Colocador::Teclas() {
  const auto tecla = [this](const QKeySequence& clave, bool soloEligiendo, auto hace) {
    auto* atajo = new QShortcut(clave, &lienzo_);
    atajo->setContext(Qt::WindowShortcut);
    atajo->setAutoRepeat(false);
    connect(atajo, &QShortcut::activated, this, [this, hace] {
      if (!sostenida_->Repite()) hace();
    });
    if (!soloEligiendo) return;
    atajo->setEnabled(false);
    connect(&lienzo_, &Lienzo::eligiendo, atajo, &QShortcut::setEnabled);
  };
  const auto cambia = [this](bool (Colocacion::*cambio)()) { return [this, cambio] { Cambia(cambio); }; };
  tecla(Qt::Key_Return, true, cambia(&Colocacion::PonTodas));
  tecla(Qt::Key_Enter, true, cambia(&Colocacion::PonTodas));
  tecla(Qt::Key_N, true, cambia(&Colocacion::PonJunta));
  tecla(Qt::Key_Backspace, false, cambia(&Colocacion::Deshace));
  tecla(Qt::CTRL | Qt::Key_Z, false, cambia(&Colocacion::Deshace));
  tecla(Qt::CTRL | Qt::Key_Y, false, cambia(&Colocacion::Rehace));
  tecla(Qt::CTRL | Qt::SHIFT | Qt::Key_Z, false, cambia(&Colocacion::Rehace));
  tecla(Qt::Key_L, false, [this] { CmdNombres_->toggle(); });
}

void Colocador::Empieza(HaceDesarrollo hace, Sitios conocidos, Sitios antes) {
  colocacion_.emplace(std::move(hace), std::move(conocidos), std::move(antes));
  nombres_.clear();
}

// When all stood before the view stays as it is.
Corrida Colocador::Despliega() {
  const bool enPie = colocacion_->Completa();
  arrastre_.reset();
  malas_.clear();
  Corrida corrida = colocacion_->Despliega(axew_);
  Recuenta();
  if (!enPie) axew_.EwRegen();
  Muestra();
  return corrida;
}

void Colocador::Cambia(bool (Colocacion::*cambio)()) {
  if (!colocacion_ || arrastre_ || lienzo_.Orbitable() || !(*colocacion_.*cambio)()) return;
  lienzo_.Eligiendo() ? lienzo_.CancelaEleccion() : emit redibuja();
}

// One alone needs no name.
bool Colocador::VariasFormas() const { return std::ranges::count(colocacion_->Cosas(), false, &Cosa::bloque) > 1; }

void Colocador::Muestra() {
  if (!colocacion_) return;
  CmdNombres_->setVisible(VariasFormas());
  const bool faltan = lienzo_.Eligiendo() || !colocacion_->Completa();
  CmdTodas_->setVisible(faltan);
  panel_->setVisible(!lienzo_.Orbitable() && (VariasFormas() || faltan));
  panel_->layout()->activate();
  lienzo_.update();
}

void Colocador::Recuenta() {
  const auto& cosas = colocacion_->Cosas();
  const auto& sitios = colocacion_->Puestas();
  if (nombres_.size() != cosas.size()) {
    nombres_.clear();
    for (std::size_t i = 0; i < cosas.size(); ++i) {
      const bool sin = cosas[i].bloque || !VariasFormas();
      nombres_.push_back(sin ? RotuloForma() : RotuloForma(Q(colocacion_->Nombre(i)), cosas[i].contorno));
    }
  }
  malas_.clear();
  QStringList palabras;
  for (std::size_t i = 0; i < std::min(sitios.size(), cosas.size()); ++i) {
    auto con = colocacion_->Solapadas(i, sitios[i]);
    if (!con.empty()) malas_.push_back(i);
    std::erase_if(con, [&](std::size_t otra) { return otra < i; });
    if (!con.empty()) palabras << Palabras(i, con);
  }
  solapes_ = Frase(palabras);
}

QString Colocador::Frase(const QStringList& solapes) const {
  return solapes.isEmpty() ? QString() : Q(Texto(texto::kSolapan)) + " " + solapes.join("; ");
}

QString Colocador::Palabras(std::size_t cosa, const std::vector<std::size_t>& con) const {
  QStringList nombres;
  for (const std::size_t otra : con) nombres << Q(colocacion_->Nombre(otra));
  return Q(colocacion_->Nombre(cosa)) + " - " + nombres.join(", ");
}

QString Colocador::SolapesEn(QPointF punto) {
  const std::size_t cosa = colocacion_->Puestas().size();
  const auto con = colocacion_->Solapadas(cosa, {punto.x(), punto.y()});
  malaPuntero_ = !con.empty();
  return malaPuntero_ ? Frase({Palabras(cosa, con)}) : QString();
}

// Dragging -----------------------------------------------------------------------------------------------------------

// What was drawn last lies on top.
std::optional<std::size_t> Colocador::CosaEn(QPointF punto) const {
  if (!colocacion_ || !colocacion_->Completa() || lienzo_.Orbitable() || lienzo_.Eligiendo() || lienzo_.ConMando()) {
    return {};
  }
  const auto& cosas = colocacion_->Cosas();
  for (std::size_t i = cosas.size(); i-- > 0;) {
    if (cosas[i].fija) continue;
    const Punto2 sitio = colocacion_->Puestas()[i];
    QPolygonF contorno;
    for (const Punto2 p : cosas[i].contorno) contorno << QPointF(p.x + sitio.x, p.y + sitio.y);
    if (contorno.containsPoint(punto, Qt::OddEvenFill)) return i;
  }
  return {};
}

bool Colocador::eventFilter(QObject*, QEvent* suceso) {
  const auto* raton = dynamic_cast<QMouseEvent*>(suceso);
  if (!raton) return false;
  const QPointF punto = lienzo_.Modelo(raton->position());
  switch (suceso->type()) {
    case QEvent::MouseButtonPress: {
      const auto cosa = raton->button() == Qt::LeftButton ? CosaEn(punto) : std::nullopt;
      if (cosa) arrastre_ = {*cosa, punto, punto};
      return cosa.has_value();
    }
    case QEvent::MouseMove:
      if (!arrastre_) {
        if (colocacion_ && raton->buttons() == Qt::NoButton && !lienzo_.Eligiendo() && !lienzo_.ConMando()) {
          CosaEn(punto) ? lienzo_.setCursor(Qt::OpenHandCursor) : lienzo_.unsetCursor();
        }
        return false;
      }
      if (!(raton->buttons() & Qt::LeftButton)) return CancelaArrastre();  // a window on top has had the release
      arrastre_->hasta = punto;
      Arrastra();
      return true;
    case QEvent::MouseButtonRelease:
      if (!arrastre_ || raton->button() != Qt::LeftButton) return false;
      Suelta();
      return true;
    default:
      return false;
  }
}

void Colocador::Arrastra() {
  QStringList palabras;
  const std::size_t cosa = arrastre_->cosa;
  const auto bloque = colocacion_->BloqueDe(cosa);
  const auto mira = [&](std::size_t una, std::optional<std::size_t> otra) {
    const auto con = colocacion_->Solapadas(una, colocacion_->Puestas()[una] + arrastre_->Paso(), otra);
    if (!con.empty()) palabras << Palabras(una, con);
  };
  mira(cosa, bloque);
  if (bloque) mira(*bloque, cosa);
  malaPuntero_ = !palabras.isEmpty();
  emit arrastra(Frase(palabras));
  lienzo_.update();
}

void Colocador::Suelta() {
  const std::size_t cosa = arrastre_->cosa;
  const Punto2 paso = arrastre_->Paso();
  CancelaArrastre();
  constexpr double kTiembla = 3;  // a hand that only clicks
  const QPointF tiembla = lienzo_.Modelo({kTiembla, 0}) - lienzo_.Modelo({});
  if (std::hypot(paso.x, paso.y) > tiembla.x() && colocacion_->Mueve(cosa, paso)) emit redibuja();
}

bool Colocador::CancelaArrastre() {
  if (!arrastre_) return false;
  arrastre_.reset();
  malaPuntero_ = false;
  emit arrastra({});
  lienzo_.update();
  return true;
}

// Painting -----------------------------------------------------------------------------------------------------------

void Colocador::Pinta(QPainter& pintor, const Encuadre& encuadre) const {
  if (!colocacion_ || lienzo_.Orbitable()) return;
  const auto& cosas = colocacion_->Cosas();
  const auto& sitios = colocacion_->Puestas();
  const std::size_t puestas = std::min(sitios.size(), nombres_.size());
  for (std::size_t i = 0; i < puestas; ++i) PintaNombre(pintor, encuadre, i, sitios[i]);
  const auto arrastrada = [&](std::size_t i) {
    return arrastre_ && (i == arrastre_->cosa || i == colocacion_->BloqueDe(arrastre_->cosa));
  };
  for (const std::size_t i : malas_) {
    if (!arrastrada(i)) PintaMal(pintor, encuadre, i, sitios[i]);
  }
  if (lienzo_.Eligiendo() && sitios.size() < cosas.size()) {
    PintaCosa(pintor, encuadre, sitios.size(), {lienzo_.Puntero().x(), lienzo_.Puntero().y()});
  }
  if (!arrastre_) return;
  const std::size_t cosa = arrastre_->cosa;
  PintaCosa(pintor, encuadre, cosa, sitios[cosa] + arrastre_->Paso());
  if (const auto bloque = colocacion_->BloqueDe(cosa)) {
    PintaCosa(pintor, encuadre, *bloque, sitios[*bloque] + arrastre_->Paso());
  }
}

// A thing at a place is the thing seen from so much further.
void Colocador::PintaNombre(QPainter& pintor, Encuadre encuadre, std::size_t cosa, Punto2 sitio) const {
  if (!CmdNombres_->isChecked() || cosa >= nombres_.size()) return;
  encuadre.centro -= QPointF(sitio.x, sitio.y);
  nombres_[cosa].Pinta(pintor, encuadre, lienzo_.size());
}

void Colocador::PintaMal(QPainter& pintor, Encuadre encuadre, std::size_t cosa, Punto2 sitio) const {
  QPolygonF contorno;
  for (const Punto2 p : colocacion_->Cosas()[cosa].contorno) {
    contorno << encuadre.AlDispositivo({p.x + sitio.x, p.y + sitio.y}, lienzo_.size());
  }
  pintor.setPen(QPen(QColor(255, 70, 60), 1));
  pintor.setBrush(QColor(255, 50, 40, 70));
  pintor.drawPolygon(contorno);
}

void Colocador::PintaCosa(QPainter& pintor, Encuadre encuadre, std::size_t cosa, Punto2 sitio) const {
  PintaNombre(pintor, encuadre, cosa, sitio);
  if (malaPuntero_) PintaMal(pintor, encuadre, cosa, sitio);
  encuadre.centro -= QPointF(sitio.x, sitio.y);
  pintor.setOpacity(0.8);
  PintaEntidades(pintor, colocacion_->Cosas()[cosa].dibujo, encuadre, lienzo_.size(), Fondo::oscuro);
  pintor.setOpacity(1);
}

}  // namespace duktores
