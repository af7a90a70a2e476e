#include "state/estado.h"

namespace duktores {

thread_local EstadoPrograma estado;

}  // namespace duktores
