#pragma once
// What the tests of the windows share: a user who answers windows that wait for him, and an installation with a piece.

#include <gtest/gtest.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QMessageBox>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <deque>
#include <filesystem>
#include <functional>
#include <string>

#include "state/estado.h"
#include "windows/lienzo.h"
#include "windows/plataforma_qt.h"

namespace duktores {

template <class T = QWidget>
T& Hijo(QWidget& ventana, const char* nombre) {
  T* hijo = ventana.findChild<T*>(nombre);
  if (!hijo) throw std::runtime_error(std::string("no ") + nombre);
  return *hijo;
}

/// Only an enabled button answers.
inline void Pulsa(QWidget& ventana, const char* boton) { QTest::mouseClick(&Hijo(ventana, boton), Qt::LeftButton); }

inline void Arrastra(QWidget& sobre, Qt::MouseButton boton, QPoint desde, QPoint hasta) {
  QTest::mousePress(&sobre, boton, {}, desde);
  QMouseEvent mueve(QEvent::MouseMove, QPointF(hasta), sobre.mapToGlobal(QPointF(hasta)), Qt::NoButton, boton, {});
  QApplication::sendEvent(&sobre, &mueve);
  QTest::mouseRelease(&sobre, boton, {}, hasta);
}
inline void Rueda(QWidget& sobre, QPointF sitio, int giro) {
  QWheelEvent rueda(sitio, sobre.mapToGlobal(sitio), {}, {0, giro}, {}, {}, Qt::NoScrollPhase, false);
  QApplication::sendEvent(&sobre, &rueda);
}

/// Takes each step from within the event loop, when its window has come on top. "pick" is a viewer that waits for a
/// point. A window that no step waits for fails the test and is closed.
class Usuario : public QObject {
 public:
  Usuario() { Mira(); }
  ~Usuario() override { EXPECT_TRUE(pasos_.empty()) << "never came: " << pasos_.front().first; }

  void Cuando(const std::string& ventana, std::function<void(QWidget&)> hace) {
    pasos_.emplace_back(ventana, std::move(hace));
    reloj_.start();
  }
  /// Looks no more at what comes.
  void Calla() { callado_ = true; }
  void CierraMensaje(const std::string& texto) {
    Cuando("QMessageBox", [texto](QWidget& caja) {
      EXPECT_EQ(dynamic_cast<QMessageBox&>(caja).text().toStdString(), texto);
      QTest::keyClick(&caja, Qt::Key_Return);
    });
  }

 private:
  static std::string Nombre(const QWidget& ventana) {
    const auto* lienzo = ventana.findChild<Lienzo*>();
    if (lienzo && lienzo->Eligiendo()) return "pick";
    const QString propio = ventana.objectName();
    return propio.isEmpty() ? ventana.metaObject()->className() : propio.toStdString();
  }

  void Mira() {
    constexpr int kPaciencia = 5000;
    if (callado_) return;
    QTimer::singleShot(2, this, &Usuario::Mira);
    QWidget* ventana = QApplication::activeModalWidget();
    if (!ventana || !ventana->isVisible()) return reloj_.start(), void();
    if (!pasos_.empty() && Nombre(*ventana) == pasos_.front().first) {
      const auto hace = pasos_.front().second;
      pasos_.pop_front();
      reloj_.start();
      hace(*ventana);
    } else if (reloj_.elapsed() > (pasos_.empty() ? kPaciencia / 10 : kPaciencia)) {
      ADD_FAILURE() << "in the way: " << Nombre(*ventana);
      pasos_.clear();
      ventana->close();
    }
  }

  std::deque<std::pair<std::string, std::function<void(QWidget&)>>> pasos_;
  QElapsedTimer reloj_;
  bool callado_ = false;
};

class ConVentanas : public testing::Test {
 protected:
  ConVentanas() {
    namespace fs = std::filesystem;
    const fs::path duct = Ruta("Duct"), raiz = DUKTORES_RAIZ;
    fs::create_directories(duct / "Template");
    for (const char* nombre : {"Template.dxf", "Cut.dxf", "Sheet.dxf"}) {
      fs::copy_file(raiz / "Template" / nombre, duct / "Template" / nombre);
    }
    fs::create_directory_symlink(raiz / "Images", duct / "Images");
    estado = {};
    estado.sRutaPrograma = duct.string() + "/";
    estado.iUnidad = 1;
    estado.iFibra = 3;
    estado.dEspesor = 2;
    estado.dTamanoTexto = 10;
    estado.sDimensiones = "1";
    estado.iBox = 1;
    estado.plataforma = &plataforma_;
  }
  ~ConVentanas() override {
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
    estado = {};
  }

  std::string Ruta(const char* nombre) const { return carpeta_.filePath(nombre).toStdString(); }

  QTemporaryDir carpeta_;
  PlataformaQt plataforma_;
  Usuario usuario_;
};

}  // namespace duktores
