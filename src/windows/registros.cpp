#include "windows/registros.h"

namespace duktores {

#if defined(__x86_64__)

namespace {

__attribute__((target("avx"))) void VaciaMitades() { __builtin_ia32_vzeroupper(); }

}  // namespace

void LimpiaRegistros() {
  if (__builtin_cpu_supports("avx")) VaciaMitades();
}

#else

void LimpiaRegistros() {}

#endif

}  // namespace duktores
