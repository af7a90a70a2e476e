#include <cmath>

#include "annotation/anotacion.h"
#include "geometry/redondeo.h"
#include "state/caracteres.h"
#include "state/estado.h"
#include "state/numeros.h"
#include "state/textos.h"

namespace duktores {
namespace {

constexpr auto kContorno = static_cast<std::int32_t>(TipoEntidad::contorno);

/// Id of the `cual`-th closed outline; 0 if there are fewer.
std::int32_t BuscaContorno(const EWdraw& axew, std::int16_t cual) {
  int cuenta = 0;
  for (std::int32_t i = 0; i < axew.EwEntityCount(); ++i) {
    const std::int32_t id = axew.EwEntityAt(i);
    if (axew.EwEntityType(id) == kContorno && ++cuenta == cual) return id;
  }
  return 0;
}

/// Cuts to `porMil` thousandths. The parts below the unit are counted in whole thousandths, so that no digit is lost to
/// the binary form: 0.29 stays 0.29.
double Trunca(double v, double porMil) {
  const double n = std::nearbyint(v);
  const double milesimas = std::nearbyint((v - n) * 1000);
  return Redondea(std::floor(milesimas / porMil) * porMil / 1000 + n, 3);
}

}  // namespace

void MidePieza(EWdraw& axew, std::int16_t iPieza, double& dAreaPieza, double& dAreaRect, double& dPerimetro) {
  const std::int32_t contorno = BuscaContorno(axew, iPieza);
  if (contorno == 0) return;
  const std::int32_t copia = axew.EwCopy(contorno, {}, {});
  const std::int32_t region = axew.EwMakeRegion(copia, true);
  dAreaPieza = axew.EwArea(region);
  double xMin = 0, yMin = 0, zMin = 0, xMax = 0, yMax = 0, zMax = 0;
  axew.EwExtent(region, xMin, yMin, zMin, xMax, yMax, zMax);
  dAreaRect = (xMax - xMin) * (yMax - yMin);
  dPerimetro = axew.EwPerimeter(region);
  axew.EwDelete(copia);
  axew.EwDelete(region);
}

double TruncaDosDecimales(double v) { return Trunca(v, 10); }
double TruncaTresDecimales(double v) { return Trunca(v, 1); }

std::int16_t LongitudTexto(std::string_view texto) {
  const int longitud = LongitudUtf16(texto);
  return EnteroCorto(estado.dIdioma == kChino ? longitud * 14 / 10.0 : longitud);
}

int DivideCadena(std::string_view s, std::vector<std::string>& partes, char delimitador) {
  partes.assign(1, {});
  if (s.empty()) return 0;
  if (s.ends_with(delimitador)) s.remove_suffix(1);
  for (;;) {
    const std::size_t corte = s.find(delimitador);
    partes.emplace_back(s.substr(0, corte));
    if (corte == std::string_view::npos) return static_cast<int>(partes.size()) - 1;
    s.remove_prefix(corte + 1);
  }
}

}  // namespace duktores
