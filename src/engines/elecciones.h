#pragma once
// How each engine chooses between the two intersections of its circles. The ties are part of the rules.

#include "engines/transicion.h"

namespace duktores {

extern const ReglasPlano kReglasCR, kReglasRC, kReglasElip;

}  // namespace duktores
