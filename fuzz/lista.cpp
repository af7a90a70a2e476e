// Any bytes as the job list, under both ways of unfolding, and as a file of pieces, which comes back as it was saved.

#include <cassert>
#include <cstdint>

#include "exige.h"
#include "jobs/escritura.h"
#include "jobs/piezas.h"
#include "state/estado.h"

using namespace duktores;

static void ExigeVuelta(std::string_view json) {
  for (const Trabajo& trabajo : LeePiezasDe(json).trabajos) {
    if (trabajo.rechazo) continue;
    const Trabajo vuelto = LeePiezasDe(EscribeLista({&trabajo, 1})).trabajos.at(0);
    assert(!vuelto.rechazo && vuelto.nombre == trabajo.nombre && vuelto.valores == trabajo.valores);
    assert(vuelto.puntos == trabajo.puntos && vuelto.cantidad == trabajo.cantidad && vuelto.espesor == trabajo.espesor);
  }
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* datos, std::size_t largo) {
  const std::string_view json(reinterpret_cast<const char*>(datos), largo);
  ExigeVuelta(json);
  try {
    const auto trabajos = LeeLista(json);
    for (const bool exacto : {false, true}) {
      ArrancaUnaVez();
      estado.iExacto = exacto;
      ExigeTrabajos(trabajos, CARPETA);
    }
  } catch (const ErrorLista&) {
  }
  return 0;
}
