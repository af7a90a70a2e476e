// duktores: the catalogue of the duct transition pieces.

#include <QApplication>

#include "piece/numeros_texto.h"
#include "state/arranque.h"
#include "state/estado.h"
#include "state/textos.h"
#include "windows/fr_lista_duktores.h"
#include "windows/plataforma_qt.h"
#include "windows/ventanas.h"

int main(int argc, char** argv) {
  using namespace duktores;
  PreparaProceso();
  QApplication aplicacion(argc, argv);
  // Simplified Chinese shapes for what the font of the desktop lacks.
  QFont letra = QApplication::font();
  letra.setFamilies({letra.family(), "Noto Sans CJK SC", "WenQuanYi Micro Hei"});
  QApplication::setFont(letra);

  PlataformaQt plataforma;
  estado.plataforma = &plataforma;
  Arranca(RutaEjecutable());
  CursorEspera(true);
  FrListaDuktores lista;
  plataforma.PonPrincipal(&lista);
  plataforma.HabilitaVentana(estado.hVentanaHost, false);
  lista.show();
  TraeAlFrente(lista);
  CursorEspera(false);
  if (!ConfiguracionSirve())
    MuestraMensaje(Texto(texto::kConfiguracion) + " " + estado.sRutaIni, EstiloMensaje::exclamacion, "");
  const int salida = QApplication::exec();
  plataforma.PonPrincipal(nullptr);
  estado.plataforma = nullptr;
  return salida;
}
