#include "state/numeros.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <system_error>

#include "state/caracteres.h"
#include "state/estado.h"

namespace duktores {

namespace {

bool EsCifra(char c) { return c >= '0' && c <= '9'; }

/// Takes a sign off the front.
bool QuitaSigno(std::string_view& texto, std::string_view signos) {
  if (texto.empty() || signos.find(texto.front()) == std::string_view::npos) return false;
  const bool negativo = texto.front() == '-';
  texto.remove_prefix(1);
  return negativo;
}

/// The number without a sign that it takes off the front; empty if there is none or if it is out of range.
std::optional<double> SinSigno(std::string_view& texto, std::chars_format formato) {
  // from_chars would also take a second sign, "inf" and "nan".
  if (texto.empty() || !(EsCifra(texto.front()) || texto.front() == '.')) return std::nullopt;
  double v = 0;
  const auto [fin, error] = std::from_chars(texto.data(), texto.data() + texto.size(), v, formato);
  if (error != std::errc()) return std::nullopt;
  texto.remove_prefix(static_cast<std::size_t>(fin - texto.data()));
  return v;
}

std::string ConPunto(std::string_view texto) {
  std::string copia(texto);
  std::ranges::replace(copia, ',', '.');
  return copia;
}

}  // namespace

std::string TextoDeNumero(double v) {
  std::array<char, 32> letras{};
  const double sinMenosCero = v == 0 ? 0.0 : v;
  const auto fin =
      std::to_chars(letras.data(), letras.data() + letras.size(), sinMenosCero, std::chars_format::general, 15).ptr;
  std::string texto(letras.data(), fin);
  std::ranges::replace(texto, 'e', 'E');
  if (estado.bComaDecimal) std::ranges::replace(texto, '.', ',');
  return texto;
}

std::string TextoFijo(double v, int decimales) {
  std::array<char, 400> cifras;
  const auto fin = std::to_chars(cifras.data(), cifras.data() + cifras.size(), v, std::chars_format::fixed, decimales);
  std::string texto(cifras.data(), fin.ptr);
  if (texto.find_first_not_of("-0.") == std::string::npos && texto.starts_with('-')) texto.erase(0, 1);
  return texto;
}

double NumeroIzquierda(std::string_view texto) {
  texto = Recorta(texto);
  const bool negativo = QuitaSigno(texto, "+-");
  const double v = SinSigno(texto, std::chars_format::general).value_or(0.0);
  return negativo ? -v : v;
}

std::optional<double> NumeroEntero(std::string_view texto) {
  texto = Recorta(texto);
  const bool negativo = QuitaSigno(texto, "+-");
  const auto v = SinSigno(texto, std::chars_format::general);
  if (!v || !texto.empty()) return std::nullopt;
  return negativo ? -*v : *v;
}

double NumeroDeTexto(std::string_view texto) { return NumeroIzquierda(ConPunto(texto)); }

std::optional<double> NumeroDeCampo(std::string_view texto) {
  texto = Recorta(texto);
  const bool negativo = QuitaSigno(texto, "-");
  const std::string numero = ConPunto(texto);
  const bool soloCifras = std::ranges::all_of(numero, [](char c) { return EsCifra(c) || c == '.'; });
  if (!soloCifras || std::ranges::count(numero, '.') > 1) return std::nullopt;
  std::string_view cifras = numero;
  const auto v = SinSigno(cifras, std::chars_format::fixed);
  return v && negativo ? std::optional(-*v) : v;
}

std::int16_t EnteroCorto(double v) {
  using Limites = std::numeric_limits<std::int16_t>;
  const double entero = std::nearbyint(v);
  return entero >= Limites::min() && entero <= Limites::max() ? static_cast<std::int16_t>(entero) : std::int16_t{0};
}

}  // namespace duktores
