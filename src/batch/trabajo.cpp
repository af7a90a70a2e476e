#include "batch/trabajo.h"

#include <filesystem>

#include "batch/puntos_lote.h"
#include "dxf/escritor.h"
#include "jobs/llenado.h"
#include "piece/numeros_texto.h"
#include "sheet/hoja.h"
#include "shell/juicio.h"
#include "shell/lista.h"
#include "shell/texto_veredicto.h"
#include "shell/visor.h"
#include "state/estado.h"
#include "state/textos.h"

namespace duktores {

namespace {

// Keeps the last message for the answer line.
class PlataformaLote : public Plataforma {
 public:
  void CajaMensaje(std::string_view texto, EstiloMensaje, std::string_view) override { mensaje = texto; }
  void VentanaMensaje(std::string_view texto) override { mensaje = texto; }
  std::string mensaje;
};

// The answer to a prompt, which is no message any more.
struct Puntos : PuntosLote {
  Puntos(const std::vector<Punto2>& sitios, std::string& aviso) : PuntosLote(sitios), mensaje(aviso) {}
  std::optional<Punto3> EligePunto(EWdraw& axew) override {
    mensaje.clear();
    return PuntosLote::EligePunto(axew);
  }
  std::string& mensaje;
};

std::string Palabra(const Dialogo& dialogo, int campo) {
  return std::string(dialogo.Definicion().campos[static_cast<std::size_t>(campo)].palabra);
}

std::optional<Rechazo> LlenaYAcepta(Dialogo& dialogo, const Trabajo& trabajo, const PlataformaLote& plataforma) {
  if (auto rechazo = LlenaDialogo(dialogo, trabajo)) return rechazo;
  switch (dialogo.CmdAceptar()) {
    case Respuesta::campoVacio:
      return Rechazo{Palabra(dialogo, dialogo.Foco()), plataforma.mensaje};
    case Respuesta::datoErroneo:
      return Rechazo{Palabra(dialogo, dialogo.Foco()), dialogo.lblerror()};
    case Respuesta::aceptado:
      break;
  }
  return std::nullopt;
}

// Unfolds the accepted piece, which has this solid, and holds it against that.
std::optional<Rechazo> Despliega(EWdraw& axew, const Trabajo& trabajo, const Solido& solido, Veredicto& veredicto,
                                 PlataformaLote& plataforma) {
  Desarrollo desarrollo = DesarrolloDe(*estado.pieza, solido);
  const std::vector<Punto2> sitios = trabajo.puntos ? *trabajo.puntos : Reparte(desarrollo.patron, FormatoDeEstado());
  Puntos puntos(sitios, plataforma.mensaje);
  axew.PonVista(&puntos);
  plataforma.mensaje.clear();
  const auto [fin, hoja, dados] = Desplegado(axew, std::move(desarrollo));
  axew.PonVista(nullptr);
  switch (fin) {
    case FinCorrida::completo:
      veredicto = Juzga(*estado.pieza, solido, hoja);
      return std::nullopt;
    case FinCorrida::eleccionRechazada:
      return Rechazo{"picks", "pick " + std::to_string(sitios.size() + 1) + " is missing in picks."};
    case FinCorrida::error:
      break;
  }
  return Rechazo{"piece", plataforma.mensaje.empty() ? Texto(texto::kIncompleto) : plataforma.mensaje};
}

std::string Sufijo(Formato formato) {
  switch (formato) {
    case Formato::png:
      return ".png";
    case Formato::svg:
      return ".svg";
    case Formato::pdf:
      break;
  }
  return ".pdf";
}

// Drawing and pictures; what isn't written is told by its place, and that the drawing stands if it does.
void Guarda(const EWdraw& axew, const Solido& solido, const std::string& base, const Opciones& opciones,
            Resultado& resultado) {
  const std::string dxf = base + ".dxf";
  const auto anota = [&](const std::string& ruta, const Guardado& guardado) {
    const std::string restos = TextoRestos(guardado);
    if (!restos.empty()) resultado.aviso += (resultado.aviso.empty() ? "" : ". ") + restos;
    if (guardado) return true;
    const std::string queda = ruta == dxf ? "" : ". " + Texto(texto::kDibujoQueda) + " " + dxf;
    resultado.rechazo = {"name", TextoNoGuardado(ruta, guardado) + queda};
    return false;
  };
  estado.oDXF->InsertEntities(estado.oDrawing);
  if (!anota(dxf, estado.oDXF->Save(dxf))) return;
  for (const Formato formato : opciones.imagenes) {
    const std::string imagen = base + Sufijo(formato);
    if (!anota(imagen, GuardaImagen(axew, imagen, formato))) return;
  }
  resultado.fichero = dxf;
  if (!opciones.solido || opciones.imagenes.empty()) return;
  EWdraw vista;
  DibujaSolido(vista, solido);
  vista.EwViewDirection(1, -1, 1);
  for (const Formato formato : opciones.imagenes) {
    const std::string imagen = base + std::string(kSufijoSolido) + Sufijo(formato);
    if (!anota(imagen, GuardaImagen(vista, imagen, formato))) return;
  }
}

}  // namespace

Resultado Trabaja(const Trabajo& trabajo, const Opciones& opciones) {
  if (trabajo.rechazo) return {.rechazo = trabajo.rechazo};
  const FilaPieza* fila = FilaDeClave(trabajo.pieza);
  if (!fila) return {.rechazo = Rechazo{"piece", "\"" + trabajo.pieza + "\" is no piece of the catalogue."}};

  PlataformaLote plataforma;
  estado.plataforma = &plataforma;
  Dialogo dialogo(fila->dialogo);
  Resultado resultado;
  resultado.rechazo = LlenaYAcepta(dialogo, trabajo, plataforma);
  if (!resultado.rechazo && (!opciones.soloComprueba || opciones.estricto)) {
    const std::string base = std::filesystem::path(opciones.carpeta) / trabajo.nombre;
    const Solido solido = SolidoDe(*estado.pieza);
    EWdraw axew;
    Veredicto veredicto;
    resultado.rechazo = Despliega(axew, trabajo, solido, veredicto, plataforma);
    if (!veredicto.Cierto()) resultado.aviso = TextoVeredicto(veredicto);
    if (veredicto.Cierto()) resultado.nota = TextoNotas(veredicto);
    if (!veredicto.Cierto() && opciones.estricto) resultado.rechazo = {"pattern", resultado.aviso};
    if (!resultado.rechazo && !opciones.soloComprueba) Guarda(axew, solido, base, opciones, resultado);
  }
  estado.plataforma = nullptr;
  return resultado;
}

}  // namespace duktores
