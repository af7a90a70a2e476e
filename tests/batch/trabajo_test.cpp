#include "batch/trabajo.h"

#include <gtest/gtest.h>

#include <tuple>

#include "dxf/escritor.h"
#include "jobs/escritura.h"
#include "jobs/llenado.h"
#include "mesa.h"
#include "piece/numeros_texto.h"
#include "pieza_tecleada.h"
#include "shell/visor.h"
#include "state/fichero.h"
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

// What the windows save of a piece is the drawing that was placed there.
TEST(Trabaja, APieceOfTheWindowsIsTheSameDrawing) {
  const std::string carpeta = testing::TempDir();
  for (const auto& [tipo, textos] :
       {std::pair(TipoPieza::cr, "300 95.5 400 300 0 25 10 24 2"), {TipoPieza::esp2, "300 100 500 300 30 20 10 5 8"}}) {
    Configura();
    estado.sRutaPrograma = DUKTORES_RAIZ "/";
    const EstadoPrograma configurado = estado;
    std::vector<Punto3> clics;
    for (int i = 0; i < 30; ++i) clics.push_back({1000.0 / 7 * i, -11.1 * i, 0});
    Mesa mesa(clics);
    Dialogo dialogo = Tecleado(tipo, textos, true);
    ASSERT_EQ(dialogo.CmdAceptar(), Respuesta::aceptado);
    EWdraw axew;
    axew.PonVista(&mesa);
    estado.plataforma = &mesa;
    const Corrida corrida = Desplegado(axew);
    EXPECT_EQ(corrida.sitios.size(), mesa.mensajes.size());
    estado.oDXF->InsertEntities(estado.oDrawing);
    EXPECT_TRUE(estado.oDXF->Save(carpeta + "mano.dxf"));
    Trabajo trabajo = TrabajoDe(dialogo, "lote");
    trabajo.puntos = corrida.sitios;
    estado = configurado;
    Opciones opciones;
    opciones.carpeta = carpeta;
    const Resultado resultado = Trabaja(LeeLista(EscribeLista({&trabajo, 1})).at(0), opciones);
    ASSERT_FALSE(resultado.rechazo) << resultado.rechazo->texto;
    EXPECT_TRUE(LeeFichero(resultado.fichero) == LeeFichero(carpeta + "mano.dxf"));
  }
}

}  // namespace
}  // namespace duktores
