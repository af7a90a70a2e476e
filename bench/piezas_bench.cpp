// One whole piece from its values to its DXF text, the number texts, and the writer.

#include <benchmark/benchmark.h>

#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <charconv>
#include <filesystem>
#include <random>

#include "dxf/dibujo.h"
#include "dxf/escritor.h"
#include "dxf/numero_dxf.h"
#include "paint/pintura.h"
#include "shell/cortes.h"
#include "shell/juicio.h"
#include "shell/visor.h"
#include "state/estado.h"

namespace {

using namespace duktores;

// Takes every place to be the origin.
struct Mesa : VistaEWdraw {
  std::optional<Punto3> EligePunto(EWdraw&) override { return Punto3{}; }
};

// With marks, dimensions, title block and table.
void PonPieza(TipoPieza tipo, int divisiones) {
  estado = {};
  estado.sRutaPrograma = RAIZ_DATOS;
  estado.dTamanoTexto = 10;
  estado.sDimensiones = "1";
  estado.iBox = estado.iUnidad = 1;
  estado.sDensidad = "7.85";
  estado.dEspesor = 1;
  Pieza pieza;
  pieza.tipo = tipo;
  const Boca rectangulo{400, 300, {}};
  switch (tipo) {
    case TipoPieza::cr:
      pieza.corregidas = {Circulo(100), rectangulo};
      break;
    case TipoPieza::rc:
      pieza.corregidas = {rectangulo, Circulo(200)};
      break;
    case TipoPieza::elip:
      pieza.corregidas = {{250, 150, {}}, rectangulo};
      break;
    default:
      pieza.corregidas = {{200, 200, Cuatro(40)}, {400, 400, Cuatro(90)}};
  }
  pieza.entradas = pieza.corregidas;
  pieza.H = 300;
  pieza.AX = 30;
  pieza.Alfa = 12;
  pieza.divisiones = divisiones;
  pieza.inicio = 1;
  pieza.fibra = Fibra::media;
  estado.pieza = pieza;
}

void Desarrolla(benchmark::State& s, TipoPieza tipo, std::int16_t exacto = 0) {
  PonPieza(tipo, static_cast<int>(s.range(0)));
  estado.iExacto = exacto;
  Mesa mesa;
  EWdraw axew;
  axew.PonVista(&mesa);
  for (auto _ : s) {
    Desplegado(axew);
    benchmark::DoNotOptimize(estado.oDrawing->GetEntities().data());
  }
}
BENCHMARK_CAPTURE(Desarrolla, CR, TipoPieza::cr)
    ->Name("Desarrollo/CR")
    ->Arg(12)
    ->Arg(120)
    ->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(Desarrolla, RC, TipoPieza::rc)
    ->Name("Desarrollo/RC")
    ->Arg(12)
    ->Arg(120)
    ->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(Desarrolla, Elip, TipoPieza::elip)
    ->Name("Desarrollo/Elip")
    ->Arg(12)
    ->Arg(120)
    ->Unit(benchmark::kMicrosecond);

BENCHMARK_CAPTURE(Desarrolla, ExactCR, TipoPieza::cr, 1)
    ->Name("Desarrollo/ExactCR")
    ->Arg(120)
    ->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(Desarrolla, ExactEsp1, TipoPieza::esp1, 1)
    ->Name("Desarrollo/ExactEsp1")
    ->Arg(16)
    ->Arg(908)
    ->Unit(benchmark::kMicrosecond);

BENCHMARK_CAPTURE(Desarrolla, Especial, TipoPieza::esp1)
    ->Name("Especial")
    ->Arg(16)
    ->Arg(908)
    ->Unit(benchmark::kMicrosecond);

// The check of a pattern that lies there.
void Cotejo(benchmark::State& s, TipoPieza tipo) {
  Mesa mesa;
  EWdraw axew;
  axew.PonVista(&mesa);
  PonPieza(tipo, static_cast<int>(s.range(0)));
  const Solido solido = SolidoDe(*estado.pieza);
  const Patron hoja = Desplegado(axew).hoja;
  for (auto _ : s) benchmark::DoNotOptimize(Juzga(*estado.pieza, solido, hoja).desviacion);
}
BENCHMARK_CAPTURE(Cotejo, CR, TipoPieza::cr)->Arg(12)->Arg(120)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(Cotejo, Esp1, TipoPieza::esp1)->Arg(16)->Arg(908)->Unit(benchmark::kMicrosecond);

void Partes(benchmark::State& s, TipoPieza tipo) {
  PonPieza(tipo, static_cast<int>(s.range(0)));
  estado.pieza->regla = Regla::exacta;
  const Solido solido = SolidoDe(*estado.pieza);
  const Patron patron = DesarrolloDe(*estado.pieza, solido).patron;
  for (auto _ : s) benchmark::DoNotOptimize(CortesDe("bench", solido, patron).partes.data());
}
BENCHMARK_CAPTURE(Partes, CR, TipoPieza::cr)->Name("Cortes/CR")->Arg(12)->Arg(120)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(Partes, Esp1, TipoPieza::esp1)->Name("Cortes/Esp1")->Arg(16)->Arg(908)->Unit(benchmark::kMicrosecond);

// What is written of a pattern: the drawing, with its unfolding; the files for machine and press brake, with theirs;
// the drawing on paper.
enum class Que { dibujo, maquina, papel };
void Escribe(benchmark::State& s, TipoPieza tipo, Que que) {
  PonPieza(tipo, static_cast<int>(s.range(0)));
  estado.pieza->regla = Regla::exacta;
  Mesa mesa;
  EWdraw axew;
  axew.PonVista(&mesa);
  Desplegado(axew);
  const std::string carpeta = std::filesystem::temp_directory_path().string(), nombre = "duktores_bench";
  const std::string base = carpeta + "/" + nombre;
  const Solido solido = SolidoDe(*estado.pieza);
  const Cortes todos = CortesDe(nombre, solido, DesarrolloDe(*estado.pieza, solido).patron);
  std::string ruta;
  for (auto _ : s) {
    Guardado guardado;
    if (que == Que::dibujo) {
      Desplegado(axew);
      estado.oDXF->InsertEntities(estado.oDrawing);
      guardado = estado.oDXF->Save(base + ".dxf");
    } else if (que == Que::papel) {
      guardado = GuardaImagen(axew, base + ".pdf", Formato::pdf, Escala::milimetros);
    } else {
      const Cortes cortes = CortesDe(nombre, solido, DesarrolloDe(*estado.pieza, solido).patron);
      guardado = GuardaCortes(cortes, carpeta, ruta);
      if (guardado)
        guardado = EscribeFichero(carpeta + "/" + FicheroDobleces(nombre), ListaDobleces(cortes, kConPunto));
    }
    if (!guardado) s.SkipWithError("not saved");
  }
  std::vector<std::string> escritos = Ficheros(todos);
  escritos.insert(escritos.end(), {nombre + ".dxf", nombre + ".pdf", FicheroDobleces(nombre)});
  for (const std::string& fichero : escritos) std::filesystem::remove(carpeta + "/" + fichero);
}
BENCHMARK_CAPTURE(Escribe, DibujoCR, TipoPieza::cr, Que::dibujo)->Arg(12)->Arg(120)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(Escribe, MaquinaCR, TipoPieza::cr, Que::maquina)->Arg(12)->Arg(120)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(Escribe, PapelCR, TipoPieza::cr, Que::papel)->Arg(12)->Arg(120)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(Escribe, DibujoEsp1, TipoPieza::esp1, Que::dibujo)->Arg(16)->Arg(908)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(Escribe, MaquinaEsp1, TipoPieza::esp1, Que::maquina)
    ->Arg(16)
    ->Arg(908)
    ->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(Escribe, PapelEsp1, TipoPieza::esp1, Que::papel)->Arg(16)->Arg(908)->Unit(benchmark::kMicrosecond);

// One frame of the viewer while the solid turns.
void PintaSolido(benchmark::State& s, TipoPieza tipo) {
  PonPieza(tipo, static_cast<int>(s.range(0)));
  EWdraw axew;
  Dibuja3D(axew);
  axew.EwViewDirection(1, -1, 1);
  QImage imagen(976, 612, QImage::Format_RGB32);
  for (auto _ : s) {
    QPainter pintor(&imagen);
    pintor.setRenderHint(QPainter::Antialiasing);
    Pinta(pintor, axew, Ajusta(axew, imagen.size()), imagen.size(), Fondo::oscuro);
  }
}
BENCHMARK_CAPTURE(PintaSolido, CR, TipoPieza::cr)->Arg(120)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(PintaSolido, Esp1, TipoPieza::esp1)->Arg(16)->Arg(908)->Unit(benchmark::kMillisecond);

std::vector<double> Numeros() {
  std::mt19937 azar(1);
  std::uniform_real_distribution<double> u(-1500, 1500);
  std::vector<double> numeros(6000);
  for (double& v : numeros) v = u(azar);
  return numeros;
}

void NumerosSinMas(benchmark::State& s) {
  const auto numeros = Numeros();
  std::vector<char> destino(numeros.size() * 32);
  for (auto _ : s) {
    char* fin = destino.data();
    for (const double v : numeros) fin = std::to_chars(fin, fin + 32, v, std::chars_format::general, 15).ptr;
    benchmark::DoNotOptimize(destino.data());
    benchmark::ClobberMemory();
  }
  s.SetItemsProcessed(s.iterations() * static_cast<std::int64_t>(numeros.size()));
}
BENCHMARK(NumerosSinMas)->Unit(benchmark::kMicrosecond);

void NumerosDxf(benchmark::State& s) {
  const auto numeros = Numeros();
  for (auto _ : s) {
    std::string destino;
    for (const double v : numeros) AnadeDxfNumero(destino, v);
    benchmark::DoNotOptimize(destino.data());
  }
  s.SetItemsProcessed(s.iterations() * static_cast<std::int64_t>(numeros.size()));
}
BENCHMARK(NumerosDxf)->Unit(benchmark::kMicrosecond);

// The same numbers as lines of a drawing, six to a line, of which the two z are 0.
std::shared_ptr<cDrawing> Lineas(const std::vector<double>& numeros) {
  estado.iHandleDxf = 500;
  auto dibujo = std::make_shared<cDrawing>();
  for (std::size_t i = 0; i + 4 <= numeros.size(); i += 4) {
    cLine linea{.x1 = numeros[i], .y1 = numeros[i + 1], .x2 = numeros[i + 2], .y2 = numeros[i + 3]};
    dibujo->InsertLine(&linea);
  }
  return dibujo;
}

void LineasEnTexto(benchmark::State& s) {
  const auto numeros = Numeros();
  for (auto _ : s) benchmark::DoNotOptimize(Lineas(numeros)->GetEntities().data());
  s.SetItemsProcessed(s.iterations() * 6000);
}
BENCHMARK(LineasEnTexto)->Unit(benchmark::kMicrosecond);

void Save(benchmark::State& s) {
  PonPieza(TipoPieza::cr, 120);
  cDXF dxf;
  dxf.InsertEntities(Lineas(Numeros()));
  const auto fichero = std::filesystem::temp_directory_path() / "duktores_bench.dxf";
  for (auto _ : s) {
    if (!dxf.Save(fichero.string())) s.SkipWithError("not saved");
  }
  std::filesystem::remove(fichero);
}
BENCHMARK(Save)->Unit(benchmark::kMicrosecond);

}  // namespace

// Texts of a picture need the application object.
int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QGuiApplication qt(argc, argv);
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}
