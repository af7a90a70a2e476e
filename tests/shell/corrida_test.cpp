// Which engine serves a piece, and what it is given: every run is held against the engine called with plain numbers.

#include "shell/corrida.h"

#include <gtest/gtest.h>

#include <functional>
#include <optional>
#include <tuple>
#include <utility>

#include "dxf/dibujo.h"
#include "engines/trans_cr.h"
#include "engines/trans_elip.h"
#include "engines/trans_rc.h"
#include "shell/visor.h"
#include "special/pieza.h"
#include "special/solido_especial.h"
#include "state/estado.h"
#include "state/textos.h"

namespace duktores {
namespace {

struct Mesa : VistaEWdraw, Plataforma {
  std::optional<Punto3> EligePunto(EWdraw&) override { return std::exchange(punto, std::nullopt); }
  void CajaMensaje(std::string_view texto, EstiloMensaje, std::string_view) override { aviso = texto; }
  std::optional<Punto3> punto;
  std::string aviso;
};

class Corrida : public testing::Test {
 protected:
  // No value stands for another.
  Corrida() {
    EstadoPrograma& e = estado = {};
    std::tie(e.sTipoPieza, e.iColorDoblez, e.dTamanoTexto, e.iDivisiones) = std::tuple("TransCR", 3, 10, 12);
    std::tie(e.dAltura, e.dAx, e.dAy, e.dAyElip, e.dAlfa) = std::tuple(250, 20, 35, 50, 15);
    std::tie(e.iPosIni, e.iPosIniElip) = std::tuple(2, 3);
    std::tie(e.dL1Base, e.dL2Base, e.dRadioAlto) = std::tuple(400, 300, 90);
    std::tie(e.dL1BaseRC, e.dL2BaseRC, e.dRadioRC) = std::tuple(420, 320, 130);
    std::tie(e.dL1Elip, e.dL2Elip, e.dEjeMayorElip, e.dEjeMenorElip) = std::tuple(440, 340, 210, 150);
    std::tie(e.dLX1, e.dLY1, e.dLX2, e.dLY2, e.dRadioEsp) = std::tuple(200, 150, 310, 280, 60);
    e.plataforma = &mesa;
    axew.PonVista(&mesa);
  }
  ~Corrida() override { estado = {}; }

  // A piece without `despliega` is placed by picks, which are refused.
  void Compara(const char* tipo, const std::function<void(EWdraw&)>& dibuja,
               const std::function<void(EWdraw&)>& despliega) {
    SCOPED_TRACE(tipo);
    estado.sTipoPieza = tipo;
    EWdraw suelto;
    axew.EwClear();
    Dibuja3D(axew);
    dibuja(suelto);
    EXPECT_EQ(Extremos(axew), Extremos(suelto));
    EXPECT_EQ(Desplegado(axew), despliega ? FinCorrida::completo : FinCorrida::eleccionRechazada);
    if (!despliega) return;
    EXPECT_EQ(std::exchange(estado.inumDoblado, 0), 12);
    const auto corrida = std::exchange(estado.oDrawing, std::make_shared<cDrawing>());
    estado.iHandleDxf = 500;
    despliega(suelto);
    EXPECT_EQ(corrida->GetEntities(), estado.oDrawing->GetEntities());
  }
  static std::vector<Punto3> Extremos(const EWdraw& axew) {
    std::vector<Punto3> puntos;
    for (const Entidad& e : axew.Entidades()) puntos.insert(puntos.end(), e.puntos.begin(), e.puntos.end());
    return puntos;
  }
  EWdraw axew;
  Mesa mesa;
};

TEST_F(Corrida, EachEngineGetsItsArguments) {
  clTransCR cr;
  clTransRC rc;
  clTransBaRectBoElip elip;
  const auto dibujaCR = [&](EWdraw& a) { cr.GeneraDibujo(400, 300, 90, 12, -20, -35, 250, -15, a); };
  Compara("TransCR", dibujaCR, [&](EWdraw& a) {
    cr.GeneraPuntos(a, 400, 300, 90, 12, 20, -35, 250, Radianes(15), 2);
    cr.GeneraDesarrollo(a, 12);
  });
  const auto dibujaRC = [&](EWdraw& a) { rc.GeneraDibujo(420, 320, 130, 12, -20, -35, 250, -15, a); };
  Compara("TransRC", dibujaRC, [&](EWdraw& a) {
    rc.GeneraPuntos(a, 420, 320, 130, 12, -20, -35, 250, -Radianes(15), 2);
    rc.GeneraDesarrollo(a, 12);
  });
  const auto dibujaElip = [&](EWdraw& a) { elip.GeneraDibujo(440, 340, 210, 150, 12, -20, -50, 250, -15, a); };
  Compara("", dibujaElip, [&](EWdraw& a) {
    elip.GeneraPuntos(a, 440, 340, 210, 150, 12, 20, -50, 250, -15, 3);
    elip.GeneraDesarrollo(a, 12);
  });
  EXPECT_EQ(estado.MultinumDoblado, 20);
  for (const char* tipo : {"TransEsp1", "TransEsp2", "TransEsp3", "TransEsp4", "TransEsp5"}) {
    Compara(
        tipo, [](EWdraw& a) { GeneraDibujo3D(PiezaDeEstado(), 12, a); }, nullptr);
    EXPECT_EQ(std::exchange(estado.MultinumDoblado, 0), 36);
  }
}

TEST_F(Corrida, ARefusedPickKeepsTheFirstPiece) {
  estado.bDosPiezas = true;
  mesa.punto = Punto3{100, 20, 0};
  axew.EwAddPoint({});
  axew.EwViewDirection(1, 1, 1);
  EXPECT_EQ(Desplegado(axew), FinCorrida::eleccionRechazada);
  EXPECT_EQ(estado.oDrawing->Count(), 1 + 9 + 21);
  EXPECT_EQ(axew.EwEntityCount(), 1 + 9 + 21);
  EXPECT_EQ(estado.iHandleDxf, 500 + 1 + 9 + 21);
  EXPECT_EQ(axew.DireccionVista(), (Punto3{0, 0, 1}));
}

TEST_F(Corrida, AnErrorEndsTheRunAndIsTold) {
  estado.iHandleDxf = 32760;
  EXPECT_EQ(Despliega(axew), FinCorrida::error);
  EXPECT_EQ(estado.oDrawing->Count(), 8);
  EXPECT_EQ(std::exchange(mesa.aviso, ""), Texto(82));
  estado.iPosIni = 9;
  EXPECT_EQ(Despliega(axew), FinCorrida::error);
  EXPECT_EQ(estado.oDrawing->Count(), 0);
  EXPECT_EQ(mesa.aviso, "");
}

}  // namespace
}  // namespace duktores
