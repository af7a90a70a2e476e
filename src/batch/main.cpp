// duktores-batch: a list of pieces becomes a folder of drawings.

#include <unistd.h>

#include <QGuiApplication>
#include <cstring>
#include <filesystem>
#include <iostream>
#include <memory>
#include <new>
#include <optional>
#include <system_error>

#include "batch/chapas.h"
#include "batch/fuente_lista.h"
#include "batch/informe.h"
#include "batch/obreros.h"
#include "batch/ordenes.h"
#include "batch/senales.h"
#include "dxf/composicion.h"
#include "jobs/lista.h"
#include "piece/numeros_texto.h"
#include "state/arranque.h"
#include "state/estado.h"
#include "state/guardado.h"
#include "state/textos.h"

namespace {

using namespace duktores;

constexpr int kPorSenal = 128;  // and the number of the signal

void Avisa(const std::string& texto) { std::cerr << "duktores-batch: " << EnUnaLinea(texto) << '\n'; }

/// Nothing could be done.
struct NadaHecho : std::runtime_error {
  using std::runtime_error::runtime_error;
};

std::string Motivo(const Rechazo& rechazo) { return EnUnaLinea("refused " + rechazo.clave + ": " + rechazo.texto); }

std::string Linea(const Trabajo& trabajo, const Resultado& resultado) {
  if (resultado.rechazo) return trabajo.nombre + ": " + Motivo(*resultado.rechazo);
  return trabajo.nombre + ": ok" + (resultado.fichero.empty() ? "" : " " + resultado.fichero) +
         (resultado.aviso.empty() ? "" : ", warning: " + resultado.aviso) +
         (resultado.nota.empty() ? "" : ", note: " + resultado.nota);
}

/// Writes the answers as they come, a line each whatever they repeat of the list, and on a terminal how far the work
/// is; at the end sheets and report.
class Respuestas {
 public:
  Respuestas(std::size_t cuantas, const Ordenes& ordenes)
      : cuantas_(cuantas), ordenes_(ordenes), rutaInforme_(ordenes.informe) {
    if (!rutaInforme_.empty()) informe_.emplace(rutaInforme_, ordenes.opciones.habito);
  }
  void Escribe(const Trabajo& trabajo, const Resultado& resultado) {
    Responde(Linea(trabajo, resultado));
    if (informe_) informe_->Anade(trabajo, resultado);
    rechazado_ = rechazado_ || resultado.rechazo || resultado.sinCorte;
    partes_.insert(partes_.end(), resultado.partes.begin(), resultado.partes.end());
    sinChapa_.insert(sinChapa_.end(), resultado.sinChapa.begin(), resultado.sinChapa.end());
    if (resultado.rechazo && ordenes_.opciones.chapas) {
      sinChapa_.push_back(
          {trabajo.nombre, "", trabajo.espesor.value_or(espesor_), trabajo.cantidad, Motivo(*resultado.rechazo)});
    }
    ++hechas_;
    if (terminal_ && hechas_ < cuantas_) std::cerr << hechas_ << " of " << cuantas_ << std::flush;
  }
  /// Lays what has come. A signal ends the search and not the writing; then it throws Interrumpido.
  void PonChapas() {
    if (!ordenes_.opciones.chapas) return;
    InformeChapas hecho = PonEnChapas(partes_, ordenes_.chapas, ordenes_.opciones.carpeta,
                                      {[this](const std::string& avance) {
                                         if (terminal_) std::cerr << "\r\033[K" << EnUnaLinea(avance) << std::flush;
                                       },
                                       [this](const std::string& respuesta) { Responde(respuesta); }});
    if (terminal_) std::cerr << "\r\033[K" << std::flush;
    std::string viejas;
    for (const std::string& fichero : hecho.viejas) viejas += (viejas.empty() ? " " : ", ") + fichero;
    if (!viejas.empty()) Avisa(Texto(texto::kCorteViejo) + viejas);
    hecho.faltan.insert(hecho.faltan.begin(), sinChapa_.begin(), sinChapa_.end());
    if (informe_) informe_->Anade(hecho);
    rechazado_ = rechazado_ || !hecho.bien;
    ExigeSeguir();
  }
  /// The exit status, for which the list may have given another reason than its answers.
  int Acaba(int salida = kTodoEscrito) {
    if (!std::cout) Avisa("the answers can't be written");
    const Guardado guardado = informe_ ? informe_->Guarda() : Guardado{};
    if (!guardado) Avisa(TextoNoGuardado(rutaInforme_, guardado));
    const bool bien = std::cout && guardado && !rechazado_;
    return salida != kTodoEscrito || bien ? salida : kAlgoRechazado;
  }
  bool Ninguna() const { return hechas_ == 0; }

