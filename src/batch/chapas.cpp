#include "batch/chapas.h"

#include <array>
#include <charconv>
#include <filesystem>

#include "batch/senales.h"
#include "jobs/lista.h"
#include "nest/resto.h"
#include "nest/revisa.h"
#include "paint/pintura.h"
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

constexpr double kPorCiento = 100;

const char* MotivoDe(FaltaNido falta, bool hayChapas) {
  switch (falta) {
    case FaltaNido::sinArea:
      return "it has no area or is too long";
    case FaltaNido::noCabe:
      return hayChapas ? "larger than any sheet" : "no sheet of its thickness";
    case FaltaNido::sinChapas:
      return "no sheet is left";
    case FaltaNido::interrumpido:
      break;
  }
  return "stopped before";
}

const char* MotivoDe(FaltaRevision falta) {
  switch (falta) {
    case FaltaRevision::fueraDeChapa:
      return "a part reaches over the margin";
    case FaltaRevision::demasiadoCerca:
      return "two parts come too near to each other";
    case FaltaRevision::dentroDeOtra:
      return "a part lies in another one";
    case FaltaRevision::giroProhibido:
      break;
  }
  return "a part is turned as it may not be";
}

class Taller {
 public:
  Taller(const std::string& carpeta, InformeChapas& informe) : carpeta_(carpeta), informe_(informe) {}

  void Escribe(const Lote& lote, const Nido& nido) {
    if (!CuadranCantidades(lote.encargo, nido)) {
      informe_.bien = false;
      informe_.lineas.push_back("sheets of " + Cifras(lote.espesor, 3) + ": refused sheet: parts are lost or doubled");
      return;
    }
    const auto fallas = RevisaChapas(lote.encargo, nido);
    for (std::size_t i = 0; i < nido.chapas.size(); ++i) {
      const std::string nombre = NombreChapa(++numero_);
      const auto falla = std::ranges::find(fallas, i, &FallaNido::chapa);
      const std::string motivo = falla == fallas.end() ? Guarda(lote, nido.chapas[i], nombre) : MotivoDe(falla->falta);
      if (motivo.empty()) continue;
      informe_.bien = false;
      informe_.lineas.push_back(nombre + ": refused sheet: " + motivo);
    }
    for (const NoPuesta& falta : nido.faltan) Falta(lote, falta);
  }

 private:
  // Why it isn't written; empty if it is.
  std::string Guarda(const Lote& lote, const ChapaPuesta& chapa, const std::string& nombre) {
    const Punto2 tamano = lote.encargo.chapas[chapa.chapa].tamano;
    const std::vector<ParteCorte> partes = PartesEn(lote, chapa);
    const std::string base = std::filesystem::path(carpeta_) / nombre, dxf = base + ".dxf";
    const bool milimetros = estado.iUnidad == 1;
    const Guardado guardado = GuardaCorte(dxf, partes, estado.maquina, milimetros, tamano);
    if (!guardado) return TextoNoGuardado(dxf, guardado);
    EWdraw axew;
    DibujaChapa(axew, partes, tamano);
    const std::string png = base + Sufijo(Formato::png);
    const Guardado imagen = GuardaImagen(axew, png, Formato::png, milimetros ? Escala::milimetros : Escala::pulgadas);
    if (!imagen) return TextoNoGuardado(png, imagen);

    FilaChapa fila{nombre + ".dxf", lote.espesor, tamano, partes.size(), 0, 0, {}};
    double area = 0;
    for (const ParteCorte& parte : partes) {
      area += parte.recorte.area;
      fila.largo += parte.recorte.largo;
    }
    fila.uso = kPorCiento * area / (tamano.x * tamano.y);
    fila.resto = RestoMayor(lote.encargo, chapa).tamano;
    informe_.lineas.push_back(nombre + ": ok " + dxf + ", " + Tamano(tamano) + "x" + Cifras(lote.espesor, 3) + ", " +
                              std::to_string(partes.size()) + (partes.size() == 1 ? " part, " : " parts, ") +
                              Cifras(fila.uso, 1) + " % used, rest " + Tamano(fila.resto));
    informe_.chapas.push_back(std::move(fila));
    return "";
  }

  void Falta(const Lote& lote, const NoPuesta& falta) {
    const ParteChapa& parte = *lote.partes[falta.parte];
    const std::string motivo = MotivoDe(falta.motivo, !lote.encargo.chapas.empty());
    informe_.bien = false;
    informe_.faltan.push_back({parte.pieza, parte.forma, lote.espesor, falta.cantidad, motivo});
    informe_.lineas.push_back(parte.pieza + ": left out " + std::to_string(falta.cantidad) + " of " + parte.forma +
                              ": " + motivo);
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
