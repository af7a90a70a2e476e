#include "state/nombres.h"

#include <algorithm>
#include <array>
#include <charconv>

#include "state/caracteres.h"

namespace duktores {

namespace {

constexpr std::string_view kProhibidos = "<>:\"/\\|?*";
constexpr std::array<std::string_view, 4> kReservados{"CON", "PRN", "AUX", "NUL"};
constexpr std::array<std::string_view, 2> kPuertos{"COM", "LPT"};

// From U+00C0 on.
constexpr std::array<std::string_view, 64> kSinAcento{
    "A", "A", "A", "A", "A", "A", "AE", "C", "E", "E", "E", "E", "I", "I", "I",  "I",   //
    "D", "N", "O", "O", "O", "O", "O",  "x", "O", "U", "U", "U", "U", "Y", "TH", "ss",  //
    "a", "a", "a", "a", "a", "a", "ae", "c", "e", "e", "e", "e", "i", "i", "i",  "i",   //
    "d", "n", "o", "o", "o", "o", "o",  "_", "o", "u", "u", "u", "u", "y", "th", "y"};

bool EsAlfanumerico(char16_t c) {
  return (c >= u'0' && c <= u'9') || (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z');
}

/// Whatever its ending, such a name is a device somewhere.
bool EsReservado(std::string_view nombre) {
  const std::string base = Mayusculas(Recorta(nombre.substr(0, nombre.find('.'))));
  const bool puerto = base.size() == 4 && base[3] >= '1' && base[3] <= '9' &&
                      std::ranges::find(kPuertos, std::string_view(base).substr(0, 3)) != kPuertos.end();
  return puerto || std::ranges::find(kReservados, base) != kReservados.end();
}

}  // namespace

bool EsNombrePortatil(std::string_view nombre) {
  const auto prohibido = [](char c) {
    return static_cast<unsigned char>(c) < 0x20 || kProhibidos.find(c) != std::string_view::npos;
  };
  return !nombre.empty() && std::ranges::none_of(nombre, prohibido) && nombre.back() != '.' && nombre.back() != ' ' &&
         !EsReservado(nombre);
}

std::string NombrePortatil(std::string_view nombre) {
  std::string portatil;
  for (const char16_t c : Utf16(nombre)) {
    if (EsAlfanumerico(c) || c == u'-' || c == u'_' || c == u'.') {
      portatil += static_cast<char>(c);
    } else if (c < 0xC0) {
      portatil += '_';
    } else if (c < 0x100) {
      portatil += kSinAcento[c - 0xC0U];
    } else if (c < 0x300 || c >= 0x370) {  // between them stand accents of their own
      std::array<char, 8> cifras;
      portatil.append("u").append(cifras.data(),
                                  std::to_chars(cifras.data(), cifras.data() + cifras.size(), unsigned{c}, 16).ptr);
    }
  }
  const bool empieza = !portatil.empty() && portatil.front() != '-' && portatil.front() != '.';
  return empieza && !EsReservado(portatil) ? portatil : '_' + portatil;
}

}  // namespace duktores
