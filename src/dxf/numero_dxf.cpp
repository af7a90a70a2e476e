#include "dxf/numero_dxf.h"

#include <algorithm>
#include <array>
#include <cassert>
#include <charconv>
#include <cmath>
#include <string_view>

namespace duktores {
namespace {

// A pair at its widest: "  1071", CR LF, "-1.23456789012345E+308", CR LF.
using Tampon = std::array<char, 48>;

char* Copia(std::string_view texto, char* p) { return std::copy(texto.begin(), texto.end(), p); }

char* EscribeMenorQueUno(char* p, char* tope, double v) {
  char* const fin = std::to_chars(p, tope, v, std::chars_format::fixed, 16).ptr;
  char* ultimo = fin;
  while (ultimo[-1] == '0') --ultimo;
  return ultimo[-1] == '.' ? Copia("0.0000000000000000", p) : ultimo;
}

char* EscribeNumero(char* p, char* tope, double v) {
  assert(std::isfinite(v));
  if (v == 0) return Copia("0.0", p);
  if (std::abs(v) < 1) return EscribeMenorQueUno(p, tope, v);
  char* const fin = std::to_chars(p, tope, v, std::chars_format::general, 15).ptr;
  std::replace(p, fin, 'e', 'E');
  return fin;
}

}  // namespace

void AnadeDxfNumero(std::string& destino, double v) {
  Tampon tampon;
  destino.append(tampon.data(), EscribeNumero(tampon.data(), tampon.data() + tampon.size(), v));
}

void AnadeDxfPar(std::string& destino, int codigo, double v) {
  Tampon tampon;
  char* const tope = tampon.data() + tampon.size();
  char* p = Copia("  ", tampon.data());
  p = Copia("\r\n", std::to_chars(p, tope, codigo).ptr);
  p = Copia("\r\n", EscribeNumero(p, tope, v));
  destino.append(tampon.data(), p);
}

std::string DxfNumeroTexto(double v) {
  std::string texto;
  AnadeDxfNumero(texto, v);
  return texto;
}

std::string DxfParNumero(int codigo, double v) {
  std::string texto;
  AnadeDxfPar(texto, codigo, v);
  return texto;
}

}  // namespace duktores
