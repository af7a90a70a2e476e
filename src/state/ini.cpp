#include "state/ini.h"

#include <algorithm>
#include <array>
#include <cstddef>

#include "state/caracteres.h"

namespace duktores {

namespace {

constexpr std::size_t kLargoMaximo = 127;

char Minuscula(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + ('a' - 'A')) : c; }

bool IgualSinCaja(std::string_view a, std::string_view b) { return std::ranges::equal(a, b, {}, Minuscula, Minuscula); }

std::string_view SinComillas(std::string_view valor) {
  const bool encerrado = valor.size() >= 2 && valor.front() == valor.back();
  return encerrado && (valor.front() == '"' || valor.front() == '\'') ? valor.substr(1, valor.size() - 2) : valor;
}

/// As a line of a file holds it, so that it is read as it is.
std::string Encierra(std::string_view valor) {
  std::string linea(valor);
  std::ranges::replace_if(
      linea, [](char c) { return c == '\n' || c == '\r'; }, ' ');
  const bool pelado = Recorta(linea) == linea && SinComillas(linea) == linea;
  return pelado ? linea : '"' + linea + '"';
}

}  // namespace

std::string TextoIni(std::string_view bytes) {
  std::string utf8 = EsUtf8(bytes) ? std::string(bytes) : Utf8DeCp1252(bytes);
  const std::u16string unidades = Utf16(utf8);
  if (unidades.size() <= kLargoMaximo) return utf8;
  const bool parteCaracter = unidades[kLargoMaximo] >= 0xDC00 && unidades[kLargoMaximo] < 0xE000;
  return Utf8(std::u16string_view(unidades).substr(0, kLargoMaximo - (parteCaracter ? 1 : 0)));
}

std::vector<EntradaIni> EntradasIni(std::string_view contenido) {
  if (contenido.starts_with("\xEF\xBB\xBF")) contenido.remove_prefix(3);
  std::vector<EntradaIni> entradas;
  std::string_view seccion;
  bool enSeccion = false;
  while (!contenido.empty()) {
    const std::size_t fin = std::min(contenido.find('\n'), contenido.size() - 1);
    const std::string_view linea = Recorta(contenido.substr(0, fin + 1));
    contenido.remove_prefix(fin + 1);
    if (linea.empty() || linea.front() == ';') continue;
    const std::size_t igual = linea.find('=');
    if (linea.front() == '[') {
      seccion = Recorta(linea.substr(1, linea.find(']') - 1));
      enSeccion = true;
    } else if (enSeccion && igual != std::string_view::npos) {
      entradas.push_back({seccion, Recorta(linea.substr(0, igual)), SinComillas(Recorta(linea.substr(igual + 1)))});
    }
  }
  return entradas;
}

const EntradaIni* BuscaIni(const std::vector<EntradaIni>& entradas, std::string_view seccion, std::string_view clave) {
  const auto entrada = std::ranges::find_if(
      entradas, [&](const EntradaIni& e) { return IgualSinCaja(e.seccion, seccion) && IgualSinCaja(e.clave, clave); });
  return entrada == entradas.end() ? nullptr : &*entrada;
}

std::optional<std::string> LeeIni(const std::vector<EntradaIni>& entradas, std::string_view seccion,
                                  std::string_view clave) {
  const EntradaIni* entrada = BuscaIni(entradas, seccion, clave);
  return entrada ? std::optional(TextoIni(entrada->valor)) : std::nullopt;
}

std::string PonIni(std::string_view contenido, std::string_view seccion, std::string_view clave,
                   std::string_view valor) {
  const std::string linea = std::string(clave) + "=" + Encierra(valor);
  const std::string_view finLinea = contenido.find("\r\n") == std::string_view::npos ? "\n" : "\r\n";
  const auto lugar = [&](std::string_view parte) { return static_cast<std::size_t>(parte.data() - contenido.data()); };
  const auto finDe = [&](std::size_t sitio) {
    return std::min(contenido.find_first_of("\r\n", sitio), contenido.size());
  };
  std::string nuevo(contenido);
  std::optional<std::size_t> detras;
  for (const EntradaIni& e : EntradasIni(contenido)) {
    if (!IgualSinCaja(e.seccion, seccion)) continue;
    const std::size_t inicio = lugar(e.clave), fin = finDe(lugar(e.valor));
    if (IgualSinCaja(e.clave, clave)) return nuevo.replace(inicio, fin - inicio, linea);
    detras = fin;
  }
  if (detras) return nuevo.insert(*detras, std::string(finLinea) + linea);
  if (!nuevo.empty() && nuevo.back() != '\n') nuevo += finLinea;
  return ((((nuevo += '[') += seccion) += ']') += finLinea) + linea + std::string(finLinea);
}

int Erratas(std::string_view escrita, std::string_view clave) {
  constexpr int kMuchas = 3;
  constexpr std::size_t kClaveLarga = 32;
  if (escrita.size() >= kClaveLarga || clave.size() >= kClaveLarga) return kMuchas;
  // Row i, column j: between the first i letters of the one and the first j of the other.
  std::array<std::array<int, kClaveLarga>, kClaveLarga> d{};
  const auto letra = [](std::string_view texto, std::size_t i) { return Minuscula(texto[i - 1]); };
  for (std::size_t i = 0; i <= escrita.size(); ++i) {
    for (std::size_t j = 0; j <= clave.size(); ++j) {
      if (i == 0 || j == 0) {
        d[i][j] = static_cast<int>(i + j);
        continue;
      }
      const bool igual = letra(escrita, i) == letra(clave, j);
      d[i][j] = std::min({d[i - 1][j] + 1, d[i][j - 1] + 1, d[i - 1][j - 1] + (igual ? 0 : 1)});
      const bool vuelta =
          i > 1 && j > 1 && letra(escrita, i) == letra(clave, j - 1) && letra(escrita, i - 1) == letra(clave, j);
      if (vuelta) d[i][j] = std::min(d[i][j], d[i - 2][j - 2] + 1);
    }
  }
  return std::min(d[escrita.size()][clave.size()], kMuchas);
}

}  // namespace duktores
