#pragma once
// What painting does to the processor.

namespace duktores {

/// Qt's painting leaves the upper halves of the vector registers in use. On many processors every sine and square root
/// takes ten times as long from then on, until they are cleared: to be called before long computations.
void LimpiaRegistros();

}  // namespace duktores
