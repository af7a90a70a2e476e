#include "dialogs/especiales.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>

#include "state/estado.h"
#include "state/textos.h"

namespace duktores {
namespace {

// A good piece of each kind; sums that equal their side are no error. Its faults, from the last check to the first,
// each of which hides the ones before. What it stores at the neutral fibre, and how often the correction is in that.
struct Fallo {
  const char *campo, *texto, *foco;
};
const struct Buena {
  const char* clave;
  int textoError;
  const char* textos;
  std::vector<Fallo> fallos;
  std::array<double, 9> guarda, correcciones;  // r11, r14, r21, r24, LX1, LY1, LY2, the two single radii
} kBuenas[]{
    // clang-format off
    {"TransEsp1", 20, "300 50 50 50 50 60 60 60 60 100 100 120 120 0 0 9 8 12",
     {{"TxtAlfa", "90.01", "TxtAlfa"}, {"TxtR24", "60.01", "TxtR23"}, {"TxtR21", "60.01", "TxtR21"},
      {"TxtR14", "50.01", "TxtR13"}, {"TxtR13", "50.01", "TxtR12"}, {"TxtR11", "50.01", "TxtR11"}},
     {50, 50, 60, 60, 100, 100, 120}, {1, 1, 1, 1, 1, 1, 1}},
    {"TransEsp2", 20, "300 50 200 200 0 0 9 8 12",
     {{"TxtAlfa", "90.01", "TxtAlfa"}, {"TxtLY", "200.01", "TxtLY"}},
     {0, 0, 0, 0, 100, 100, 200, 50, 100}, {0, 0, 0, 0, 2, 2, 1, 1, 0.5}},
    {"TransEsp3", 40, "300 50 100 200 0 0 9 8 12",
     {{"TxtLX", "99.99", "TxtLY"}, {"TxtH", "1", "TxtAlfa"}},
     {0, 0, 0, 0, 100, 100, 200, 50, 100}, {0, 0, 0, 0, 2, 2, 1, 1, 0.5}},
    {"TransEsp4", 20, "300 50 60 60 60 60 120 120 0 0 9 8 12",
     {{"TxtR24", "60.01", "TxtR23"}, {"TxtR22", "60.01", "TxtR21"}, {"TxtH", "1", "TxtAlfa"}},
     {50, 50, 60, 60, 100, 100, 120}, {1, 1, 1, 1, 2, 2, 1}},
    {"TransEsp5", 20, "300 50 50 50 50 100 100 300 300 0 0 9 8 12",
     {{"TxtLX1", "99.99", "TxtR11"}, {"TxtR14", "50.01", "TxtR14"}, {"TxtR12", "50.01", "TxtR12"},
      {"TxtH", "1", "TxtAlfa"}},
     {50, 50, 0.005, 0.005, 100, 100, 300}, {1, 1}},
    // clang-format on
};

class Especiales : public testing::TestWithParam<Buena> {
 protected:
  void SetUp() override {
    estado.dEspesor = 2;
    EXPECT_EQ(dialogo.CampoDe(Campo("TxtDivisiones")).texto, "24");
    EXPECT_EQ(dialogo.CmdAceptar(), Respuesta::campoVacio);
    std::istringstream palabras(GetParam().textos);
    std::string texto;
    for (int i = 0; palabras >> texto; ++i) dialogo.CampoDe(i).texto = texto;
  }
  static const DefDialogo& Nuevo() {
    estado = {};
    estado.iUnidad = 1;
    estado.iFibra = 2;
    estado.iDivisiones = 24;
    return *DialogoDe(GetParam().clave);
  }
  int Campo(std::string_view nombre) {
    const auto campos = dialogo.Definicion().campos;
    return static_cast<int>(std::ranges::find(campos, nombre, &DefCampo::nombre) - campos.begin());
  }
  Respuesta Con(std::string_view nombre, const std::string& texto) {
    dialogo.CampoDe(Campo(nombre)).texto = texto;
    return dialogo.CmdAceptar();
  }
  void ExpectError(const Fallo& f) {
    EXPECT_EQ(Con(f.campo, f.texto), Respuesta::datoErroneo) << f.campo << " " << f.texto;
    EXPECT_EQ(dialogo.Foco(), Campo(f.foco)) << f.campo << " " << f.texto;
    EXPECT_EQ(dialogo.lblerror(), Texto(GetParam().textoError));
  }
  Dialogo dialogo{Nuevo()};
};

TEST_P(Especiales, StoreWhatTheyAcceptCorrectedForTheFibre) {
  for (const auto& [fibra, c] : {std::pair{1, 1.}, {2, 0.}, {3, -1.}, {0, 0.}}) {
    estado.iFibra = static_cast<std::int16_t>(fibra);
    EXPECT_EQ(dialogo.CmdAceptar(), Respuesta::aceptado);
    const EstadoPrograma& e = estado;
    EXPECT_EQ(e.sTipoPieza, GetParam().clave);
    EXPECT_EQ((std::array{e.dAltura, e.dAlfa, e.dBeta, 1. * e.iDivisiones}), (std::array{300., -9., -8., 12.}));
    std::array<double, 9> esperado = GetParam().guarda;
    for (std::size_t i = 0; i < 9; ++i) esperado[i] += c * GetParam().correcciones[i];
    EXPECT_EQ((std::array{e.dR11, e.dR14, e.dR21, e.dR24, e.dLX1, e.dLY1, e.dLY2, e.dRadioEsp, e.dRadioEsp2}),
              esperado);
  }
}

TEST_P(Especiales, CheckInTheirOrder) {
  for (const char* bueno : {"4", "908", "15.6"}) EXPECT_EQ(Con("TxtDivisiones", bueno), Respuesta::aceptado) << bueno;
  EXPECT_EQ(estado.iDivisiones, 16);
  // Where the tilt is held against the base too, the height keeps it clear of it.
  const bool mira = std::string_view(GetParam().clave) > "TransEsp2";
  if (mira) Con("TxtH", "99999999");
  for (const char* malo : {"0", "2", "912", "99999999", "13"}) ExpectError({"TxtDivisiones", malo, "TxtDivisiones"});
  if (!mira) ExpectError({"TxtBeta", "90.01", "TxtBeta"});
  for (const Fallo& f : GetParam().fallos) ExpectError(f);
  const bool conPunto = std::string_view(GetParam().clave) == "TransEsp4";
  EXPECT_EQ(Teclea(U'.', dialogo.CampoDe(Campo("TxtH")), dialogo.Definicion().campos.back().filtro), conPunto);
}

INSTANTIATE_TEST_SUITE_P(Cinco, Especiales, testing::ValuesIn(kBuenas), [](const auto& p) { return p.param.clave; });

}  // namespace
}  // namespace duktores
