#include "sheet/renglones.h"

#include <algorithm>

#include "piece/numeros_texto.h"
#include "state/numeros.h"
#include "state/textos.h"

namespace duktores {

namespace {

std::string TextoRotulo(const RotuloBloque& rotulo) {
  if (rotulo.literal) return rotulo.literal;
  return rotulo.comun ? TextoIdioma(rotulo.texto) : Texto(rotulo.texto);
}

struct TextoValor {
  bool desnudo, milimetros;

  std::string operator()(TextoNumero nombre) const { return Texto(nombre.texto); }
  std::string operator()(Fibra fibra) const {
    switch (fibra) {
      case Fibra::interior:
        return Texto(texto::kFibraInterior);
      case Fibra::media:
        return Texto(texto::kFibraMedia);
      case Fibra::exterior:
        return Texto(texto::kFibraExterior);
    }
    return {};
  }
  std::string operator()(Longitud longitud) const {
    std::string numero = TextoDeNumero(longitud.v);
    if (desnudo) return numero;
    if (milimetros) return numero + " mm";
    std::ranges::replace(numero, ',', '.');
    return numero + " in";
  }
  std::string operator()(Angulo angulo) const { return TextoDeNumero(angulo.grados) + (desnudo ? "" : "º"); }
  std::string operator()(int entero) const { return std::to_string(entero); }
};

}  // namespace

std::vector<Renglon> Renglones(const Bloque& bloque, bool milimetros) {
  const TextoValor texto{bloque.estilo == EstiloBloque::sector, milimetros};
  std::vector<Renglon> renglones;
  for (const auto& [rotulo, valor] : bloque.pieza) {
    renglones.push_back({TextoRotulo(rotulo), std::visit(texto, valor)});
  }
  return renglones;
}

}  // namespace duktores
