#include "exige.h"

#include <cassert>
#include <filesystem>

#include "batch/puntos_lote.h"
#include "batch/trabajo.h"
#include "check/comprueba.h"
#include "dxf/dibujo.h"
#include "mancha.h"
#include "shell/visor.h"
#include "state/arranque.h"
#include "state/estado.h"
#include "state/fichero.h"

namespace duktores {

namespace {

// Keeps the last message.
struct Mensajes : Plataforma {
  void CajaMensaje(std::string_view texto, EstiloMensaje, std::string_view) override { ultimo = texto; }
  void VentanaMensaje(std::string_view texto) override { ultimo = texto; }
  std::string ultimo;
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
  Mensajes mensajes;
  estado.plataforma = &mensajes;
  EWdraw solido, axew;
  Dibuja3D(solido);
  const Solido mostrado = SolidoActual();
  PuntosLote sitios(SitiosLibres());
  axew.PonVista(&sitios);
  mensajes.ultimo.clear();
  const FinCorrida fin = Desplegado(axew);
  assert(fin == FinCorrida::completo || (fin == FinCorrida::error && !mensajes.ultimo.empty()));
  Comprueba(mostrado, axew);
  ExigeDxf(estado.oDrawing->GetEntities());
  estado.plataforma = nullptr;
}

}  // namespace duktores
