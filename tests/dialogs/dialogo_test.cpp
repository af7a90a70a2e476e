#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>

#include "dialogs/dialogo.h"
#include "dialogs/eliptico.h"
#include "dialogs/especiales.h"
#include "dialogs/rectangulares.h"
#include "mesa.h"
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

TEST(Campo, ACopiedTextIsTakenWholeOrNotAtAll) {
  const struct {
    Filtro filtro;
    std::u32string_view texto;
    int falta;
  } casos[]{{FiltraNumero, U"12,34", 0},      {FiltraNumero, U"300 x 400", 320}, {FiltraNumero, U"1e3", 320},
            {FiltraNumero, U"1.234,5", 320},  {FiltraNumero, U"12.345", 322},    {FiltraNumero, U"-1", 320},
            {FiltraNumero, U"3\b4", 320},     {FiltraNumeroSigno, U"-12.5", 0},  {FiltraEntero, U"1.5", 321},
            {FiltraNumeroSigno, U"1-2", 323}, {FiltraNumeroSigno, U"-1.234", 322},  {FiltraEntero, U"36", 0}};
  estado.iUnidad = 1;
  for (const auto& caso : casos) {
    Campo campo{"7"};
    SeleccionaTodo(campo);
    EXPECT_EQ(TecleaTodo(caso.texto, campo, caso.filtro), caso.falta);
    EXPECT_EQ(campo.texto == "7" && campo.TodoSeleccionado(), caso.falta != 0);
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

using E = EstadoPrograma;
struct Fallo {
  const char *campo, *texto, *foco;
};
// What is stored at the neutral fibre, and how often the correction is in that.
struct Guardado {
  double E::*dato;
  double neutro, correccion;
};
// A good piece of each kind, on the boundaries: sums that equal their side, tilts of 90 and the like are no error. Its
// faults, from the last check to the first, each of which hides the ones before.
const struct Buena {
  const DefDialogo& def;
  int textoError;
  const char* textos;
  std::vector<Fallo> fallos;
  std::vector<Guardado> guarda;
} kBuenas[]{
    // clang-format off
    {kFrTransfCR, 20, "300 200 400 300 6 7 90 12 2",
     {{"TxtAlfa", "-90.01", "TxtAlfa"}, {"TxtAlfa", "90.01", "TxtAlfa"}, {"TxtRS", "200.01", "TxtRS"},
      {"TxtAI", "0", "TxtAI"}, {"TxtLI", "0", "TxtLI"}, {"TxtRS", "0.00", "TxtRS"}, {"TxtH", "0", "TxtH"},
      {"TxtAlfa", "3-", "TxtAlfa"}, {"TxtAX", ".", "TxtAX"}},  // fields without a number come before all checks
     {{&E::dL1Base, 398, 2}, {&E::dL2Base, 298, 2}, {&E::dRadioAlto, 200, 1}, {&E::dAx, 6, 0}, {&E::dAy, 7, 0},
      {&E::dAlfa, 90, 0}, {&E::dRadioRC, 0, 0}}},
    {kFrTransfRC, 20, "300 150 400 300 6 7 -90 12 2", {{"TxtRI", "149.99", "TxtRI"}},
     {{&E::dL1BaseRC, 398, 2}, {&E::dL2BaseRC, 298, 2}, {&E::dRadioRC, 150, 1}, {&E::dAx, 6, 0}, {&E::dAy, 7, 0},
      {&E::dAlfa, -90, 0}, {&E::dRadioAlto, 0, 0}}},
    {kFrTransBaRectBoElip, 20, "300 200 200 400 350 6 7 90 12 2",
     {{"TxtAlfa", "90.01", "TxtAlfa"}, {"TxteMeS", "200.01", "TxteMaS"}, {"TxtA", "0", "TxtA"}},
     {{&E::dL1Elip, 398, 2}, {&E::dL2Elip, 348, 2}, {&E::dEjeMayorElip, 200, 1}, {&E::dEjeMenorElip, 200, 1},
      {&E::dAx, 6, 0}, {&E::dAyElip, 7, 0}, {&E::dAy, 0, 0}, {&E::dAlfa, 90, 0}}},
    {kFrTransfEsp1, 20, "300 50 50 50 50 60 60 60 60 100 100 120 120 0 0 9 8 12",
     {{"TxtAlfa", "90.01", "TxtAlfa"}, {"TxtR24", "60.01", "TxtR23"}, {"TxtR21", "60.01", "TxtR21"},
      {"TxtR14", "50.01", "TxtR13"}, {"TxtR13", "50.01", "TxtR12"}, {"TxtR11", "50.01", "TxtR11"}},
     {{&E::dR11, 50, 1}, {&E::dR14, 50, 1}, {&E::dR21, 60, 1}, {&E::dR24, 60, 1}, {&E::dLX1, 100, 1},
      {&E::dLY1, 100, 1}, {&E::dLY2, 120, 1}}},
    {kFrTansfEsp2, 20, "300 50 200 200 0 0 9 8 12",
     {{"TxtAlfa", "90.01", "TxtAlfa"}, {"TxtLY", "200.01", "TxtLY"}},
     {{&E::dLX1, 100, 2}, {&E::dLY1, 100, 2}, {&E::dLY2, 200, 1}, {&E::dRadioEsp, 50, 1}, {&E::dRadioEsp2, 100, .5}}},
    {kFrTransfEsp3, 40, "300 50 100 200 0 0 9 8 12",
     {{"TxtLX", "99.99", "TxtLY"}, {"TxtH", "1", "TxtAlfa"}},
     {{&E::dLX1, 100, 2}, {&E::dLY1, 100, 2}, {&E::dLY2, 200, 1}, {&E::dRadioEsp, 50, 1}, {&E::dRadioEsp2, 100, .5}}},
    {kFrTransEsp4, 20, "300 50 60 60 60 60 120 120 0 0 9 8 12",
     {{"TxtR24", "60.01", "TxtR23"}, {"TxtR22", "60.01", "TxtR21"}, {"TxtH", "1", "TxtAlfa"}},
     {{&E::dR11, 50, 1}, {&E::dR14, 50, 1}, {&E::dR21, 60, 1}, {&E::dR24, 60, 1}, {&E::dLX1, 100, 2},
      {&E::dLY1, 100, 2}, {&E::dLY2, 120, 1}}},
    {kFrTransEspe5, 20, "300 50 50 50 50 100 100 300 300 0 0 9 8 12",
     {{"TxtLX1", "99.99", "TxtR11"}, {"TxtR14", "50.01", "TxtR14"}, {"TxtR12", "50.01", "TxtR12"},
      {"TxtH", "1", "TxtAlfa"}},
     {{&E::dR11, 50, 1}, {&E::dR14, 50, 1}, {&E::dR21, .005, 0}, {&E::dR24, .005, 0}, {&E::dLX1, 100, 0},
      {&E::dLY1, 100, 0}, {&E::dLY2, 300, 0}}},
    // clang-format on
};

void PrintTo(const Buena& buena, std::ostream* salida) { *salida << buena.def.clave; }

class Dialogos : public testing::TestWithParam<Buena> {
 protected:
  void SetUp() override {
    estado.dEspesor = 2;
    std::istringstream palabras(GetParam().textos);
    std::string texto;
    for (int i = 0; palabras >> texto; ++i) dialogo.CampoDe(i).texto = texto;
  }
  ~Dialogos() override { estado = {}; }
  static const DefDialogo& Nuevo() {
    estado = {};
    estado.iUnidad = 1;
    estado.iFibra = 2;
    estado.iDivisiones = 24;
    return GetParam().def;
  }
  int NumeroDe(std::string_view nombre) {
    const auto campos = dialogo.Definicion().campos;
    return static_cast<int>(std::ranges::find(campos, nombre, &DefCampo::nombre) - campos.begin());
  }
  Respuesta Con(std::string_view nombre, const std::string& texto) {
    dialogo.CampoDe(NumeroDe(nombre)).texto = texto;
    return dialogo.CmdAceptar();
  }
  void ExpectError(const Fallo& f) {
    EXPECT_EQ(Con(f.campo, f.texto), Respuesta::datoErroneo) << f.campo << " " << f.texto;
    for (int idioma = 0; idioma < 7; ++idioma) {
      estado.dIdioma = 10000 * idioma;
      const auto [pieza, reparo] = dialogo.Lee();
      EXPECT_TRUE(!pieza && reparo.find(": ") != reparo.npos && reparo.find('%') == reparo.npos) << reparo;
    }
    estado.dIdioma = 0;
    EXPECT_EQ(dialogo.Foco(), NumeroDe(f.foco)) << f.campo << " " << f.texto;
    EXPECT_EQ(dialogo.lblerror(), Texto(GetParam().textoError));
  }
  static std::string_view Clave() { return GetParam().def.clave; }
  const bool especial = Clave().starts_with("TransEsp");
  Dialogo dialogo{Nuevo()};
};

TEST_P(Dialogos, StoreWhatTheyAcceptCorrectedForTheFibre) {
  estado.sTipoPieza = "row";
  // Without a fibre the transitions keep what they had.
  for (const auto& [fibra, c] : {std::pair{1, 1.}, {2, 0.}, {3, -1.}, {4, especial ? 0. : -1.}}) {
    estado.iFibra = static_cast<std::int16_t>(fibra);
    EXPECT_EQ(dialogo.CmdAceptar(), Respuesta::aceptado);
    for (const auto& [dato, neutro, correccion] : GetParam().guarda) {
      EXPECT_EQ(estado.*dato, neutro + c * correccion) << &dato - &GetParam().guarda[0].dato;
    }
  }
  const std::string_view tipo = Clave() == "TransElip" ? "row" : Clave();
  EXPECT_EQ(estado.sTipoPieza, tipo);
  EXPECT_TRUE(estado.dAltura == 300 && estado.iDivisiones == 12 && dialogo.lblerror().empty());
  EXPECT_EQ(tipo == "row" ? estado.iPosIniElip : estado.iPosIni, especial ? estado.iPosIni : 2);
  EXPECT_TRUE(!especial || (estado.dAlfa == -9 && estado.dBeta == -8));
}

TEST_P(Dialogos, CheckInTheirOrder) {
  if (especial) {
    EXPECT_EQ(Dialogo(dialogo.Definicion()).CampoDe(NumeroDe("TxtDivisiones")).texto, "24");
    for (const char* bueno : {"4", "908", "15.6"}) EXPECT_EQ(Con("TxtDivisiones", bueno), Respuesta::aceptado);
    EXPECT_EQ(estado.iDivisiones, 16);
    // Where the tilt is held against the base too, the height keeps it clear of it.
    const bool mira = Clave() > "TransEsp2";
    if (mira) Con("TxtH", "99999999");
    for (const char* malo : {"0", "2", "912", "99999999", "13"}) ExpectError({"TxtDivisiones", malo, "TxtDivisiones"});
    if (!mira) ExpectError({"TxtBeta", "90.01", "TxtBeta"});
  }
  for (const Fallo& f : GetParam().fallos) ExpectError(f);
  if (especial) {
    const bool conPunto = Clave() == "TransEsp4";
    EXPECT_EQ(Teclea(U'.', dialogo.CampoDe(NumeroDe("TxtH")), dialogo.Definicion().campos.back().filtro), conPunto);
  }
  // An empty field comes before all that is wrong, with a message of its own.
  Mesa mesa;
  estado.plataforma = &mesa;
  EXPECT_EQ(Con("TxtAY", "  "), Respuesta::campoVacio);
  EXPECT_EQ(dialogo.Foco(), NumeroDe("TxtAY"));
  EXPECT_EQ(mesa.mensajes, std::vector{Texto(Clave() == "TransElip" ? 61 : 15)});
}

INSTANTIATE_TEST_SUITE_P(Todos, Dialogos, testing::ValuesIn(kBuenas),
                         [](const auto& p) { return std::string(p.param.def.clave); });

TEST(Dialogo, LabelsByUnitAndLanguage) {
  enum { R = 1, EjeMayor = 1, Alfa = 6, PosIni = 8, PosIniElip };
  estado = {};
  Dialogo dialogo(kFrTransfCR), elip(kFrTransBaRectBoElip);
  estado.iUnidad = 1;
  EXPECT_EQ(dialogo.TextoRotulo(R), "RS (mm):");
  EXPECT_EQ(dialogo.TextoRotulo(Alfa), "Alfa (Grados):");
  EXPECT_EQ(dialogo.TextoRotulo(PosIni), "Posición Inicio (1-4):");
  EXPECT_EQ(elip.TextoRotulo(EjeMayor), "eMaS  (mm):");
  EXPECT_EQ(elip.TextoRotulo(PosIniElip), Texto(58));
  estado.iUnidad = 3;
  estado.dIdioma = 10000;
  EXPECT_EQ(dialogo.TextoRotulo(R), "RS (inches):");
  EXPECT_EQ(dialogo.Titulo(), "Rect. Circ. Transf.");
  estado.dIdioma = kChino;
  EXPECT_EQ(dialogo.TextoRotulo(Alfa), Texto(67));
  EXPECT_FALSE(dialogo.Titulo());
}

TEST(Dialogo, ReadsWithoutStoringAndTellsFieldAndRule) {
  // clang-format off
  const struct {
    const DefDialogo& def;
    const char *textos, *reparo;
  } kCasos[]{
      {kFrTransfCR, "300 200.01 400 300 0 0 0 12 1", "RS: twice the radius is at most the larger of LI and AI, 400"},
      {kFrTransfRC, "300 149.99 400 300 0 0 0 12 1", "RI: twice the radius is at least the smaller of LS and AS, 300"},
      {kFrTransfCR, "300 . 400 300 0 0 0 12 1", "RS: is no number"},
      {kFrTransBaRectBoElip, "300 200 200.5 400 350 6 7 90 12 2", "eMaS: is at least eMeS, 200.5"},
      {kFrTransfEsp1, "300 50 50 50 50 60 60 60 61 100 100 120 130 0 0 9 8 12",
       "r24: r21 and r24 add up to at most LX2, 120"},
      {kFrTransfEsp3, "300 50 99 200 0 0 9 8 12", "LY: its half is at most LX, 99"},
      {kFrTransEsp4, "1 50 60 60 60 60 120 120 0 0 9 8 12", "Alfa: the tilt carries the mouth below the base"},
      {kFrTransEspe5, "300 50 50 51 50 100 100 300 300 0 0 9 8 12", "r13: is at most half of Ly1, 50"},
      {kFrTansfEsp2, "300 50 200 200 0 0 9 91 12", "Beta: goes from -90 to 90"},
      {kFrTansfEsp2, "300 50 200 200 0 0 9 8 13", "Divisions: is a multiple of 4, from 4 to 908"},
      {kFrTransfCR, "300 100 400", "Missing: AI, AX, AY, Alfa, Divisions, Start Position (1-4)"},
      {kFrTransfCR, "300 100 400 300 0 0 0 12 1", ""},
  };
  // clang-format on
  estado = {};
  estado.iUnidad = 1;
  estado.dIdioma = 10000;
  for (const auto& [def, textos, reparo] : kCasos) {
    Dialogo dialogo(def);
    std::istringstream palabras(textos);
    std::string texto;
    for (int i = 0; palabras >> texto; ++i) dialogo.CampoDe(i).texto = texto;
    const Tecleada leida = dialogo.Lee();
    EXPECT_EQ(leida.reparo, reparo);
    EXPECT_EQ(leida.pieza.has_value(), leida.reparo.empty());
    EXPECT_TRUE(!estado.pieza && estado.sTipoPieza.empty() && estado.dAltura == 0 && dialogo.lblerror().empty());
    EXPECT_TRUE(!leida.pieza || leida.pieza->H == 300);
  }
}

TEST(Dialogo, TheEllipseTakesNoSignAndForgetsTheOnePiece) {
  constexpr int kAlfa = 7;
  Dialogo dialogo(kFrTransBaRectBoElip);
  EXPECT_FALSE(Teclea(U'-', dialogo.CampoDe(kAlfa), dialogo.Definicion().campos[kAlfa].filtro));
  dialogo.dosPiezas = false;
  dialogo.Activa();
  EXPECT_TRUE(dialogo.dosPiezas);
}

}  // namespace
}  // namespace duktores
