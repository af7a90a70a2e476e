#include "jobs/chapas.h"

#include <algorithm>
#include <charconv>
#include <exception>
#include <filesystem>
#include <map>
#include <new>

#include "jobs/aceptacion.h"
#include "paint/pintura.h"
#include "piece/numeros_texto.h"
#include "shell/corrida.h"
#include "shell/juicio.h"
#include "shell/lista.h"
#include "shell/texto_veredicto.h"
#include "state/estado.h"
#include "state/textos.h"

namespace duktores {

namespace {

struct ConPlataforma {
  explicit ConPlataforma(Plataforma& plataforma) { estado.plataforma = &plataforma; }
  ~ConPlataforma() { estado.plataforma = nullptr; }
  ConPlataforma(const ConPlataforma&) = delete;
  ConPlataforma& operator=(const ConPlataforma&) = delete;
};

PartesTrabajo Desarrolladas(const Trabajo& trabajo) {
  const FilaPieza* fila = FilaDeClave(trabajo.pieza);
  if (!fila) return {{}, Texto(texto::kPiezaDesconocida) + " " + trabajo.pieza};
  PlataformaCallada plataforma;
  const ConPlataforma suya(plataforma);
  if (trabajo.espesor) estado.dEspesor = *trabajo.espesor;
  Dialogo dialogo(fila->dialogo);
  const auto rechazo = LlenaYAcepta(dialogo, trabajo, plataforma);
  if (rechazo) return {{}, rechazo->clave + ": " + rechazo->texto};
  const Solido solido = SolidoDe(*estado.pieza);
  const Patron patron = DesarrolloDe(*estado.pieza, solido).patron;
  const Veredicto veredicto = Juzga(*estado.pieza, solido, patron);
  const Cortes cortes = CortesDe(trabajo.nombre, solido, patron);
  return {PartesDe(trabajo, cortes, veredicto, Cuales::sanas), TextoSinCorte(cortes, veredicto)};
}

Guardado Guarda(const std::vector<ParteCorte>& partes, Punto2 tamano, const std::string& base, std::string& ruta) {
  const bool milimetros = estado.iUnidad == 1;
  ruta = base + ".dxf";
  if (Guardado dxf = GuardaCorte(ruta, partes, estado.maquina, milimetros, tamano); !dxf) return dxf;
  EWdraw axew;
  DibujaChapa(axew, partes, tamano);
  ruta = base + Sufijo(Formato::png);
  return GuardaImagen(axew, ruta, Formato::png, milimetros ? Escala::milimetros : Escala::pulgadas);
}

}  // namespace

std::vector<ParteChapa> PartesDe(const Trabajo& trabajo, const Cortes& cortes, const Veredicto& veredicto,
                                 Cuales cuales) {
  std::vector<ParteChapa> partes;
  for (const ParteCorte& parte : cortes.partes) {
    if (!SeCorta(parte.recorte, veredicto, cuales)) continue;
    partes.push_back({trabajo.nombre, TextoForma(parte.recorte.forma), parte, trabajo.cantidad, estado.dEspesor});
  }
  return partes;
}

std::vector<FilaSinChapa> SinCortar(const Trabajo& trabajo, const Cortes& cortes, const Veredicto& veredicto,
                                    Cuales cuales) {
  std::vector<FilaSinChapa> filas;
  for (const auto& [recorte, marca, sitio] : cortes.partes) {
    if (SeCorta(recorte, veredicto, cuales)) continue;
    const int motivo = recorte.falta == FaltaRecorte::cruce ? texto::kCruce : texto::kSinArea;
    filas.push_back({trabajo.nombre, TextoForma(recorte.forma), estado.dEspesor, trabajo.cantidad,
                     Texto(veredicto.Cierto() || cuales == Cuales::todas ? motivo : texto::kCorteFalso)});
  }
  return filas;
}

PartesTrabajo PartesDe(const Trabajo& trabajo) {
  PartesTrabajo suyas;
  try {
    suyas = trabajo.rechazo ? PartesTrabajo{{}, trabajo.rechazo->texto} : Desarrolladas(trabajo);
  } catch (const std::bad_alloc&) {
    throw;
  } catch (const std::exception&) {
    suyas.falta = Texto(texto::kIncompleto);
  }
  suyas.falta = EnUnaLinea(suyas.falta);
  return suyas;
}

ChapaEscrita EscribeChapa(const Lote& lote, const Nido& nido, std::size_t chapa, const std::vector<FallaNido>& fallas,
                          const std::string& carpeta, const std::string& nombre) {
  const ChapaPuesta& puesta = nido.chapas[chapa];
  ChapaEscrita escrita{FilaDe(lote, puesta, nombre + ".dxf"), ""};
  const auto falla = std::ranges::find(fallas, chapa, &FallaNido::chapa);
  if (falla != fallas.end()) {
    escrita.motivo = TextoFalta(falla->falta);
    return escrita;
  }
  std::string ruta;
  const Guardado guardado =
      Guarda(PartesEn(lote, puesta), escrita.fila.tamano, std::filesystem::path(carpeta) / nombre, ruta);
  if (!guardado) escrita.motivo = TextoNoGuardado(ruta, guardado);
  return escrita;
}

std::vector<std::string> ChapasViejas(const std::string& carpeta, const std::vector<FilaChapa>& nuevas) {
  std::map<std::size_t, std::string> viejas;
  std::error_code error;
  for (std::filesystem::directory_iterator i(carpeta, error), fin; !error && i != fin; i.increment(error)) {
    const std::string fichero = i->path().filename();
    std::size_t numero = 0;
    std::from_chars(fichero.data() + fichero.find('-') + 1, fichero.data() + fichero.size(), numero);
    const bool nueva = std::ranges::find(nuevas, fichero, &FilaChapa::fichero) != nuevas.end();
    if (!nueva && i->is_regular_file(error) && fichero == NombreChapa(numero) + ".dxf") viejas[numero] = fichero;
  }
  std::vector<std::string> ficheros;
  for (const auto& [numero, fichero] : viejas) ficheros.push_back(fichero);
  return ficheros;
}

}  // namespace duktores
