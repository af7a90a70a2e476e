// duktores-batch: a list of pieces becomes a folder of drawings.

#include <unistd.h>

#include <CLI/CLI.hpp>
#include <QGuiApplication>
#include <atomic>
#include <condition_variable>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <memory>
#include <mutex>
#include <optional>
#include <thread>

#include "batch/lista.h"
#include "batch/trabajo.h"
#include "dxf/escritor.h"
#include "piece/numeros_texto.h"
#include "state/arranque.h"
#include "state/estado.h"
#include "state/fichero.h"
#include "state/textos.h"

namespace {

using namespace duktores;

constexpr int kTodoEscrito = 0, kAlgoRechazado = 1, kNadaHecho = 2;

struct Ordenes {
  std::string lista, configuracion;
  Opciones opciones;
  bool png = false, svg = false, pdf = false, exacto = false;
  unsigned hilos = std::max(1U, std::thread::hardware_concurrency());
};

std::optional<std::string> TextoLista(const Ordenes& ordenes) {
  if (ordenes.lista != "-") return LeeFichero(ordenes.lista);
  std::string texto{std::istreambuf_iterator<char>(std::cin), {}};
  return std::cin.bad() ? std::nullopt : std::optional(std::move(texto));
}

// One line, whatever stands in the list that it repeats.
std::string Linea(const Trabajo& trabajo, const Resultado& resultado) {
  std::string linea = trabajo.nombre;
  if (resultado.rechazo) {
    linea += ": refused " + resultado.rechazo->clave + ": " + resultado.rechazo->texto;
  } else {
    linea += ": ok" + (resultado.fichero.empty() ? "" : " " + resultado.fichero) +
             (resultado.aviso.empty() ? "" : ", warning: " + resultado.aviso) +
             (resultado.nota.empty() ? "" : ", note: " + resultado.nota);
  }
  std::ranges::replace_if(
      linea, [](unsigned char c) { return c < ' '; }, ' ');
  return linea;
}

// Works the jobs on several threads and answers in the order of the list. Each thread has its own program state.
int TrabajaTodos(const std::vector<Trabajo>& trabajos, const Ordenes& ordenes) {
  const EstadoPrograma configurado = estado;
  std::vector<std::optional<Resultado>> resultados(trabajos.size());
  std::atomic<std::size_t> siguiente{0};
  std::mutex cerrojo;
  std::condition_variable hecho;

  std::size_t hechos = 0;
  const auto obrero = [&] {
    for (std::size_t i = siguiente++; i < trabajos.size(); i = siguiente++) {
      Resultado resultado;
      try {
        estado = configurado;
        resultado = Trabaja(trabajos[i], ordenes.opciones);
      } catch (const std::exception& error) {
        resultado.rechazo = {"job", error.what()};
      }
      const std::lock_guard guarda(cerrojo);
      resultados[i] = std::move(resultado);
      ++hechos;
      hecho.notify_one();
    }
  };
  std::vector<std::jthread> hilos;
  constexpr std::size_t kMaximoHilos = 256;
  const std::size_t cuantos = std::min({std::size_t{ordenes.hilos}, trabajos.size(), kMaximoHilos});
  try {
    while (hilos.size() < cuantos) hilos.emplace_back(obrero);
  } catch (const std::system_error&) {
    if (hilos.empty()) throw;  // else those that there are do all the work
  }

  const bool terminal = isatty(STDERR_FILENO) != 0;
  bool rechazado = false;
  std::unique_lock guarda(cerrojo);
  for (std::size_t i = 0; i < trabajos.size(); ++i) {
    while (!resultados[i]) {
      if (terminal) std::cerr << "\r\033[K" << hechos << " of " << trabajos.size() << std::flush;
      hecho.wait(guarda);
    }
    if (terminal) std::cerr << "\r\033[K" << std::flush;
    std::cout << Linea(trabajos[i], *resultados[i]) << '\n' << std::flush;
    rechazado = rechazado || resultados[i]->rechazo.has_value();
  }
  guarda.unlock();
  if (!std::cout) {
    std::cerr << "duktores-batch: the answers can't be written\n";
    return kAlgoRechazado;
  }
  return rechazado ? kAlgoRechazado : kTodoEscrito;
}

int Falla(const std::string& texto) {
  std::cerr << "duktores-batch: " << texto << '\n';
  return kNadaHecho;
}

int Ejecuta(const Ordenes& ordenes) {
  std::error_code error;
  Arranca(RutaEjecutable(), ordenes.configuracion);
  const bool regular = std::filesystem::is_regular_file(estado.sRutaIni, error);
  if (!regular || !std::ifstream(estado.sRutaIni)) return Falla("can't read the configuration file " + estado.sRutaIni);
  if (ordenes.exacto) estado.iExacto = 1;
  if (!ConfiguracionSirve()) return Falla("Fiber in section DUCT of " + estado.sRutaIni + " must be 1, 2 or 3");
  const auto texto = TextoLista(ordenes);
  if (!texto) return Falla("can't read the job list " + ordenes.lista);
  std::vector<Trabajo> trabajos;
  try {
    trabajos = LeeLista(*texto, ordenes.opciones.solido);
  } catch (const ErrorLista& motivo) {
    return Falla(ordenes.lista + " is no job list: " + motivo.what());
  }
  if (!ordenes.opciones.soloComprueba) {
    if (!HayPlantilla()) return Falla(Texto(texto::kPlantilla) + " " + RutaPlantilla());
    std::filesystem::create_directories(ordenes.opciones.carpeta, error);
    if (!std::filesystem::is_directory(ordenes.opciones.carpeta, error)) {
      return Falla("can't make the output folder " + ordenes.opciones.carpeta);
    }
  }
  return TrabajaTodos(trabajos, ordenes);
}

}  // namespace

