#include "shell/juicio.h"

#include <algorithm>
#include <cmath>

#include "check/comprueba.h"
#include "shell/corrida.h"
#include "shell/lista.h"
#include "shell/texto_veredicto.h"
#include "special/causa.h"

namespace duktores {

namespace {

// A side that was typed and of which the usual correction leaves nothing; how much is missing.
double LadoComido(const Pieza& pieza) {
  double falta = 0;
  const auto mide = [&](double entrado, double corregido) {
    if (entrado > 0 && corregido <= 0) falta = std::max(falta, std::max(-corregido, 1e-9));
  };
  for (const auto boca : {&Bocas::arriba, &Bocas::abajo}) {
    const Boca &entrada = pieza.entradas.*boca, &corregida = pieza.corregidas.*boca;
    mide(entrada.LX, corregida.LX);
    mide(entrada.LY, corregida.LY);
  }
  return falta;
}

void AnotaImposibles(Veredicto& veredicto, const Pieza& pieza) {
  const Grupo grupo = FilaDe(pieza.tipo).grupo;
  const auto especial = grupo == Grupo::especiales ? Imposible(pieza) : std::nullopt;
  if (especial) {
    const bool radio = especial->causa == ImposibleEspecial::radio;
    AnotaImposible(veredicto, radio ? Causa::radioImposible : Causa::corteSobreVertice,
                   {{Forma::esquina, especial->esquina}}, especial->medida);
  } else if (const double falta = LadoComido(pieza);
             falta > 0 && (grupo != Grupo::especiales || pieza.regla == Regla::usual)) {
    AnotaImposible(veredicto, Causa::ladoComido, {}, falta);
  }
}

bool SoloCruza(const Veredicto& veredicto) {
  return std::ranges::all_of(veredicto.defectos, [](const Defecto& d) { return d.falta == Falta::cruce; });
}

}  // namespace

Veredicto Juzga(const Pieza& pieza, const Solido& solido, const Patron& patron) {
  Veredicto veredicto = Comprueba(solido, patron, ToleranciaPatron());
  if (!veredicto.causa) AnotaImposibles(veredicto, pieza);
  if (patron.otroExtremo) veredicto.notas.emplace_back(Nota::otroExtremo, Lugar{});
  if (veredicto.Cierto()) return veredicto;
  if (!veredicto.causa && SoloCruza(veredicto)) veredicto.causa = Causa::seEncuentra;
  if (pieza.regla == Regla::exacta) return veredicto;
  if (!veredicto.causa) veredicto.causa = Causa::reglasUsuales;
  Pieza exacta = pieza;
  exacta.regla = Regla::exacta;
  const Solido suyo = SolidoDe(exacta);
  veredicto.curaExacta = Juzga(exacta, suyo, DesarrolloDe(exacta, suyo).patron).Cierto();
  return veredicto;
}

}  // namespace duktores
