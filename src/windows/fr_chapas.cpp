#include "windows/fr_chapas.h"

#include <QDialogButtonBox>
#include <QFileDialog>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QProgressBar>
#include <QPushButton>
#include <QTimer>
#include <cmath>
#include <filesystem>

#include "piece/numeros_texto.h"
#include "state/estado.h"
#include "state/numeros.h"
#include "state/propio.h"
#include "state/textos.h"
#include "windows/guarda.h"
#include "windows/iconos.h"
#include "windows/proporcion.h"
#include "windows/teclas.h"
#include "windows/ventanas.h"

namespace duktores {

namespace {

constexpr QSize kTamano{1000, 720};
constexpr std::string_view kSeccion = "EXPORT", kCarpeta = "SheetsFolder";

QString Q(const std::string& texto) { return QString::fromStdString(texto); }

QPushButton* Boton(int texto, const char* nombre) {
  auto* boton = new QPushButton(Q(Texto(texto)));
  PonBoton(*boton, nombre, {});
  boton->setAutoDefault(false);
  return boton;
}

QString Resumen(const Reparto& reparto) {
  double area = 0, chapas = 0;
  std::size_t partes = 0, cuantas = 0;
  for (std::size_t i = 0; i < reparto.nidos.size(); ++i) {
    const EncargoNido& encargo = (*reparto.lotes)[i].encargo;
    for (const ChapaPuesta& chapa : reparto.nidos[i].chapas) {
      const Punto2 tamano = encargo.chapas[chapa.chapa].tamano;
      area += UsoDe(encargo, chapa) * tamano.x * tamano.y;
      chapas += tamano.x * tamano.y;
      partes += chapa.partes.size();
      ++cuantas;
    }
  }
  const double uso = chapas > 0 ? std::round(10 * kPorCiento * area / chapas) / 10 : 0;
  return Q(Texto(texto::kResumenChapas)).arg(QString::number(cuantas), QString::number(partes), Q(TextoDeNumero(uso)));
}

/// All of them; of many the first ones, the last one and how many there are.
QString Abreviados(const QStringList& lineas, const QString& entre, qsizetype muchas) {
  if (lineas.size() <= muchas) return lineas.join(entre);
  QStringList algunas = lineas.first(muchas - 2);
  algunas << "..." << lineas.last() + " (" + QString::number(lineas.size()) + ")";
  return algunas.join(entre);
}
constexpr qsizetype kMuchos = 10, kMuchasLineas = 25;

}  // namespace

FrChapas::FrChapas(QWidget* padre, std::span<const Trabajo> trabajos)
    : QDialog(padre),
      trabajos_(trabajos.begin(), trabajos.end()),
      forma_(new FormaChapas(this)),
      vista_(new VistaChapas(this)),
      LstFaltan_(new QListWidget(this)),
      lblerror_(EtiquetaError()) {
  setObjectName("FrChapas");
  setWindowTitle(Q(Texto(texto::kChapas)));
  setWindowFlag(Qt::WindowMaximizeButtonHint);
  LstFaltan_->setObjectName("LstFaltan");
  LstFaltan_->setFixedHeight(5 * fontMetrics().lineSpacing());
  LstFaltan_->hide();
  auto* columna = new QVBoxLayout(this);
  columna->addWidget(Panel());
  columna->addWidget(lblerror_);
  columna->addWidget(vista_, 1);
  columna->addWidget(LstFaltan_);
  columna->addWidget(Pie());
  resize(kTamano.boundedTo(SitioLibre(*this)));
  PonAyuda(*this);
  constexpr int kCada = 100;  // ms
  auto* pulso = new QTimer(this);
  connect(pulso, &QTimer::timeout, this, &FrChapas::Mira);
  pulso->start(kCada);
  Distribuye();
}

QWidget* FrChapas::Panel() {
  auto* panel = new QWidget;
  auto* fila = new QHBoxLayout(panel);
  fila->setContentsMargins(0, 0, 0, 0);
  fila->setSpacing(16);
  fila->addWidget(forma_, 1);
  panel->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
  auto* botones = new QVBoxLayout;
  botones->setSpacing(4);
  CmdDistribuye_ = Boton(texto::kDistribuye, "CmdDistribuye");
  CmdDistribuye_->setDefault(true);
  CmdPara_ = Boton(texto::kPara, "CmdPara");
  CmdExport_ = Boton(texto::kExporta, "CmdExport");
  for (QPushButton* boton : {CmdDistribuye_, CmdPara_, CmdExport_}) botones->addWidget(boton);
  fila->addLayout(botones);
  connect(CmdDistribuye_, &QPushButton::clicked, this, &FrChapas::Distribuye);
  connect(CmdPara_, &QPushButton::clicked, this, &FrChapas::Para);
  connect(CmdExport_, &QPushButton::clicked, this, &FrChapas::Exporta);
  return panel;
}

QWidget* FrChapas::Pie() {
  auto* pie = new QWidget;
  auto* fila = new QHBoxLayout(pie);
  fila->setContentsMargins(0, 0, 0, 0);
  LblEstado_ = new QLabel;
  LblEstado_->setObjectName("LblEstado");
  LblEstado_->setTextFormat(Qt::PlainText);
  LblEstado_->setWordWrap(true);
  avance_ = new QProgressBar;
  avance_->setTextVisible(false);
  avance_->setFixedWidth(160);
  auto* botones = new QDialogButtonBox(QDialogButtonBox::Close);
  botones->button(QDialogButtonBox::Close)->setAutoDefault(false);
  connect(botones, &QDialogButtonBox::rejected, this, &FrChapas::reject);
  fila->addWidget(LblEstado_, 1);
  fila->addWidget(avance_);
  fila->addWidget(botones);
  return pie;
}

void FrChapas::Rechaza(const QString& porque) {
  lblerror_->setText(porque);
  lblerror_->show();
}

void FrChapas::Habilita() {
  const bool trabaja = obra_ || escritura_;
  forma_->setEnabled(!trabaja);
  CmdDistribuye_->setEnabled(!trabaja);
  CmdPara_->setEnabled(trabaja);
  CmdExport_->setEnabled(!trabaja && reparto_ && !reparto_->chapas.empty());
  avance_->setVisible(trabaja);
}

void FrChapas::Distribuye() {
  QString reparo;
  const auto pedido = forma_->Lee(reparo);
  if (!pedido) {
    Rechaza(reparo);
    return Habilita();
  }
  lblerror_->hide();
  segundos_ = pedido->segundos;
  reloj_.invalidate();
  hay_ = false;
  const bool sirve = reparto_ && reparto_->lista->entera;
  obra_ = std::make_unique<ObraChapas>(trabajos_, *pedido, sirve ? reparto_->lista : nullptr);
  Habilita();
  CmdPara_->setFocus();
}

void FrChapas::Para() {
  if (obra_) obra_->Para();
  if (escritura_) escritura_->Para();
}

// New sheets beside old ones aren't left without a word.
void FrChapas::reject() {
  if (!escritura_) QDialog::reject();
}

void FrChapas::Muestra(const Reparto& reparto) {
  reparto_ = reparto;
  vista_->Muestra(reparto);
  LstFaltan_->clear();
  for (const FilaSinChapa& fila : reparto.Faltan()) {
    const std::string forma = fila.forma.empty() ? "" : " - " + fila.forma;
    const std::string veces = fila.cantidad == 1 ? "" : " x " + std::to_string(fila.cantidad);
    LstFaltan_->addItem(Q(Texto(texto::kSinColocar) + " " + fila.pieza + forma + veces + ": " + fila.motivo));
  }
  LstFaltan_->setVisible(LstFaltan_->count() > 0);
  LblEstado_->setText(Resumen(reparto));
}

void FrChapas::Mira() {
  if (obra_) MiraObra();
  if (escritura_) MiraEscritura();
}

void FrChapas::MiraObra() {
  const bool acabada = obra_->Acabada();  // before what it has left is taken
  if (const auto reparto = obra_->Toma()) {
    hay_ = true;
    Muestra(*reparto);
  }
  const std::size_t hechas = obra_->Desarrolladas(), todas = obra_->Trabajos();
  if (hechas < todas) {
    avance_->setRange(0, static_cast<int>(todas));
    avance_->setValue(static_cast<int>(hechas));
    LblEstado_->setText(Q(Texto(texto::kDesarrollando)).arg(hechas).arg(todas));
  } else if (!hay_) {
    avance_->setRange(0, 0);
    LblEstado_->setText(Q(Texto(texto::kDistribuye)) + "...");
  } else {
    constexpr int kPasos = 1000;
    if (!reloj_.isValid()) reloj_.start();
    const double parte = static_cast<double>(reloj_.elapsed()) / (kPasos * segundos_);
    avance_->setRange(0, kPasos);
    avance_->setValue(static_cast<int>(kPasos * std::min(1.0, parte)));
  }
  if (!acabada) return;
  if (obra_->Fallida()) Rechaza(Q(Texto(texto::kIncompleto)));
  obra_.reset();
  Habilita();
  vista_->setFocus();
}

void FrChapas::Exporta() {
  const std::string antes = LeePropio(kSeccion, kCarpeta).value_or("");
  QFileDialog dialogo(this, Q(Texto(texto::kExporta)), Q(QFileInfo(Q(antes)).isDir() ? antes : CarpetaDeGuardado()));
  dialogo.resize(dialogo.size().boundedTo(SitioLibre(*this)));
  dialogo.setFileMode(QFileDialog::Directory);
  dialogo.setOption(QFileDialog::ShowDirsOnly);
  if (dialogo.exec() != QDialog::Accepted || dialogo.selectedFiles().isEmpty() || !reparto_) return;
  const std::string carpeta = dialogo.selectedFiles().first().toStdString();
  PonPropio(kSeccion, kCarpeta, carpeta);
  QStringList estan;
  for (const std::string& nombre : EscrituraChapas::Ficheros(*reparto_)) {
    if (QFileInfo::exists(Q(std::filesystem::path(carpeta) / nombre))) estan += Q(nombre);
  }
  if (!estan.isEmpty() && !Confirma(this, Abreviados(estan, ", ", kMuchos) + "\n\n" + Q(Texto(texto::kReemplazarEsos))))
    return;
  const HabitoCsv habito = estado.bComaDecimal ? kConComa : kConPunto;
  escritura_ = std::make_unique<EscrituraChapas>(*reparto_, carpeta, habito);
  Habilita();
}

void FrChapas::MiraEscritura() {
  avance_->setRange(0, static_cast<int>(reparto_->chapas.size()));
  avance_->setValue(static_cast<int>(escritura_->Hechas()));
  if (!escritura_->Acabada()) return;
  const auto escritura = std::move(escritura_);
  Habilita();
  if (escritura->Fallida()) return Rechaza(Q(Texto(texto::kIncompleto)));
  QStringList escritos;
  for (const std::string& fichero : escritura->Escritos()) escritos += Q(fichero);
  LblEstado_->setText(Resumen(*reparto_));
  LblEstado_->setToolTip(Abreviados(escritos, "\n", kMuchasLineas));
  if (!escritos.isEmpty()) {
    QStringList viejos;
    for (const std::string& fichero : escritura->Viejas()) viejos += Q(fichero);
    const QString otros = Q(Texto(texto::kCorteViejo)) + " " + Abreviados(viejos, ", ", kMuchos);
    LblEstado_->setText(Q(Texto(texto::kEscrito)) + " " + Q(escritura->Carpeta()) + ": " +
                        Abreviados(escritos, ", ", kMuchos) + (viejos.isEmpty() ? "" : ". " + otros));
  }
  QStringList fallos;
  for (const std::string& fallo : escritura->Fallos()) fallos += Q(fallo);
  if (!fallos.isEmpty()) {
    MuestraMensaje(Texto(texto::kNoSeEscribe) + " " + Abreviados(fallos, "\n", kMuchasLineas).toStdString(),
                   EstiloMensaje::exclamacion, "");
    CursorEspera(false);
  }
}

}  // namespace duktores
