#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QScreen>

#include "dxf/dibujo.h"
#include "mesa.h"
#include "pieza_tecleada.h"
#include "shell/visor.h"
#include "state/textos.h"
#include "windows/frm_view_unfold.h"
#include "windows/usuario.h"

namespace duktores {
namespace {

// What the widget should show of a model seen as `axew` is.
QImage Pintado(const EWdraw& axew, const QImage& como) {
  QImage imagen(como.size(), como.format());
  QPainter pintor(&imagen);
  pintor.setRenderHint(QPainter::Antialiasing);
  Pinta(pintor, axew, Ajusta(axew, imagen.size()), imagen.size(), Fondo::oscuro);
  return imagen;
}

struct ConPieza : ConVentanas {
  ConPieza() { Aceptada(TipoPieza::cr, "300 100 400 300 30 20 10 12 1", true); }
};

class Visor : public ConPieza {
 protected:
  QImage Imagen() { return lienzo_->grab().toImage(); }
  bool Habilitado(const char* nombre) { return Hijo(visor_, nombre).isEnabled(); }
  void ExpectVista(const Punto3& desde, const std::string& orden) {
    EWdraw propio;
    Dibuja3D(propio);
    propio.EwViewDirection(desde.x, desde.y, desde.z);
    const QImage imagen = Imagen();
    QImage esperada = Pintado(propio, imagen);
    QPainter pintor(&esperada);
    pintor.setFont(lienzo_->font());
    PintaEjes(pintor, desde, esperada.size());
    EXPECT_EQ(imagen, esperada) << orden;
  }

  void Responde(int mensaje, std::function<void()> hace) {
    usuario_.CierraMensaje(Texto(mensaje));
    usuario_.Cuando("pick", [hace](QWidget&) { hace(); });
  }
  /// Answers a pick by a click.
  void Elige(int mensaje, QPoint sitio) {
    Responde(mensaje, [this, mensaje, sitio] {
      EXPECT_EQ(QApplication::overrideCursor(), nullptr);
      Arrastra(*lienzo_, Qt::NoButton, {}, sitio);
      const std::string rotulo = Hijo<QLabel>(visor_, "LblEstado").text().toStdString();
      EXPECT_EQ(rotulo.starts_with(Texto(106) + ": "), mensaje == 65) << rotulo;
      QTest::mouseClick(lienzo_, Qt::LeftButton, {}, sitio);
    });
  }
  void AlAbrir(std::function<void()> hace) {
    QTimer::singleShot(0, &visor_, [&] {
      EXPECT_TRUE(QTest::qWaitForWindowActive(&visor_));
      hace();
    });
    visor_.exec();
  }

