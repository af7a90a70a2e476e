// Unfolds random pieces by both rules and prints what the check finds:
//   patrones [PIECES OF EACH TYPE] [SEED] [wild|everyday] [TYPE]
// With a type only that one, and all of its pieces that aren't true when developed exactly.

#include <array>
#include <cstdio>
#include <cstdlib>
#include <random>
#include <string>
#include <string_view>

#include "piezas_azar.h"
#include "shell/corrida.h"
#include "shell/juicio.h"
#include "shell/lista.h"
#include "shell/texto_veredicto.h"
#include "state/estado.h"

namespace {

using namespace duktores;

constexpr std::size_t kCausas = static_cast<std::size_t>(Causa::reglasUsuales) + 1;

struct Cuenta {
  int piezas = 0, ciertas = 0, curadas = 0, sinCausa = 0;
  double peor = 0;  // deviation of those that are true
  std::array<int, kCausas> causas{};
};

void Pon(Cuenta& cuenta, const Veredicto& veredicto) {
  ++cuenta.piezas;
  cuenta.curadas += veredicto.curaExacta;
  if (veredicto.Cierto()) {
    ++cuenta.ciertas;
    cuenta.peor = std::max(cuenta.peor, veredicto.desviacion);
  } else {
    ++(veredicto.causa ? cuenta.causas[static_cast<std::size_t>(*veredicto.causa)] : cuenta.sinCausa);
  }
}

std::string Campos(const Dialogo& dialogo) {
  std::string texto;
  const auto campos = dialogo.Definicion().campos;
  for (std::size_t i = 0; i < campos.size(); ++i) {
    texto += std::string(campos[i].palabra) + "=" + dialogo.CampoDe(static_cast<int>(i)).texto + " ";
  }
  return texto + (dialogo.dosPiezas ? "Pieces=2" : "Pieces=1");
}

// A piece that its dialog has accepted.
void Acepta(Dialogo& dialogo, std::mt19937& azar, bool cotidianas) {
  if (cotidianas) return AceptaCotidiana(dialogo, azar);
  do {
    estado.iFibra = static_cast<std::int16_t>(1 + static_cast<int>(azar() % 3));
    TecleaPieza(dialogo, azar);
  } while (Dialogo(dialogo).CmdAceptar() != Respuesta::aceptado);
}

void Imprime(std::string_view tipo, const char* regla, const Cuenta& c) {
  std::printf("| %s | %s | %d | %d | %.2g |", tipo.data(), regla, c.piezas, c.ciertas, c.peor);
  for (const int causa : c.causas) std::printf(" %d |", causa);
  std::printf(" %d | %d |\n", c.sinCausa, c.curadas);
}

}  // namespace

int main(int argc, char** argv) {
  const int piezas = argc > 1 ? std::atoi(argv[1]) : 1000;
  std::mt19937 azar(argc > 2 ? static_cast<unsigned>(std::atoi(argv[2])) : 1U);
  const bool cotidianas = argc > 3 && std::string_view(argv[3]) == "everyday";
  const std::string_view solo = argc > 4 ? argv[4] : "";
  std::printf(
      "| piece | rule | pieces | true | worst true | mouth below base | cut above the meeting point | side eaten up | "
      "radius impossible | meets itself | usual rules | no cause | cured by exact |\n"
      "|---|---|---|---|---|---|---|---|---|---|---|---|---|\n");
  for (const FilaPieza& fila : FilasPieza()) {
    const std::string_view tipo = fila.dialogo.clave;
    if (!solo.empty() && tipo != solo) continue;
    Cuenta cuentas[2];
    for (int n = 0; n < piezas; ++n) {
      estado = {};
      estado.iUnidad = 1;
      estado.dEspesor = 1;
      Dialogo dialogo(fila.dialogo);
      Acepta(dialogo, azar, cotidianas);
      Pieza pieza = estado.pieza.value();
      for (const Regla regla : {Regla::usual, Regla::exacta}) {
        pieza.regla = regla;
        const Solido solido = SolidoDe(pieza);
        const Veredicto veredicto = Juzga(pieza, solido, DesarrolloDe(pieza, solido).patron);
        Pon(cuentas[static_cast<std::size_t>(regla)], veredicto);
        if (!solo.empty() && regla == Regla::exacta && !veredicto.Cierto()) {
          std::printf("%s: %s\n", Campos(dialogo).c_str(), TextoVeredicto(veredicto).c_str());
        }
      }
    }
    Imprime(tipo, "usual", cuentas[0]);
    Imprime(tipo, "exact", cuentas[1]);
  }
}
