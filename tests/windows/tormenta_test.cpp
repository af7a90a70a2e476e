// A storm over all windows: random keys, clicks, drags, wheels, drops, resizes and closings, for as many seconds as
// DUKTORES_TORMENTA says. Nothing may crash, hang or leave half a file.

#include <gtest/gtest.h>
#include <unistd.h>

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QDialog>
#include <QDir>
#include <QDirIterator>
#include <QDropEvent>
#include <QElapsedTimer>
#include <QFile>
#include <QFileDialog>
#include <QLineEdit>
#include <QListWidget>
#include <QMimeData>
#include <QPrintDialog>
#include <QTest>
#include <QTimer>
#include <array>
#include <cstdlib>
#include <map>
#include <random>

#include "state/textos.h"
#include "windows/fr_lista_duktores.h"
#include "windows/usuario.h"

namespace duktores {
namespace {

constexpr std::array kTeclas{Qt::Key_Return, Qt::Key_Enter,  Qt::Key_Escape, Qt::Key_Tab,   Qt::Key_Backspace,
                             Qt::Key_Delete, Qt::Key_Up,     Qt::Key_Down,   Qt::Key_Left,  Qt::Key_Right,
                             Qt::Key_Home,   Qt::Key_Space,  Qt::Key_Plus,   Qt::Key_Minus, Qt::Key_Comma,
                             Qt::Key_PageUp, Qt::Key_Insert, Qt::Key_F1,     Qt::Key_F7,    Qt::Key_F11,
                             Qt::Key_F12,    Qt::Key_Period};

/// What a storm finds a way to outside its folder it has no right to, not even where it began with all rights.
class SinDerechos {
 public:
  explicit SinDerechos(const QString& carpeta) {
    constexpr uid_t kNadie = 65534;
    if (geteuid() != 0) return;
    const std::filesystem::path raiz = carpeta.toStdString();
    bool bien = lchown(raiz.c_str(), kNadie, kNadie) == 0;
    for (const auto& entrada : std::filesystem::recursive_directory_iterator(raiz)) {
      bien = bien && lchown(entrada.path().c_str(), kNadie, kNadie) == 0;
    }
    if (!bien || seteuid(kNadie) != 0) throw std::runtime_error("rights are kept");
  }
  ~SinDerechos() {
    if (getuid() == 0 && seteuid(0) != 0) std::abort();
  }
};

class Tormenta : public ConVentanas {
 protected:
  int Al(int n) { return static_cast<int>(azar_() % static_cast<unsigned>(n)); }
  QPoint EnAlguna(const QWidget& w) { return {Al(std::max(1, w.width())), Al(std::max(1, w.height()))}; }

  /// The window that the user can reach; the manual too, unless a window of its own waits.
  QWidget* Alcanzable() {
    if (QWidget* menu = QApplication::activePopupWidget()) return menu;
    for (QWidget* w : QApplication::topLevelWidgets()) {
      if (w->objectName() == "FrManual" && w->isVisible() && !w->findChild<QDialog*>() && Al(4) == 0) return w;
    }
    if (QWidget* modal = QApplication::activeModalWidget()) return modal;
    for (QWidget* w : QApplication::topLevelWidgets()) {
      if (w->isVisible()) return w;
    }
    return nullptr;
  }
  QWidget* Hijo(QWidget& ventana) {
    QList<QWidget*> hijos{&ventana};
    for (QWidget* hijo : ventana.findChildren<QWidget*>()) {
      if (hijo->isVisible() && hijo->isEnabled()) hijos += hijo;
    }
    return hijos[Al(static_cast<int>(hijos.size()))];
  }

  void Tecla(QWidget& sobre) {
    constexpr std::array kConCtrl{Qt::Key_V, Qt::Key_Z, Qt::Key_Y, Qt::Key_L, Qt::Key_S, Qt::Key_Comma, Qt::Key_A};
    constexpr std::string_view kLetras = "0123456789123456789.,-EeUuWwBbNnSs?e";
    switch (Al(8)) {
      case 0:
        return QTest::keyClick(&sobre, kConCtrl.at(static_cast<std::size_t>(Al(kConCtrl.size()))), Qt::ControlModifier);
      case 1:
      case 2:
      case 3:
        return QTest::keyClick(&sobre, kTeclas.at(static_cast<std::size_t>(Al(kTeclas.size()))));
      default:
        return QTest::keyClick(&sobre, kLetras[static_cast<std::size_t>(Al(static_cast<int>(kLetras.size())))]);
    }
  }

  /// Nobody gets through a dialog by chance.
  void Llena(QWidget& ventana) {
    if (auto* filas = ventana.findChild<QListWidget*>("LstDuktores")) {
      filas->setCurrentRow(Al(filas->count()));
      return QTest::mouseClick(ventana.findChild<QPushButton*>("CmdContinuar"), Qt::LeftButton);
    }
    if (auto* chapas = ventana.findChild<QPushButton*>("CmdChapas")) return chapas->click();
    for (auto* lista : ventana.findChildren<QComboBox*>()) lista->setCurrentIndex(Al(std::max(1, lista->count())));
    const auto campos = ventana.findChildren<QLineEdit*>();
    for (auto* campo : campos) campo->setText(QString::number(campo == campos.first() ? 300 : 4 * Al(30)));
    if (auto* aceptar = ventana.findChild<QPushButton*>("CmdAceptar")) QTest::mouseClick(aceptar, Qt::LeftButton);
  }

