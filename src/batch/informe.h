#pragma once
// The report of a list: a row a shape, as a table for a spreadsheet or as JSON, which ends in the sums.

#include <string>
#include <string_view>

#include "batch/chapas.h"
#include "batch/trabajo.h"
#include "state/guardado.h"

namespace duktores {

/// Whether the ending tells which of the two a file should be.
bool EsInforme(std::string_view ruta);

class Informe {
 public:
  Informe(std::string ruta, HabitoCsv habito);

  /// The shapes of the next piece; of one that was refused why.
  void Anade(const Trabajo& trabajo, const Resultado& resultado);
  /// The sheets, and what lies on none.
  void Anade(const InformeChapas& chapas);
  /// Writes what has been added so far.
  Guardado Guarda() const;

 private:
  void AnadeFila(const std::string& pieza, const FilaInforme& fila);
  std::string Json() const;

  std::string ruta_;
  HabitoCsv habito_;
  bool json_, milimetros_;
  std::string filas_, chapas_;  // the latter as they stand behind
  int formas_ = 0, dobleces_ = 0, rechazadas_ = 0;
  double area_ = 0, peso_ = 0, largo_ = 0;
};

}  // namespace duktores
