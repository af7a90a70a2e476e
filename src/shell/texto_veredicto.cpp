#include "shell/texto_veredicto.h"

#include <array>
#include <charconv>
#include <cmath>

#include "piece/numeros_texto.h"
#include "state/estado.h"
#include "state/numeros.h"
#include "state/textos.h"

namespace duktores {

namespace {

// In the order of Falta, of Forma.
constexpr std::array kTextosFalta{texto::kFalta, texto::kRepetida, texto::kVuelta, texto::kCruce,
                                  texto::kLargo, texto::kVecinas,  texto::kDoblez, texto::kNumeros};
constexpr std::array kTextosForma{texto::kEntera, texto::kMitad, texto::kEsquina, texto::kLado};

bool Milimetros() { return estado.iUnidad == 1; }

// To a tenth of what a drawing shows.
std::string TextoMedido(double v) {
  if (!std::isfinite(v)) return "?";
  std::array<char, 320> letras;
  const auto fin =
      std::to_chars(letras.data(), letras.data() + letras.size(), v, std::chars_format::fixed, Milimetros() ? 3 : 4);
  std::string medido(letras.data(), fin.ptr);
  if (estado.bComaDecimal) medido.replace(medido.find('.'), 1, ",");
  return medido + (Milimetros() ? " mm" : " in");
}

std::string TextoLugar(const Lugar& lugar) {
  std::string donde = TextoForma(lugar.forma);
  if (lugar.vecina) (donde += " - ") += TextoForma(*lugar.vecina);
  return lugar.numero == 0 ? donde : donde + " (" + std::to_string(lugar.numero) + ")";
}

}  // namespace

double ToleranciaPatron() { return Milimetros() ? 0.5 : 0.02; }

std::string TextoForma(NombreForma forma) {
  const std::string nombre = Texto(kTextosForma[static_cast<std::size_t>(forma.forma)]);
  return forma.forma == Forma::entera ? nombre : nombre + " " + std::to_string(forma.numero);
}

std::string TextoVeredicto(const Veredicto& veredicto) {
  constexpr std::size_t kCabe = 3;
  if (veredicto.Cierto()) return Texto(texto::kCierto) + " " + TextoMedido(veredicto.desviacion);
  std::string linea = Texto(texto::kFalso);
  for (std::size_t i = 0; i < veredicto.defectos.size() && i < kCabe; ++i) {
    const auto& [falta, donde, medida] = veredicto.defectos[i];
    linea += (i == 0 ? " " : "; ") + TextoLugar(donde) + ": " + Texto(kTextosFalta[static_cast<std::size_t>(falta)]);
    if (medida > 0 && std::isfinite(medida)) linea += " " + TextoMedido(medida);
  }
  if (veredicto.defectos.size() > kCabe) linea += "; +" + std::to_string(veredicto.defectos.size() - kCabe);
  return linea + ". " + Texto(texto::kDesviacion) + " " + TextoMedido(veredicto.desviacion);
}

}  // namespace duktores
