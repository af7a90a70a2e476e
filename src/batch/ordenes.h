#pragma once
// The command line of duktores-batch.

#include <cstddef>
#include <optional>
#include <string>

#include "batch/ordenes_chapas.h"
#include "batch/trabajo.h"

namespace duktores {

inline constexpr int kTodoEscrito = 0, kAlgoRechazado = 1, kNadaHecho = 2;

/// Every how manieth job of the list is worked, and which is the first.
struct Parte {
  std::size_t primero = 1, cada = 1;
  bool Tiene(std::size_t numero) const { return numero % cada == primero % cada; }
};

struct Ordenes {
  std::string lista, configuracion, informe;
  Opciones opciones;
  OrdenesChapas chapas;
  bool exacto = false;
  unsigned hilos = 1;
  Parte parte;
  std::size_t maximoLista = std::size_t{1} << 30;  // bytes through a pipe
};

/// Reads them into `ordenes`; else the status with which the program has to end, and all is told.
std::optional<int> LeeOrdenes(int argc, char** argv, Ordenes& ordenes);

}  // namespace duktores