  FrmViewUnfold visor_{nullptr};
  Lienzo* lienzo_ = visor_.findChild<Lienzo*>();
};

TEST_F(Visor, OpensWithTheSolidAndItsViews) {
  const struct {
    const char* boton;
    Punto3 desde;
  } vistas[]{{"cmdTop", {0, 0, 1}},       {"cmdBottom", {0, 0, -1}},  {"CmdLeft", {-1, 0, 0}},
             {"CmdRight", {1, 0, 0}},     {"cmdfront", {0, -1, 0}},   {"cmdRear", {0, 1, 0}},
             {"CmdIsofront", {0, -1, 1}}, {"cmdisoright", {1, 0, 1}}, {"CmdIsoclear", {0, 1, 1}},
             {"cmdisoleft", {-1, 0, 1}},  {"cmdCorner", {1, -1, 0.8}}};
  const auto marcados = [&] {
    std::string nombres;
    for (const auto& vista : vistas) {
      if (Hijo<QPushButton>(visor_, vista.boton).isChecked()) nombres += vista.boton;
    }
    return nombres;
  };
  AlAbrir([&] {
    EXPECT_TRUE(Habilitado("FrmView") && Habilitado("CmdDesplegado"));
    EXPECT_FALSE(Habilitado("CmdSave") || Habilitado("CmdSolido"));
    EXPECT_LT(visor_.width(), visor_.screen()->availableSize().width()) << "it is designed for a larger screen";
    EXPECT_LT(Hijo(visor_, "LblEstado").font().pointSizeF(), QApplication::font().pointSizeF());
    const QImage sombreado = Imagen();
    QTest::keyClick(&visor_, Qt::Key_W);
    ExpectVista({0, -1, 0}, "at first");
    EXPECT_NE(Imagen(), sombreado);
    for (std::size_t i = 0; i < std::size(vistas); ++i) {
      Pulsa(visor_, vistas[i].boton);
      ExpectVista(vistas[i].desde, vistas[i].boton);
      const std::size_t otra = (i + 5) % std::size(vistas);
      QTest::keyClick(&visor_, static_cast<Qt::Key>(Qt::Key_F1 + otra));
      ExpectVista(vistas[otra].desde, "F" + std::to_string(otra + 1));
      EXPECT_EQ(marcados(), vistas[otra].boton);
    }
    Arrastra(*lienzo_, Qt::RightButton, {300, 300}, {340, 250});
    EXPECT_EQ(marcados(), "");
    QTest::keyClick(&visor_, Qt::Key_F5);
    QTest::keyClick(&visor_, Qt::Key_W);
    EXPECT_EQ(Imagen(), sombreado);
    QTest::keyClick(&visor_, Qt::Key_Escape);
  });
  EXPECT_FALSE(visor_.isVisible());
}

TEST_F(Visor, ASaveProposesANameAndRemembersItsFolder) {
  const std::string propio = estado.sRutaPropia = Ruta("propio/duktores.ini");
  estado.sRutaDuct = Ruta("Duct");
  std::filesystem::create_directories(Ruta("otra"));
  const auto guarda = [&](const std::string& esperada, const std::string& nombre) {
    usuario_.Cuando("QFileDialog", [=](QWidget& dialogo) {
      EXPECT_EQ(dynamic_cast<QFileDialog&>(dialogo).directory().path().toStdString(), esperada);
      auto& campo = Hijo<QLineEdit>(dialogo, "fileNameEdit");
      EXPECT_TRUE(QTest::qWaitFor([&] { return campo.hasFocus(); }));
      EXPECT_EQ(campo.selectedText(), "TransCR_400x300_R100");
      if (!nombre.empty()) campo.setText(QString::fromStdString(nombre));
      QTest::keyClick(&campo, Qt::Key_Return);
    });
    usuario_.CierraMensaje("OK");
    Pulsa(visor_, "CmdSave");
    return Hijo<QLabel>(visor_, "LblEstado").text().toStdString();
  };
  for (const int mensaje : {63, 65, 64, 65}) Elige(mensaje, {310, 200});
  AlAbrir([&] {
    Pulsa(visor_, "CmdDesplegado");
    EXPECT_TRUE(guarda(Ruta("Duct"), Ruta("otra/pieza.v2")).starts_with(Texto(334) + " " + Ruta("otra/pieza.v2.dxf")));
    guarda(Ruta("otra"), "");
    estado.sCarpetaGuardada.clear();  // the next program run
    guarda(Ruta("otra"), "tercera");
    std::filesystem::remove_all(Ruta("otra"));
    guarda(Ruta("Duct"), "cuarta");
    visor_.close();
  });
  EXPECT_TRUE(std::filesystem::exists(Ruta("Duct/cuarta.dxf")) && std::filesystem::exists(propio));
}

// Also while a shape hangs on the pointer, when the buttons rest.
TEST_F(Visor, KeysDoWhatTheButtonsDo) {
  const auto activa = [this] {  // as a window manager does when a box on top has gone
    visor_.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&visor_));
  };
  const auto mueven = [&] {
    activa();
    const QImage entera = Imagen();
    for (const Qt::Key tecla : {Qt::Key_Plus, Qt::Key_Minus, Qt::Key_Left, Qt::Key_Up}) {
      const QImage antes = Imagen();
      QTest::keyClick(&visor_, tecla);
      EXPECT_NE(Imagen(), antes) << tecla;
    }
    QTest::keyClick(&visor_, Qt::Key_0);
    EXPECT_EQ(Imagen(), entera);
  };
  usuario_.Cuando("FrAyuda", [](QWidget& pagina) { QTest::keyClick(&pagina, Qt::Key_Escape); });
  Elige(63, {310, 200});
  Responde(65, [&] {
    mueven();
    QTest::keyClick(&visor_, Qt::Key_Escape);
  });
  AlAbrir([&] {
    mueven();
    QTest::keyClick(&visor_, Qt::Key_Question);
    activa();
    QTest::keyClick(&visor_, Qt::Key_E);
    EXPECT_TRUE(Hijo<QPushButton>(visor_, "CmdExacto").isChecked() && estado.pieza->regla == Regla::exacta);
    Hijo(visor_, "cmdTop").setFocus();
    QTest::keyClick(&visor_, Qt::Key_Return);
    QTest::keyClick(&visor_, Qt::Key_W);
    ExpectVista({0, 0, 1}, "Enter on its button");
    QTest::keyClick(&visor_, Qt::Key_U);
    EXPECT_GT(estado.oDrawing->Count(), 0);
    visor_.close();
  });
}

