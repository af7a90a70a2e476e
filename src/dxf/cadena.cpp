#include "dxf/cadena.h"

#include <utility>

#include "state/caracteres.h"

namespace duktores {

void cAddString::MaxBytes(std::int32_t v) {
  if (v <= 0) return;
  iMaxBytes_ = v;
  iLimite_ = std::int64_t{2} * v - 1;
  texto_ = std::string(static_cast<std::size_t>(Length()), '\0');
}

bool cAddString::BeginAdd() {
  texto_.clear();
  return true;
}

std::int32_t cAddString::Length() const { return LongitudUtf16(texto_); }

bool cAddString::AddString(std::string_view sString) {
  const auto bytes = 2 * static_cast<std::int64_t>(texto_.size() + sString.size());
  while (bytes >= iLimite_) iLimite_ *= 2;
  texto_.reserve(static_cast<std::size_t>(iLimite_ / 2));
  texto_ += sString;
  return true;
}

bool cAddString::Add2Strings(std::string_view sString1, std::string_view sString2) {
  return AddString(sString1) && AddString(sString2);
}

std::string cAddString::EndAdd() {
  std::string texto = texto_;
  BeginAdd();
  return texto;
}

}  // namespace duktores
