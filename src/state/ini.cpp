#include "state/ini.h"

#include <algorithm>
#include <cstddef>

#include "state/caracteres.h"

namespace duktores {

namespace {

constexpr std::size_t kLargoMaximo = 127;

bool IgualSinCaja(std::string_view a, std::string_view b) {
  const auto minuscula = [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + ('a' - 'A')) : c; };
  return std::ranges::equal(a, b, {}, minuscula, minuscula);
}

std::string_view SinComillas(std::string_view valor) {
  const bool encerrado = valor.size() >= 2 && valor.front() == valor.back();
  return encerrado && (valor.front() == '"' || valor.front() == '\'') ? valor.substr(1, valor.size() - 2) : valor;
}

std::string ComoTexto(std::string_view valor) {
  std::string utf8 = EsUtf8(valor) ? std::string(valor) : Utf8DeCp1252(valor);
  const std::u16string unidades = Utf16(utf8);
  if (unidades.size() <= kLargoMaximo) return utf8;
  const bool parteCaracter = unidades[kLargoMaximo] >= 0xDC00 && unidades[kLargoMaximo] < 0xE000;
  return Utf8(std::u16string_view(unidades).substr(0, kLargoMaximo - (parteCaracter ? 1 : 0)));
}

}  // namespace

std::string ValorIni(std::string_view contenido, std::string_view seccion, std::string_view clave) {
  if (contenido.starts_with("\xEF\xBB\xBF")) contenido.remove_prefix(3);
  bool enSeccion = false;
  while (!contenido.empty()) {
    const std::size_t fin = std::min(contenido.find('\n'), contenido.size() - 1);
    const std::string_view linea = Recorta(contenido.substr(0, fin + 1));
    contenido.remove_prefix(fin + 1);
    if (linea.empty() || linea.front() == ';') continue;
    if (linea.front() == '[') {
      enSeccion = IgualSinCaja(Recorta(linea.substr(1, linea.find(']') - 1)), seccion);
      continue;
    }
    const std::size_t igual = linea.find('=');
    if (enSeccion && igual != std::string_view::npos && IgualSinCaja(Recorta(linea.substr(0, igual)), clave)) {
      return ComoTexto(SinComillas(Recorta(linea.substr(igual + 1))));
    }
  }
  return {};
}

}  // namespace duktores
