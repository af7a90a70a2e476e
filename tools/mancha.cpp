#include "mancha.h"

#include <charconv>
#include <cmath>

#include "state/caracteres.h"

namespace duktores {

namespace {

constexpr int kCodigoTexto = 1, kUltimoCodigo = 1071;

bool EsCodigoReal(int codigo) {
  return (codigo >= 10 && codigo < 60) || (codigo >= 140 && codigo < 150) || (codigo >= 210 && codigo < 240) ||
         (codigo >= 1010 && codigo < 1060);
}

// The whole text as one number.
template <class Numero>
bool Lee(std::string_view texto, Numero& numero) {
  texto = Recorta(texto);
  const char* const fin = texto.data() + texto.size();
  const auto [hasta, error] = std::from_chars(texto.data(), fin, numero);
  return error == std::errc() && hasta == fin;
}

bool Sano(std::string_view marca, std::string_view valor) {
  int codigo = 0;
  double v = 0;
  if (!Lee(marca, codigo) || codigo < 0 || codigo > kUltimoCodigo) return false;
  if (codigo == kCodigoTexto) return !DiceNoFinito(std::string(valor));
  return !EsCodigoReal(codigo) || (Lee(valor, v) && std::isfinite(v));
}

}  // namespace

bool DiceNoFinito(std::string texto) {
  for (char& c : texto) c = (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') ? c : ' ';
  texto = " " + texto + " ";
  return texto.find(" inf ") != std::string::npos || texto.find(" nan ") != std::string::npos;
}

std::string Mancha(std::string_view dxf) {
  while (!dxf.empty()) {
    const std::size_t medio = dxf.find("\r\n"), fin = medio == dxf.npos ? medio : dxf.find("\r\n", medio + 2);
    if (fin == dxf.npos) return "an end without its pair";
    const std::string_view marca = dxf.substr(0, medio), valor = dxf.substr(medio + 2, fin - medio - 2);
    if (!Sano(marca, valor)) return "pair " + std::string(marca) + ", " + std::string(valor);
    dxf.remove_prefix(fin + 2);
  }
  return "";
}

}  // namespace duktores
