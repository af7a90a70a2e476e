#include "windows/obra_chapas.h"

#include <algorithm>
#include <filesystem>
#include <utility>

#include "piece/numeros_texto.h"
#include "shell/lotes.h"
#include "state/estado.h"
#include "state/fichero.h"
#include "state/numeros.h"
#include "state/textos.h"

namespace duktores {

namespace {

constexpr const char* kInforme = "sheets.csv";

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

void ObraChapas::Distribuye(const std::stop_token& para) {
  const EsfuerzoNido esfuerzo{.segundos = pedido_.segundos, .hilos = std::max(1U, std::thread::hardware_concurrency())};
  const auto ofrece = [this](std::size_t lote, const Nido& nido) {
    const std::lock_guard guarda(cerrojo_);
    reparto_.nidos[lote] = nido;
    nuevo_ = true;
  };
  auto nidos = AnidaLotes(*reparto_.lotes, esfuerzo, {[&] { return !para.stop_requested(); }, ofrece});
  const std::lock_guard guarda(cerrojo_);
  reparto_.nidos = std::move(nidos);
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
    const bool cuadran = CuadranCantidades(ConLoQueQueda(*reparto_.lotes, reparto_.nidos, i), nido);
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
  viejas_ = ChapasViejas(carpeta_, filas);
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
