#include "check/veredicto.h"

#include <array>
#include <charconv>
#include <cmath>

#include "state/estado.h"
#include "state/numeros.h"
#include "state/textos.h"

namespace duktores {

namespace {

constexpr int kTextoCierto = 107, kTextoFalso = 108, kTextoDesviacion = 119;
constexpr std::array kTextosFalta{111, 112, 110, 113, 109, 114, 116, 115};  // in the order of Falta

bool Milimetros() { return estado.iUnidad == 1; }

// To a tenth of what a drawing shows.
std::string TextoMedido(double v) {
  if (!std::isfinite(v)) return "?";
  std::array<char, 320> letras;
  const auto fin =
      std::to_chars(letras.data(), letras.data() + letras.size(), v, std::chars_format::fixed, Milimetros() ? 3 : 4);
  std::string texto(letras.data(), fin.ptr);
  if (estado.bComaDecimal) texto.replace(texto.find('.'), 1, ",");
  return texto + (Milimetros() ? " mm" : " in");
}

}  // namespace

double ToleranciaPatron() { return Milimetros() ? 0.5 : 0.02; }

std::string TextoVeredicto(const Veredicto& veredicto) {
  constexpr std::size_t kCabe = 3;
  if (veredicto.Cierto()) return Texto(kTextoCierto) + " " + TextoMedido(veredicto.desviacion);
  std::string texto = Texto(kTextoFalso);
  for (std::size_t i = 0; i < veredicto.defectos.size() && i < kCabe; ++i) {
    const auto& [falta, donde, medida] = veredicto.defectos[i];
    texto += (i == 0 ? " " : "; ") + donde + ": " + Texto(kTextosFalta[static_cast<std::size_t>(falta)]);
    if (medida > 0 && std::isfinite(medida)) texto += " " + TextoMedido(medida);
  }
  if (veredicto.defectos.size() > kCabe) texto += "; +" + std::to_string(veredicto.defectos.size() - kCabe);
  return texto + ". " + Texto(kTextoDesviacion) + " " + TextoMedido(veredicto.desviacion);
}

}  // namespace duktores
