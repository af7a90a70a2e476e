#include <gtest/gtest.h>

#include <algorithm>

#include "paint/sombreado.h"
#include "pieza_tecleada.h"
#include "shell/corrida.h"

namespace duktores {
namespace {

// Of pieces that narrow upwards.
TEST(Sombreado, EachPieceTurnsItsOuterSideUpAndItsInnerSideDown) {
  constexpr const char* kPiezas[]{"300 100 400 300 0 0 0 24 1",
                                  "300 220 300 250 0 0 0 24 2",
                                  "300 200 100 450 300 0 0 0 36 3",
                                  "300 40 50 60 45 80 90 100 110 300 250 500 400 0 0 0 0 16",
                                  "300 100 500 300 0 0 0 0 16",
                                  "320 90 480 300 0 0 0 0 908",
                                  "350 110 40 40 40 40 450 400 0 0 0 0 24",
                                  "320 50 60 70 80 300 250 500 300 0 0 0 0 16"};
  Configura();
  for (const TipoPieza tipo : Tipos()) {
    const Solido solido = SolidoDe(Aceptada(tipo, kPiezas[static_cast<int>(tipo)]));
    for (const double z : {1.0, -1.0}) {
      const SolidoVisto visto = Mira(solido, {0, 0, z});
      const auto dentro = std::ranges::count_if(visto.facetas, &FacetaVista::interior);
      EXPECT_EQ(dentro, z > 0 ? 0 : static_cast<std::ptrdiff_t>(visto.facetas.size())) << static_cast<int>(tipo);
      EXPECT_LT(visto.facetas.size(), 1200U);
    }
    const SolidoVisto visto = Mira(solido, {0, -1, 0.3});
    EXPECT_TRUE(std::ranges::is_partitioned(visto.facetas, &FacetaVista::interior)) << "the far side first";
    int siluetas = 0;
    for (const AristaVista& arista : Mira(solido, {0, -1, 0}).aristas) {
      siluetas += arista.silueta ? 1 : 0;
      const bool arriba = arista.plano.y1() > 299 && arista.plano.y2() > 299;
      EXPECT_TRUE(arista.clase > ClaseArista::base || arriba == (arista.clase == ClaseArista::boca));
    }
    EXPECT_EQ(siluetas, 2) << static_cast<int>(tipo);
    // Whatever faces the light is brighter than what turns away from it.
    const auto clara = std::ranges::max_element(visto.facetas, {}, &FacetaVista::luz);
    EXPECT_LT(clara->plano.boundingRect().center().x(), 0) << static_cast<int>(tipo);
  }
}

}  // namespace
}  // namespace duktores
