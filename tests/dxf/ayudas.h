#pragma once
// What the tests of the drawing model and its file share.

#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>
#include <string>
#include <vector>

#include "dxf/dibujo.h"
#include "state/estado.h"

namespace duktores {

inline std::string LeeTodo(const std::filesystem::path& ruta) {
  std::ifstream fichero(ruta, std::ios::binary);
  return {std::istreambuf_iterator<char>(fichero), {}};
}

inline void EscribeTodo(const std::filesystem::path& ruta, const std::string& texto) {
  std::ofstream(ruta, std::ios::binary) << texto;
}

/// The lines of a text in which every line ends in CR LF.
inline std::vector<std::string> Lineas(const std::string& texto) {
  std::vector<std::string> lineas;
  std::size_t inicio = 0;
  for (std::size_t fin; (fin = texto.find("\r\n", inicio)) != std::string::npos; inicio = fin + 2) {
    lineas.push_back(texto.substr(inicio, fin - inicio));
  }
  EXPECT_EQ(inicio, texto.size()) << "a last line without its end";
  return lineas;
}

/// The same in one row, a bar between them.
inline std::string Fila(const std::string& texto) {
  std::string fila;
  for (const std::string& linea : Lineas(texto)) fila += (fila.empty() ? "" : "|") + linea;
  return fila;
}

/// The six values of a drawing's extent, minima first.
inline std::vector<double> Extension(const cDrawing& dibujo) {
  std::vector<double> v(6);
  dibujo.GetBorder(v[0], v[1], v[2], v[3], v[4], v[5]);
  return v;
}

/// A fresh state at the start of a run.
class PruebaCorrida : public testing::Test {
 protected:
  void SetUp() override {
    estado = EstadoPrograma{};
    estado.iUnidad = 1;
    estado.iHandleDxf = 500;
    estado.oDrawing = std::make_shared<cDrawing>();
  }
  /// The lines of what has been drawn into the file, from the `desde`-th on.
  static std::vector<std::string> LineasDibujo() { return Lineas(estado.oDrawing->GetEntities()); }
};

/// With a program folder of its own that holds a copy of the template.
class PruebaFichero : public PruebaCorrida {
 protected:
  void SetUp() override {
    PruebaCorrida::SetUp();
    const auto* prueba = testing::UnitTest::GetInstance()->current_test_info();
    carpeta_ = std::filesystem::temp_directory_path() / ("duktores_" + std::to_string(getpid()) + "_" + prueba->name());
    std::filesystem::create_directories(carpeta_ / "Template");
    std::filesystem::copy_file(DUKTORES_RAIZ "/Template/Template.dxf", Plantilla());
    estado.sRutaPrograma = carpeta_.string() + "/";
  }
  void TearDown() override { std::filesystem::remove_all(carpeta_); }

  std::filesystem::path Plantilla() const { return carpeta_ / "Template/Template.dxf"; }

  std::filesystem::path carpeta_;
};

}  // namespace duktores
