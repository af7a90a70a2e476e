#include "windows/lienzo.h"

#include <QElapsedTimer>
#include <QEventLoop>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>
#include <cmath>

namespace duktores {

struct Lienzo::Eleccion {
  QPointer<QEventLoop> bucle;
  std::optional<QPointF> punto;
  bool abierta = true;  // the first answer counts
};

namespace {

constexpr double kMargen = 1.08;       // of the model within the view
constexpr double kPasoRueda = 1.0015;  // zoom of an eighth of a degree of the wheel

QRectF Contorno(const std::vector<Punto2>& fantasma) {
  QPolygonF poligono;
  for (const Punto2 p : fantasma) poligono << QPointF(p.x, p.y);
  return poligono.boundingRect();
}

// A turn of the view keeps this point where it is seen.
Punto3 Centro(const EWdraw& axew) {
  Caja caja;
  for (const Entidad& entidad : axew.Entidades()) {
    const Caja propia = CajaDe(entidad);
    if (propia.Vacia()) continue;
    caja.Incluye(propia.minimo);
    caja.Incluye(propia.maximo);
  }
  return caja.Vacia() ? Punto3{} : 0.5 * (caja.minimo + caja.maximo);
}

}  // namespace

Lienzo::Lienzo(EWdraw& axew, QWidget* padre) : QWidget(padre), axew_(axew) {
  setObjectName("EWdraw");
  setMouseTracking(true);
  setFocusPolicy(Qt::ClickFocus);
  setAttribute(Qt::WA_OpaquePaintEvent);
  axew_.PonVista(this);
}

Lienzo::~Lienzo() {
  CancelaEleccion();
  axew_.PonVista(nullptr);
}

// The loop and the answer don't live in the widget: the widget may be gone when the loop ends. No exception passes the
// event loop; the refused pick is thrown by the control, on the frames of the run.
std::optional<Punto3> Lienzo::EligePunto(EWdraw&) {
  if (eleccion_ || !isVisible()) return std::nullopt;
  const auto eleccion = std::make_shared<Eleccion>();
  eleccion_ = eleccion;
  const QPointer<Lienzo> vivo(this);
  QEventLoop bucle;
  eleccion->bucle = &bucle;
  TerminaMando();
  arrastre_.reset();
  raton_ = mapFromGlobal(QCursor::pos());
  EncuadraEleccion();
  PonPuntero();
  emit eligiendo(true);
  emit apunta(Modelo(raton_));
  bucle.exec();
  if (vivo) {
    eleccion_.reset();
    PonPuntero();
    emit eligiendo(false);
    update();
  }
  if (!eleccion->punto) return std::nullopt;
  return Punto3{eleccion->punto->x(), eleccion->punto->y(), 0};
}

void Lienzo::CancelaEleccion() {
  const auto eleccion = eleccion_;
  if (!eleccion) return;
  eleccion->abierta = false;
  if (eleccion->bucle) eleccion->bucle->quit();
}

void Lienzo::Regenera(EWdraw&) {
  if (eleccion_) return EncuadraEleccion();
  encuadre_ = Ajusta(axew_, size());
  update();
}

void Lienzo::Manda(EWdraw& axew, MandoVista mando) {
  if (mando == MandoVista::zoomAll) return Regenera(axew);
  PonMando(mando_ == mando ? std::nullopt : std::optional(mando));
}

void Lienzo::PonMando(std::optional<MandoVista> mando) {
  if (mando == MandoVista::orbit && !orbita_) mando.reset();
  mando_ = mando;
  arrastre_.reset();
  PonPuntero();
  emit mandoCambiado(mando);
}

bool Lienzo::TerminaMando() {
  if (!mando_) return false;
  PonMando(std::nullopt);
  return true;
}

void Lienzo::PermiteOrbitar(bool permite) {
  orbita_ = permite;
  if (!permite) arrastre_.reset();
  if (!permite && mando_ == MandoVista::orbit) TerminaMando();
  emit orbitable(permite);
}

void Lienzo::PonPuntero() {
  if (eleccion_ || mando_ == MandoVista::zoomWindow) {
    setCursor(Qt::CrossCursor);
  } else if (mando_ == MandoVista::pan) {
    setCursor(Qt::OpenHandCursor);
  } else if (mando_) {
    setCursor(Qt::SizeAllCursor);
  } else {
    unsetCursor();
  }
}

void Lienzo::Encuadra(QRectF plano) {
  const double ancho = plano.width() * kMargen, alto = plano.height() * kMargen;
  if (!(ancho > 0) || !(alto > 0)) return;
  encuadre_ = {plano.center(), std::min(width() / ancho, height() / alto)};
}

// The view during a pick: what is drawn, and beside it room for the shape. An empty drawing shows the shape's
// surroundings, so that the first click makes sense.
void Lienzo::EncuadraEleccion() {
  const QRectF forma = Contorno(axew_.Fantasma());
  if (forma.isEmpty()) return update();
  const QRectF dibujado = ExtensionPintada(axew_);
  const double hueco = 0.2 * std::max(forma.width(), forma.height());
  if (dibujado.isNull()) {
    Encuadra(forma.adjusted(-3 * hueco, -3 * hueco, 3 * hueco, 3 * hueco));
  } else {
    const QRectF sitio(dibujado.right() + hueco, dibujado.top(), forma.width() + hueco, forma.height());
    Encuadra(dibujado.united(sitio));
  }
  Reencuadrado();
}

// The pointer stays and the model has moved under it.
void Lienzo::Reencuadrado() {
  if (eleccion_) emit apunta(Modelo(raton_));
  update();
}

void Lienzo::Desplaza(QPointF paso) {
  encuadre_.centro += QPointF(-paso.x(), paso.y()) / encuadre_.escala;
  Reencuadrado();
}

void Lienzo::Amplia(double factor, QPointF sobre) {
  constexpr double kAlcance = 1e5;  // to both sides of the scale that shows all
  const QPointF fijo = Modelo(sobre);
  const double todo = Ajusta(axew_, size()).escala;
  encuadre_.escala = std::clamp(encuadre_.escala * factor, todo / kAlcance, todo * kAlcance);
  encuadre_.centro += fijo - Modelo(sobre);
  Reencuadrado();
}

void Lienzo::EmpiezaOrbita() {
  const Punto3 d = axew_.DireccionVista();
  if (encuadre_ == orbitado_.ahora && d == orbitado_.direccion) return;
  const QRectF zona = ExtensionPintada(axew_),
               vista = QRectF(Modelo({0, 0}), Modelo(rect().bottomRight())).normalized();
  const double holgura = 1 / encuadre_.escala;
  orbitado_ = {encuadre_, Centro(axew_), vista.adjusted(-holgura, -holgura, holgura, holgura).contains(zona), {}, {}};
  orbitado_.encuadre.centro -= AlPlano(BaseVista(d), orbitado_.eje);
}

// About the model's middle. What was in view whole stays so; of a part that one has zoomed into the view doesn't leave
// the model.
void Lienzo::Orbita(QPointF paso) {
  const Punto3 d = Girada(axew_.DireccionVista(), paso);
  axew_.EwViewDirection(d.x, d.y, d.z);
  encuadre_ = orbitado_.encuadre;
  encuadre_.centro += AlPlano(BaseVista(d), orbitado_.eje);
  const QRectF zona = ExtensionPintada(axew_);
  QSizeF sobra;
  if (orbitado_.entero) {
    constexpr double kBorde = 0.03;
    const double borde = kBorde * std::min(width(), height());
    encuadre_.escala = std::min(encuadre_.escala, Ajusta(zona, size()).escala);
    sobra = ((QSizeF(size()) / 2 - QSizeF(borde, borde)) / encuadre_.escala) - zona.size() / 2;
  } else {
    sobra = zona.size() / 2;
  }
  const QPointF centro = zona.center(), lado(std::max(sobra.width(), 0.0), std::max(sobra.height(), 0.0));
  encuadre_.centro.setX(std::clamp(encuadre_.centro.x(), centro.x() - lado.x(), centro.x() + lado.x()));
  encuadre_.centro.setY(std::clamp(encuadre_.centro.y(), centro.y() - lado.y(), centro.y() + lado.y()));
  orbitado_.ahora = encuadre_;
  orbitado_.direccion = d;
  emit girado();
  update();
}

void Lienzo::PonSolido(const Solido* solido) {
  solido_ = solido;
  update();
}

// What takes long to paint is painted faster while it is dragged.
void Lienzo::paintEvent(QPaintEvent*) {
  constexpr qint64 kLento = 10;
  const auto esmero = arrastre_ && lento_ ? Esmero::veloz : Esmero::fino;
  QElapsedTimer reloj;
  reloj.start();
  PintaCuadro(esmero);
  if (esmero == Esmero::fino) lento_ = reloj.elapsed() >= kLento;
}

void Lienzo::PintaCuadro(Esmero esmero) {
  QPainter pintor(this);
  pintor.setRenderHint(QPainter::Antialiasing);
  if (solido_) {
    constexpr int kTrozosVeloz = 120;
    const Punto3 d = axew_.DireccionVista();
    const SolidoVisto visto = esmero == Esmero::fino ? Mira(*solido_, d) : Mira(*solido_, d, kTrozosVeloz);
    PintaSombreado(pintor, visto, encuadre_, size(), esmero);
    PintaLeyenda(pintor);
  } else {
    Pinta(pintor, axew_, encuadre_, size(), Fondo::oscuro, kPorPulgada, esmero);
  }
  if (orbita_) PintaEjes(pintor, axew_.DireccionVista(), size());
  if (encima_) encima_(pintor, encuadre_);
  if (eleccion_) PintaFantasma(pintor);
  if (arrastre_ == MandoVista::zoomWindow) {
    pintor.setPen(QPen(Qt::white, 0, Qt::DashLine));
    pintor.drawRect(QRectF(inicio_, raton_).normalized());
  }
}

void Lienzo::PintaFantasma(QPainter& pintor) const {
  QPolygonF contorno;
  const QPointF base = Modelo(raton_);
  for (const Punto2 p : axew_.Fantasma()) contorno << encuadre_.AlDispositivo(base + QPointF(p.x, p.y), size());
  pintor.setPen(QPen(QColor(255, 200, 60), 1, Qt::DashLine));
  pintor.setBrush(QColor(255, 200, 60, 40));
  pintor.drawPolygon(contorno);
  pintor.drawLine(raton_ - QPointF(9, 0), raton_ + QPointF(9, 0));
  pintor.drawLine(raton_ - QPointF(0, 9), raton_ + QPointF(0, 9));
}

void Lienzo::resizeEvent(QResizeEvent*) { Regenera(axew_); }

void Lienzo::wheelEvent(QWheelEvent* suceso) {
  Amplia(std::pow(kPasoRueda, suceso->angleDelta().y()), suceso->position());
  if (arrastre_ == MandoVista::orbit) EmpiezaOrbita();
}

void Lienzo::mousePressEvent(QMouseEvent* suceso) {
  inicio_ = raton_ = suceso->position();
  if (suceso->button() == Qt::LeftButton && eleccion_) {
    if (eleccion_->abierta) eleccion_->punto = Modelo(raton_);
    CancelaEleccion();
    return;
  }
  if (suceso->button() == Qt::LeftButton) arrastre_ = mando_;
  if (suceso->button() == Qt::MiddleButton) arrastre_ = MandoVista::pan;
  if (suceso->button() == Qt::RightButton && orbita_) arrastre_ = MandoVista::orbit;
  if (arrastre_ == MandoVista::orbit) EmpiezaOrbita();
  if (arrastre_ == MandoVista::pan) setCursor(Qt::ClosedHandCursor);
}

void Lienzo::mouseMoveEvent(QMouseEvent* suceso) {
  const QPointF paso = suceso->position() - raton_;
  raton_ = suceso->position();
  if (eleccion_) {
    emit apunta(Modelo(raton_));
    update();
  } else if (suceso->buttons() == Qt::NoButton) {
    constexpr double kPuntos = 6;
    emit pasa(Modelo(raton_), kPuntos / encuadre_.escala);
  }
  if (suceso->buttons() == Qt::NoButton) arrastre_.reset();  // a box on top has had the release
  if (!arrastre_) return;
  const MandoVista mando = *arrastre_;
  if (mando == MandoVista::pan) Desplaza(paso);
  if (mando == MandoVista::zoom) Amplia(std::exp(-paso.y() / 120), inicio_);
  if (mando == MandoVista::orbit) Orbita(paso);
  update();
}

void Lienzo::mouseReleaseEvent(QMouseEvent* suceso) {
  constexpr double kMinimo = 4;
  const QRectF ventana = QRectF(inicio_, suceso->position()).normalized();
  if (arrastre_ == MandoVista::zoomWindow && ventana.width() > kMinimo && ventana.height() > kMinimo) {
    Encuadra(QRectF(Modelo(ventana.topLeft()), Modelo(ventana.bottomRight())).normalized());
  }
  arrastre_.reset();
  PonPuntero();
  update();
}

}  // namespace duktores
