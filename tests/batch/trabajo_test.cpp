#include "batch/trabajo.h"

#include <gtest/gtest.h>

#include <tuple>

#include "piece/numeros_texto.h"
#include "pieza_tecleada.h"
#include "state/textos.h"

namespace duktores {
namespace {

// The message of an error is its own, or that a run has ended early where it has none: never the prompt before it. In
// a language without the texts of a title block its drawing ends without a text.
TEST(Trabaja, APromptIsNoErrorsMessage) {
  for (const auto& [idioma, alto, texto] :
       {std::tuple(0.0, "99999999" + std::string(300, '9'), texto::kMedidaImposible),
        {-40.0, "300", texto::kIncompleto}}) {
    Configura();
    estado.dIdioma = idioma;
    auto trabajo = LeeLista(R"([{"name": "a", "piece": "TransCR", "RS": 90, "LI": 400, "AI": 300, "AX": 0, "AY": 0,
                                 "Alfa": 0, "Divisions": 12, "Start": 1, "Pieces": 2, "picks": [[0, 0], [0, 0]]}])")[0];
    trabajo.valores.emplace_back("H", alto);  // too long for a list
    const Resultado resultado = Trabaja(trabajo, {});
    ASSERT_TRUE(resultado.rechazo);
    EXPECT_EQ(resultado.rechazo->clave + ": " + resultado.rechazo->texto, "piece: " + Texto(texto));
  }
}

}  // namespace
}  // namespace duktores
