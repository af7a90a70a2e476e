#include "batch/chapas.h"

#include <array>
#include <charconv>
#include <filesystem>
#include <map>
#include <utility>

#include "batch/senales.h"
#include "jobs/chapas.h"
#include "piece/numeros_texto.h"
#include "shell/lotes.h"
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
  Taller(const std::string& carpeta, const std::function<void(const std::string&)>& responde, InformeChapas& informe)
      : carpeta_(carpeta), responde_(responde), informe_(informe) {}

  /// `encargo` has the sheets that there are for the lot.
  void Escribe(const Lote& lote, const EncargoNido& encargo, const Nido& nido) {
    if (!CuadranCantidades(encargo, nido)) {
      responde_("sheets of " + Cifras(lote.espesor, 3) + ": refused sheet: " + Texto(texto::kNoCuadran));
      for (std::size_t i = 0; i < lote.partes.size(); ++i) {
        Falta(lote, i, lote.partes[i]->cantidad, Texto(texto::kNoCuadran));
      }
      return;
    }
    const auto fallas = Parado() ? std::vector<FallaNido>{} : RevisaChapas(encargo, nido);
    for (std::size_t i = 0; i < nido.chapas.size(); ++i) {
      const std::string nombre = NombreChapa(++numero_);
      const auto [fila, motivo] = Parado() ? ChapaEscrita{{}, Texto(texto::kParadoAntes)}
                                           : EscribeChapa(lote, nido, i, fallas, carpeta_, nombre);
      if (motivo.empty()) {
        responde_(nombre + ": ok " + (std::filesystem::path(carpeta_) / fila.fichero).string() + ", " + Figuras(fila));
        informe_.chapas.push_back(fila);
      } else {
        responde_(nombre + ": refused sheet: " + motivo);
        std::map<std::size_t, int> cuantas;
        for (const Colocada& c : nido.chapas[i].partes) ++cuantas[c.parte];
        for (const auto& [parte, cantidad] : cuantas) Falta(lote, parte, cantidad, nombre + ": " + motivo);
      }
    }
    for (const NoPuesta& falta : nido.faltan) {
      const FilaSinChapa& fila = informe_.faltan.emplace_back(FilaDe(lote, falta));
      responde_(fila.pieza + ": left out " + std::to_string(fila.cantidad) + " of " + fila.forma + ": " + fila.motivo);
      informe_.bien = false;
    }
  }

 private:
  // A signal has come since the writing began.
  bool Parado() const { return SenalesRecibidas() != antes_; }
  void Falta(const Lote& lote, std::size_t parte, int cantidad, const std::string& motivo) {
    const ParteChapa& suya = *lote.partes[parte];
    informe_.faltan.push_back({suya.pieza, suya.forma, lote.espesor, cantidad, motivo});
    informe_.bien = false;
  }
  static std::string Figuras(const FilaChapa& fila) {
    return Tamano(fila.tamano) + "x" + Cifras(fila.espesor, 3) + ", " + std::to_string(fila.partes) +
           (fila.partes == 1 ? " part, " : " parts, ") + Cifras(fila.uso, 1) + " % used, rest " + Tamano(fila.resto);
  }

  const std::string& carpeta_;
  const std::function<void(const std::string&)>& responde_;
  InformeChapas& informe_;
  const int antes_ = SenalesRecibidas();
  std::size_t numero_ = 0;
};

/// How far all lots are, in words.
class Cuenta {
 public:
  explicit Cuenta(const std::vector<Lote>& lotes) : lotes_(lotes), suyas_(lotes.size()) {}
  std::string Con(std::size_t lote, const Nido& nido) {
    const EncargoNido& encargo = lotes_[lote].encargo;
    Suma& suya = suyas_[lote] = {nido.chapas.size()};
    for (const ChapaPuesta& chapa : nido.chapas) {
      const Punto2 tamano = encargo.chapas[chapa.chapa].tamano;
      suya.area += tamano.x * tamano.y;
    }
    suya.usada = suya.area * UsoDe(encargo, nido);
    Suma todas;
    for (const Suma& s : suyas_) todas = {todas.chapas + s.chapas, todas.area + s.area, todas.usada + s.usada};
    const double uso = todas.area > 0 ? kPorCiento * todas.usada / todas.area : 0;
    std::string texto = std::to_string(todas.chapas) + " sheets, " + Cifras(uso, 1) + " % used";
    if (lotes_.size() == 1) return texto;
    return texto + "; thickness " + Cifras(lotes_[lote].espesor, 3) + ", " + std::to_string(lote + 1) + " of " +
           std::to_string(lotes_.size()) + ": " + std::to_string(suya.chapas) + " sheets, " +
           Cifras(kPorCiento * UsoDe(encargo, nido), 1) + " %";
  }

 private:
  struct Suma {
    std::size_t chapas = 0;
    double area = 0, usada = 0;
  };
  const std::vector<Lote>& lotes_;
  std::vector<Suma> suyas_;
};

}  // namespace

InformeChapas PonEnChapas(const std::vector<ParteChapa>& partes, const OrdenesChapas& ordenes,
                          const std::string& carpeta, const OyenteChapas& oyente) {
  const double milimetro = estado.iUnidad == 1 ? 1 : kPulgadaPorMilimetro;
  const auto lotes = LotesDe(partes, ordenes.existencias, ordenes.reglas, milimetro);
  Cuenta cuenta(lotes);
  const auto nidos = AnidaLotes(lotes, ordenes.esfuerzo,
                                {[] { return SenalRecibida() == 0; },
                                 [&](std::size_t lote, const Nido& nido) { oyente.avance(cuenta.Con(lote, nido)); }});
  InformeChapas informe;
  Taller taller(carpeta, oyente.respuesta, informe);
  for (std::size_t i = 0; i < lotes.size(); ++i) taller.Escribe(lotes[i], ConLoQueQueda(lotes, nidos, i), nidos[i]);
  informe.viejas = ChapasViejas(carpeta, informe.chapas);
  return informe;
}

}  // namespace duktores
