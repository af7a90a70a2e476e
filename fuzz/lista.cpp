// Any bytes as the job list, under both ways of unfolding.

#include <cstdint>

#include "exige.h"
#include "state/estado.h"

using namespace duktores;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* datos, std::size_t largo) {
  try {
    const auto trabajos = LeeLista({reinterpret_cast<const char*>(datos), largo});
    for (const bool exacto : {false, true}) {
      ArrancaUnaVez();
      estado.iExacto = exacto;
      ExigeTrabajos(trabajos, CARPETA);
    }
  } catch (const ErrorLista&) {
  }
  return 0;
}