 private:
  void Responde(const std::string& linea) {
    if (terminal_) std::cerr << "\r\033[K" << std::flush;
    std::cout << EnUnaLinea(linea) << '\n' << std::flush;
  }

  const bool terminal_ = isatty(STDERR_FILENO) != 0;
  std::size_t cuantas_, hechas_ = 0;
  bool rechazado_ = false;
  const Ordenes& ordenes_;
  const double espesor_ = estado.dEspesor;
  std::vector<ParteChapa> partes_;
  std::vector<FilaSinChapa> sinChapa_;  // what is known before sheets are laid
  const std::string& rutaInforme_;
  std::optional<Informe> informe_;
};

void Configura(const Ordenes& ordenes) {
  const LecturaConfiguracion lectura = Arranca(RutaEjecutable(), ordenes.configuracion);
  if (lectura.fallo) {
    throw NadaHecho("can't read the configuration file " + estado.sRutaIni + ": " + lectura.fallo.message());
  }
  for (const std::string& aviso : lectura.avisos) Avisa(estado.sRutaIni + ": " + aviso);
  if (ordenes.exacto) estado.iExacto = 1;
  if (!ConfiguracionSirve()) throw NadaHecho("Fiber in section DUCT of " + estado.sRutaIni + " must be 1, 2 or 3");
  if (ordenes.opciones.estricto && !lectura.avisos.empty()) throw NadaHecho("the configuration has faulty keys");
}

/// It would be a pity to learn it when all is done.
void RevisaInforme(const Ordenes& ordenes) {
  namespace fs = std::filesystem;
  if (ordenes.informe.empty()) return;
  const fs::path ruta = fs::absolute(ordenes.informe);
  std::error_code error;
  if (!fs::is_directory(ruta.parent_path(), error))
    throw NadaHecho("there is no folder for the report " + ordenes.informe);
  if (fs::is_directory(ruta, error)) throw NadaHecho("the report " + ordenes.informe + " is a folder");
  const bool deDobleces = ordenes.opciones.dobleces && ruta.filename().string().ends_with("-bends.csv") &&
                          fs::equivalent(ruta.parent_path(), ordenes.opciones.carpeta, error);
  if (deDobleces) throw NadaHecho("the report would have the name of a list of bends: " + ordenes.informe);
  if (fs::equivalent(ruta, ordenes.lista, error)) throw NadaHecho("the report would replace the job list");
}

void PreparaSalida(const Ordenes& ordenes) {
  const Opciones& opciones = ordenes.opciones;
  if (opciones.soloComprueba) return;
  std::vector<PlantillaDxf> plantillas{kPlantillaDibujo};
  if (opciones.cortes) plantillas.push_back(kPlantillaCorte);
  if (opciones.chapas) plantillas.push_back(kPlantillaChapa);
  for (const PlantillaDxf& plantilla : plantillas) {
    const Guardado marco = RevisaPlantilla(plantilla);
    if (!marco) throw NadaHecho(Texto(texto::kPlantilla) + " " + marco.detalle);
  }
  if (const int error = HazCarpeta(opciones.carpeta)) {
    throw NadaHecho("can't make the output folder " + opciones.carpeta + ": " + std::strerror(error));
  }
  RevisaInforme(ordenes);
}

/// Works the jobs of the list's part on several threads, each with its own program state.
int TrabajaTodos(FuenteLista& fuente, const Ordenes& ordenes, const Nombres& nombres, std::size_t cuantos) {
  const EstadoPrograma configurado = estado;
  Respuestas respuestas(cuantos, ordenes);
  Obreros obreros(
      ordenes.hilos,
      [&](const Trabajo& trabajo) -> Resultado {
        try {
          estado = configurado;
          return Trabaja(trabajo, ordenes.opciones);
        } catch (const std::bad_alloc&) {
          throw;
        } catch (const std::exception& error) {
          return {.rechazo = Rechazo{"job", error.what()}};
        }
      },
      [&](const Trabajo& trabajo, const Resultado& resultado) { respuestas.Escribe(trabajo, resultado); });
  try {
    RecorreLista(fuente.DesdeElPrincipio(), [&](Trabajo&& trabajo) {
      nombres.Revisa(trabajo);
      if (ordenes.parte.Tiene(trabajo.numero)) obreros.Pon(std::move(trabajo));
    });
    obreros.Acaba();
    fuente.ExigeIgual();
    respuestas.PonChapas();
  } catch (const Interrumpido&) {
    obreros.Acaba();
    respuestas.Acaba();
    throw;
  } catch (const std::runtime_error& motivo) {
    // The list was sound a moment ago.
    obreros.Acaba();
    Avisa(ordenes.lista + ": " + motivo.what());
    return respuestas.Acaba(respuestas.Ninguna() ? kNadaHecho : kAlgoRechazado);
  }
  return respuestas.Acaba();
}

int Ejecuta(const Ordenes& ordenes) {
  Configura(ordenes);
  try {
    FuenteLista fuente(ordenes.lista, ordenes.maximoLista);
    const Opciones& opciones = ordenes.opciones;
    Nombres nombres({.solidos = opciones.solido,
                     .cortes = opciones.cortes,
                     .dobleces = opciones.dobleces,
                     .chapas = opciones.chapas});
    std::size_t cuantos = 0;
    RecorreLista(fuente.DesdeElPrincipio(), [&](Trabajo&& trabajo) {
      nombres.Anota(trabajo);
      cuantos += ordenes.parte.Tiene(trabajo.numero) ? 1 : 0;
    });
    fuente.ExigeIgual();
    PreparaSalida(ordenes);
    return TrabajaTodos(fuente, ordenes, nombres, cuantos);
  } catch (const ErrorLista& motivo) {
    throw NadaHecho(ordenes.lista + " is no job list: " + motivo.what());
  } catch (const std::system_error& motivo) {
    throw NadaHecho("can't read the job list " + ordenes.lista + ": " + motivo.code().message());
  }
}

int Programa(int argc, char** argv) {
  PreparaProceso();
  AtiendeSenales();
  Ordenes ordenes;
  if (const auto fin = LeeOrdenes(argc, argv, ordenes)) return *fin;
  if (!ordenes.chapas.fichero.empty()) {
    const auto existencias = LeeExistencias(ordenes.chapas.fichero);
    ordenes.chapas.existencias.insert(ordenes.chapas.existencias.end(), existencias.begin(), existencias.end());
  }
  // Texts of a picture need fonts, which need the application object; no screen is needed for either.
  std::unique_ptr<QGuiApplication> qt;
  if (!ordenes.opciones.imagenes.empty() || ordenes.opciones.chapas) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});  // remarks about the desktop
    qt = std::make_unique<QGuiApplication>(argc, argv);
  }
  return Ejecuta(ordenes);
}

}  // namespace

int main(int argc, char** argv) {
  try {
    return Programa(argc, argv);
  } catch (const Interrumpido&) {
    return kPorSenal + SenalRecibida();
  } catch (const std::bad_alloc&) {
    std::cerr << "duktores-batch: out of memory\n";
  } catch (const std::exception& error) {
    Avisa(error.what());
  }
  return kNadaHecho;
}
