#include <QDialog>
#include <QDialogButtonBox>
#include <QDir>
#include <QPointer>
#include <QRegularExpression>
#include <QTextBlock>
#include <QTextBrowser>
#include <QTextCursor>
#include <QTextTable>
#include <set>

#include "piece/numeros_texto.h"
#include "state/textos.h"
#include "windows/fr_manual.h"
#include "windows/teclas.h"
#include "windows/usuario.h"
#include "windows/ventanas.h"

namespace duktores {
namespace {

/// The texts of the configured language, each as a pattern: a blank for what is filled in stands for anything. A colon
/// at the end may be left out, as the settings do.
std::vector<QRegularExpression> Textos() {
  std::vector<QRegularExpression> textos;
  for (int n = 0; n < 500; ++n) {
    try {
      QString texto = QRegularExpression::escape(QString::fromStdString(Texto(n)));
      texto.replace(QRegularExpression(R"(\\%\d)"), ".+").replace(QRegularExpression(R"(\\:$)"), ":?");
      textos.emplace_back(QRegularExpression::anchoredPattern(texto));
    } catch (const std::out_of_range&) {
    }
  }
  return textos;
}

struct Manual : ConVentanas {
  Manual() { std::filesystem::create_directory_symlink(DUKTORES_RAIZ "/docs/manual", Ruta("Duct/Manual")); }

