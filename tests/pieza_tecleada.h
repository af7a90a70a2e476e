#pragma once
// Pieces as they are typed into their dialogs.

#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

#include "shell/lista.h"
#include "state/estado.h"

namespace duktores {

/// Millimetres, and a surface that leaves what is typed as it is: the others can make a radius negative.
inline void Configura() {
  estado = {};
  estado.iUnidad = 1;
  estado.iFibra = 2;
  estado.dTamanoTexto = 10;
  estado.iColorDoblez = 3;
  estado.sDimensiones = "1";
  estado.iBox = 1;
}

inline std::vector<TipoPieza> Tipos() {
  std::vector<TipoPieza> tipos;
  for (const FilaPieza& fila : FilasPieza()) tipos.push_back(fila.tipo);
  return tipos;
}

/// The dialog of a type with these texts in its fields, apart by spaces.
inline Dialogo Tecleado(TipoPieza tipo, const std::string& textos, bool dosPiezas = false) {
  Dialogo dialogo(FilaDe(tipo).dialogo);
  dialogo.dosPiezas = dosPiezas;
  std::istringstream palabras(textos);
  std::string texto;
  for (int i = 0; palabras >> texto; ++i) dialogo.CampoDe(i).texto = texto;
  return dialogo;
}

/// The piece as the dialog accepts it.
inline Pieza Aceptada(TipoPieza tipo, const std::string& textos, bool dosPiezas = false) {
  if (Tecleado(tipo, textos, dosPiezas).CmdAceptar() != Respuesta::aceptado) throw std::invalid_argument(textos);
  return *estado.pieza;
}

}  // namespace duktores
