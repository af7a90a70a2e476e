#include "batch/ordenes.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <charconv>
#include <string_view>
#include <thread>

#include "batch/informe.h"

namespace duktores {

namespace {

/// "2/8" is the second of eight parts. False if the text is nothing like that.
bool LeeParte(std::string_view texto, Parte& parte) {
  const auto numero = [&](std::size_t& n) {
    const auto fin = std::from_chars(texto.data(), texto.data() + texto.size(), n);
    texto.remove_prefix(static_cast<std::size_t>(fin.ptr - texto.data()));
    return fin.ec == std::errc() && n > 0;
  };
  if (!numero(parte.primero) || !texto.starts_with('/')) return false;
  texto.remove_prefix(1);
  return numero(parte.cada) && texto.empty() && parte.primero <= parte.cada;
}

void ExigeAcuerdo(const std::vector<const CLI::Option*>& deChapas, const Ordenes& ordenes) {
  const Opciones& opciones = ordenes.opciones;
  if (!opciones.chapas) ExigeChapas(deChapas);
  if (opciones.chapas && opciones.soloComprueba) throw CLI::ExcludesError("--check", "--sheet and --stock");
  if (opciones.chapas && ordenes.parte.cada > 1) throw CLI::ExcludesError("--shard", "--sheet and --stock");
  if (opciones.soloComprueba && opciones.QuierePartes()) {
    throw CLI::ExcludesError("--check", "--cut, --bends and --report");
  }
}

}  // namespace

std::optional<int> LeeOrdenes(int argc, char** argv, Ordenes& ordenes) {
  bool png = false, svg = false, pdf = false, coma = false;
  Opciones& opciones = ordenes.opciones;
  const unsigned nucleos = std::max(1U, std::thread::hardware_concurrency());
  ordenes.hilos = nucleos;
  CLI::App app("Unfolds a list of duct transition pieces into DXF drawings.", "duktores-batch");
  app.set_version_flag("--version", std::string("duktores-batch ") + DUKTORES_VERSION);
  app.add_option("JOBS.json", ordenes.lista, "job list; - for standard input")->required();
  app.add_option("--config", ordenes.configuracion,
                 "configuration file; default: Config/Config.ini of the installation")
      ->type_name("FILE");
  app.add_option("--out", opciones.carpeta, "folder of the drawings, made if missing")
      ->type_name("DIR")
      ->capture_default_str();
  app.add_flag("--png", png, "a PNG picture of each pattern beside its drawing, large enough to read it");
  app.add_flag("--svg", svg, "the pattern as SVG, as large as it is");
  app.add_flag("--pdf", pdf, "the pattern as PDF, on a page as large as it is");
  app.add_flag("--solid", opciones.solido, "with a picture option: a picture of each solid too, NAME-3d");
  app.add_flag("--cut", opciones.cortes, "a cut file of each shape, NAME-1of2.dxf, as section MACHINE says");
  app.add_flag("--force", opciones.fuerza, "cut files also of patterns that aren't true and shapes that aren't sound");
  app.add_flag("--bends", opciones.dobleces, "a list of the bends of each piece, NAME-bends.csv");
  app.add_option("--report", ordenes.informe, "the figures of all shapes of the list as FILE.csv or FILE.json")
      ->type_name("FILE")
      ->check(
          [](const std::string& ruta) -> std::string { return EsInforme(ruta) ? "" : "must end in .csv or .json"; });
  app.add_flag("--comma", coma, "tables with a decimal comma, and semicolons between fields");
  app.add_flag("--check", opciones.soloComprueba, "only check the jobs, with --strict their patterns; write nothing");
  app.add_flag("--strict", opciones.estricto,
               "refuse a piece whose pattern isn't true to its solid, and a configuration with a faulty key");
  app.add_flag("--exact", ordenes.exacto, "develop exactly, whatever the configuration says");
  app.add_option("--jobs", ordenes.hilos, "pieces worked at once; default: the machine's cores")
      ->type_name("N")
      ->check(CLI::PositiveNumber);
  app.add_option_function<std::string>(
         "--shard",
         [&](const std::string& texto) {
           if (!LeeParte(texto, ordenes.parte)) throw CLI::ValidationError("--shard", "must be K/N with K from 1 to N");
         },
         "only the jobs K, K+N, K+2N ... of the list")
      ->type_name("K/N");
  app.add_option("--max-list", ordenes.maximoLista, "longest list from a pipe; default: 1 GiB")
      ->type_name("SIZE")
      ->transform(CLI::AsSizeValue(false));
  const auto deChapas = AnadeOrdenesChapas(app, ordenes.chapas);
  try {
    app.parse(argc, argv);
    opciones.informe = !ordenes.informe.empty();
    opciones.chapas = !ordenes.chapas.existencias.empty() || !ordenes.chapas.fichero.empty();
    ExigeAcuerdo(deChapas, ordenes);
  } catch (const CLI::ParseError& error) {
    return app.exit(error) == 0 ? kTodoEscrito : kNadaHecho;
  }
  ordenes.chapas.esfuerzo.hilos = std::min(ordenes.hilos, nucleos);
  if (coma) opciones.habito = kConComa;
  if (png) opciones.imagenes.push_back(Formato::png);
  if (svg) opciones.imagenes.push_back(Formato::svg);
  if (pdf) opciones.imagenes.push_back(Formato::pdf);
  return std::nullopt;
}

}  // namespace duktores
