// Unfolds random pieces by both rules and prints what the check finds: patrones [PIECES OF EACH TYPE] [SEED] [TYPE]
// With a type only that one, and all pieces that aren't true when developed exactly, though they aren't inside out.

#include <cstdio>
#include <cstdlib>
#include <map>
#include <random>
#include <string>
#include <string_view>

#include "pieza_desarrollada.h"
#include "piezas_azar.h"

namespace {

using namespace duktores;

struct Cuenta {
  int piezas = 0, ciertas = 0;
  double peor = 0;  // deviation of those that are true and not inside out
  std::map<Falta, int> con;
  int delReves = 0;  // of those that are not true
};

void Pon(Cuenta& cuenta, const Veredicto& veredicto, bool delReves) {
  ++cuenta.piezas;
  if (veredicto.Cierto()) {
    ++cuenta.ciertas;
    if (!delReves) cuenta.peor = std::max(cuenta.peor, veredicto.desviacion);
  }
  if (!veredicto.Cierto() && delReves) ++cuenta.delReves;
  std::map<Falta, int> una;
  for (const Defecto& defecto : veredicto.defectos) una[defecto.falta] = 1;
  for (const auto& [falta, uno] : una) cuenta.con[falta] += uno;
}

std::string Campos(const Dialogo& dialogo) {
  std::string texto;
  const auto campos = dialogo.Definicion().campos;
  for (std::size_t i = 0; i < campos.size(); ++i) {
    texto += std::string(campos[i].palabra) + "=" + dialogo.CampoDe(static_cast<int>(i)).texto + " ";
  }
  return texto + (dialogo.dosPiezas ? "Pieces=2" : "Pieces=1");
}

}  // namespace

int main(int argc, char** argv) {
  const int piezas = argc > 1 ? std::atoi(argv[1]) : 1000;
  std::mt19937 azar(argc > 2 ? static_cast<unsigned>(std::atoi(argv[2])) : 1U);
  const std::string_view solo = argc > 3 ? argv[3] : "";
  std::printf(
      "| piece | rule | pieces | true | worst true | length | turned | missing | crossing | neighbours | numbers, "
      "bends | inside out |\n|---|---|---|---|---|---|---|---|---|---|---|---|\n");
  for (const FilaPieza& fila : FilasPieza()) {
    const std::string_view tipo = fila.dialogo.clave;
    if (!solo.empty() && tipo != solo) continue;
    Cuenta cuentas[2];
    while (cuentas[0].piezas < piezas) {
      estado = {};
      estado.iUnidad = 1;
      estado.iFibra = static_cast<std::int16_t>(1 + static_cast<int>(azar() % 3));
      estado.dEspesor = 1;
      estado.dTamanoTexto = 10;
      estado.iColorDoblez = 3;
      estado.sDimensiones = "1";
      estado.iBox = 1;
      estado.sTipoPieza = "";
      Dialogo dialogo(fila.dialogo);
      TecleaPieza(dialogo, azar);
      if (Dialogo(dialogo).CmdAceptar() != Respuesta::aceptado) continue;
      for (const std::int16_t exacto : {std::int16_t{0}, std::int16_t{1}}) {
        const PiezaDesarrollada pieza(dialogo, exacto);
        const Veredicto v = pieza.Juzga();
        const bool delReves = DelReves(*estado.pieza);
        Pon(cuentas[exacto], v, delReves);
        if (!solo.empty() && exacto == 1 && !v.Cierto() && !delReves) {
          std::printf("%s: %s\n", Campos(dialogo).c_str(), TextoVeredicto(v).c_str());
        }
      }
    }
    for (const int exacto : {0, 1}) {
      Cuenta& c = cuentas[exacto];
      std::printf("| %s | %s | %d | %d | %.2g | %d | %d | %d | %d | %d | %d | %d |\n", tipo.data(),
                  exacto ? "exact" : "usual", c.piezas, c.ciertas, c.peor, c.con[Falta::largo], c.con[Falta::vuelta],
                  c.con[Falta::falta], c.con[Falta::cruce], c.con[Falta::vecinas],
                  c.con[Falta::numeros] + c.con[Falta::doblez], c.delReves);
    }
  }
}
