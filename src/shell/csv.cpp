#include "shell/csv.h"

#include <algorithm>
#include <cmath>

#include "state/numeros.h"

namespace duktores {

void FilaCsv::Separa() {
  if (!vacia_) linea_ += habito_.separador;
  vacia_ = false;
}

FilaCsv& FilaCsv::Texto(std::string_view texto) {
  Separa();
  const bool formula = !texto.empty() && std::string_view("=+-@\t\r").find(texto.front()) != std::string_view::npos;
  const std::string campo = (formula ? "'" : "") + std::string(texto);
  if (campo.find_first_of("\",;\r\n") == std::string::npos) {
    linea_ += campo;
    return *this;
  }
  linea_ += '"';
  for (const char c : campo) linea_.append(c == '"' ? 2 : 1, c);
  linea_ += '"';
  return *this;
}

FilaCsv& FilaCsv::Numero(double v, int decimales) {
  Separa();
  if (!std::isfinite(v)) return *this;
  std::string texto = TextoFijo(v, decimales);
  if (decimales > 0) {
    while (texto.back() == '0') texto.pop_back();
    if (texto.back() == '.') texto.pop_back();
  }
  std::ranges::replace(texto, '.', habito_.decimal);
  linea_ += texto;
  return *this;
}

}  // namespace duktores
