// Start-up with any bytes as the configuration file, and small pieces under that configuration.

#include <cassert>
#include <cmath>
#include <cstdint>

#include "exige.h"
#include "state/arranque.h"
#include "state/caracteres.h"
#include "state/estado.h"
#include "state/fichero.h"
#include "state/guardado.h"

using namespace duktores;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* datos, std::size_t largo) {
  static const std::vector<Trabajo> kTrabajos = LeeLista(R"([
    {"name": "a", "piece": "TransCR", "H": 300, "RS": 100, "LI": 400, "AI": 300, "AX": 9, "AY": 0, "Alfa": 5,
     "Divisions": 12, "Start": 1, "Pieces": 2},
    {"name": "b", "piece": "TransEsp3", "H": 300, "R": 100, "LX": 400, "LY": 300, "AX": 0, "AY": 9, "Alfa": 0,
     "Beta": 5, "Divisions": 4}])");
  const std::string ini = CARPETA "Config.ini";
  assert(EscribeFichero(ini, {reinterpret_cast<const char*>(datos), largo}));
  Arranca(DUKTORES_RAIZ "duktores", ini);
  assert(std::isfinite(estado.dEspesor) && std::isfinite(estado.dTamanoTexto));
  for (const std::string& texto : {estado.sRutaDuct, estado.sDimensiones, estado.sDensidad}) {
    assert(EsUtf8(texto) && LongitudUtf16(texto) <= 127);
  }
  ExigeTrabajos(kTrabajos, CARPETA);
  return 0;
}