// By the usual rules a leaning ellipse is none of its solid, which nobody may overlook.
TEST_F(Visor, AFalsePatternIsToldAndATrueOne) {
  estado.iBox = 0;
  for (const bool exacto : {false, true}) {
    Aceptada(TipoPieza::elip, "300 200 150 400 300 30 0 20 12 1");
    FrmViewUnfold otro(nullptr);
    otro.show();
    if (exacto) Pulsa(otro, "CmdExacto");
    Pulsa(otro, "CmdDesplegado");
    const auto& veredicto = Hijo<QLabel>(otro, "LblEstado");
    EXPECT_TRUE(veredicto.text().startsWith(QString::fromStdString(Texto(exacto ? 107 : 108))));
    EXPECT_EQ(veredicto.styleSheet().contains("background"), !exacto);
    EXPECT_TRUE(Hijo(otro, "CmdSave").isEnabled());
    auto* lienzo = otro.findChild<Lienzo*>();
    const QImage desarrollo = lienzo->grab().toImage();
    QTest::keyClick(&otro, Qt::Key_F7);
    Arrastra(*lienzo, Qt::RightButton, {300, 300}, {340, 250});
    EXPECT_EQ(lienzo->grab().toImage(), desarrollo) << "a flat pattern stays as seen from above";
    const auto [texto, dibujadas] = std::pair(veredicto.text(), estado.oDrawing->Count());
    for (const bool solido : {true, false}) {
      Pulsa(otro, "CmdSolido");
      EXPECT_EQ(Hijo(otro, "FrmView").isEnabled(), solido);
      EXPECT_EQ(lienzo->grab().toImage() == desarrollo, !solido);
      EXPECT_TRUE(veredicto.text() == texto && Hijo(otro, "CmdSave").isEnabled());
      Arrastra(*lienzo, Qt::RightButton, {300, 300}, {340, 250});
    }
    EXPECT_TRUE(estado.oDrawing->Count() == dibujadas && lienzo->grab().toImage() == desarrollo);
    Pulsa(otro, "CmdSolido");  // the other rule unfolds anew, whichever of the two shows
    Pulsa(otro, "CmdExacto");
    EXPECT_EQ(veredicto.styleSheet().contains("background"), exacto) << "the other rule's own verdict";
  }
}

TEST_F(Visor, EscapeEndsAPickAndKeepsWhatIsDrawn) {
  const auto escape = [this] {
    const QImage antes = Imagen();
    const QSize tamano = visor_.size();
    visor_.resize(1200, 900);
    visor_.resize(tamano);
    EXPECT_EQ(Imagen(), antes) << "the hanging shape is in view at any size";
    QTest::keyClick(lienzo_, Qt::Key_Escape);
  };
  // The block hangs by its upper left corner.
  const auto expectCuelga = [this](QPoint sitio) {
    Arrastra(*lienzo_, Qt::NoButton, {}, sitio);
    const QImage imagen = Imagen();
    EXPECT_NE(imagen.pixel(sitio + QPoint(5, 5)), imagen.pixel(1, 1));
    EXPECT_EQ(imagen.pixel(sitio - QPoint(5, 5)), imagen.pixel(1, 1));
  };
  Elige(63, {310, 200});
  Responde(65, [&] {
    for (const QPoint sitio : {QPoint(700, 50), QPoint(750, 80)}) expectCuelga(sitio);
    escape();
  });
  AlAbrir([&] {
    Pulsa(visor_, "CmdDesplegado");
    EXPECT_GT(estado.oDrawing->Count(), 0);
    EXPECT_EQ(Hijo<QLabel>(visor_, "LblEstado").text().toStdString(), Texto(120));
    EXPECT_TRUE(Habilitado("CmdSave") && Habilitado("CmdDesplegado") && visor_.isVisible());
    usuario_.Cuando("QMessageBox", [this](QWidget& caja) {
      EXPECT_EQ(Hijo<QLabel>(visor_, "LblEstado").text(), "") << "what it said was of the pattern before";
      QTest::keyClick(&caja, Qt::Key_Return);
    });
    usuario_.Cuando("pick", [&](QWidget&) { escape(); });
    Pulsa(visor_, "CmdDesplegado");
    EXPECT_EQ(estado.oDrawing->Count(), 0);
    EXPECT_FALSE(Habilitado("CmdSave"));
    visor_.close();
  });
}

