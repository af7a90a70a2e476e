#pragma once
// Text of an INI file, read key by key as users of such files know it: section and key without regard to case, blanks
// around names and values trimmed, one pair of quotes around a value dropped, lines that begin with ';' are comments,
// the first match wins (a section may come in several pieces), line ends CR LF or LF, a UTF-8 byte-order mark skipped.
// Any bytes are acceptable input.

#include <string>
#include <string_view>

namespace duktores {

/// The value as UTF-8, cut at 127 characters (UTF-16 units); empty if there is none. Bytes that are not UTF-8 count as
/// code page 1252.
std::string ValorIni(std::string_view contenido, std::string_view seccion, std::string_view clave);

}  // namespace duktores
