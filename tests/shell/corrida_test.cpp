// Runs of the engines that end early, and saving while the world fails: under the chosen name stands the old drawing or
// the new one, whole.

#include <gtest/gtest.h>

#include <sys/wait.h>
#include <unistd.h>
#include <filesystem>
#include <tuple>
#include <utility>

#include "dxf/dibujo.h"
#include "dxf/escritor.h"
#include "mesa.h"
#include "shell/corrida.h"
#include "shell/visor.h"
#include "state/estado.h"
#include "state/fichero.h"
#include "state/textos.h"

namespace duktores {
namespace {

class Corrida : public testing::Test {
 protected:
  Corrida() {
    EstadoPrograma& e = estado = {};
    std::tie(e.sTipoPieza, e.dTamanoTexto, e.iDivisiones, e.iPosIni, e.iPosIniElip) =
        std::tuple("TransCR", 10, 12, 2, 3);
    std::tie(e.dAltura, e.dL1Base, e.dL2Base, e.dRadioAlto) = std::tuple(250, 400, 300, 90);
    std::tie(e.dL1Elip, e.dL2Elip, e.dEjeMayorElip, e.dEjeMenorElip) = std::tuple(440, 340, 210, 150);
    std::tie(e.dLX1, e.dLY1, e.dLX2, e.dLY2, e.dRadioEsp) = std::tuple(200, 150, 310, 280, 60);
    e.plataforma = &mesa;
    axew.PonVista(&mesa);
  }
  ~Corrida() override { estado = {}; }
  EWdraw axew;
  Mesa mesa;
};

// What the engines are given shows where their patterns are held against their solids.
TEST_F(Corrida, LeavesItsDivisionsToTheTitleBlock) {
  EXPECT_EQ(Desplegado(axew), FinCorrida::completo);
  EXPECT_EQ(std::exchange(estado.inumDoblado, 0), 12);
  estado.sTipoPieza = "any other";
  EXPECT_EQ(Desplegado(axew), FinCorrida::completo);
  EXPECT_TRUE(estado.inumDoblado == 12 && estado.MultinumDoblado == 20);
  estado.sTipoPieza = "TransEsp1";
  Dibuja3D(axew);
  EXPECT_EQ(axew.Entidades()[0].puntos.size(), 36 * 12 / 4 + 1);
  EXPECT_EQ(Desplegado(axew), FinCorrida::eleccionRechazada);
  EXPECT_EQ(estado.MultinumDoblado, 36);
}

TEST_F(Corrida, ARefusedPickKeepsTheFirstPiece) {
  estado.bDosPiezas = true;
  mesa.puntos = {{100, 20, 0}};
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
  EXPECT_EQ(mesa.mensajes, std::vector{Texto(82)});
  estado.iPosIni = 9;
  EXPECT_EQ(Despliega(axew), FinCorrida::error);
  EXPECT_EQ(estado.oDrawing->Count(), 0);
  EXPECT_EQ(mesa.mensajes.size(), 1U);
}

namespace fs = std::filesystem;

constexpr int kLineas[]{500, 2000};

class Guarda : public testing::Test {
 protected:
  Guarda() {
    fs::create_directories(Ruta("Duct/Template"));
    fs::copy_file(fs::path(DUKTORES_RAIZ) / "Template/Template.dxf", Ruta("Duct/Template/Template.dxf"));
    estado = {};
    estado.sRutaPrograma = Ruta("Duct/");
    estado.plataforma = &mesa_;
    estado.oDXF = std::make_shared<cDXF>();
    for (const int cual : {0, 1}) {
      EXPECT_TRUE(Dibuja(cual, Ruta("muestra.dxf")));
      ficheros_[cual] = LeeFichero(Ruta("muestra.dxf")).value_or("");
    }
  }
  ~Guarda() override {
    fs::remove_all(carpeta_);
    estado = {};
  }
  std::string Ruta(const char* nombre) const { return carpeta_ / nombre; }
  static bool Dibuja(int cual, const std::string& destino) {
    estado.oDrawing = std::make_shared<cDrawing>();
    estado.iHandleDxf = 500;
    cLine linea;
    for (linea.x2 = 1; linea.x2 <= kLineas[cual]; ++linea.x2) estado.oDrawing->InsertLine(&linea);
    return GuardaDibujo(destino);
  }

  fs::path carpeta_ = fs::temp_directory_path() / ("guarda-" + std::to_string(getpid()));
  std::string ficheros_[2];
  Mesa mesa_;
};

TEST_F(Guarda, TwoProgramsOfOneInstallationSaveTheirOwnDrawings) {
  const auto guarda = [&](int cual) {
    bool bien = true;
    for (int n = 0; n < 100 && bien; ++n) {
      const std::string destino = Ruta(cual == 0 ? "a.dxf" : "b.dxf");
      bien = Dibuja(cual, destino) && LeeFichero(destino) == ficheros_[cual];
    }
    return bien;
  };
  const pid_t otro = fork();
  if (otro == 0) _exit(guarda(1) ? 0 : 1);
  EXPECT_TRUE(guarda(0));
  int fin = 0;
  waitpid(otro, &fin, 0);
  EXPECT_EQ(fin, 0);
}

TEST_F(Guarda, WhatCannotBeSavedIsToldAndTheOldStays) {
  const std::string auxiliar = Ruta("Duct/AuxDxf.dxf"), muestra = Ruta("muestra.dxf");
  const auto expectFalla = [&](const std::string& elegido, const std::string& donde) {
    EXPECT_FALSE(Dibuja(0, elegido));
    EXPECT_EQ(mesa_.mensajes.back(), Texto(80) + " " + donde);
    EXPECT_EQ(LeeFichero(muestra), ficheros_[1]);
  };
  fs::create_directories(Ruta("carpeta.dxf"));
  fs::create_symlink(Ruta("corro.dxf"), Ruta("corro.dxf"));
  for (const char* elegido : {"carpeta.dxf", "corro.dxf", "no hay/pieza.dxf", "muestra.dxf/pieza.dxf"})
    expectFalla(Ruta(elegido), Ruta(elegido));
  fs::remove(auxiliar);
  fs::create_directory(auxiliar);
  expectFalla(muestra, auxiliar);
  const std::string plantilla = Ruta("Duct/Template/Template.dxf");
  fs::remove(plantilla);
  EXPECT_FALSE(Dibuja(0, muestra));
  EXPECT_EQ(mesa_.mensajes.back(), Texto(81) + " " + plantilla);
}

}  // namespace
}  // namespace duktores
