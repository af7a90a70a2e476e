#include "windows/forma_chapas.h"

#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <cmath>

#include "piece/numeros_texto.h"
#include "state/estado.h"
#include "state/numeros.h"
#include "state/propio.h"
#include "state/textos.h"

namespace duktores {

namespace {

constexpr std::size_t kTamanos = 3;
constexpr double kLargoMaximo = 1e5, kCuantasMaximo = 1e4, kSegundosMaximo = 86400;
constexpr int kGiros[]{0, 180, 90, 45, 30, 15};
constexpr const char* kClaveGiro = "Turn";

QString Q(const std::string& texto) { return QString::fromStdString(texto); }

const char* Seccion() { return estado.iUnidad == 1 ? "SHEETS_MM" : "SHEETS_INCHES"; }

/// Before anything is remembered.
struct Principio {
  const char *clave, *milimetros, *pulgadas;
};
constexpr Principio kPrincipios[]{{"Width1", "2500", "96"}, {"Height1", "1250", "48"}, {"Gap", "5", "0.2"},
                                  {"Margin", "10", "0.4"},  {"Seconds", "10", "10"},   {kClaveGiro, "90", "90"}};

std::string ValorDe(std::string_view clave) {
  if (const auto valor = LeePropio(Seccion(), clave)) return *valor;
  for (const Principio& p : kPrincipios) {
    if (clave == p.clave) return estado.iUnidad == 1 ? p.milimetros : p.pulgadas;
  }
  return {};
}

}  // namespace

FormaChapas::FormaChapas(QWidget* padre) : QWidget(padre), CmbGiro_(new QComboBox(this)) {
  auto* fila = new QHBoxLayout(this);
  fila->setContentsMargins(0, 0, 0, 0);
  fila->setSpacing(16);
  auto* tamanos = new QGridLayout;
  auto* reglas = new QGridLayout;
  fila->addLayout(tamanos, 3);
  fila->addLayout(reglas, 4);
  for (QGridLayout* rejilla : {tamanos, reglas}) {
    rejilla->setVerticalSpacing(4);
    rejilla->setAlignment(Qt::AlignTop);
  }
  setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
  AnadeTamanos(*tamanos);
  AnadeReglas(*reglas);
}

FormaChapas::Campo& FormaChapas::Anade(const std::string& clave, int rotulo, double minimo, double maximo) {
  auto* texto = new QLineEdit(Q(ValorDe(clave)), this);
  texto->setObjectName(Q("Txt" + clave));
  texto->setMaxLength(12);
  texto->setMinimumWidth(64);
  return campos_.emplace_back(Campo{clave, texto, Q(Texto(rotulo)), minimo, maximo, false});
}

void FormaChapas::AnadeTamanos(QGridLayout& rejilla) {
  const QString unidad = " (" + Q(Texto(estado.iUnidad == 1 ? texto::kMilimetros : texto::kPulgadas)) + ")";
  rejilla.addWidget(new QLabel(Q(Texto(texto::kAnchoChapa)) + unidad), 0, 0);
  rejilla.addWidget(new QLabel(Q(Texto(texto::kAltoChapa)) + unidad), 0, 1);
  rejilla.addWidget(new QLabel(Q(Texto(texto::kCantidad))), 0, 2);
  for (std::size_t i = 1; i <= kTamanos; ++i) {
    const std::string n = std::to_string(i);
    const int fila = static_cast<int>(i);
    rejilla.addWidget(Anade("Width" + n, texto::kAnchoChapa, 1, kLargoMaximo).texto, fila, 0);
    rejilla.addWidget(Anade("Height" + n, texto::kAltoChapa, 1, kLargoMaximo).texto, fila, 1);
    Campo& cuantas = Anade("Count" + n, texto::kCantidad, 1, kCuantasMaximo);
    cuantas.entero = true;
    cuantas.texto->setPlaceholderText(Q(Texto(texto::kSinLimite)));
    QPalette paleta;  // Qt's own for disabled fields is nearly black
    paleta.setColor(QPalette::Disabled, QPalette::PlaceholderText, palette().color(QPalette::Disabled, QPalette::Text));
    cuantas.texto->setPalette(paleta);
    rejilla.addWidget(cuantas.texto, fila, 2);
  }
}

void FormaChapas::AnadeReglas(QGridLayout& rejilla) {
  const QString unidad = " (" + Q(Texto(estado.iUnidad == 1 ? texto::kMilimetros : texto::kPulgadas)) + ")";
  const auto pon = [&](QWidget* control, const QString& rotulo, int fila) {
    auto* etiqueta = new QLabel(rotulo);
    etiqueta->setBuddy(control);
    rejilla.addWidget(etiqueta, fila, 0);
    rejilla.addWidget(control, fila, 1);
  };
  pon(Anade("Gap", texto::kSeparacion, 0, kLargoMaximo).texto, Q(Texto(texto::kSeparacion)) + unidad, 0);
  pon(Anade("Margin", texto::kMargen, 0, kLargoMaximo).texto, Q(Texto(texto::kMargen)) + unidad, 1);
  for (const int grados : kGiros) {
    const QString cada = Q(Texto(texto::kGiroCada)).arg(grados);
    CmbGiro_->addItem(grados == 0 ? Q(Texto(texto::kSinGiro)) : cada, grados);
  }
  CmbGiro_->setObjectName("CmbTurn");
  CmbGiro_->setCurrentIndex(std::max(0, CmbGiro_->findData(Q(ValorDe(kClaveGiro)).toInt())));
  pon(CmbGiro_, Q(Texto(texto::kGiro)), 2);
  pon(Anade("Seconds", texto::kSegundos, 1, kSegundosMaximo).texto, Q(Texto(texto::kSegundos)), 3);
}

std::optional<double> FormaChapas::Numero(const Campo& campo, QString& reparo) const {
  const auto v = NumeroDeCampo(campo.texto->text().toStdString());
  if (v && *v >= campo.minimo && *v <= campo.maximo && (!campo.entero || *v == std::floor(*v))) return v;
  const QString regla = Q(Texto(campo.entero ? texto::kEnteroEntre : texto::kNumeroEntre));
  reparo = campo.rotulo + ": " + regla.arg(Q(TextoDeNumero(campo.minimo)), Q(TextoDeNumero(campo.maximo)));
  campo.texto->setFocus(Qt::OtherFocusReason);
  campo.texto->selectAll();
  return std::nullopt;
}

// A row without a size is none.
bool FormaChapas::LeeTamanos(PedidoChapas& pedido, QString& reparo) const {
  for (std::size_t i = 0; i < kTamanos; ++i) {
    const Campo &ancho = campos_[3 * i], &alto = campos_[3 * i + 1], &cuantas = campos_[3 * i + 2];
    if (ancho.texto->text().trimmed().isEmpty() && alto.texto->text().trimmed().isEmpty()) continue;
    Existencia existencia;
    const auto x = Numero(ancho, reparo);
    const auto y = x ? Numero(alto, reparo) : std::nullopt;
    if (!y) return false;
    existencia.chapa.tamano = {*x, *y};
    if (!cuantas.texto->text().trimmed().isEmpty()) {
      const auto n = Numero(cuantas, reparo);
      if (!n) return false;
      existencia.chapa.cuantas = static_cast<int>(*n);
    }
    pedido.existencias.push_back(existencia);
  }
  if (!pedido.existencias.empty()) return true;
  reparo = Q(Texto(texto::kUnaChapaAlMenos));
  campos_.front().texto->setFocus(Qt::OtherFocusReason);
  return false;
}

std::optional<PedidoChapas> FormaChapas::Lee(QString& reparo) {
  PedidoChapas pedido;
  if (!LeeTamanos(pedido, reparo)) return std::nullopt;
  const std::size_t primera = 3 * kTamanos;
  const auto hueco = Numero(campos_[primera], reparo);
  if (!hueco) return std::nullopt;
  const auto margen = Numero(campos_[primera + 1], reparo);
  if (!margen) return std::nullopt;
  const auto segundos = Numero(campos_[primera + 2], reparo);
  if (!segundos) return std::nullopt;
  pedido.reglas = {*hueco, *margen, CmbGiro_->currentData().toDouble()};
  pedido.segundos = *segundos;
  Recuerda();
  return pedido;
}

void FormaChapas::Recuerda() const {
  std::deque<std::string> valores;
  std::vector<EntradaIni> entradas;
  const auto pon = [&](std::string_view clave, const QString& valor) {
    entradas.push_back({Seccion(), clave, valores.emplace_back(valor.trimmed().toStdString())});
  };
  for (const Campo& campo : campos_) pon(campo.clave, campo.texto->text());
  pon(kClaveGiro, CmbGiro_->currentData().toString());
  PonPropio(entradas);
}

}  // namespace duktores
