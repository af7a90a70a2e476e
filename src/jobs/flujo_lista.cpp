#include "jobs/flujo_lista.h"

#include <algorithm>
#include <charconv>
#include <string_view>

namespace duktores {

namespace {

bool EsDeNumero(char c) { return std::string_view("+-.0123456789eE").find(c) != std::string_view::npos; }

// A number of fewer letters and without an exponent is in range.
bool Desborda(std::string_view numero) {
  constexpr std::size_t kCorto = 300;
  if (numero.size() < kCorto && numero.find_first_of("eE") == std::string_view::npos) return false;
  double v = 0;
  const auto fin = std::from_chars(numero.data(), numero.data() + numero.size(), v);
  // One that is too small is 0 to the parser.
  const bool grande = numero.find("e-") == std::string_view::npos && numero.find("E-") == std::string_view::npos;
  return fin.ec == std::errc::result_out_of_range && fin.ptr == numero.data() + numero.size() && grande;
}

}  // namespace

std::size_t FlujoLista::Linea() {
  linea_ += static_cast<std::size_t>(std::count(contado_, static_cast<const char*>(gptr()), '\n'));
  contado_ = gptr();
  return linea_;
}

void FlujoLista::PasaNumero() {
  if (numero_.empty()) return;
  const bool desborda = Desborda(numero_);
  if (desborda) salida_ += '"';
  salida_ += numero_;
  if (desborda) salida_ += '"';
  numero_.clear();
}

void FlujoLista::Pasa(char c) {
  if (!enTexto_ && EsDeNumero(c)) {
    numero_ += c;
    return;
  }
  PasaNumero();
  if (c == '"' && !escape_) enTexto_ = !enTexto_;
  escape_ = enTexto_ && c == '\\' && !escape_;
  salida_ += c;
}

FlujoLista::int_type FlujoLista::underflow() {
  const std::size_t linea = Linea();
  salida_.clear();
  while (salida_.empty()) {
    if (nulo_) throw ErrorLista("a NUL byte at line " + std::to_string(linea));
    const std::size_t leidos = lee_(crudo_);
    if (leidos == 0) PasaNumero();
    if (leidos == 0 && salida_.empty()) return traits_type::eof();
    const auto fin = crudo_.begin() + static_cast<std::ptrdiff_t>(leidos);
    const auto nulo = std::find(crudo_.begin(), fin, '\0');
    nulo_ = nulo != fin;
    std::for_each(crudo_.begin(), nulo, [this](char c) { Pasa(c); });
    if (nulo_) PasaNumero();
  }
  setg(salida_.data(), salida_.data(), salida_.data() + salida_.size());
  contado_ = gptr();
  return traits_type::to_int_type(*gptr());
}

}  // namespace duktores
