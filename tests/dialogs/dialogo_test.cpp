#include "dialogs/dialogo.h"

#include <gtest/gtest.h>

#include <sstream>

#include "dialogs/eliptico.h"
#include "dialogs/rectangulares.h"
#include "state/estado.h"
#include "state/textos.h"

namespace duktores {
namespace {

TEST(Campo, KeepsOnlyWellFormedNumbers) {
  const struct {
    std::int16_t unidad;
    Filtro filtro;
    std::string_view teclas, texto;
  } casos[]{
      {1, FiltraNumero, "12.345", "12.34"}, {2, FiltraNumero, "12.3456", "12.345"}, {1, FiltraNumero, "1,5", "1.5"},
      {1, FiltraNumero, ".5", "5"},         {1, FiltraNumero, "1..2.3", "1.23"},    {1, FiltraNumero, "-1a e2", "12"},
      {1, FiltraNumero, "12\b\b7", "7"},    {1, FiltraNumeroSigno, "-4-5", "-45"},  {1, FiltraNumeroSigno, "3-", "3-"},
      {1, FiltraEntero, "1.2-3,", "123"},
  };
  for (const auto& caso : casos) {
    estado.iUnidad = caso.unidad;
    Campo campo;
    for (const char c : caso.teclas) Teclea(static_cast<char32_t>(c), campo, caso.filtro);
    EXPECT_EQ(campo.texto, caso.texto) << caso.teclas;
  }
  for (const auto& [texto, bien] : {std::pair{"-3", true}, {"3", true}, {"3-", false}, {"--3", false}}) {
    EXPECT_EQ(SignoEnSuSitio({texto}), bien) << texto;
  }
}

TEST(Campo, ASelectedTextIsReplaced) {
  estado.iUnidad = 1;
  Campo campo{"12.34"};
  campo.inicioSeleccion = 1;  // the count of decimals doesn't look at the caret
  EXPECT_FALSE(Teclea(U'9', campo, FiltraNumero));
  SeleccionaTodo(campo);
  EXPECT_TRUE(Teclea(U'9', campo, FiltraNumero));
  EXPECT_EQ(campo.texto, "9");
  SeleccionaTodo(campo);
  EXPECT_TRUE(Teclea(U'.', campo, FiltraNumero));
}

// A dialog that is good in all its fields.
class Lleno : public testing::Test {
 protected:
  Lleno(const DefDialogo& def, const char* textos) : dialogo((estado = {}, def)) {
    estado.iUnidad = 1;
    estado.iFibra = 2;
    estado.dEspesor = 2;
    std::istringstream palabras(textos);
    std::string texto;
    for (int i = 0; palabras >> texto; ++i) dialogo.CampoDe(i).texto = texto;
  }
  void ExpectError(int campo, const std::string& texto, int foco) {
    const std::string antes = std::exchange(dialogo.CampoDe(campo).texto, texto);
    EXPECT_EQ(dialogo.CmdAceptar(), Respuesta::datoErroneo) << texto;
    EXPECT_EQ(dialogo.Foco(), foco) << texto;
    EXPECT_EQ(dialogo.lblerror(), Texto(20));
    dialogo.CampoDe(campo).texto = antes;
  }
  Dialogo dialogo;
};

struct FrTransfCR : Lleno {
  FrTransfCR() : Lleno(kFrTransfCR, "300 100 400 300 0 0 0 12 1") {}
  enum { H, RS, LI, AI, AX, AY, Alfa, Divi, PosIni };
};

TEST_F(FrTransfCR, ChecksInTheirOrderUpToTheirBoundaries) {
  for (const int campo : {H, RS, LI, AI}) ExpectError(campo, campo == RS ? "0.00" : "0", campo);
  ExpectError(RS, "200.01", RS);
  ExpectError(Alfa, "90.01", Alfa);
  ExpectError(Alfa, "-90.01", Alfa);
  dialogo.CampoDe(RS).texto = "200";
  for (const char* alfa : {"90", "-90"}) {
    dialogo.CampoDe(Alfa).texto = alfa;
    EXPECT_EQ(dialogo.CmdAceptar(), Respuesta::aceptado);
    EXPECT_EQ(dialogo.lblerror(), "");
  }
  EXPECT_EQ(estado.dAlfa, -90);
  // A field without a number comes before all checks.
  dialogo.CampoDe(H).texto = "0";
  ExpectError(Alfa, "3-", Alfa);
  ExpectError(AX, ".", AX);
  ExpectError(AI, "0", H);
}

TEST_F(FrTransfCR, AnEmptyFieldIsAMessage) {
  struct Testigo : Plataforma {
    void CajaMensaje(std::string_view texto, EstiloMensaje, std::string_view) override { mensaje = texto; }
    std::string mensaje;
  } testigo;
  estado.plataforma = &testigo;
  dialogo.CampoDe(AY).texto = "  ";
  dialogo.CampoDe(PosIni).texto = "";
  EXPECT_EQ(dialogo.CmdAceptar(), Respuesta::campoVacio);
  EXPECT_EQ(dialogo.Foco(), AY);
  EXPECT_EQ(testigo.mensaje, Texto(15));
  EXPECT_EQ(estado.dAltura, 0);
  estado.plataforma = nullptr;
}

TEST_F(FrTransfCR, FibreCorrection) {
  const struct {
    std::int16_t fibra;
    double L1, L2, R;
  } casos[]{{1, 400, 300, 101}, {2, 398, 298, 100}, {3, 396, 296, 99}, {4, 396, 296, 99}};
  for (const auto& caso : casos) {
    estado.iFibra = caso.fibra;
    EXPECT_EQ(dialogo.CmdAceptar(), Respuesta::aceptado);
    EXPECT_EQ((std::array{estado.dL1Base, estado.dL2Base, estado.dRadioAlto}), (std::array{caso.L1, caso.L2, caso.R}));
  }
}

TEST_F(FrTransfCR, LabelsByUnitAndLanguage) {
  EXPECT_EQ(dialogo.TextoRotulo(RS), "RS (mm):");
  EXPECT_EQ(dialogo.TextoRotulo(Alfa), "Alfa (Grados):");
  EXPECT_EQ(dialogo.TextoRotulo(PosIni), "Posición Inicio (1-4):");
  estado.iUnidad = 3;
  estado.dIdioma = 10000;
  EXPECT_EQ(dialogo.TextoRotulo(RS), "RS (inches):");
  EXPECT_EQ(dialogo.Titulo(), "Rect. Circ. Transf.");
  estado.dIdioma = kChino;
  EXPECT_EQ(dialogo.TextoRotulo(Alfa), Texto(67));
  EXPECT_FALSE(dialogo.Titulo());
}

struct FrTransfRC : Lleno {
  FrTransfRC() : Lleno(kFrTransfRC, "300 150 400 300 0 0 -5 12 1") {}
};

TEST_F(FrTransfRC, ItsCircleReachesRoundTheRectangle) {
  estado.iFibra = 3;
  EXPECT_EQ(dialogo.CmdAceptar(), Respuesta::aceptado) << "twice the radius equals the smaller side";
  EXPECT_EQ(estado.sTipoPieza, "TransRC");
  EXPECT_EQ((std::array{estado.dL1BaseRC, estado.dL2BaseRC, estado.dRadioRC}), (std::array{396., 296., 149.}));
  EXPECT_EQ(estado.dRadioAlto, 0) << "its twin's values stay";
  ExpectError(1, "149.99", 1);
}

struct FrTransBaRectBoElip : Lleno {
  FrTransBaRectBoElip() : Lleno(kFrTransBaRectBoElip, "300 200 200 400 350 0 7 90 12 2") {}
  enum { H, EjeMayor, EjeMenor, L1, L2, AX, AY, Alfa, Divi, PosIni };
};

TEST_F(FrTransBaRectBoElip, KeepsTheRowAsTypeAndStoresItsOwnValues) {
  estado.sTipoPieza = "row";
  estado.iFibra = 1;
  EXPECT_EQ(dialogo.CmdAceptar(), Respuesta::aceptado) << "equal axes and a tilt of 90 pass";
  EXPECT_EQ(estado.sTipoPieza, "row");
  EXPECT_EQ((std::array{estado.dEjeMayorElip, estado.dL1Elip, estado.dAyElip}), (std::array{201., 400., 7.}));
  EXPECT_EQ(estado.dAy, 0);
  EXPECT_EQ(estado.iPosIniElip, 2);
  EXPECT_EQ(dialogo.TextoRotulo(EjeMayor), "eMaS  (mm):");
  EXPECT_EQ(dialogo.TextoRotulo(PosIni), Texto(58));
}

TEST_F(FrTransBaRectBoElip, ChecksAxesBeforeTheTilt) {
  dialogo.CampoDe(Alfa).texto = "90.01";
  ExpectError(EjeMenor, "200.01", EjeMayor);
  ExpectError(EjeMenor, "1", Alfa);
  EXPECT_FALSE(Teclea(U'-', dialogo.CampoDe(Alfa), dialogo.Definicion().campos[Alfa].filtro));
  dialogo.dosPiezas = false;
  dialogo.Activa();
  EXPECT_TRUE(dialogo.dosPiezas) << "one piece is chosen anew each time";
}

}  // namespace
}  // namespace duktores
