// manual DUCT FOLDER: makes the pictures of the manual, in FOLDER/en and FOLDER/es, from the windows themselves. DUCT
// is the program folder of an installation; its configuration is shown as it is but for the language.

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPainter>
#include <QPushButton>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <algorithm>
#include <cstdio>
#include <functional>
#include <iterator>
#include <map>
#include <sstream>
#include <stdexcept>

#include "jobs/piezas.h"
#include "piece/numeros_texto.h"
#include "shell/catalogo.h"
#include "shell/lista.h"
#include "state/arranque.h"
#include "state/estado.h"
#include "state/fichero.h"
#include "state/textos.h"
#include "windows/fr_ajustes.h"
#include "windows/fr_chapas.h"
#include "windows/fr_dialogo.h"
#include "windows/fr_elige_pieza.h"
#include "windows/fr_lista_duktores.h"
#include "windows/frm_view_unfold.h"
#include "windows/lienzo.h"

namespace duktores {

namespace {

template <class T = QPushButton>
T& Hijo(QWidget& ventana, const char* nombre) {
  T* hijo = ventana.findChild<T*>(nombre);
  if (!hijo) throw std::runtime_error(std::string("a window has no ") + nombre);
  return *hijo;
}

/// As tall windows are on a small screen, so that the page has room for them without scaling.
constexpr const char* kPantalla =
    R"({"screens": [{"name": "s", "x": 0, "y": 0, "width": 798, "height": 640, "logicalDpi": 96, "dpr": 1}]})";

/// A piece, and what is typed for it.
struct Tecleada {
  TipoPieza tipo;
  const char* textos;
};
constexpr Tecleada kTolva{TipoPieza::cr, "300 100 400 300 50 0 0 24 1"};
constexpr Tecleada kRadioGrande{TipoPieza::cr, "300 250 400 300 0 0 0 24 1"};
constexpr Tecleada kInclinada{TipoPieza::elip, "300 200 150 400 300 30 0 20 12 1"};
constexpr Tecleada kRedondeada{TipoPieza::esp1, "300 40 40 60 60 80 80 100 100 300 250 500 400 0 20 0 0 16"};
constexpr std::string_view kLista = R"([
  {"name": "hood-400", "piece": "TransCR", "H": 300, "RS": 100, "LI": 400, "AI": 400, "AX": 0, "AY": 0},
  {"name": "cowl-350", "piece": "TransRC", "H": 250, "RI": 220, "LS": 300, "AS": 300, "AX": 0, "AY": 0},
  {"name": "oval-400x200", "piece": "TransElip", "H": 300, "eMaS": 400, "eMeS": 200, "Li": 450, "Ai": 300},
  {"name": "end-600", "piece": "TransEsp2", "H": 300, "r": 120, "Lx": 600, "Ly": 300, "Ax": 0, "Ay": 0}
])";

constexpr std::string_view kEncargo = R"([
  {"name": "hood-400", "piece": "TransCR", "quantity": 5, "H": 300, "RS": 100, "LI": 400, "AI": 400, "AX": 0, "AY": 0,
   "Alfa": 0, "Divisions": 12, "Start": 1},
  {"name": "cowl-350", "piece": "TransRC", "quantity": 4, "H": 250, "RI": 220, "LS": 300, "AS": 300, "AX": 0, "AY": 0,
   "Alfa": 0, "Divisions": 12, "Start": 1},
  {"name": "end-600", "piece": "TransEsp2", "H": 300, "r": 120, "Lx": 600, "Ly": 300, "Ax": 0, "Ay": 0, "Alfa": 0,
   "Beta": 0}
])";

std::vector<std::string> Textos(const Tecleada& pieza) {
  std::istringstream palabras(pieza.textos);
  return {std::istream_iterator<std::string>(palabras), {}};
}

