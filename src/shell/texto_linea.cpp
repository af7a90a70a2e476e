#include "shell/texto_linea.h"

#include "geometry/planas.h"
#include "geometry/redondeo.h"
#include "piece/doblez.h"
#include "piece/numeros_texto.h"
#include "shell/texto_veredicto.h"
#include "state/numeros.h"
#include "state/textos.h"

namespace duktores {

std::optional<LineaEnHoja> LineaCercana(const Patron& hoja, Punto2 sitio, double alcance) {
  std::optional<LineaEnHoja> cercana;
  for (const FormaPatron& forma : hoja.formas) {
    for (std::size_t i = 0; i < forma.lineas.size(); ++i) {
      const double d = DistanciaASegmento(sitio, forma.lineas[i].p, forma.lineas[i].q);
      if (!(d <= alcance)) continue;
      alcance = d;
      cercana = {forma.nombre, static_cast<int>(i) + 1, forma.lineas[i]};
    }
  }
  return cercana;
}

std::string TextoLinea(const LineaEnHoja& linea, const Solido& solido) {
  constexpr int kDecimales = 2;
  std::string palabras = TextoForma(linea.forma) + " (" + std::to_string(linea.numero) +
                         "): " + TextoMedido(Distancia(linea.linea.p, linea.linea.q));
  if (const auto doblez = DoblezDe(solido, linea.linea)) {
    palabras += ", " + TextoDeNumero(Redondea(doblez->grados, kDecimales)) + "º " +
                Texto(doblez->haciaArriba ? texto::kHaciaArriba : texto::kHaciaAbajo);
  }
  return palabras;
}

}  // namespace duktores
