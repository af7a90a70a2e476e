#include "windows/obra_chapas.h"

#include <algorithm>
#include <filesystem>
#include <limits>
#include <utility>

#include "piece/numeros_texto.h"
#include "state/estado.h"
#include "state/fichero.h"
#include "state/numeros.h"
#include "state/textos.h"

namespace duktores {

namespace {

constexpr const char* kInforme = "sheets.csv";

/// What a layout costs: area of parts that could lie on a sheet and don't; area of sheets, of the emptiest only what is
/// used of it.
std::pair<double, double> Coste(const EncargoNido& encargo, const Nido& nido) {
  double falta = 0, coste = 0;
  for (const NoPuesta& f : nido.faltan) {
    if (f.motivo != FaltaNido::sinChapas && f.motivo != FaltaNido::interrumpido) continue;
    falta += f.cantidad * AreaDe(encargo.partes[f.parte].contorno);
  }
  double menor = std::numeric_limits<double>::infinity(), ahorro = 0;
  for (const ChapaPuesta& chapa : nido.chapas) {
    const Punto2 tamano = encargo.chapas[chapa.chapa].tamano;
    const double entera = tamano.x * tamano.y, area = UsoDe(encargo, chapa) * entera;
    coste += entera;
    if (area >= menor) continue;
    menor = area;
    double derecha = 0;
    for (const Colocada& c : chapa.partes) {
      for (const Punto2 p : ContornoEn(encargo.partes[c.parte], c)) derecha = std::max(derecha, p.x);
    }
    ahorro = entera - (area + derecha * tamano.y) / 2;
  }
  return {falta, coste - ahorro};
}

}  // namespace

std::vector<FilaSinChapa> Reparto::Faltan() const {
  std::vector<FilaSinChapa> filas = lista->sinParte;
  for (std::size_t i = 0; i < nidos.size(); ++i) {
    for (const NoPuesta& falta : nidos[i].faltan) filas.push_back(FilaDe((*lotes)[i], falta));
  }
  return filas;
}

ObraChapas::ObraChapas(std::vector<Trabajo> trabajos, PedidoChapas pedido, std::shared_ptr<const PartesLista> partes)
    : trabajos_(std::move(trabajos)),
      pedido_(std::move(pedido)),
      reparto_{std::move(partes), {}, {}, {}},
      tarea_([this](const std::stop_token& para) { Trabaja(para); }) {}

std::shared_ptr<const PartesLista> ObraChapas::Desarrolla(const std::stop_token& para) {
  const EstadoPrograma configurado = estado;
  auto lista = std::make_shared<PartesLista>();
  for (const Trabajo& trabajo : trabajos_) {
    estado = configurado;
    const double espesor = trabajo.espesor.value_or(estado.dEspesor);
    PartesTrabajo suyas;
    if (para.stop_requested()) {
      suyas.falta = Texto(texto::kParadoAntes);
      lista->entera = false;
    } else {
      suyas = PartesDe(trabajo);
    }
    std::ranges::move(suyas.partes, std::back_inserter(lista->partes));
    if (!suyas.falta.empty()) {
      lista->sinParte.push_back({trabajo.nombre, "", espesor, trabajo.cantidad, std::move(suyas.falta)});
    }
    ++desarrolladas_;
  }
  estado = configurado;
  return lista;
}

void ObraChapas::Trabaja(const std::stop_token& para) {
  const auto lista = reparto_.lista ? reparto_.lista : Desarrolla(para);
  desarrolladas_ = trabajos_.size();
  const double milimetro = estado.iUnidad == 1 ? 1 : kPulgadaPorMilimetro;
  auto lotes = LotesDe(lista->partes, pedido_.existencias, pedido_.reglas, milimetro);
  {
    const std::lock_guard guarda(cerrojo_);
    reparto_.lista = lista;
    reparto_.nidos.resize(lotes.size());
    reparto_.lotes = std::make_shared<const std::vector<Lote>>(std::move(lotes));
  }
  Distribuye(para);
  std::vector<FilaChapa> filas;
  for (std::size_t i = 0; i < reparto_.nidos.size(); ++i) {
    for (const ChapaPuesta& chapa : reparto_.nidos[i].chapas) {
      filas.push_back(FilaDe((*reparto_.lotes)[i], chapa, NombreChapa(filas.size() + 1) + ".dxf"));
    }
  }
  const std::lock_guard guarda(cerrojo_);
  reparto_.chapas = std::move(filas);
  nuevo_ = true;
}

// First all, quickly, so that whoever stops it has all on sheets; then each is improved for its share of the time.
void ObraChapas::Distribuye(const std::stop_token& para) {
  const auto& lotes = *reparto_.lotes;
  const VigiaNido sigue{[&] { return !para.stop_requested(); }};
  for (const bool mejora : {false, true}) {
    if (mejora && para.stop_requested()) return;
    for (std::size_t i = 0; i < lotes.size(); ++i) {
      const double parte =
          static_cast<double>(lotes[i].partes.size()) / static_cast<double>(reparto_.lista->partes.size());
      const EsfuerzoNido esfuerzo{.segundos = mejora ? parte * pedido_.segundos : 0,
                                  .hilos = std::max(1U, std::thread::hardware_concurrency())};
      const VigiaNido vigia{sigue.sigue, [&, i](const Nido& nido) { Ofrece(i, nido); }};
      Ofrece(i, Anida(lotes[i].encargo, esfuerzo, vigia));
    }
  }
}

void ObraChapas::Ofrece(std::size_t lote, const Nido& nido) {
  const std::lock_guard guarda(cerrojo_);
  Nido& suyo = reparto_.nidos[lote];
  const bool hay = !suyo.chapas.empty() || !suyo.faltan.empty();
  const EncargoNido& encargo = (*reparto_.lotes)[lote].encargo;
  // The result costs what its last improvement did, and tells besides what no sheet takes.
  if (hay && Coste(encargo, nido) > Coste(encargo, suyo)) return;
  suyo = nido;
  nuevo_ = true;
}

std::optional<Reparto> ObraChapas::Toma() {
  const std::lock_guard guarda(cerrojo_);
  if (!std::exchange(nuevo_, false)) return std::nullopt;
  return reparto_;
}

EscrituraChapas::EscrituraChapas(Reparto reparto, std::string carpeta, HabitoCsv habito)
    : reparto_(std::move(reparto)),
      carpeta_(std::move(carpeta)),
      habito_(habito),
      tarea_([this](const std::stop_token& para) { Trabaja(para); }) {}

std::vector<std::string> EscrituraChapas::Ficheros(const Reparto& reparto) {
  std::vector<std::string> ficheros;
  for (std::size_t i = 1; i <= reparto.chapas.size(); ++i) {
    for (const char* sufijo : {".dxf", ".png"}) ficheros.push_back(NombreChapa(i) + sufijo);
  }
  ficheros.emplace_back(kInforme);
  return ficheros;
}

void EscrituraChapas::Trabaja(const std::stop_token& para) {
  std::vector<FilaChapa> filas;
  std::size_t numero = 0;
  for (std::size_t i = 0; i < reparto_.nidos.size(); ++i) {
    const Lote& lote = (*reparto_.lotes)[i];
    const Nido& nido = reparto_.nidos[i];
    const bool cuadran = CuadranCantidades(lote.encargo, nido);
    const auto fallas = RevisaChapas(lote.encargo, nido);
    for (std::size_t chapa = 0; chapa < nido.chapas.size() && !para.stop_requested(); ++chapa) {
      const std::string nombre = NombreChapa(++numero);
      auto [fila, motivo] = cuadran ? EscribeChapa(lote, nido, chapa, fallas, carpeta_, nombre)
                                    : ChapaEscrita{{}, Texto(texto::kNoCuadran)};
      if (motivo.empty()) {
        escritos_.push_back(fila.fichero);
        filas.push_back(std::move(fila));
      } else {
        fallos_.push_back(nombre + ": " + motivo);
      }
      ++hechas_;
    }
  }
  if (para.stop_requested()) return;
  const std::string ruta = std::filesystem::path(carpeta_) / kInforme;
  const Guardado informe =
      EscribeFichero(ruta, std::string(kMarcaUtf8) + TablaChapas(filas, reparto_.Faltan(), habito_));
  if (informe) {
    escritos_.emplace_back(kInforme);
  } else {
    fallos_.push_back(TextoNoGuardado(ruta, informe));
  }
}

}  // namespace duktores