TEST_F(Visor, ClosingItEndsAPick) {
  for (const bool conBoton : {false, true}) {
    Responde(63, [&] { conBoton ? Pulsa(visor_, "CmdCancelar") : void(visor_.close()); });
    AlAbrir([&] { Pulsa(visor_, "CmdDesplegado"); });
    EXPECT_FALSE(visor_.isVisible() || lienzo_->Eligiendo());
    EXPECT_EQ(estado.oDrawing->Count(), 0);
  }
}

// Without a window: the drawing of who clicks these places.
std::string Directo(const std::vector<Punto2>& sitios) {
  const auto guarda = std::exchange(estado.plataforma, nullptr);
  Mesa mesa;
  for (const Punto2 p : sitios) mesa.puntos.push_back({p.x, p.y, 0});
  EWdraw axew;
  axew.PonVista(&mesa);
  Desplegado(axew);
  estado.plataforma = guarda;
  return estado.oDrawing->GetEntities();
}

TEST_F(Visor, KeysAndMousePlaceAndMove) {
  auto sitios = Reparte(DesarrolloDe(*estado.pieza, SolidoDe(*estado.pieza)).patron, FormatoDeEstado());
  const auto repartidas = sitios;
  const std::string todas = Directo(sitios);
  const auto dibujado = [] { return estado.oDrawing->GetEntities(); };
  const auto raton = [this](Punto2 p) {
    const QPointF cero = lienzo_->Modelo({0, 0}), paso = lienzo_->Modelo({1, 1}) - cero;
    return QPoint(qRound((p.x - cero.x()) / paso.x()), qRound((p.y - cero.y()) / paso.y()));
  };
  // Enter that is held since the prompt doesn't place; a new one does, wherever the focus is.
  Responde(63, [&] {
    visor_.activateWindow();  // what a window manager does
    EXPECT_TRUE(QTest::qWaitForWindowActive(&visor_));
    Hijo(visor_, "CmdCancelar").setFocus();
    QTest::simulateEvent(&Hijo(visor_, "CmdCancelar"), true, Qt::Key_Return, {}, "\r", true);
    QTest::keyClick(&visor_, Qt::Key_Backspace);  // nothing to take back
    EXPECT_TRUE(lienzo_->Eligiendo() && visor_.isVisible());
    QTest::keyClick(&Hijo(visor_, "CmdCancelar"), Qt::Key_Return);
  });
  AlAbrir([&] {
    Pulsa(visor_, "CmdDesplegado");
    EXPECT_TRUE(dibujado() == todas && Habilitado("CmdSave") && visor_.isVisible());
    // The second block onto the first one, by its middle.
    const QImage antes = Imagen();
    const QPoint desde = raton(sitios[3] + Punto2{300, -300}), hasta = raton(sitios[1] + Punto2{310, -280});
    Arrastra(*lienzo_, Qt::LeftButton, desde, hasta);
    const QPointF mas = lienzo_->Modelo(hasta) - lienzo_->Modelo(desde);
    sitios[3] = sitios[3] + Punto2{mas.x(), mas.y()};
    const std::string movidas = dibujado();
    EXPECT_TRUE(movidas == Directo(sitios));
    EXPECT_TRUE(Hijo<QLabel>(visor_, "LblEstado").text().startsWith(QString::fromStdString(Texto(204))));
    QTest::keyClick(&visor_, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_TRUE(dibujado() == todas && Imagen() == antes) << "the view stays";
    QTest::keyClick(&visor_, Qt::Key_Y, Qt::ControlModifier);
    EXPECT_TRUE(dibujado() == movidas);
    Pulsa(visor_, "CmdNombres");
    EXPECT_NE(Imagen(), antes);
    QTest::keyClick(&visor_, Qt::Key_Z, Qt::ControlModifier);
    // What was placed at once is taken back one by one, and hangs on the pointer without a prompt.
    usuario_.Cuando("pick", [&](QWidget&) { QTest::keyClick(&visor_, Qt::Key_Backspace); });
    usuario_.Cuando("pick", [&](QWidget&) {
      EXPECT_LT(dibujado().size(), todas.size());
      Pulsa(visor_, "CmdTodas");
    });
    QTest::keyClick(&visor_, Qt::Key_Backspace);
    // Neither another rule nor an unfolding loses the places; who only let them be laid isn't asked at the end.
    QTest::keyClick(&visor_, Qt::Key_E);
    EXPECT_TRUE(estado.pieza->regla == Regla::exacta && dibujado() != todas && dibujado() == Directo(repartidas));
    QTest::keyClick(&visor_, Qt::Key_E);
    Responde(63, [&] {
      visor_.activateWindow();
      EXPECT_TRUE(QTest::qWaitForWindowActive(&visor_));
      QTest::keyClick(&visor_, Qt::Key_Z, Qt::ControlModifier);
    });
    Pulsa(visor_, "CmdDesplegado");
    EXPECT_TRUE(dibujado() == todas);
    EXPECT_EQ(visor_.SinGuardar(), FrmViewUnfold::Pendiente::nada);
    visor_.close();
  });
}

class UnLienzo : public ConVentanas {
 protected:
  UnLienzo() {
    lienzo_.resize(400, 400);
    axew_.EwAddLine({0, 0, 0}, {100, 50, 0});
    axew_.EwAddLine({0, 0, 0}, {0, 0, 70});
    lienzo_.show();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&lienzo_));
  }
  /// The model's coordinates at a place of the widget, as a pick there gives them.
  QPointF En(QPoint sitio) {
    QTimer::singleShot(0, &lienzo_, [this, sitio] { QTest::mouseClick(&lienzo_, Qt::LeftButton, {}, sitio); });
    Punto3 p{0, 0, 1};
    axew_.EwPickPoint(p.x, p.y, p.z);
    EXPECT_EQ(p.z, 0);
    return {p.x, p.y};
  }
  static void ExpectIguales(QPointF a, QPointF b) { EXPECT_LT(std::hypot(a.x() - b.x(), a.y() - b.y()), 1e-9); }

  EWdraw axew_;
  Lienzo lienzo_{axew_, nullptr};
};

