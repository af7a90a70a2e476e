#include "exige.h"

#include <cassert>
#include <filesystem>

#include "batch/puntos_lote.h"
#include "batch/trabajo.h"
#include "dxf/dibujo.h"
#include "mancha.h"
#include "sheet/hoja.h"
#include "shell/juicio.h"
#include "shell/visor.h"
#include "state/arranque.h"
#include "state/estado.h"
#include "state/fichero.h"

namespace duktores {

namespace {

// Counts the messages that ask for no place.
struct Mesa : PuntosLote, Plataforma {
  using PuntosLote::PuntosLote;
  std::optional<Punto3> EligePunto(EWdraw& axew) override {
    --mensajes;
    return PuntosLote::EligePunto(axew);
  }
  void CajaMensaje(std::string_view, EstiloMensaje, std::string_view) override { ++mensajes; }
  void VentanaMensaje(std::string_view) override { ++mensajes; }
  int mensajes = 0;
};

}  // namespace

void ArrancaUnaVez() {
  static const EstadoPrograma configurado = [] {
    Arranca(DUKTORES_RAIZ "duktores", DUKTORES_RAIZ "Config/Config.ini");
    return estado;
  }();
  estado = configurado;
}

void ExigeDxf(std::string_view texto) { assert(Mancha(texto).empty()); }

void ExigeTrabajos(const std::vector<Trabajo>& trabajos, const std::string& carpeta) {
  const EstadoPrograma configurado = estado;
  Opciones opciones;
  opciones.carpeta = carpeta;
  for (const Trabajo& trabajo : trabajos) {
    estado = configurado;
    const Resultado resultado = Trabaja(trabajo, opciones);
    if (resultado.rechazo) {
      assert(!resultado.rechazo->texto.empty() && resultado.fichero.empty());
    } else {
      ExigeDxf(LeeFichero(resultado.fichero).value());
      std::filesystem::remove(resultado.fichero);
    }
  }
}

void ExigeDesarrollo() {
  const Solido solido = SolidoDe(*estado.pieza);
  Desarrollo desarrollo = DesarrolloDe(*estado.pieza, solido);
  Mesa mesa(Reparte(desarrollo.patron, FormatoDeEstado()));
  estado.plataforma = &mesa;
  EWdraw vista, axew;
  Dibuja3D(vista);
  axew.PonVista(&mesa);
  const auto [fin, hoja, dados] = Desplegado(axew, std::move(desarrollo));
  assert(fin != FinCorrida::eleccionRechazada && mesa.mensajes == (fin == FinCorrida::error ? 1 : 0));
  Juzga(*estado.pieza, solido, hoja);
  ExigeDxf(estado.oDrawing->GetEntities());
  estado.plataforma = nullptr;
}

}  // namespace duktores
