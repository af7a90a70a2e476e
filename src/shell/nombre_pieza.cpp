#include "shell/nombre_pieza.h"

#include <algorithm>

#include "shell/lista.h"
#include "state/numeros.h"

namespace duktores {

namespace {

std::string Medida(double v) {
  std::string texto = TextoDeNumero(v);
  std::ranges::replace(texto, ',', '.');
  return texto;
}

std::string MedidasDe(const Boca& boca) {
  if (boca == Circulo(boca.r(1))) return "R" + Medida(boca.r(1));
  return Medida(boca.LX) + "x" + Medida(boca.LY);
}

}  // namespace

std::string MedidasPrincipales(const Pieza& pieza, char entre) {
  return MedidasDe(pieza.entradas.abajo) + entre + MedidasDe(pieza.entradas.arriba);
}

std::string NombrePropuesto(const Pieza& pieza) {
  return std::string(FilaDe(pieza.tipo).dialogo.clave) + "_" + MedidasPrincipales(pieza, '_');
}

}  // namespace duktores