TEST_F(UnLienzo, PicksWhereWheelAndMiddleButtonHaveMovedTheView) {
  ExpectIguales(En({123, 45}), Ajusta(axew_, {400, 400}).DelDispositivo({123, 45}, {400, 400}));
  const QPointF fijo = En({100, 300}), otro = En({300, 100});
  Rueda(lienzo_, {100, 300}, 240);
  ExpectIguales(En({100, 300}), fijo);
  EXPECT_LT((En({300, 100}) - fijo).manhattanLength(), 0.9 * (otro - fijo).manhattanLength());
  Arrastra(lienzo_, Qt::MiddleButton, {200, 200}, {170, 260});
  ExpectIguales(En({70, 360}), fijo);
  lienzo_.hide();
  Punto3 p;
  EXPECT_THROW(axew_.EwPickPoint(p.x, p.y, p.z), EleccionRechazada) << "nobody could answer";
}

TEST_F(UnLienzo, TheRightButtonTurnsTheSolid) {
  axew_.EwViewDirection(0, -1, 0);
  axew_.EwRegen();
  const QImage antes = lienzo_.grab().toImage();
  Arrastra(lienzo_, Qt::RightButton, {200, 200}, {150, 260});
  const Punto3 d = axew_.DireccionVista();
  EXPECT_GT(d.x, 0.1);  // the model follows the hand: to the left and its far side up
  EXPECT_GT(d.z, 0.1);
  EXPECT_NE(lienzo_.grab().toImage(), antes);
  Arrastra(lienzo_, Qt::RightButton, {150, 260}, {200, 200});
  EXPECT_LT(std::hypot(axew_.DireccionVista().x, axew_.DireccionVista().z), 1e-9);
  EXPECT_EQ(lienzo_.grab().toImage(), antes);
}

TEST_F(UnLienzo, WhatWasInViewWholeStaysSoWhenTurned) {
  axew_.EwAddLine({0, -500, 0}, {0, 500, 0});
  axew_.EwViewDirection(0, -1, 0);
  axew_.EwRegen();
  Arrastra(lienzo_, Qt::RightButton, {200, 200}, {20, 220});
  const QImage imagen = lienzo_.grab().toImage();
  const QRgb fondo = imagen.pixel(0, 0);
  for (int i = 0; i < 400; ++i) {
    EXPECT_TRUE(imagen.pixel(i, 3) == fondo && imagen.pixel(i, 396) == fondo) << i;
    EXPECT_TRUE(imagen.pixel(3, i) == fondo && imagen.pixel(396, i) == fondo) << i;
  }
}

}  // namespace
}  // namespace duktores