void Teclea(FrDialogo& ventana, const Tecleada& pieza) {
  const auto textos = Textos(pieza);
  for (std::size_t i = 0; i < textos.size(); ++i) {
    const QString texto = QString::fromStdString(textos[i]);
    const std::string nombre(FilaDe(pieza.tipo).dialogo.campos[i].nombre);
    auto& campo = Hijo<QWidget>(ventana, nombre.c_str());
    if (auto* escrito = qobject_cast<QLineEdit*>(&campo)) escrito->setText(texto);
    if (auto* elegido = qobject_cast<QComboBox*>(&campo)) elegido->setCurrentText(texto);
  }
}

void Acepta(const Tecleada& pieza, bool dosPiezas) {
  Dialogo dialogo(FilaDe(pieza.tipo).dialogo);
  dialogo.dosPiezas = dosPiezas;
  const auto textos = Textos(pieza);
  for (std::size_t i = 0; i < textos.size(); ++i) dialogo.CampoDe(static_cast<int>(i)).texto = textos[i];
  if (dialogo.CmdAceptar() != Respuesta::aceptado) throw std::runtime_error("a piece was refused");
}

/// Unfolds by a button. Each time something hangs on the pointer it is placed by `coloca`.
void Despliega(FrmViewUnfold& visor, const char* boton, const std::function<void(Lienzo&)>& coloca) {
  auto* lienzo = visor.findChild<Lienzo*>();
  QObject sitio;
  QObject::connect(lienzo, &Lienzo::eligiendo, &sitio, [&](bool empieza) {
    if (empieza) QTimer::singleShot(0, &sitio, [&, lienzo] { coloca(*lienzo); });
  });
  Hijo(visor, boton).click();
}

void ColocaTodas(FrmViewUnfold& visor, const char* boton = "CmdDesplegado") {
  Despliega(visor, boton, [&](Lienzo&) { Hijo(visor, "CmdTodas").click(); });
}

QImage Foto(QWidget& ventana) {
  ventana.show();
  QApplication::processEvents();
  return ventana.grab().toImage();
}

// The pictures
// ---------------------------------------------------------------------------------------------------------

QImage Catalogo() {
  FrListaDuktores lista;
  const auto filas = FilasCatalogo();
  const auto fila = std::ranges::find(filas, std::optional(kTolva.tipo), &FilaCatalogo::pieza);
  Hijo<QListWidget>(lista, "LstDuktores").setCurrentRow(static_cast<int>(fila - filas.begin()));
  return Foto(lista);
}

QImage Medidas(const Tecleada& pieza, bool acepta) {
  FrDialogo ventana(FilaDe(pieza.tipo), nullptr);
  ventana.show();
  Teclea(ventana, pieza);
  if (acepta) Hijo(ventana, "CmdAceptar").click();
  return Foto(ventana);
}

QImage Desarrollada(const Tecleada& pieza) {
  Acepta(pieza, true);
  FrmViewUnfold visor(nullptr);
  visor.show();
  ColocaTodas(visor);
  return Foto(visor);
}

/// Places by clicks, parts of the drawing's width and height, until the one is under the pointer that is looked at.
QImage ColocandoEn(const std::vector<QPointF>& sitios) {
  Acepta(kTolva, true);
  FrmViewUnfold visor(nullptr);
  visor.show();
  QImage foto;
  std::size_t puestas = 0;
  Despliega(visor, "CmdDesplegado", [&](Lienzo& lienzo) {
    const QPointF parte = sitios[puestas++];
    const QPoint sitio(qRound(parte.x() * lienzo.width()), qRound(parte.y() * lienzo.height()));
    QTest::mouseMove(&lienzo, sitio);
    if (puestas < sitios.size()) return QTest::mouseClick(&lienzo, Qt::LeftButton, {}, sitio);
    foto = Foto(visor);
    lienzo.CancelaEleccion();
  });
  return foto;
}

/// What the viewer says of a pattern, below a strip of it.
QImage Veredicto(FrmViewUnfold& visor) {
  const QImage entera = Foto(visor);
  constexpr int kPie = 34;
  const int desde = entera.height() / 2, alto = entera.height() / 4;
  QImage foto(entera.width(), alto + kPie, QImage::Format_RGB32);
  QPainter pintor(&foto);
  pintor.drawImage(QPoint(0, 0), entera, QRect(0, desde, entera.width(), alto));
  pintor.drawImage(QPoint(0, alto), entera, QRect(0, entera.height() - kPie, entera.width(), kPie));
  return foto;
}

