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
#include "piece/numeros_texto.h"
#include "pieza_tecleada.h"
#include "shell/juicio.h"
#include "shell/nombre_pieza.h"
#include "shell/texto_veredicto.h"
#include "shell/visor.h"
#include "state/fichero.h"
#include "state/textos.h"

namespace duktores {
namespace {

class Corridas : public testing::Test {
 protected:
  Corridas() { Configura(); }
  ~Corridas() override { estado = {}; }
  void Acepta(TipoPieza tipo, const std::string& textos, bool dosPiezas = false) {
    Aceptada(tipo, textos, dosPiezas);
    estado.plataforma = &mesa;
    axew.PonVista(&mesa);
  }
  EWdraw axew;
  Mesa mesa;
};
constexpr const char *kCR = "250 90 400 300 0 0 0 12 2",
                     *kEsp1 = "300 50 50 50 50 50 50 50 50 200 200 300 300 0 0 0 0 4";

// The engines' working values, for whoever looks at them behind a run.
TEST_F(Corridas, LeavesItsWorkingValues) {
  const std::tuple<TipoPieza, const char*, int, int> casos[] = {
      {TipoPieza::cr, kCR, 12, 0},
      {TipoPieza::elip, "250 210 150 440 340 0 0 0 24 3", 24, 20},
      {TipoPieza::esp1, kEsp1, 144, 36},
      {TipoPieza::esp2, "300 50 300 200 0 0 0 0 4", 144, 36},
      {TipoPieza::esp5, "300 0 20 30 100 200 200 200 200 0 0 0 0 8", 288, 36}};
  for (const auto& [tipo, textos, doblado, multiplo] : casos) {
    Acepta(tipo, textos);
    Desplegado(axew);
    EXPECT_TRUE(estado.inumDoblado == doblado && estado.MultinumDoblado == multiplo) << textos;
  }
  // Of the last one the radii, before and after the usual rules have moved them; of those above what they leave.
  const EstadoPrograma& e = estado;
  EXPECT_EQ(std::tuple(e.dR11Ini, e.dR14Ini, e.dR11, e.dR14, e.dR21), std::tuple(0, 100, -.2, 100, .005));
  EXPECT_EQ(std::tuple(e.dR21Ini, e.dRadioEspIni), std::tuple(50, 50));
  EXPECT_NEAR(e.dRadioEsp, 49.995, 1e-12);
  EXPECT_EQ(e.dRadioEsp2, 100);
}

// Else a dialog's pieces would be another type's.
TEST(Lista, ARowAndItsDialogSpeakOfOneType) {
  for (const FilaPieza& fila : FilasPieza()) EXPECT_EQ(fila.tipo, fila.dialogo.tipo) << fila.dialogo.clave;
}

// Radii that the usual rules move apart must not be moved again.
TEST_F(Corridas, TheSecondOneDrawsWhatTheFirstDrew) {
  Acepta(TipoPieza::esp1, kEsp1);
  mesa.puntos.resize(32);
  const Solido solido = SolidoDe(*estado.pieza);
  const auto desarrolla = [&] {
    const auto [fin, hoja, dados] = Desplegado(axew);
    EXPECT_EQ(fin, FinCorrida::completo);
    return estado.oDrawing->GetEntities() + Textos(axew.Entidades()) +
           TextoVeredicto(Juzga(*estado.pieza, solido, hoja));
  };
  EXPECT_EQ(desarrolla(), desarrolla());
}

TEST_F(Corridas, ARefusedPickKeepsTheFirstPiece) {
  Acepta(TipoPieza::cr, kCR, true);
  estado.iBox = 0;
  estado.sDimensiones = "0";
  mesa.puntos = {{100, 20, 0}};
  axew.EwAddPoint({});
  axew.EwViewDirection(1, 1, 1);
  EXPECT_EQ(Desplegado(axew).fin, FinCorrida::eleccionRechazada);
  EXPECT_EQ(estado.oDrawing->Count(), 1 + 9 + 21);
  EXPECT_EQ(axew.EwEntityCount(), 1 + 9 + 21);
  EXPECT_EQ(estado.iHandleDxf, 500 + 1 + 9 + 21);
  EXPECT_EQ(axew.DireccionVista(), (Punto3{0, 0, 1}));
}

TEST_F(Corridas, AnErrorEndsTheRunAndIsTold) {
  EXPECT_EQ(Desplegado(axew).fin, FinCorrida::error) << "no piece";
  Acepta(TipoPieza::cr, kCR);
  estado.iHandleDxf = 32760;
  EXPECT_EQ(Despliega(axew).fin, FinCorrida::error);
  EXPECT_EQ(estado.oDrawing->Count(), 8);
  EXPECT_EQ(mesa.mensajes, std::vector{Texto(texto::kDemasiadas)});
}

namespace fs = std::filesystem;

constexpr int kLineas[]{500, 2000};

TEST(Nombres, OnlyDxfIsAnEnding) {
  const char* const casos[][2]{{"/a.b/pieza", "/a.b/pieza.dxf"},
                               {"pieza.v2", "pieza.v2.dxf"},
                               {"a.DXF", "a.DXF"},
                               {"a.dxf", "a.dxf"},
                               {"/x/.dxf", "/x/.dxf.dxf"},
                               {"a.", "a.dxf"}};
  for (const auto& [elegido, esperado] : casos) EXPECT_EQ(NombreDxf(elegido), esperado);
}

TEST(Nombres, TypeAndMainSizesNameADrawing) {
  const std::tuple<TipoPieza, const char*, const char*> casos[]{
      {TipoPieza::cr, "300 95.5 400 300 0 0 0 12 1", "TransCR_400x300_R95.5"},
      {TipoPieza::rc, "300 250 95.5 400 0 0 0 12 1", "TransRC_R250_95.5x400"},
      {TipoPieza::elip, "300 200 95.5 400 300 0 0 0 12 1", "TransElip_400x300_200x95.5"},
      {TipoPieza::esp1, "300 5 5 5 5 6 6 6 6 200 150.5 300 210 0 0 0 0 12", "TransEsp1_300x210_200x150.5"},
      {TipoPieza::esp2, "300 50 300 200 0 0 0 0 12", "TransEsp2_300x200_R50"},
  };
  Configura();
  estado.bComaDecimal = true;
  for (const auto& [tipo, textos, nombre] : casos) EXPECT_EQ(NombrePropuesto(Aceptada(tipo, textos)), nombre);
  estado = {};
}

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
  const auto expectFalla = [&](const std::string& elegido, int motivo) {
    EXPECT_FALSE(Dibuja(0, elegido));
    const std::string dicho = Texto(80) + " " + elegido + " (" + Texto(motivo);
    EXPECT_TRUE(mesa_.mensajes.back().starts_with(dicho)) << mesa_.mensajes.back();
    EXPECT_EQ(LeeFichero(muestra), ficheros_[1]);
  };
  fs::create_directories(Ruta("carpeta.dxf"));
  fs::create_symlink(Ruta("corro.dxf"), Ruta("corro.dxf"));
  expectFalla(Ruta("carpeta.dxf"), texto::kNoEsFichero);
  expectFalla(Ruta("corro.dxf"), texto::kFalloDisco);
  for (const char* elegido : {"no hay/pieza.dxf", "muestra.dxf/pieza.dxf"})
    expectFalla(Ruta(elegido), texto::kSinCarpeta);
  expectFalla(Ruta(std::string(300, 'a').c_str()) + ".dxf", texto::kNombreLargo);
  // The scratch file never decides, nor is it written through a link.
  for (const bool enlace : {false, true}) {
    fs::remove(auxiliar);
    enlace ? fs::create_symlink(muestra, auxiliar) : void(fs::create_directory(auxiliar));
    EXPECT_TRUE(Dibuja(0, Ruta("otra.dxf")));
    EXPECT_EQ(mesa_.mensajes.back(), "OK");
    EXPECT_TRUE(LeeFichero(Ruta("otra.dxf")) == ficheros_[0] && LeeFichero(muestra) == ficheros_[1]);
  }
  const std::string plantilla = Ruta("Duct/Template/Template.dxf");
  fs::remove(plantilla);
  expectFalla(muestra, texto::kPlantilla);
}

}  // namespace
}  // namespace duktores
