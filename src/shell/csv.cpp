#include "shell/csv.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

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
  std::array<char, 400> cifras;
  char* fin = std::to_chars(cifras.data(), cifras.data() + cifras.size(), v, std::chars_format::fixed, decimales).ptr;
  if (decimales > 0) {
    while (fin[-1] == '0') --fin;
    if (fin[-1] == '.') --fin;
  }
  std::replace(cifras.data(), fin, '.', habito_.decimal);
  const std::string_view texto(cifras.data(), static_cast<std::size_t>(fin - cifras.data()));
  linea_ += texto == "-0" ? "0" : texto;
  return *this;
}

}  // namespace duktores
