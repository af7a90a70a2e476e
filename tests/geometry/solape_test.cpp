#include "geometry/solape.h"

#include <gtest/gtest.h>

namespace duktores {
namespace {

using Contorno = std::vector<Punto2>;

Contorno Caja(double x, double y, double ancho, double alto) {
  return {{x, y}, {x + ancho, y}, {x + ancho, y + alto}, {x, y + alto}, {x, y}};
}

TEST(Solape, InsidesMeet) {
  const Contorno caja = Caja(0, 0, 10, 10), ele{{0, 0}, {30, 0}, {30, 10}, {10, 10}, {10, 40}, {0, 40}};
  const struct {
    Contorno a, b;
    bool solapan;
  } casos[] = {{caja, caja, true},                // corner on corner
               {caja, Caja(5, 0, 10, 10), true},  // edges on edges
               {caja, Caja(2, 3, 4, 4), true},    // one in the other
               {caja, Caja(-5, 4, 20, 2), true},  // crosswise
               {caja, {{5, 5}, {50, 0}, {50, 9}}, true},
               {caja, Caja(10, 0, 10, 10), false},  // side by side
               {caja, Caja(10, 10, 5, 5), false},   // corner at corner
               {caja, Caja(10, 2, 5, 5), false},
               {ele, Caja(10, 10, 20, 30), false},  // in the nook
               {ele, Caja(15, 15, 20, 20), false},  // boxes meet, shapes don't
               {ele, Caja(9, 15, 20, 20), true},
               {caja, {{0, 0}, {5, 5}}, false},  // nothing to lie on
               {{}, caja, false}};
  for (const auto& [a, b, solapan] : casos) {
    EXPECT_EQ(SeSolapan(a, b), solapan) << &a - &casos[0].a;
    EXPECT_EQ(SeSolapan(b, a), solapan);
  }
}

}  // namespace
}  // namespace duktores
