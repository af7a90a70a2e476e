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

// In the order of Falta, of Nota, of Causa, of Forma.
constexpr std::array kTextosFalta{texto::kFalta,  texto::kRepetida, texto::kImposible, texto::kVuelta, texto::kCruce,
                                  texto::kFigura, texto::kLargo,    texto::kVecinas,   texto::kDoblez, texto::kNumeros};
constexpr std::array kTextosNota{texto::kDelgada, texto::kOtroExtremo};
constexpr std::array kTextosCausa{texto::kBocaBajoBase,   texto::kCorteSobreVertice, texto::kLadoComido,
                                  texto::kRadioImposible, texto::kSeEncuentra,       texto::kReglasUsuales};
constexpr std::array kTextosForma{texto::kEntera, texto::kMitad, texto::kEsquina, texto::kLado};

bool Milimetros() { return estado.iUnidad == 1; }

std::string TextoLugar(const Lugar& lugar) {
  std::string donde = TextoForma(lugar.forma);
  if (lugar.vecina) (donde += " - ") += TextoForma(*lugar.vecina);
  return lugar.numero == 0 ? donde : donde + " (" + std::to_string(lugar.numero) + ")";
}

}  // namespace

std::string TextoMedido(double v) {
  if (!std::isfinite(v)) return "?";
  std::array<char, 320> letras;
  const auto fin =
      std::to_chars(letras.data(), letras.data() + letras.size(), v, std::chars_format::fixed, Milimetros() ? 3 : 4);
  std::string medido(letras.data(), fin.ptr);
  if (estado.bComaDecimal) medido.replace(medido.find('.'), 1, ",");
  return medido + (Milimetros() ? " mm" : " in");
}

double ToleranciaPatron() { return Milimetros() ? 0.5 : 0.02; }

std::string TextoForma(NombreForma forma) {
  const std::string nombre = Texto(kTextosForma[static_cast<std::size_t>(forma.forma)]);
  return forma.forma == Forma::entera ? nombre : nombre + " " + std::to_string(forma.numero);
}

std::string TextoNotas(const Veredicto& veredicto) {
  std::string linea;
  for (const auto& [nota, donde] : veredicto.notas) {
    linea += (linea.empty() ? Texto(texto::kNota) + " " : "; ") + TextoLugar(donde) + ": " +
             Texto(kTextosNota[static_cast<std::size_t>(nota)]);
  }
  return linea;
}

std::string TextoVeredicto(const Veredicto& veredicto) {
  const std::string notas = TextoNotas(veredicto), cola = notas.empty() ? "" : ". " + notas;
  if (veredicto.Cierto()) return Texto(texto::kCierto) + " " + TextoMedido(veredicto.desviacion) + cola;
  std::string linea = Texto(texto::kFalso);
  for (const auto& [falta, donde, medida] : veredicto.defectos) {
    linea += (&falta == &veredicto.defectos[0].falta ? " " : "; ") + TextoLugar(donde) + ": " +
             Texto(kTextosFalta[static_cast<std::size_t>(falta)]);
    if (medida > 0 && std::isfinite(medida)) linea += " " + TextoMedido(medida);
  }
  linea += ". " + Texto(texto::kDesviacion) + " " + TextoMedido(veredicto.desviacion);
  if (veredicto.causa) linea += ". " + Texto(kTextosCausa[static_cast<std::size_t>(*veredicto.causa)]);
  if (veredicto.curaExacta) linea += " " + Texto(texto::kCuraExacta);
  return linea + cola;
}

}  // namespace duktores
