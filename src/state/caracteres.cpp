#include "state/caracteres.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <type_traits>

namespace duktores {

namespace {

constexpr char32_t kInvalido = 0xFFFFFFFF;
constexpr char32_t kSustituto = 0xFFFD;

// Code page 1252 from 0x80 to 0x9F, 0 where it has no character. All other bytes are their own code.
// clang-format off
constexpr std::array<char16_t, 32> kCp1252{
    0x20AC,      0, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
    0x02C6, 0x2030, 0x0160, 0x2039, 0x0152,      0, 0x017D,      0,
         0, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
    0x02DC, 0x2122, 0x0161, 0x203A, 0x0153,      0, 0x017E, 0x0178};

/// What the first byte of a character says, by the bits under `mascara`.
struct FormaUtf8 {
  unsigned mascara, marca;
  std::size_t largo;  // bytes
  char32_t minimo;    // below it the character is spelled too long
};
constexpr std::array<FormaUtf8, 4> kFormasUtf8{{
    {0x80, 0x00, 1, 0},
    {0xE0, 0xC0, 2, 0x80},
    {0xF0, 0xE0, 3, 0x800},
    {0xF8, 0xF0, 4, 0x10000}}};
// clang-format on

bool EsSustitutoAlto(char32_t c) { return c >= 0xD800 && c < 0xDC00; }
bool EsSustitutoBajo(char32_t c) { return c >= 0xDC00 && c < 0xE000; }

/// The character at the front if it has this form, else kInvalido.
char32_t Descifra(std::string_view bytes, const FormaUtf8& forma) {
  if (bytes.size() < forma.largo) return kInvalido;
  char32_t codigo = static_cast<unsigned char>(bytes[0]) & ~forma.mascara;
  for (const char c : bytes.substr(1, forma.largo - 1)) {
    const auto byte = static_cast<unsigned char>(c);
    if ((byte & 0xC0) != 0x80) return kInvalido;
    codigo = codigo << 6 | (byte & 0x3F);
  }
  const bool esSustituto = EsSustitutoAlto(codigo) || EsSustitutoBajo(codigo);
  return codigo < forma.minimo || codigo > 0x10FFFF || esSustituto ? kInvalido : codigo;
}

/// Takes one character off the front; where none begins it takes one byte and gives kInvalido.
char32_t Siguiente(std::string_view& resto) {
  const unsigned primero = static_cast<unsigned char>(resto.front());
  const auto forma =
      std::ranges::find_if(kFormasUtf8, [=](const FormaUtf8& f) { return (primero & f.mascara) == f.marca; });
  const char32_t codigo = forma == kFormasUtf8.end() ? kInvalido : Descifra(resto, *forma);
  resto.remove_prefix(codigo == kInvalido ? 1 : forma->largo);
  return codigo;
}

// Of nearly all texts, which are then their own codes.
bool EsAscii(std::string_view bytes) {
  return std::ranges::all_of(bytes, [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

void AnadeUtf8(std::string& destino, char32_t c) {
  const auto sigue = [&](int bits) { destino += static_cast<char>(0x80 | (c >> bits & 0x3F)); };
  if (c < 0x80) {
    destino += static_cast<char>(c);
  } else if (c < 0x800) {
    destino += static_cast<char>(0xC0 | c >> 6);
    sigue(0);
  } else if (c < 0x10000) {
    destino += static_cast<char>(0xE0 | c >> 12);
    sigue(6);
    sigue(0);
  } else {
    destino += static_cast<char>(0xF0 | c >> 18);
    sigue(12);
    sigue(6);
    sigue(0);
  }
}

void AnadeEscapado(std::string& destino, char16_t unidad) {
  destino += "\\U+";
  for (int bits = 12; bits >= 0; bits -= 4) destino += "0123456789ABCDEF"[unidad >> bits & 0xF];
}

}  // namespace

std::u16string Utf16(std::string_view utf8) {
  if (EsAscii(utf8)) return {utf8.begin(), utf8.end()};
  std::u16string unidades;
  unidades.reserve(utf8.size());
  while (!utf8.empty()) {
    char32_t c = Siguiente(utf8);
    if (c == kInvalido) c = kSustituto;
    if (c < 0x10000) {
      unidades += static_cast<char16_t>(c);
    } else {
      unidades += static_cast<char16_t>(0xD800 + ((c - 0x10000) >> 10));
      unidades += static_cast<char16_t>(0xDC00 + ((c - 0x10000) & 0x3FF));
    }
  }
  return unidades;
}

std::string Utf8(std::u16string_view utf16) {
  std::string texto;
  texto.reserve(utf16.size());
  for (std::size_t i = 0; i < utf16.size(); ++i) {
    char32_t c = utf16[i];
    if (EsSustitutoAlto(c) && i + 1 < utf16.size() && EsSustitutoBajo(utf16[i + 1])) {
      c = 0x10000 + ((c - 0xD800) << 10) + (utf16[++i] - 0xDC00U);
    } else if (EsSustitutoAlto(c) || EsSustitutoBajo(c)) {
      c = kSustituto;
    }
    AnadeUtf8(texto, c);
  }
  return texto;
}

int LongitudUtf16(std::string_view utf8) {
  if (EsAscii(utf8)) return static_cast<int>(utf8.size());
  int longitud = 0;
  while (!utf8.empty()) {
    const char32_t c = Siguiente(utf8);
    longitud += c >= 0x10000 && c != kInvalido ? 2 : 1;
  }
  return longitud;
}

bool EsUtf8(std::string_view bytes) {
  while (!bytes.empty()) {
    if (Siguiente(bytes) == kInvalido) return false;
  }
  return true;
}

std::string Utf8DeCp1252(std::string_view bytes) {
  std::string texto;
  texto.reserve(bytes.size());
  for (const char byte : bytes) {
    char32_t c = static_cast<unsigned char>(byte);
    if (c >= 0x80 && c < 0xA0) c = kCp1252[c - 0x80];
    AnadeUtf8(texto, c == 0 && byte != 0 ? kSustituto : c);
  }
  return texto;
}

std::string Cp1252DeUtf8(std::string_view utf8) {
  std::string bytes;
  bytes.reserve(utf8.size());
  for (const char16_t unidad : Utf16(utf8)) {
    const auto alta = std::ranges::find(kCp1252, unidad);
    if (unidad < 0x80 || (unidad >= 0xA0 && unidad < 0x100)) {
      bytes += static_cast<char>(unidad);
    } else if (alta != kCp1252.end()) {
      bytes += static_cast<char>(0x80 + (alta - kCp1252.begin()));
    } else {
      AnadeEscapado(bytes, unidad);
    }
  }
  return bytes;
}

std::string_view Recorta(std::string_view texto) {
  constexpr std::string_view kBlancos = " \t\r\n";
  const std::size_t inicio = texto.find_first_not_of(kBlancos);
  if (inicio == std::string_view::npos) return {};
  return texto.substr(inicio, texto.find_last_not_of(kBlancos) - inicio + 1);
}

std::string Mayusculas(std::string_view utf8) {
  const auto capitales = [](auto texto) {
    for (auto& c : texto) {
      const bool minuscula = (c >= 'a' && c <= 'z') || (c >= 0xE0 && c <= 0xFE && c != 0xF7);
      if (minuscula) c = static_cast<std::decay_t<decltype(c)>>(c - 0x20);
    }
    return texto;
  };
  return EsAscii(utf8) ? capitales(std::string(utf8)) : Utf8(capitales(Utf16(utf8)));
}

void SustituyeCaracter(std::string& texto, char busca, char pone) { std::ranges::replace(texto, busca, pone); }

}  // namespace duktores