QImage DosReglas() {
  Acepta(kInclinada, true);
  FrmViewUnfold visor(nullptr);
  visor.show();
  ColocaTodas(visor);
  const QImage usual = Veredicto(visor);
  ColocaTodas(visor, "CmdExacto");
  const QImage exacta = Veredicto(visor);
  QImage foto(usual.width(), usual.height() + exacta.height(), QImage::Format_RGB32);
  QPainter pintor(&foto);
  pintor.drawImage(0, 0, usual);
  pintor.drawImage(0, usual.height(), exacta);
  return foto;
}

/// The corner of the viewer with the menu open.
QImage Exportacion() {
  Acepta(kTolva, true);
  FrmViewUnfold visor(nullptr);
  visor.show();
  ColocaTodas(visor);
  QImage foto = Foto(visor);
  auto& boton = Hijo(visor, "CmdExport");
  auto& menu = Hijo<QMenu>(visor, "MenuExport");
  const QPoint debajo = boton.mapTo(&visor, QPoint(0, boton.height()));
  const QImage abierto = menu.grab().toImage();
  const QPoint sitio(std::min(debajo.x(), foto.width() - abierto.width()), debajo.y());
  QPainter(&foto).drawImage(sitio, abierto);
  constexpr int kMargen = 10, kAncho = 420;
  return foto.copy(foto.width() - kAncho, 0, kAncho, sitio.y() + abierto.height() + kMargen);
}

QImage Ajustes(int pagina) {
  FrAjustes ventana(nullptr);
  const QString ruta = "/opt/duktores/Config/Config.ini";  // where the package has it, not this run
  Hijo<QLabel>(ventana, "LblFichero").setText(QString::fromStdString(Texto(texto::kSeGuardan)) + " " + ruta);
  ventana.findChild<QTabWidget*>()->setCurrentIndex(pagina);
  return Foto(ventana);
}

QImage Lista() {
  const LecturaPiezas lectura = LeePiezasDe(kLista);
  FrListaDuktores catalogo;
  QImage foto;
  QTimer::singleShot(0, &catalogo, [&] {
    QWidget* ventana = QApplication::activeModalWidget();
    foto = Foto(*ventana);
    ventana->close();
  });
  EligePieza(catalogo, lectura.trabajos);
  return foto;
}

QImage Chapas() {
  FrChapas ventana(nullptr, LeePiezasDe(kEncargo).trabajos);
  constexpr QSize kLienzo{820, 560};
  ventana.resize(kLienzo);
  ventana.show();
  constexpr int kMejora = 1500;  // ms
  QTest::qWait(kMejora);
  Hijo(ventana, "CmdPara").click();
  if (!QTest::qWaitFor([&] { return Hijo(ventana, "CmdExport").isEnabled(); }, 60000)) {
    throw std::runtime_error("no sheets");
  }
  return Foto(ventana);
}

struct Lamina {
  const char* nombre;
  std::function<QImage()> hace;
};

std::vector<Lamina> Laminas() {
  return {
      {"catalogue", Catalogo},
      {"dialog", [] { return Medidas(kTolva, false); }},
      {"pattern", [] { return Desarrollada(kTolva); }},
      {"placing",
       [] {
         return ColocandoEn({{0.3, 0.3}, {0.7, 0.2}, {0.76, 0.6}});
       }},
      {"overlap",
       [] {
         return ColocandoEn({{0.3, 0.3}, {0.7, 0.2}, {0.2, 0.6}});
       }},
      {"special", [] { return Medidas(kRedondeada, false); }},
      {"special-pattern", [] { return Desarrollada(kRedondeada); }},
      {"exact", DosReglas},
      {"export", Exportacion},
      {"lists", Lista},
      {"sheets", Chapas},
      {"settings", [] { return Ajustes(0); }},
      {"machine", [] { return Ajustes(1); }},
      {"message", [] { return Medidas(kRadioGrande, true); }},
  };
}

