#include "dialogs/dialogo.h"

#include <gtest/gtest.h>

#include "dialogs/eliptico.h"
#include "dialogs/rectangulares.h"
#include "state/estado.h"
#include "state/textos.h"

namespace duktores {
namespace {

std::string Escribe(std::string_view teclas, Filtro filtro) {
  Campo campo;
  for (const char c : teclas) Teclea(static_cast<char32_t>(c), campo, filtro);
  return campo.texto;
}

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
    EXPECT_EQ(Escribe(caso.teclas, caso.filtro), caso.texto) << caso.teclas;
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

TEST(Campo, AMisplacedMinusKeepsTheFocus) {
  EXPECT_TRUE(SignoEnSuSitio({"-3"}));
  EXPECT_TRUE(SignoEnSuSitio({"3"}));
  EXPECT_FALSE(SignoEnSuSitio({"3-"}));
  EXPECT_FALSE(SignoEnSuSitio({"--3"}));
}

class FrTransfCR : public testing::Test {
 protected:
  enum { H, RS, LI, AI, AX, AY, Alfa, Divi, PosIni };

  void SetUp() override {
    estado = {};
    estado.iUnidad = 1;
    estado.iFibra = 2;
    Llena({"300", "100", "400", "300", "0", "0", "0", "12", "1"});
  }
  void Llena(const std::vector<std::string>& textos) {
    for (std::size_t i = 0; i < textos.size(); ++i) dialogo.CampoDe(static_cast<int>(i)).texto = textos[i];
  }
  void ExpectError(int campo, const std::string& texto, int foco) {
    const std::string antes = std::exchange(dialogo.CampoDe(campo).texto, texto);
    EXPECT_EQ(dialogo.CmdAceptar(), Respuesta::datoErroneo) << texto;
    EXPECT_EQ(dialogo.Foco(), foco) << texto;
    EXPECT_EQ(dialogo.lblerror(), Texto(20));
    dialogo.CampoDe(campo).texto = antes;
  }
  Dialogo dialogo{kFrTransfCR};
};

TEST_F(FrTransfCR, ChecksInTheirOrder) {
  ExpectError(H, "0", H);
  ExpectError(RS, "0.00", RS);
  ExpectError(LI, "0", LI);
  ExpectError(AI, "0", AI);
  ExpectError(RS, "200.01", RS);
  ExpectError(Alfa, "90.01", Alfa);
  ExpectError(Alfa, "-90.01", Alfa);
  // A field without a number comes before all checks.
  dialogo.CampoDe(H).texto = "0";
  ExpectError(Alfa, "3-", Alfa);
  ExpectError(AX, ".", AX);
  ExpectError(AI, "0", H);
}

TEST_F(FrTransfCR, BoundariesPass) {
  dialogo.CampoDe(RS).texto = "200";
  for (const char* alfa : {"90", "-90"}) {
    dialogo.CampoDe(Alfa).texto = alfa;
    EXPECT_EQ(dialogo.CmdAceptar(), Respuesta::aceptado);
    EXPECT_EQ(dialogo.lblerror(), "");
  }
  EXPECT_EQ(estado.dAlfa, -90);
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
  estado.dEspesor = 2;
  for (const auto& caso : casos) {
    estado.iFibra = caso.fibra;
    EXPECT_EQ(dialogo.CmdAceptar(), Respuesta::aceptado);
    EXPECT_EQ(estado.dL1Base, caso.L1);
    EXPECT_EQ(estado.dL2Base, caso.L2);
    EXPECT_EQ(estado.dRadioAlto, caso.R);
  }
}

TEST(FrTransfRC, ItsCircleReachesRoundTheRectangle) {
  estado = {};
  estado.iUnidad = 1;
  estado.iFibra = 3;
  estado.dEspesor = 2;
  Dialogo dialogo(kFrTransfRC);
  const char* textos[]{"300", "150", "400", "300", "0", "0", "-5", "12", "1"};
  for (int i = 0; i < 9; ++i) dialogo.CampoDe(i).texto = textos[i];
  EXPECT_EQ(dialogo.CmdAceptar(), Respuesta::aceptado) << "twice the radius equals the smaller side";
  EXPECT_EQ(estado.sTipoPieza, "TransRC");
  EXPECT_EQ(estado.dL1BaseRC, 396);
  EXPECT_EQ(estado.dL2BaseRC, 296);
  EXPECT_EQ(estado.dRadioRC, 149);
  EXPECT_EQ(estado.dRadioAlto, 0) << "its twin's values stay";
  dialogo.CampoDe(1).texto = "149.99";
  EXPECT_EQ(dialogo.CmdAceptar(), Respuesta::datoErroneo);
  EXPECT_EQ(dialogo.Foco(), 1);
}

class FrTransBaRectBoElip : public testing::Test {
 protected:
  enum { H, EjeMayor, EjeMenor, L1, L2, AX, AY, Alfa, Divi, PosIni };
  void SetUp() override {
    estado = {};
    estado.iUnidad = 1;
    estado.iFibra = 1;
    estado.dEspesor = 1;
    estado.sTipoPieza = "row";
    const char* textos[]{"300", "200", "200", "400", "350", "0", "7", "90", "12", "2"};
    for (int i = 0; i < 10; ++i) dialogo.CampoDe(i).texto = textos[i];
  }
  Dialogo dialogo{kFrTransBaRectBoElip};
};

TEST_F(FrTransBaRectBoElip, KeepsTheRowAsTypeAndStoresItsOwnValues) {
  EXPECT_EQ(dialogo.CmdAceptar(), Respuesta::aceptado) << "equal axes and a tilt of 90 pass";
  EXPECT_EQ(estado.sTipoPieza, "row");
  EXPECT_EQ(estado.dEjeMayorElip, 200.5);
  EXPECT_EQ(estado.dL1Elip, 400);
  EXPECT_EQ(estado.dAyElip, 7);
  EXPECT_EQ(estado.dAy, 0);
  EXPECT_EQ(estado.iPosIniElip, 2);
  EXPECT_EQ(dialogo.TextoRotulo(EjeMayor), "eMaS  (mm):");
  EXPECT_EQ(dialogo.TextoRotulo(PosIni), Texto(58));
}

TEST_F(FrTransBaRectBoElip, ChecksAxesBeforeTheTilt) {
  dialogo.CampoDe(EjeMenor).texto = "200.01";
  dialogo.CampoDe(Alfa).texto = "90.01";
  EXPECT_EQ(dialogo.CmdAceptar(), Respuesta::datoErroneo);
  EXPECT_EQ(dialogo.Foco(), EjeMayor);
  dialogo.CampoDe(EjeMenor).texto = "1";
  EXPECT_EQ(dialogo.CmdAceptar(), Respuesta::datoErroneo);
  EXPECT_EQ(dialogo.Foco(), Alfa);
  EXPECT_FALSE(Teclea(U'-', dialogo.CampoDe(Alfa), dialogo.Definicion().campos[Alfa].filtro));
  dialogo.dosPiezas = false;
  dialogo.Activa();
  EXPECT_TRUE(dialogo.dosPiezas) << "one piece is chosen anew each time";
}

TEST_F(FrTransfCR, LabelsByUnitAndLanguage) {
  EXPECT_EQ(dialogo.TextoRotulo(RS), "RS (mm):");
  EXPECT_EQ(dialogo.TextoRotulo(Alfa), "Alfa (Grados):");
  EXPECT_EQ(dialogo.TextoRotulo(PosIni), "Posición Inicio (1-4):");
  estado.iUnidad = 3;
  estado.dIdioma = 10000;
  EXPECT_EQ(dialogo.TextoRotulo(RS), "RS (inches):");
  EXPECT_EQ(dialogo.TextoRotulo(PosIni), "Start Position (1-4):");
  EXPECT_EQ(dialogo.Titulo(), "Rect. Circ. Transf.");
  estado.dIdioma = kChino;
  EXPECT_EQ(dialogo.TextoRotulo(Alfa), Texto(67));
  EXPECT_FALSE(dialogo.Titulo());
}

}  // namespace
}  // namespace duktores