int main(int argc, char** argv) {
  PreparaProceso();
  Ordenes ordenes;
  CLI::App app("Unfolds a list of duct transition pieces into DXF drawings.", "duktores-batch");
  app.set_version_flag("--version", std::string("duktores-batch ") + DUKTORES_VERSION);
  app.add_option("JOBS.json", ordenes.lista, "job list; - for standard input")->required();
  app.add_option("--config", ordenes.configuracion,
                 "configuration file; default: Config/Config.ini of the installation")
      ->type_name("FILE");
  app.add_option("--out", ordenes.opciones.carpeta, "folder of the drawings, made if missing")
      ->type_name("DIR")
      ->capture_default_str();
  app.add_flag("--png", ordenes.png, "a PNG picture of each pattern beside its drawing");
  app.add_flag("--svg", ordenes.svg, "the same as SVG");
  app.add_flag("--pdf", ordenes.pdf, "the same as PDF");
  app.add_flag("--solid", ordenes.opciones.solido, "with a picture option: a picture of each solid too, NAME-3d");
  app.add_flag("--check", ordenes.opciones.soloComprueba, "only check the jobs; write nothing");
  app.add_flag("--strict", ordenes.opciones.estricto, "refuse a piece whose pattern isn't true to its solid");
  app.add_flag("--exact", ordenes.exacto, "develop exactly, whatever the configuration says");
  app.add_option("--jobs", ordenes.hilos, "pieces worked at once; default: the machine's cores")
      ->type_name("N")
      ->check(CLI::PositiveNumber);
  try {
    app.parse(argc, argv);
  } catch (const CLI::ParseError& error) {
    return app.exit(error) == 0 ? kTodoEscrito : kNadaHecho;
  }
  if (ordenes.png) ordenes.opciones.imagenes.push_back(Formato::png);
  if (ordenes.svg) ordenes.opciones.imagenes.push_back(Formato::svg);
  if (ordenes.pdf) ordenes.opciones.imagenes.push_back(Formato::pdf);

  // Texts of a picture need fonts, which need the application object; no screen is needed for either.
  std::unique_ptr<QGuiApplication> qt;
  if (!ordenes.opciones.imagenes.empty()) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});  // remarks about the desktop
    qt = std::make_unique<QGuiApplication>(argc, argv);
  }
  try {
    return Ejecuta(ordenes);
  } catch (const std::exception& error) {
    return Falla(error.what());
  }
}
