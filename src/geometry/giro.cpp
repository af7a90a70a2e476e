#include "geometry/giro.h"

#include <cmath>

namespace duktores {

Giro::Giro(double grados) : coseno_(std::cos(Radianes(grados))), seno_(std::sin(Radianes(grados))) {
  if (std::fmod(grados, 90) != 0) return;
  coseno_ = std::round(coseno_);
  seno_ = std::round(seno_);
}

}  // namespace duktores
