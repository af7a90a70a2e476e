// Saving from the viewer while the world fails: under the chosen name stands the old drawing or the new one, whole.

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <filesystem>
#include <random>

#include "dxf/dibujo.h"
#include "dxf/escritor.h"
#include "shell/visor.h"
#include "state/estado.h"
#include "state/fichero.h"
#include "state/textos.h"

namespace duktores {
namespace {

namespace fs = std::filesystem;

constexpr int kLineas[]{500, 2000};

class Guarda : public testing::Test, protected Plataforma {
 protected:
  Guarda() {
    fs::create_directories(Ruta("Duct/Template"));
    fs::copy_file(fs::path(DUKTORES_RAIZ) / "Template/Template.dxf", Ruta("Duct/Template/Template.dxf"));
    estado = {};
    estado.sRutaPrograma = Ruta("Duct/");
    estado.plataforma = this;
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
  void CajaMensaje(std::string_view texto, EstiloMensaje, std::string_view) override { aviso_ = texto; }

  std::string Ruta(const char* nombre) const { return carpeta_ / nombre; }
  static bool Dibuja(int cual, const std::string& destino) {
    estado.oDrawing = std::make_shared<cDrawing>();
    estado.iHandleDxf = 500;
    cLine linea;
    for (linea.x2 = 1; linea.x2 <= kLineas[cual]; ++linea.x2) estado.oDrawing->InsertLine(&linea);
    return GuardaDibujo(destino);
  }
  template <class T>
  static pid_t Aparte(T hace) {
    const pid_t hijo = fork();
    if (hijo == 0) _exit(hace() ? 0 : 1);
    return hijo;
  }

  fs::path carpeta_ = fs::temp_directory_path() / ("guarda-" + std::to_string(getpid()));
  std::string ficheros_[2], aviso_;
};

TEST_F(Guarda, KilledAtAnyMoment) {
  const std::string destino = Ruta("pieza.dxf");
  Dibuja(0, destino);
  std::mt19937 azar(std::random_device{}());
  for (int i = 0; i < 100; ++i) {
    const pid_t hijo = Aparte([&] {
      for (int n = 0;; ++n) Dibuja(n % 2, destino);
      return true;
    });
    usleep(static_cast<useconds_t>(azar() % 10000));
    kill(hijo, SIGKILL);
    waitpid(hijo, nullptr, 0);
    const auto queda = LeeFichero(destino);
    ASSERT_TRUE(queda == ficheros_[0] || queda == ficheros_[1]) << "kill " << i;
  }
  for (const auto& fichero : fs::directory_iterator(carpeta_)) {
    const std::string nombre = fichero.path().filename();
    EXPECT_TRUE((nombre.starts_with('.') && nombre.ends_with(".tmp")) || nombre.ends_with("a.dxf") || nombre == "Duct")
        << nombre;
  }
}

TEST_F(Guarda, TwoProgramsOfOneInstallationSaveTheirOwnDrawings) {
  const auto guarda = [&](int cual) {
    bool bien = true;
    for (int n = 0; n < 100 && bien; ++n) {
      const std::string destino = Ruta(cual == 0 ? "a.dxf" : "b.dxf");
      bien = Dibuja(cual, destino) && LeeFichero(destino) == ficheros_[cual];
    }
    return bien;
  };
  const pid_t otro = Aparte([&] { return guarda(1); });
  EXPECT_TRUE(guarda(0));
  int fin = 0;
  waitpid(otro, &fin, 0);
  EXPECT_EQ(fin, 0);
}

TEST_F(Guarda, WhatCannotBeSavedIsToldAndTheOldStays) {
  const std::string auxiliar = Ruta("Duct/AuxDxf.dxf"), muestra = Ruta("muestra.dxf");
  const auto expectFalla = [&](const std::string& elegido, const std::string& donde) {
    EXPECT_FALSE(Dibuja(0, elegido));
    EXPECT_EQ(std::exchange(aviso_, ""), Texto(80) + " " + donde);
    EXPECT_EQ(LeeFichero(muestra), ficheros_[1]);
  };
  fs::create_directories(Ruta("carpeta.dxf"));
  fs::create_symlink(Ruta("corro.dxf"), Ruta("corro.dxf"));
  for (const char* elegido : {"carpeta.dxf", "corro.dxf", "no hay/pieza.dxf", "muestra.dxf/pieza.dxf"})
    expectFalla(Ruta(elegido), Ruta(elegido));
  // A disk with less room than the drawing takes.
  std::signal(SIGXFSZ, SIG_IGN);
  rlimit limite{};
  getrlimit(RLIMIT_FSIZE, &limite);
  for (const rlim_t sitio : {rlim_t{0}, rlim_t{5000}, rlim_t{ficheros_[0].size() - 1}}) {
    const rlimit poco{sitio, limite.rlim_max};
    setrlimit(RLIMIT_FSIZE, &poco);
    expectFalla(muestra, auxiliar);
  }
  setrlimit(RLIMIT_FSIZE, &limite);
  fs::remove(auxiliar);
  fs::create_directory(auxiliar);
  expectFalla(muestra, auxiliar);
}

}  // namespace
}  // namespace duktores