  QTextBrowser& Abre(double idioma) {
    estado.dIdioma = idioma;
    usuario_.Cuando("FrAyuda", [](QWidget& teclas) { Pulsa(teclas, "CmdManual"); });
    MuestraAyuda(padre_);
    return *padre_.findChildren<QTextBrowser*>().back();
  }
  static QStringList Ficheros(const QString& idioma) {
    return QDir(DUKTORES_RAIZ "/docs/manual/" + idioma).entryList(QDir::Files, QDir::Name);
  }
  QWidget padre_;
};

/// What a page's text needs: pictures, pages that it leads to, texts of the windows, which it has in bold.
struct Necesita {
  std::set<QString> imagenes, enlaces, citas;
};
Necesita Lee(const QTextDocument& pagina) {
  Necesita lista;
  for (QTextBlock bloque = pagina.begin(); bloque.isValid(); bloque = bloque.next()) {
    for (auto it = bloque.begin(); !it.atEnd(); ++it) {
      const QTextCharFormat formato = it.fragment().charFormat();
      const QTextTable* tabla = QTextCursor(bloque).currentTable();
      const bool titulo =
          bloque.blockFormat().headingLevel() > 0 || (tabla && tabla->cellAt(bloque.position()).row() == 0);
      if (formato.isImageFormat()) lista.imagenes.insert(formato.toImageFormat().name());
      if (formato.isAnchor()) lista.enlaces.insert(formato.anchorHref());
      if (formato.fontWeight() >= QFont::Bold && !titulo) lista.citas.insert(it.fragment().text());
    }
  }
  return lista;
}

TEST_F(Manual, IsWholeInBothLanguagesAndQuotesTheWindows) {
  EXPECT_EQ(Ficheros("en"), Ficheros("es"));
  for (const double idioma : {0.0, 10000.0}) {
    QTextBrowser& manual = Abre(idioma);
    const auto textos = Textos();
    std::set<QString> usados{"index.md"};
    const QUrl indice = manual.source();
    for (const QString& nombre : Ficheros(idioma == 0 ? "es" : "en")) {
      if (!nombre.endsWith(".md")) continue;
      manual.setSource(indice.resolved(QUrl(nombre)));
      const Necesita necesita = Lee(*manual.document());
      EXPECT_GT(necesita.enlaces.size(), 0) << nombre.toStdString();
      usados.merge(std::set(necesita.imagenes));
      usados.merge(std::set(necesita.enlaces));
      for (const QString& imagen : necesita.imagenes) {
        EXPECT_LE(QImage(indice.resolved(QUrl(imagen)).toLocalFile()).width(), 830) << "wider than the page";
      }
      for (const QString& cita : necesita.citas) {
        const auto es = [&](const QRegularExpression& texto) { return texto.match(cita).hasMatch(); };
        EXPECT_TRUE(std::ranges::any_of(textos, es)) << nombre.toStdString() << ": " << cita.toStdString();
      }
    }
    const QStringList ficheros = Ficheros("en");
    EXPECT_EQ(usados, std::set<QString>(ficheros.begin(), ficheros.end()));
  }
}

TEST_F(Manual, LeadsFromPageToPageAndNowhereElse) {
  for (const double idioma : {50000.0, 0.0}) {
    QTextBrowser& manual = Abre(idioma);
    const QString indice = manual.source().toString();
    EXPECT_TRUE(indice.endsWith(idioma == 0 ? "es/index.md" : "en/index.md"));
    for (const char* ajeno : {"https://example.org/", "exact.md", "none.md"}) {
      if (*ajeno == 'n') {
        usuario_.Cuando("QMessageBox", [](QWidget& caja) {
          EXPECT_TRUE(dynamic_cast<QMessageBox&>(caja).text().contains("none.md"));
          QTest::keyClick(&caja, Qt::Key_Return);
        });
      }
      emit manual.anchorClicked(QUrl(ajeno));
    }
    EXPECT_TRUE(manual.source().toString().endsWith("/exact.md"));
    const auto botones = manual.window()->findChild<QDialogButtonBox*>()->buttons();
    for (QAbstractButton* boton : botones) {
      if (boton->text().toStdString() == Texto(texto::kAtras)) boton->click();
    }
    EXPECT_EQ(manual.source().toString(), indice);
  }
  EXPECT_EQ(padre_.findChildren<QTextBrowser*>().size(), 1) << "the one that is open comes back";
}

TEST_F(Manual, CanBeReadWhileAnotherWindowWaitsAndGoesWithItsOpener) {
  estado.dIdioma = 10000;
  QDialog dueno, espera(&dueno);
  espera.setObjectName("Espera");
  dueno.show();
  AbreManual(dueno);
  QPointer<QTextBrowser> paginas = dueno.findChild<QTextBrowser*>();
  QWidget& manual = *paginas->window();
  // As the window system brings it: a window that is blocked gets no click.
  const auto vuelveAlIndice = [&] {
    emit paginas->anchorClicked(QUrl("lists.md"));
    QApplication::processEvents();
    for (const auto* boton : manual.findChildren<QPushButton*>()) {
      const QPoint centro = boton->mapTo(&manual, boton->rect().center());
      if (boton->text() == "Contents") QTest::mouseClick(manual.windowHandle(), Qt::LeftButton, {}, centro);
    }
    return paginas->source().fileName() == "index.md";
  };
  usuario_.Cuando("Espera", [&](QWidget&) {
    EXPECT_TRUE(vuelveAlIndice());
    usuario_.Cuando("QMessageBox", [&](QWidget& caja) {
      EXPECT_TRUE(vuelveAlIndice());
      caja.close();
    });
    plataforma_.CajaMensaje("wait", EstiloMensaje::informacion, "");
    EXPECT_TRUE(vuelveAlIndice());
    usuario_.Cuando("FrAyuda", [&](QWidget& teclas) {
      EXPECT_FALSE(vuelveAlIndice()) << "its own window waits";
      teclas.close();
    });
    manual.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&manual));
    QTest::keyClick(paginas, Qt::Key_F12);
    estado.dIdioma = 0;
    ConfiguracionLeida suceso({});
    QApplication::sendEvent(&manual, &suceso);
    EXPECT_TRUE(paginas->source().path().endsWith("/es/lists.md") && manual.windowTitle() == "Manual");
    QTest::keyClick(paginas, Qt::Key_Escape);
    EXPECT_TRUE(!manual.isVisible() && espera.isVisible());
    espera.close();
  });
  espera.exec();
  AbreManual(dueno);
  paginas = dueno.findChildren<QTextBrowser*>().back();
  EXPECT_TRUE(paginas->isVisible());
  dueno.hide();
  QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_FALSE(paginas);
}

}  // namespace
}  // namespace duktores
