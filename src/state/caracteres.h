#pragma once
// Text encodings. Inside the program texts are UTF-8; lengths of texts are counted in UTF-16 units; DXF files and old
// configuration files are in code page 1252. Any bytes are acceptable input.

#include <string>
#include <string_view>

namespace duktores {

std::u16string Utf16(std::string_view utf8);  ///< each byte that is not UTF-8 becomes U+FFFD
std::string Utf8(std::u16string_view utf16);  ///< lone surrogates become U+FFFD
int LongitudUtf16(std::string_view utf8);

bool EsUtf8(std::string_view bytes);
std::string Utf8DeCp1252(std::string_view bytes);  ///< the five bytes without a character become U+FFFD

/// UTF-8 to code page 1252. A character that the code page lacks is written as \U+XXXX, one for each UTF-16 unit.
std::string Cp1252DeUtf8(std::string_view utf8);

std::string_view Recorta(std::string_view texto);  ///< without the blanks, tabs and line ends around it
std::string Mayusculas(std::string_view utf8);     ///< letters of western Europe in capitals, "ß" as it is
void SustituyeCaracter(std::string& texto, char busca, char pone);  ///< every `busca` in the text becomes `pone`

}  // namespace duktores
