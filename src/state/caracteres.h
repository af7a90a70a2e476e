#pragma once
// Text encodings. Inside the program texts are UTF-8; lengths of texts are counted in UTF-16 units; DXF files and old
// configuration files are in code page 1252.

#include <string>
#include <string_view>

namespace duktores {

std::u16string Utf16(std::string_view utf8);  ///< bytes that are not UTF-8 become U+FFFD
std::string Utf8(std::u16string_view utf16);  ///< lone surrogates become U+FFFD
int LongitudUtf16(std::string_view utf8);

bool EsUtf8(std::string_view bytes);
std::string Utf8DeCp1252(std::string_view bytes);

/// UTF-8 to code page 1252. A character that the code page lacks is written as \U+XXXX, one for each UTF-16 unit.
std::string Cp1252DeUtf8(std::string_view utf8);

}  // namespace duktores
