// duktores: the catalogue of the duct transition pieces.

#include <QApplication>
#include <QIcon>
#include <QStandardPaths>
#include <cstdio>
#include <new>
#include <system_error>

#include "piece/numeros_texto.h"
#include "state/ajustes.h"
#include "state/arranque.h"
#include "state/estado.h"
#include "state/textos.h"
#include "windows/fr_lista_duktores.h"
#include "windows/idioma_qt.h"
#include "windows/plataforma_qt.h"
#include "windows/ventanas.h"

namespace {

// An exception must not go through Qt's own code. Without memory nothing can be done or even said in a window.
class Aplicacion : public QApplication {
 public:
  using QApplication::QApplication;
  bool notify(QObject* objeto, QEvent* suceso) override {
    constexpr int kSinMemoria = 2;
    try {
      return QApplication::notify(objeto, suceso);
    } catch (const std::bad_alloc&) {
      std::fputs("duktores: out of memory\n", stderr);
      exit(kSinMemoria);
      return false;
    }
  }
};

}  // namespace

int main(int argc, char** argv) {
  using namespace duktores;
  PreparaProceso();
  Aplicacion aplicacion(argc, argv);
  // Simplified Chinese shapes for what the font of the desktop lacks.
  QFont letra = QApplication::font();
  letra.setFamilies({letra.family(), "Noto Sans CJK SC", "WenQuanYi Micro Hei"});
  QApplication::setFont(letra);

  PlataformaQt plataforma;
  estado.plataforma = &plataforma;
  estado.sRutaPropia =
      QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation).toStdString() + "/duktores.ini";
  const LecturaConfiguracion lectura = Arranca(RutaEjecutable());
  const bool falta = lectura.fallo == std::errc::no_such_file_or_directory;
  PonIdiomaQt();
  QApplication::setWindowIcon(QIcon(QString::fromStdString(estado.sRutaPrograma + "duktores.svg")));
  QApplication::setDesktopFileName("duktores");
  CursorEspera(true);
  FrListaDuktores lista(AvisosDe(lectura));
  plataforma.PonPrincipal(&lista);
  plataforma.HabilitaVentana(estado.hVentanaHost, false);
  lista.show();
  TraeAlFrente(lista);
  CursorEspera(false);
  if (!ConfiguracionSirve() && !falta)
    MuestraMensaje(Texto(texto::kConfiguracion) + " " + estado.sRutaIni, EstiloMensaje::exclamacion, "");
  const int salida = QApplication::exec();
  plataforma.PonPrincipal(nullptr);
  estado.plataforma = nullptr;
  return salida;
}
