#include "batch/chapas.h"

#include <array>
#include <charconv>
#include <filesystem>
#include <utility>

#include "batch/senales.h"
#include "jobs/chapas.h"
#include "piece/numeros_texto.h"
#include "state/estado.h"
#include "state/numeros.h"
#include "state/textos.h"

namespace duktores {

namespace {

std::string Cifras(double v, int decimales) {
  std::array<char, 400> cifras;
  const auto fin = std::to_chars(cifras.data(), cifras.data() + cifras.size(), v, std::chars_format::fixed, decimales);
  std::string texto(cifras.data(), fin.ptr);
  if (decimales == 0) return texto;
  texto.resize(texto.find_last_not_of('0') + 1);
  return texto.ends_with('.') ? texto.substr(0, texto.size() - 1) : texto;
}

std::string Tamano(Punto2 tamano) { return Cifras(tamano.x, 3) + "x" + Cifras(tamano.y, 3); }

class Taller {
 public:
  Taller(const std::string& carpeta, InformeChapas& informe) : carpeta_(carpeta), informe_(informe) {}

  void Escribe(const Lote& lote, const Nido& nido) {
    if (!CuadranCantidades(lote.encargo, nido)) {
      Responde("sheets of " + Cifras(lote.espesor, 3) + ": refused sheet: " + Texto(texto::kNoCuadran));
      informe_.bien = false;
      return;
    }
    const auto fallas = RevisaChapas(lote.encargo, nido);
    for (std::size_t i = 0; i < nido.chapas.size(); ++i) {
      const std::string nombre = NombreChapa(++numero_);
      const auto [fila, motivo] = EscribeChapa(lote, nido, i, fallas, carpeta_, nombre);
      if (motivo.empty()) {
        Responde(nombre + ": ok " + (std::filesystem::path(carpeta_) / fila.fichero).string() + ", " + Figuras(fila));
        informe_.chapas.push_back(fila);
      } else {
        Responde(nombre + ": refused sheet: " + motivo);
        informe_.bien = false;
      }
    }
    for (const NoPuesta& falta : nido.faltan) {
      const FilaSinChapa& fila = informe_.faltan.emplace_back(FilaDe(lote, falta));
      Responde(fila.pieza + ": left out " + std::to_string(fila.cantidad) + " of " + fila.forma + ": " + fila.motivo);
      informe_.bien = false;
    }
  }

 private:
  void Responde(std::string linea) { informe_.lineas.push_back(std::move(linea)); }
  static std::string Figuras(const FilaChapa& fila) {
    return Tamano(fila.tamano) + "x" + Cifras(fila.espesor, 3) + ", " + std::to_string(fila.partes) +
           (fila.partes == 1 ? " part, " : " parts, ") + Cifras(fila.uso, 1) + " % used, rest " + Tamano(fila.resto);
  }

  const std::string& carpeta_;
  InformeChapas& informe_;
  std::size_t numero_ = 0;
};

}  // namespace

InformeChapas PonEnChapas(const std::vector<ParteChapa>& partes, const OrdenesChapas& ordenes,
                          const std::string& carpeta, const std::function<void(const std::string&)>& avance) {
  InformeChapas informe;
  Taller taller(carpeta, informe);
  const double milimetro = estado.iUnidad == 1 ? 1 : kPulgadaPorMilimetro;
  for (const Lote& lote : LotesDe(partes, ordenes.existencias, ordenes.reglas, milimetro)) {
    EsfuerzoNido esfuerzo = ordenes.esfuerzo;
    esfuerzo.segundos *= static_cast<double>(lote.partes.size()) / static_cast<double>(partes.size());
    const VigiaNido vigia{[] { return SenalRecibida() == 0; },
                          [&](const Nido& nido) {
                            avance(std::to_string(nido.chapas.size()) + " sheets of " + Cifras(lote.espesor, 3) + ", " +
                                   Cifras(kPorCiento * UsoDe(lote.encargo, nido), 1) + " % used");
                          }};
    taller.Escribe(lote, Anida(lote.encargo, esfuerzo, vigia));
  }
  return informe;
}

}  // namespace duktores
