#pragma once
// What the tests of the drawing model and its file share.

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "dxf/dibujo.h"
#include "state/estado.h"

namespace duktores {

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

/// The same in one row, a bar behind each.
inline std::string Fila(const std::string& texto) {
  std::string fila;
  for (const std::string& linea : Lineas(texto)) fila += linea + "|";
  return fila;
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
  /// The lines of what has been drawn into the file.
  static std::vector<std::string> LineasDibujo() { return Lineas(estado.oDrawing->GetEntities()); }
};

}  // namespace duktores