  void Suelta(QWidget& sobre) {
    QMimeData datos;
    Al(2) == 0 ? datos.setText("12.5") : datos.setUrls({QUrl::fromLocalFile(carpeta_.filePath("pieces.json"))});
    QDragEnterEvent entra(EnAlguna(sobre), Qt::CopyAction, &datos, Qt::LeftButton, {});
    QApplication::sendEvent(&sobre, &entra);
    if (!entra.isAccepted()) return;
    QDropEvent suelta(EnAlguna(sobre), Qt::CopyAction, &datos, Qt::LeftButton, {});
    QApplication::sendEvent(&sobre, &suelta);
  }

  void Raton(QWidget& sobre) {
    const auto boton = std::array{Qt::LeftButton, Qt::LeftButton, Qt::RightButton, Qt::MiddleButton}.at(
        static_cast<std::size_t>(Al(4)));
    switch (Al(4)) {
      case 0:
        return Arrastra(sobre, boton, EnAlguna(sobre), EnAlguna(sobre));
      case 1:
        return Rueda(sobre, EnAlguna(sobre), Al(2) == 0 ? 120 : -240);
      case 2:
        return QTest::mouseDClick(&sobre, boton, {}, EnAlguna(sobre));
      default:
        return QTest::mouseClick(&sobre, boton, {}, EnAlguna(sobre));
    }
  }

  /// A file dialog makes, renames and deletes whatever the machine has, folders with all that is in them: it may do
  /// none of this, and goes as soon as it shows another folder than the test's own.
  bool EsAjena(QWidget& ventana) const {
    auto* ficheros = qobject_cast<QFileDialog*>(&ventana);
    if (!ficheros) return qobject_cast<QPrintDialog*>(&ventana) != nullptr;  // a printer is somebody else's
    ficheros->setOption(QFileDialog::ReadOnly);
    const QString suya = QDir(carpeta_.path()).canonicalPath(), mostrada = ficheros->directory().canonicalPath();
    return mostrada != suya && !mostrada.startsWith(suya + "/");
  }

  void Paso() {
    if (reloj_.hasExpired(1000LL * segundos_)) return QApplication::exit();
    QTimer::singleShot(1, qApp, [this] { Paso(); });  // a window that is closed goes before the next step
    QWidget* ventana = Alcanzable();
    if (!ventana) return QApplication::exit();
    ++pasos_;
    ++hondo_;
    ++vistas_[ventana->objectName().toStdString() + " " + ventana->metaObject()->className()];
    constexpr int kMuyHondo = 24;
    const int que = Al(100);
    if (hondo_ > kMuyHondo || EsAjena(*ventana)) {
      ventana->close();
    } else if (que < 45) {
      Tecla(*Hijo(*ventana));
    } else if (que < 90) {
      Raton(*Hijo(*ventana));
    } else if (que < 92) {
      Suelta(Al(2) == 0 ? *ventana : *Hijo(*ventana));
    } else if (que < 96) {
      Llena(*ventana);
    } else if (que == 96) {
      ventana->resize(200 + Al(1400), 150 + Al(1000));
    } else if (que < 99) {
      ventana->close();
    } else {
      QApplication::clipboard()->setText(Al(2) == 0 ? "300" : "300 x 400");
    }
    --hondo_;
  }

  int segundos_ = std::atoi(qEnvironmentVariable("DUKTORES_TORMENTA", "60").toUtf8());
  unsigned semilla_ = std::random_device{}();
  std::mt19937 azar_{semilla_};
  QElapsedTimer reloj_;
  int pasos_ = 0, hondo_ = 0;
  std::map<std::string, int> vistas_;  // steps in each window
};

TEST_F(Tormenta, NothingCrashesHangsOrIsLeftHalf) {
  SCOPED_TRACE("seed " + std::to_string(semilla_));
  usuario_.Calla();
  QDir().mkpath(carpeta_.filePath("home"));
  QDir::setCurrent(carpeta_.path());
  estado.sRutaPropia = Ruta("home/duktores.ini");
  estado.sRutaDuct = carpeta_.path().toStdString();
  QFile::copy(DUKTORES_RAIZ "/Samples/pieces.json", carpeta_.filePath("pieces.json"));
  // Copies: what is saved by chance is to stay out of the sources.
  std::filesystem::remove(Ruta("Duct/Images"));
  for (const auto& [desde, hasta] : {std::pair("/Images", "Duct/Images"), {"/docs/manual", "Duct/Manual"}}) {
    std::filesystem::copy(std::string(DUKTORES_RAIZ) + desde, Ruta(hasta), std::filesystem::copy_options::recursive);
  }
  const SinDerechos sin(carpeta_.path());
  reloj_.start();
  while (!reloj_.hasExpired(1000LL * segundos_)) {
    FrListaDuktores lista;
    plataforma_.PonPrincipal(&lista);
    lista.show();
    QTimer::singleShot(0, qApp, [this] { Paso(); });
    QApplication::exec();
    plataforma_.PonPrincipal(nullptr);
    CursorEspera(false);
  }
  EXPECT_GT(pasos_, 20 * segundos_);
  for (QDirIterator i(carpeta_.path(), {"*.dxf", "*.tmp"}, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
       i.hasNext();) {
    QFile fichero(i.next());
    EXPECT_TRUE(fichero.open(QIODevice::ReadOnly) && fichero.readAll().trimmed().endsWith("EOF"))
        << fichero.fileName().toStdString();
  }
  for (const auto& [ventana, pasos] : vistas_) std::printf("%7d steps in %s\n", pasos, ventana.c_str());
  QDir::setCurrent("/");
}

}  // namespace
}  // namespace duktores
