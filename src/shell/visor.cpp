#include "shell/visor.h"

#include <algorithm>
#include <array>
#include <utility>

#include "dxf/composicion.h"
#include "dxf/escritor.h"
#include "piece/numeros_texto.h"
#include "state/estado.h"
#include "state/textos.h"

namespace duktores {

namespace {

constexpr std::int32_t kPrimerHandle = 500;

// clang-format off
constexpr std::array kVistas{
    //        button         key    text                    from
    VistaFija{"cmdTop",      "F1",  texto::kDesdeArriba,    { 0,  0,  1}},
    VistaFija{"cmdBottom",   "F2",  texto::kDesdeAbajo,     { 0,  0, -1}},
    VistaFija{"CmdLeft",     "F3",  texto::kDesdeIzquierda, {-1,  0,  0}},
    VistaFija{"CmdRight",    "F4",  texto::kDesdeDerecha,   { 1,  0,  0}},
    VistaFija{"cmdfront",    "F5",  texto::kDesdeDelante,   { 0, -1,  0}},
    VistaFija{"cmdRear",     "F6",  texto::kDesdeDetras,    { 0,  1,  0}},
    VistaFija{"CmdIsofront", "F7",  texto::kIsoDelante,     { 0, -1,  1}},
    VistaFija{"cmdisoright", "F8",  texto::kIsoDerecha,     { 1,  0,  1}},
    VistaFija{"CmdIsoclear", "F9",  texto::kIsoDetras,      { 0,  1,  1}},
    VistaFija{"cmdisoleft",  "F10", texto::kIsoIzquierda,   {-1,  0,  1}},
    VistaFija{"cmdCorner",   "F11", texto::kDesdeEsquina,   { 1, -1,  0.8}},
};
// clang-format on

void Mira(EWdraw& axew, Punto3 desde) {
  axew.EwViewMode(1);
  axew.EwViewDirection(desde.x, desde.y, desde.z);
  axew.EwRegen();
}

void PreparaHoja(EWdraw& axew) {
  CursorEspera(true);
  axew.EwClear();
  axew.EwBeginPolyline();
  ComandoVista(axew, "F1", false);
  estado.iHandleDxf = kPrimerHandle;
}

}  // namespace

std::span<const VistaFija> VistasFijas() { return kVistas; }

void ComandoVista(EWdraw& axew, std::string_view clave, bool soloRegen) {
  const auto* vista = std::ranges::find(kVistas, clave, &VistaFija::clave);
  if (vista != kVistas.end()) {
    Mira(axew, vista->direccion);
  } else if (clave == "Z" && soloRegen) {
    axew.EwRegen();
  }
}

Corrida Desplegado(EWdraw& axew) {
  PreparaHoja(axew);
  Corrida corrida = Despliega(axew);
  CursorEspera(false);
  return corrida;
}

Corrida Desplegado(EWdraw& axew, Desarrollo desarrollo) {
  PreparaHoja(axew);
  Corrida corrida = Despliega(axew, std::move(desarrollo));
  CursorEspera(false);
  return corrida;
}

Corrida Desplegado(EWdraw& axew, const HaceDesarrollo& hace, const PideSitio& pide) {
  PreparaHoja(axew);
  Corrida corrida = Despliega(axew, hace, pide);
  CursorEspera(false);
  return corrida;
}

std::string NombreDxf(const std::string& elegido) {
  constexpr std::string_view kFinal = ".dxf";
  const auto igual = [](char a, char b) { return a == b || (a >= 'A' && a <= 'Z' && a - 'A' + 'a' == b); };
  const std::size_t nombre = elegido.size() - (elegido.rfind('/') + 1);
  const bool lleva = nombre > kFinal.size() &&
                     std::equal(elegido.end() - kFinal.size(), elegido.end(), kFinal.begin(), kFinal.end(), igual);
  if (lleva) return elegido;
  return elegido + (elegido.ends_with('.') && nombre > 1 ? "dxf" : ".dxf");
}

bool GuardaDibujo(std::string elegido) {
  if (elegido.empty()) return false;
  elegido = NombreDxf(elegido);
  if (!estado.oDXF || !estado.oDXF->InsertEntities(estado.oDrawing)) return false;
  Guardado guardado = RevisaPlantilla();
  if (guardado) guardado = estado.oDXF->Save(elegido);
  if (!guardado) {
    MuestraMensaje(TextoNoGuardado(elegido, guardado), EstiloMensaje::exclamacion, "");
    CursorEspera(false);
    return false;
  }
  // A copy for whoever looks for the last drawing there; nothing hangs on it.
  estado.oDXF->Save(estado.sRutaPrograma + "AuxDxf.dxf", Enlace::reemplazado);
  const std::string restos = TextoRestos(guardado);
  const auto estilo = restos.empty() ? EstiloMensaje::informacion : EstiloMensaje::exclamacion;
  MuestraMensaje(restos.empty() ? "OK" : "OK, " + restos, estilo, "");
  CursorEspera(false);
  return true;
}

}  // namespace duktores
