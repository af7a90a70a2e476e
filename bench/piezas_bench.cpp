// One whole piece from its values to its DXF text, the number texts, and the writer.

#include <benchmark/benchmark.h>

#include <QImage>
#include <QPainter>
#include <charconv>
#include <filesystem>
#include <random>

#include "check/comprueba.h"
#include "dxf/dibujo.h"
#include "dxf/escritor.h"
#include "dxf/numero_dxf.h"
#include "paint/pintura.h"
#include "shell/visor.h"
#include "state/estado.h"

namespace {

using namespace duktores;

// Takes every place to be the origin.
struct Mesa : VistaEWdraw {
  std::optional<Punto3> EligePunto(EWdraw&) override { return Punto3{}; }
};

// With marks, dimensions, title block and table.
void PonPieza(const char* tipo, std::int16_t divisiones) {
  estado = {};
  estado.sRutaPrograma = RAIZ_DATOS;
  estado.sTipoPieza = tipo;
  estado.dL1Base = estado.dL1BaseRC = estado.dL1Elip = 400;
  estado.dL2Base = estado.dL2BaseRC = estado.dL2Elip = 300;
  estado.dRadioAlto = 100;
  estado.dRadioRC = 200;
  estado.dEjeMayorElip = 250;
  estado.dEjeMenorElip = 150;
  estado.dR11 = estado.dR12 = estado.dR13 = estado.dR14 = 40;
  estado.dR21 = estado.dR22 = estado.dR23 = estado.dR24 = 90;
  estado.dLX1 = estado.dLY1 = 200;
  estado.dLX2 = estado.dLY2 = 400;
  estado.dAltura = 300;
  estado.dAx = 30;
  estado.dAlfa = 12;
  estado.dTamanoTexto = 10;
  estado.sDimensiones = "1";
  estado.iBox = estado.iUnidad = 1;
  estado.sDensidad = "7.85";
  estado.dEspesor = 1;
  estado.iPosIni = estado.iPosIniElip = 1;
  estado.iDivisiones = divisiones;
}

void Desarrollo(benchmark::State& s, const char* tipo, std::int16_t exacto = 0) {
  PonPieza(tipo, static_cast<std::int16_t>(s.range(0)));
  estado.iExacto = exacto;
  Mesa mesa;
  EWdraw axew;
  axew.PonVista(&mesa);
  for (auto _ : s) {
    Desplegado(axew);
    benchmark::DoNotOptimize(estado.oDrawing->GetEntities().data());
  }
}
BENCHMARK_CAPTURE(Desarrollo, CR, "TransCR")->Arg(12)->Arg(120)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(Desarrollo, RC, "TransRC")->Arg(12)->Arg(120)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(Desarrollo, Elip, "")->Arg(12)->Arg(120)->Unit(benchmark::kMicrosecond);

BENCHMARK_CAPTURE(Desarrollo, ExactCR, "TransCR", 1)->Arg(120)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(Desarrollo, ExactEsp1, "TransEsp1", 1)->Arg(16)->Arg(908)->Unit(benchmark::kMicrosecond);

// The usual rules adjust the radii, so that each time starts anew.
void Especial(benchmark::State& s) {
  Mesa mesa;
  EWdraw axew;
  axew.PonVista(&mesa);
  for (auto _ : s) {
    s.PauseTiming();
    PonPieza("TransEsp1", static_cast<std::int16_t>(s.range(0)));
    s.ResumeTiming();
    Desplegado(axew);
    benchmark::DoNotOptimize(estado.oDrawing->GetEntities().data());
  }
}
BENCHMARK(Especial)->Arg(16)->Arg(908)->Unit(benchmark::kMicrosecond);

// The check of a pattern that lies there.
void Cotejo(benchmark::State& s, const char* tipo) {
  Mesa mesa;
  EWdraw axew;
  axew.PonVista(&mesa);
  PonPieza(tipo, static_cast<std::int16_t>(s.range(0)));
  const Solido solido = SolidoActual();
  Desplegado(axew);
  for (auto _ : s) benchmark::DoNotOptimize(Comprueba(solido, axew).desviacion);
}
BENCHMARK_CAPTURE(Cotejo, CR, "TransCR")->Arg(12)->Arg(120)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(Cotejo, Esp1, "TransEsp1")->Arg(16)->Arg(908)->Unit(benchmark::kMicrosecond);

// One frame of the viewer while the solid turns.
void PintaSolido(benchmark::State& s, const char* tipo) {
  PonPieza(tipo, static_cast<std::int16_t>(s.range(0)));
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
BENCHMARK_CAPTURE(PintaSolido, CR, "TransCR")->Arg(120)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(PintaSolido, Esp1, "TransEsp1")->Arg(16)->Arg(908)->Unit(benchmark::kMillisecond);

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
  PonPieza("TransCR", 120);
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
