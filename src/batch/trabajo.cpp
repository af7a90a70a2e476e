#include "batch/trabajo.h"

#include <algorithm>
#include <filesystem>

#include "batch/puntos_lote.h"
#include "dxf/escritor.h"
#include "piece/numeros_texto.h"
#include "sheet/hoja.h"
#include "shell/juicio.h"
#include "shell/lista.h"
#include "shell/texto_veredicto.h"
#include "shell/visor.h"
#include "state/caracteres.h"
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

std::string Lista(std::span<const std::string_view> valores) {
  std::string lista;
  for (const auto valor : valores) (lista += lista.empty() ? "" : ", ") += valor;
  return lista;
}

// Key by key, as a person would.
std::optional<std::string> EscribeCampo(Dialogo& dialogo, int campo, const std::string& texto) {
  const DefCampo& def = dialogo.Definicion().campos[static_cast<std::size_t>(campo)];
  if (!def.filtro) {
    if (dialogo.Elige(campo, texto)) return std::nullopt;
    return std::string(def.palabra) + " must be one of " + Lista(def.valores) + ", not \"" + texto + "\".";
  }
  SeleccionaTodo(dialogo.CampoDe(campo));
  for (const char16_t tecla : Utf16(texto)) {
    if (!Teclea(tecla, dialogo.CampoDe(campo), def.filtro)) {
      return "\"" + texto + "\" can't be typed into the field " + std::string(def.palabra) + ".";
    }
  }
  return std::nullopt;
}

std::optional<std::string> EscribeValor(Dialogo& dialogo, const std::string& clave, const std::string& texto) {
  const auto campos = dialogo.Definicion().campos;
  if (clave == "Pieces" && dialogo.Definicion().opcionPiezas) {
    if (texto != "1" && texto != "2") return "Pieces must be one of 1, 2, not \"" + texto + "\".";
    dialogo.dosPiezas = texto == "2";
    return std::nullopt;
  }
  const auto campo = std::find_if(campos.begin(), campos.end(), [&](const DefCampo& c) { return c.palabra == clave; });
  if (campo == campos.end())
    return "\"" + clave + "\" is no key of the piece " + std::string(dialogo.Definicion().clave) + ".";
  return EscribeCampo(dialogo, static_cast<int>(campo - campos.begin()), texto);
}

std::optional<Rechazo> LlenaYAcepta(Dialogo& dialogo, const Trabajo& trabajo, const PlataformaLote& plataforma) {
  for (const auto& [clave, texto] : trabajo.valores) {
    if (auto motivo = EscribeValor(dialogo, clave, texto)) return Rechazo{clave, *motivo};
  }
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
  const auto [fin, hoja] = Desplegado(axew, std::move(desarrollo));
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
  const Escala escala = estado.iUnidad == 1 ? Escala::milimetros : Escala::pulgadas;
  for (const Formato formato : opciones.imagenes) {
    const std::string imagen = base + Sufijo(formato);
    if (!anota(imagen, GuardaImagen(axew, imagen, formato, escala))) return;
  }
  resultado.fichero = dxf;
  if (!opciones.solido || opciones.imagenes.empty()) return;
  EWdraw vista;
  DibujaSolido(vista, solido);
  vista.EwViewDirection(1, -1, 1);
  for (const Formato formato : opciones.imagenes) {
    const std::string imagen = base + std::string(kSufijoSolido) + Sufijo(formato);
    if (!anota(imagen, GuardaImagen(vista, imagen, formato, Escala::ajustada))) return;
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