// An installation of this run, in one of the manual's languages
// ---------------------------------------------------------

void Instala(const QDir& raiz, const QString& duct, const char* idioma) {
  raiz.mkpath("Config");
  QFile::link(QFileInfo(duct).absoluteFilePath(), raiz.filePath("Duct"));
  const auto leida = LeeFichero((duct + "/../Config/Config.ini").toStdString());
  if (!leida) throw std::runtime_error("the installation has no configuration");
  std::istringstream lineas(*leida);
  std::string escrita;
  for (std::string linea; std::getline(lineas, linea);) {
    escrita += (linea.starts_with("Language=") ? std::string("Language=") + idioma : linea) + "\n";
  }
  EscribeFichero(raiz.filePath("Config/Config.ini").toStdString(), escrita);
  Arranca(raiz.filePath("Duct/duktores").toStdString());
}

/// In the 256 colours that are most frequent in it, which is half as large in the file.
QImage EnPocosColores(const QImage& foto) {
  constexpr std::size_t kColores = 256;
  std::map<QRgb, int> veces;
  for (int y = 0; y < foto.height(); ++y) {
    for (int x = 0; x < foto.width(); ++x) ++veces[foto.pixel(x, y)];
  }
  std::vector<std::pair<int, QRgb>> orden;
  for (const auto& [color, n] : veces) orden.emplace_back(-n, color);
  std::ranges::sort(orden);
  QList<QRgb> tabla;
  for (std::size_t i = 0; i < std::min(kColores, orden.size()); ++i) tabla << orden[i].second;
  return foto.convertToFormat(QImage::Format_Indexed8, tabla, Qt::ThresholdDither);
}

void GuardaTodas(const QDir& carpeta) {
  for (const Lamina& lamina : Laminas()) {
    const QImage foto = EnPocosColores(lamina.hace().convertToFormat(QImage::Format_RGB32));
    const QString ruta = carpeta.filePath(QString(lamina.nombre) + ".png");
    constexpr int kPequena = 0;
    if (foto.isNull() || !foto.save(ruta, "PNG", kPequena)) {
      throw std::runtime_error("can't write " + ruta.toStdString());
    }
  }
}

}  // namespace

}  // namespace duktores

int main(int argc, char** argv) {
  if (argc != 3) {
    std::fputs("usage: manual DUCT FOLDER\n", stderr);
    return 2;
  }
  const QTemporaryDir casa;
  QFile pantalla(casa.filePath("screen.json"));
  if (!pantalla.open(QIODevice::WriteOnly) || pantalla.write(duktores::kPantalla) < 0) return 1;
  pantalla.close();
  qputenv("QT_QPA_PLATFORM", ("offscreen:configfile=" + pantalla.fileName()).toLocal8Bit());
  qputenv("LC_ALL", "C.UTF-8");
  qunsetenv("QT_SCALE_FACTOR");
  for (const char* variable : {"HOME", "XDG_CONFIG_HOME"}) qputenv(variable, casa.path().toLocal8Bit());
  QApplication aplicacion(argc, argv);
  QApplication::setStyle("Fusion");
  QApplication::setFont(QFont("DejaVu Sans", 9));
  QApplication::setCursorFlashTime(0);
  try {
    for (const auto& [carpeta, idioma] : {std::pair("en", "ENGLISH"), std::pair("es", "SPANISH")}) {
      const QDir salida(QString::fromLocal8Bit(argv[2]) + "/" + carpeta);
      salida.mkpath(".");
      duktores::Instala(QDir(casa.filePath(carpeta)), QString::fromLocal8Bit(argv[1]), idioma);
      duktores::GuardaTodas(salida);
    }
  } catch (const std::exception& error) {
    std::fprintf(stderr, "manual: %s\n", error.what());
    return 1;
  }
  return 0;
}
