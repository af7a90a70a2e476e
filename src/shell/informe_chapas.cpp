#include "shell/informe_chapas.h"

#include <utility>

#include "nest/resto.h"
#include "piece/numeros_texto.h"
#include "state/estado.h"
#include "state/textos.h"

namespace duktores {

namespace {

int NumeroDe(FaltaNido falta, bool hayChapas) {
  switch (falta) {
    case FaltaNido::sinArea:
      return texto::kSinAreaOLarga;
    case FaltaNido::noCabe:
      return hayChapas ? texto::kMayorQueChapas : texto::kSinChapaDeEspesor;
    case FaltaNido::sinChapas:
      return texto::kNoQuedanChapas;
    case FaltaNido::interrumpido:
      break;
  }
  return texto::kParadoAntes;
}

}  // namespace

FilaChapa FilaDe(const Lote& lote, const ChapaPuesta& chapa, std::string fichero) {
  FilaChapa fila;
  fila.fichero = std::move(fichero);
  fila.espesor = lote.espesor;
  fila.tamano = lote.encargo.chapas[chapa.chapa].tamano;
  fila.partes = chapa.partes.size();
  double area = 0;
  for (const Colocada& c : chapa.partes) {
    const Recorte& recorte = lote.partes[c.parte]->corte.recorte;
    area += recorte.area;
    fila.largo += recorte.largo;
  }
  fila.uso = kPorCiento * area / (fila.tamano.x * fila.tamano.y);
  fila.resto = RestoMayor(lote.encargo, chapa).tamano;
  return fila;
}

FilaSinChapa FilaDe(const Lote& lote, const NoPuesta& falta) {
  const ParteChapa& parte = *lote.partes[falta.parte];
  return {parte.pieza, parte.forma, lote.espesor, falta.cantidad,
          Texto(NumeroDe(falta.motivo, !lote.encargo.chapas.empty()))};
}

std::string TextoFalta(FaltaRevision falta) {
  switch (falta) {
    case FaltaRevision::fueraDeChapa:
      return Texto(texto::kFueraDelMargen);
    case FaltaRevision::demasiadoCerca:
      return Texto(texto::kDemasiadoCerca);
    case FaltaRevision::dentroDeOtra:
      return Texto(texto::kUnaEnOtra);
    case FaltaRevision::giroProhibido:
      break;
  }
  return Texto(texto::kGiroProhibido);
}

std::string TablaChapas(std::span<const FilaChapa> chapas, std::span<const FilaSinChapa> faltan, HabitoCsv habito) {
  constexpr int kMedida = 3;
  const std::string largo = estado.iUnidad == 1 ? " mm" : " in";
  FilaCsv cabeza(habito);
  cabeza.Texto("sheet").Texto("parts").Texto("left out").Texto("thickness" + largo).Texto("width" + largo);
  cabeza.Texto("height" + largo).Texto("use %").Texto("cut length" + largo);
  cabeza.Texto("rest width" + largo).Texto("rest height" + largo);
  std::string tabla = cabeza.Linea();
  for (const FilaChapa& c : chapas) {
    FilaCsv linea(habito);
    linea.Texto(c.fichero).Numero(static_cast<double>(c.partes), 0).Texto("").Numero(c.espesor, kMedida);
    for (const double v : {c.tamano.x, c.tamano.y, c.uso, c.largo, c.resto.x, c.resto.y}) linea.Numero(v, kMedida);
    tabla += linea.Linea();
  }
  for (const FilaSinChapa& f : faltan) {
    FilaCsv linea(habito);
    linea.Texto("").Numero(f.cantidad, 0).Texto(f.pieza + (f.forma.empty() ? "" : " ") + f.forma + ": " + f.motivo);
    tabla += linea.Numero(f.espesor, kMedida).Linea();
  }
  return tabla;
}

}  // namespace duktores
