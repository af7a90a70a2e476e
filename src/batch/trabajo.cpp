#include "batch/trabajo.h"

#include <filesystem>

#include "batch/puntos_lote.h"
#include "dxf/escritor.h"
#include "jobs/aceptacion.h"
#include "jobs/chapas.h"
#include "piece/numeros_texto.h"
#include "sheet/hoja.h"
#include "shell/juicio.h"
#include "shell/lista.h"
#include "shell/texto_veredicto.h"
#include "shell/visor.h"
#include "state/estado.h"
#include "state/nombres.h"
#include "state/textos.h"

namespace duktores {

namespace {

// The answer to a prompt, which is no message any more.
struct Puntos : PuntosLote {
  Puntos(const std::vector<Punto2>& sitios, std::string& aviso) : PuntosLote(sitios), mensaje(aviso) {}
  std::optional<Punto3> EligePunto(EWdraw& axew) override {
    mensaje.clear();
    return PuntosLote::EligePunto(axew);
  }
  std::string& mensaje;
};

// Places and draws what the accepted piece, which has this solid, unfolds to, and holds it against that.
std::optional<Rechazo> Despliega(EWdraw& axew, const Trabajo& trabajo, const Solido& solido, Desarrollo desarrollo,
                                 Veredicto& veredicto, PlataformaCallada& plataforma) {
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
    fila.veredicto = veredicto.Cierto() ? TextoFalta(recorte) : TextoVeredicto(veredicto);
    if (fila.veredicto.empty()) fila.veredicto = "ok";
  }
  return filas;
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
  bool Corte(Cortes cortes, const Veredicto& veredicto) {
    if (opciones_.cortes || opciones_.chapas) {
      const std::string faltas = TextoSinCorte(cortes, veredicto);
      resultado_.sinCorte = !opciones_.fuerza && !faltas.empty();
      if (resultado_.sinCorte) Avisa(faltas);
    }
    if (opciones_.cortes) {
      const Cortes todos = cortes;
      Deja(cortes, veredicto, opciones_.fuerza ? Cuales::todas : Cuales::sanas);
      const std::string viejos = TextoViejos(todos, cortes, opciones_.carpeta);
      if (!viejos.empty()) Avisa(viejos);
    } else {
      cortes.ficheros.assign(cortes.ficheros.size(), "");
    }
    if (opciones_.informe) resultado_.filas = FilasInforme(cortes, veredicto);
    std::string ruta;
    if (const Guardado guardado = GuardaCortes(cortes, opciones_.carpeta, ruta); !Anota(ruta, guardado)) return false;
    if (!opciones_.dobleces) return true;
    const std::string lista = std::filesystem::path(opciones_.carpeta) / FicheroDobleces(nombre_);
    return Anota(lista, EscribeFichero(lista, ListaDobleces(cortes, opciones_.habito)));
  }
  std::string Dxf() const { return base_ + ".dxf"; }

 private:
  void Avisa(const std::string& texto) {
    std::string& aviso = resultado_.aviso;
    aviso += (aviso.empty() ? "" : aviso.ends_with('.') ? " " : ". ") + texto;
  }
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

// What is written of a piece that lies on the control; `patron` is its pattern as it was made.
void Guarda(const EWdraw& axew, const Solido& solido, const Patron& patron, const Veredicto& veredicto,
            const Trabajo& trabajo, const Opciones& opciones, Resultado& resultado) {
  Salida salida(trabajo, opciones, resultado);
  const Escala escala = estado.iUnidad == 1 ? Escala::milimetros : Escala::pulgadas;
  if (!salida.Dibujo() || !salida.Imagenes(axew, escala)) return;
  resultado.fichero = salida.Dxf();
  if (!salida.Solidos(solido) || !opciones.QuierePartes()) return;
  const Cortes cortes = CortesDe(trabajo.nombre, solido, patron);
  if (!salida.Corte(cortes, veredicto)) return;
  if (opciones.chapas) {
    const Cuales cuales = opciones.fuerza ? Cuales::todas : Cuales::sanas;
    resultado.partes = PartesDe(trabajo, cortes, veredicto, cuales);
    resultado.sinChapa = SinCortar(trabajo, cortes, veredicto, cuales);
  }
}

}  // namespace

Resultado Trabaja(const Trabajo& trabajo, const Opciones& opciones) {
  if (trabajo.rechazo) return {.rechazo = trabajo.rechazo};
  const FilaPieza* fila = FilaDeClave(trabajo.pieza);
  if (!fila) return {.rechazo = Rechazo{"piece", "\"" + trabajo.pieza + "\" is no piece of the catalogue."}};

  PlataformaCallada plataforma;
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
