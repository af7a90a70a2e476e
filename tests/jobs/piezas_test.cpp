#include "jobs/piezas.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>

#include "jobs/escritura.h"
#include "jobs/llenado.h"
#include "jobs/memoria.h"
#include "piece/numeros_texto.h"
#include "pieza_tecleada.h"

namespace duktores {
namespace {

class Piezas : public testing::Test {
 protected:
  Piezas() {
    Configura();
    std::filesystem::create_directory(carpeta_);
  }
  ~Piezas() override { std::filesystem::remove_all(carpeta_); }
  LecturaPiezas Lee(const std::string& contenido) const {
    std::ofstream(carpeta_ / "lista.json") << contenido;
    return LeePiezas(carpeta_ / "lista.json");
  }
  const std::filesystem::path carpeta_ = testing::TempDir() + "piezas" + std::to_string(getpid());
};

// Whatever a field may hold comes back.
TEST_F(Piezas, FieldsComeBackFromText) {
  for (const FilaPieza& fila : FilasPieza()) {
    for (const char* texto : {"", "7", "0.5", ".5", "25.50", "007", "-", "-0", "3.", "12345678901234567890123"}) {
      Dialogo dialogo(fila.dialogo), otro(fila.dialogo);
      for (std::size_t i = 0; i < fila.dialogo.campos.size(); ++i) {
        const auto& def = fila.dialogo.campos[i];
        if (def.filtro == FiltraNumeroSigno || *texto != '-') dialogo.CampoDe(static_cast<int>(i)).texto = texto;
        if (!def.filtro) dialogo.Elige(static_cast<int>(i), def.valores.back());
        if (def.uso == Uso::divisiones) dialogo.CampoDe(static_cast<int>(i)).texto = "16";
      }
      dialogo.dosPiezas = *texto != '7';
      EXPECT_FALSE(LlenaDialogo(otro, LeePiezasDe(EscribeTrabajo(TrabajoDe(dialogo, "a\"\n"))).trabajos.at(0)));
      EXPECT_EQ(TrabajoDe(otro, "").valores, TrabajoDe(dialogo, "").valores);
      EXPECT_EQ(otro.dosPiezas || !fila.dialogo.opcionPiezas, dialogo.dosPiezas || !fila.dialogo.opcionPiezas);
    }
  }
}

TEST_F(Piezas, WhatIsNoListIsTold) {
  const auto motivo = [&](const std::string& contenido) { return Lee(contenido).motivo; };
  for (const char* malo : {"", "[]", "{", "7", "[{},]", "{} {}", "{},{}", "\xFF\xFE"}) {
    EXPECT_EQ(motivo(malo), texto::kSinPiezas) << malo;
  }
  EXPECT_EQ(motivo(std::string(1 << 22, '[')), texto::kSinPiezas);
  EXPECT_EQ(motivo(std::string((1 << 23) + 1, ' ')), texto::kDemasiadoGrande);
  std::string muchos = "[{}";
  for (int i = 0; i < 5000; ++i) muchos += ",{}";
  EXPECT_EQ(motivo(muchos + "]"), texto::kDemasiadoGrande);
  EXPECT_EQ(motivo("\xEF\xBB\xBF{\"name\": \"a\"}"), 0);
  EXPECT_EQ(LeePiezas(carpeta_ / "nada").motivo, texto::kSinFichero);
  EXPECT_EQ(LeePiezas(carpeta_).motivo, texto::kNoEsFichero);
}

TEST_F(Piezas, AJobOfTheSameNameIsReplaced) {
  auto trabajos = LeeLista(
      R"([{"name": "Ä", "piece": "x", "quantity": 7, "thickness": 1e-5, "H": 1, "picks": [[1.5, -2e300]]}, {"name": "b", "piece": "x"}])");
  for (Trabajo& otro :
       LeeLista(R"([{"name": "ä", "piece": "y"}, {"name": "c", "piece": "z", "picks": [[0.1, 1e-7]]}])"))
    PonTrabajo(trabajos, otro);
  const auto otra = Lee(EscribeLista(trabajos)).trabajos;
  ASSERT_EQ(otra.size(), 3U);
  EXPECT_EQ(otra[0].nombre + otra[0].pieza + otra[1].nombre + otra[2].pieza, "äybz");
  EXPECT_EQ(*otra[2].puntos, *trabajos[2].puntos);
  EXPECT_TRUE(otra[0].cantidad == 7 && otra[0].espesor == 1e-5 && otra[1].cantidad == 1 && !otra[1].espesor);
}

TEST_F(Piezas, LastValuesAreThoseOfPieceAndUnit) {
  estado.sRutaPropia = carpeta_ / "propio/duktores.ini";
  const Dialogo cr = Tecleado(TipoPieza::cr, "300 100 400 300 30 20 10 12 1");
  const auto ultimos = [](TipoPieza tipo) {
    Dialogo dialogo(FilaDe(tipo).dialogo);
    return LlenaUltimos(dialogo) ? TrabajoDe(dialogo, "").valores : Trabajo{}.valores;
  };
  EXPECT_TRUE(ultimos(TipoPieza::cr).empty());
  PonUltimos(cr);
  EXPECT_EQ(ultimos(TipoPieza::cr), TrabajoDe(cr, "").valores);
  EXPECT_TRUE(ultimos(TipoPieza::rc).empty());
  estado.iUnidad = 2;
  EXPECT_TRUE(ultimos(TipoPieza::cr).empty());

  for (int i = 0; i < 12; ++i) PonReciente("/a;\"]" + std::to_string(i));
  PonReciente("/a;\"]5");
  const auto recientes = Recientes();
  ASSERT_EQ(recientes.size(), 10U);
  EXPECT_EQ(recientes[0] + recientes[1] + recientes[9], "/a;\"]5/a;\"]11/a;\"]2");
  std::ofstream(estado.sRutaPropia) << "[FILES]\nPieces=[[[\n[LAST_INCHES]\nTransCR={\"name\": \"x\", \"H\": 1}\n";
  EXPECT_TRUE(Recientes().empty() && ultimos(TipoPieza::cr).empty());
}

}  // namespace
}  // namespace duktores
