#include "batch/trabajo.h"

#include <algorithm>
#include <filesystem>

#include "batch/puntos_lote.h"
#include "dxf/escritor.h"
#include "piece/numeros_texto.h"
#include "sheet/hoja.h"
#include "shell/cortes.h"
#include "shell/juicio.h"
#include "shell/lista.h"
#include "shell/nombres.h"
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

// Places and draws what the accepted piece, which has this solid, unfolds to, and holds it against that.
std::optional<Rechazo> Despliega(EWdraw& axew, const Trabajo& trabajo, const Solido& solido, Desarrollo desarrollo,
                                 Veredicto& veredicto, PlataformaLote& plataforma) {
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

// The files of one piece; what isn't written is told by its place, and that the drawing stands if it does.
class Salida {
 public:
  Salida(const Trabajo& trabajo, const Opciones& opciones, Resultado& resultado)
      : nombre_(trabajo.nombre),
        base_(std::filesystem::path(opciones.carpeta) / trabajo.nombre),
        opciones_(opciones),
        resultado_(resultado) {}

  bool Dibujo() {
    estado.oDXF->InsertEntities(estado.oDrawing);
    return Anota(Dxf(), estado.oDXF->Save(Dxf()));
  }
  bool Imagenes(const EWdraw& axew, Escala escala, std::string_view sufijo = "") {
    return std::ranges::all_of(opciones_.imagenes, [&](Formato formato) {
      const std::string imagen = base_ + std::string(sufijo) + Sufijo(formato);
      return Anota(imagen, GuardaImagen(axew, imagen, formato, escala));
    });
  }
  bool Solidos(const Solido& solido) {
    if (!opciones_.solido || opciones_.imagenes.empty()) return true;
    EWdraw vista;
    DibujaSolido(vista, solido);
    vista.EwViewDirection(1, -1, 1);
    return Imagenes(vista, Escala::ajustada, kSufijoSolido);
  }
  bool Maquina(Cortes& cortes, const Veredicto& veredicto) {
    std::string ruta;
    std::vector<std::string> escritos;
    const Cuales cuales = opciones_.fuerza ? Cuales::todas : Cuales::sanas;
    if (opciones_.cortes) {
      const Guardado guardado = GuardaCortes(cortes, veredicto, cuales, opciones_.carpeta, escritos, ruta);
      if (!Anota(ruta, guardado)) return false;
    }
    const std::string faltas = TextoSinCorte(cortes, veredicto);
    resultado_.sinCorte = (opciones_.cortes || opciones_.chapas) && !opciones_.fuerza && !faltas.empty();
    if (resultado_.sinCorte) Avisa(faltas);
    if (!opciones_.cortes) cortes.ficheros.assign(cortes.ficheros.size(), "");
    if (!opciones_.dobleces) return true;
    const std::string lista = std::filesystem::path(opciones_.carpeta) / FicheroDobleces(nombre_);
    return Anota(lista, EscribeFichero(lista, ListaDobleces(cortes, opciones_.habito)));
  }
  std::string Dxf() const { return base_ + ".dxf"; }

 private:
  void Avisa(const std::string& texto) { resultado_.aviso += (resultado_.aviso.empty() ? "" : ". ") + texto; }
  bool Anota(const std::string& ruta, const Guardado& guardado) {
    if (const std::string restos = TextoRestos(guardado); !restos.empty()) Avisa(restos);
    if (guardado) return true;
    const std::string queda = ruta == Dxf() ? "" : ". " + Texto(texto::kDibujoQueda) + " " + Dxf();
    resultado_.rechazo = {"name", TextoNoGuardado(ruta, guardado) + queda};
    return false;
  }

  const std::string& nombre_;
  std::string base_;
  const Opciones& opciones_;
  Resultado& resultado_;
};

std::vector<ParteChapa> PartesDe(const Trabajo& trabajo, const Cortes& cortes, const Veredicto& veredicto,
                                 const Opciones& opciones) {
  std::vector<ParteChapa> partes;
  for (const ParteCorte& parte : cortes.partes) {
    if (!SeEscribe(parte.recorte, veredicto, opciones.fuerza ? Cuales::todas : Cuales::sanas)) continue;
    partes.push_back({trabajo.nombre, TextoForma(parte.recorte.forma), parte, trabajo.cantidad, estado.dEspesor});
  }
  return partes;
}

std::vector<FilaInforme> FilasInforme(const Cortes& cortes, const Veredicto& veredicto) {
  const FormatoHoja formato = FormatoDeEstado();
  std::vector<FilaInforme> filas;
  for (std::size_t i = 0; i < cortes.partes.size(); ++i) {
    const Recorte& recorte = cortes.partes[i].recorte;
    FilaInforme& fila = filas.emplace_back();
    fila.forma = TextoForma(recorte.forma);
    fila.fichero = cortes.ficheros[i];
    fila.espesor = formato.espesor;
    fila.caja = recorte.caja;
    fila.area = recorte.area;
    fila.peso = Peso(recorte.area, formato);
    fila.largo = recorte.largo;
    fila.dobleces = static_cast<int>(recorte.dobleces.size());
    fila.desviacion = veredicto.desviacion;
    fila.veredicto = veredicto.Cierto() ? "ok" : TextoVeredicto(veredicto);
  }
  return filas;
}

// What is written of a piece that lies on the control; `patron` is its pattern as it was made.
void Guarda(const EWdraw& axew, const Solido& solido, const Patron& patron, const Veredicto& veredicto,
            const Trabajo& trabajo, const Opciones& opciones, Resultado& resultado) {
  Salida salida(trabajo, opciones, resultado);
  const Escala escala = estado.iUnidad == 1 ? Escala::milimetros : Escala::pulgadas;
  if (!salida.Dibujo() || !salida.Imagenes(axew, escala)) return;
  resultado.fichero = salida.Dxf();
  if (!salida.Solidos(solido) || !opciones.QuierePartes()) return;
  Cortes cortes = CortesDe(trabajo.nombre, solido, patron);
  if (!salida.Maquina(cortes, veredicto)) return;
  if (opciones.informe) resultado.filas = FilasInforme(cortes, veredicto);
  if (opciones.chapas) resultado.partes = PartesDe(trabajo, cortes, veredicto, opciones);
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
  if (trabajo.espesor) estado.dEspesor = *trabajo.espesor;
  resultado.rechazo = LlenaYAcepta(dialogo, trabajo, plataforma);
  if (!resultado.rechazo && (!opciones.soloComprueba || opciones.estricto)) {
    const Solido solido = SolidoDe(*estado.pieza);
    EWdraw axew;
    Veredicto veredicto;
    Desarrollo desarrollo = DesarrolloDe(*estado.pieza, solido);
    const Patron patron = opciones.QuierePartes() ? desarrollo.patron : Patron{};
    resultado.rechazo = Despliega(axew, trabajo, solido, std::move(desarrollo), veredicto, plataforma);
    if (!veredicto.Cierto()) resultado.aviso = TextoVeredicto(veredicto);
    if (veredicto.Cierto()) resultado.nota = TextoNotas(veredicto);
    if (!EsNombrePortatil(trabajo.nombre)) {
      resultado.nota += (resultado.nota.empty() ? Texto(texto::kNota) + " " : "; ") + Texto(texto::kNombreAjeno);
    }
    if (!veredicto.Cierto() && opciones.estricto) resultado.rechazo = {"pattern", resultado.aviso};
    if (!resultado.rechazo && !opciones.soloComprueba) {
      Guarda(axew, solido, patron, veredicto, trabajo, opciones, resultado);
    }
  }
  estado.plataforma = nullptr;
  return resultado;
}

}  // namespace duktores
