#include "dialogs/especiales.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <optional>

#include "dialogs/dialogo.h"
#include "state/estado.h"
#include "state/textos.h"

namespace duktores {
namespace {

using Textos = std::vector<std::string>;

// A good piece of each kind. Sums that equal their side are no error.
const struct Buena {
  const char* clave;
  int textoError;
  Textos textos;
} kBuenas[]{
    {"TransEsp1",
     20,
     {"300", "50", "50", "50", "50", "60", "60", "60", "60", "100", "100", "120", "120", "0", "0", "9", "8", "12"}},
    {"TransEsp2", 20, {"300", "50", "200", "200", "0", "0", "9", "8", "12"}},
    {"TransEsp3", 40, {"300", "50", "100", "200", "0", "0", "9", "8", "12"}},
    {"TransEsp4", 20, {"300", "50", "60", "60", "60", "60", "120", "120", "0", "0", "9", "8", "12"}},
    {"TransEsp5", 20, {"300", "50", "50", "50", "50", "100", "100", "300", "300", "0", "0", "9", "8", "12"}},
};

class Especiales : public testing::TestWithParam<Buena> {
 protected:
  void SetUp() override {
    estado = {};
    estado.iUnidad = 1;
    estado.iFibra = 2;
    estado.iDivisiones = 24;
    dialogo.emplace(*DialogoDe(GetParam().clave));
  }
  int Campo(std::string_view nombre) {
    const auto campos = dialogo->Definicion().campos;
    const auto en = std::ranges::find(campos, nombre, &DefCampo::nombre);
    EXPECT_NE(en, campos.end()) << nombre;
    return static_cast<int>(en - campos.begin());
  }
  void Llena() {
    for (std::size_t i = 0; i < GetParam().textos.size(); ++i) {
      dialogo->CampoDe(static_cast<int>(i)).texto = GetParam().textos[i];
    }
  }
  Respuesta Con(std::string_view nombre, const std::string& texto) {
    dialogo->CampoDe(Campo(nombre)).texto = texto;
    return dialogo->CmdAceptar();
  }
  std::optional<Dialogo> dialogo;
};

TEST_P(Especiales, StoreWhatTheyAccept) {
  EXPECT_EQ(dialogo->CampoDe(Campo("TxtDivisiones")).texto, "24");
  EXPECT_EQ(dialogo->CmdAceptar(), Respuesta::campoVacio);
  Llena();
  EXPECT_EQ(dialogo->CmdAceptar(), Respuesta::aceptado);
  EXPECT_EQ(estado.sTipoPieza, GetParam().clave);
  EXPECT_EQ(estado.dAlfa, -9);
  EXPECT_EQ(estado.dBeta, -8);
  EXPECT_EQ(estado.iDivisiones, 12);
  for (const char* malo : {"0", "2", "13", "912", "99999999"}) {
    EXPECT_EQ(Con("TxtDivisiones", malo), Respuesta::datoErroneo) << malo;
    EXPECT_EQ(dialogo->Foco(), Campo("TxtDivisiones")) << malo;
    EXPECT_EQ(dialogo->lblerror(), Texto(GetParam().textoError));
  }
  for (const char* bueno : {"4", "908", "15.6"}) EXPECT_EQ(Con("TxtDivisiones", bueno), Respuesta::aceptado) << bueno;
  EXPECT_EQ(estado.iDivisiones, 16);
  const bool conPunto = std::string_view(GetParam().clave) == "TransEsp4";
  EXPECT_EQ(Teclea(U'.', dialogo->CampoDe(Campo("TxtH")), dialogo->Definicion().campos.back().filtro), conPunto);
}

// Spoilt from the last check to the first, each fault hides the ones before.
TEST_P(Especiales, CheckInTheirOrder) {
  struct Fallo {
    const char *campo, *texto, *foco;
  };
  const std::vector<std::vector<Fallo>> fallos{
      {{"TxtR24", "60.01", "TxtR23"},
       {"TxtR21", "60.01", "TxtR21"},
       {"TxtR14", "50.01", "TxtR13"},
       {"TxtR13", "50.01", "TxtR12"},
       {"TxtR11", "50.01", "TxtR11"}},
      {{"TxtLY", "200.01", "TxtLY"}},
      {{"TxtLX", "99.99", "TxtLY"}, {"TxtH", "1", "TxtAlfa"}},
      {{"TxtR24", "60.01", "TxtR23"}, {"TxtR22", "60.01", "TxtR21"}, {"TxtH", "1", "TxtAlfa"}},
      {{"TxtLX1", "99.99", "TxtR11"},
       {"TxtR14", "50.01", "TxtR14"},
       {"TxtR12", "50.01", "TxtR12"},
       {"TxtH", "1", "TxtAlfa"}},
  };
  Llena();
  const Fallo comunes[]{{"TxtDivisiones", "13", "TxtDivisiones"}, {"TxtBeta", "90.01", "TxtBeta"}};
  // Where the tilt is held against the base too, the height keeps it clear of it.
  const bool mira = std::string_view(GetParam().clave) > "TransEsp2";
  if (mira) Con("TxtH", "99999999");
  auto prueba = [&](const Fallo& f) {
    EXPECT_EQ(Con(f.campo, f.texto), Respuesta::datoErroneo) << f.campo;
    EXPECT_EQ(dialogo->Foco(), Campo(f.foco)) << f.campo;
  };
  for (const Fallo& f : comunes) {
    if (!mira || f.campo != std::string_view("TxtBeta")) prueba(f);
  }
  if (!mira) prueba({"TxtAlfa", "90.01", "TxtAlfa"});
  for (const Fallo& f : fallos[static_cast<std::size_t>(GetParam().clave[8] - '1')]) prueba(f);
}

TEST_P(Especiales, CorrectForTheFibre) {
  Llena();
  estado.dEspesor = 2;
  for (const auto& [fibra, c] : {std::pair{1, 1.}, {2, 0.}, {3, -1.}, {0, 0.}}) {
    estado.iFibra = static_cast<std::int16_t>(fibra);
    EXPECT_EQ(dialogo->CmdAceptar(), Respuesta::aceptado);
    EXPECT_EQ(estado.dAltura, 300);
    const EstadoPrograma& e = estado;
    switch (GetParam().clave[8]) {
      case '1':
        EXPECT_EQ((std::array{e.dR11, e.dR14, e.dR21, e.dR24, e.dLX1, e.dLY2}),
                  (std::array{50 + c, 50 + c, 60 + c, 60 + c, 100 + c, 120 + c}));
        break;
      case '4':
        EXPECT_EQ((std::array{e.dR11, e.dR14, e.dR21, e.dR24, e.dLX1, e.dLY2}),
                  (std::array{50 + c, 50 + c, 60 + c, 60 + c, 100 + 2 * c, 120 + c}));
        break;
      case '5':
        EXPECT_EQ((std::array{e.dR11, e.dR14, e.dR21, e.dR24, e.dLX1, e.dLY2}),
                  (std::array{50 + c, 50 + c, 0.005, 0.005, 100., 300.}));
        break;
      default:
        EXPECT_EQ((std::array{e.dRadioEsp, e.dRadioEsp2, e.dLX1, e.dLY1, e.dLY2}),
                  (std::array{50 + c, 100 + c / 2, 100 + 2 * c, 100 + 2 * c, 200 + c}));
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Cinco, Especiales, testing::ValuesIn(kBuenas), [](const auto& p) { return p.param.clave; });

}  // namespace
}  // namespace duktores
