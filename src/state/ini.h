#pragma once
// Text of an INI file, as users of such files know it: section and key without regard to case, blanks around names and
// values trimmed, one pair of quotes around a value dropped, lines that begin with ';' are comments, the first match
// wins (a section may come in several pieces), line ends CR LF or LF, a UTF-8 byte-order mark skipped. Any bytes are
// acceptable input.

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace duktores {

/// One line with a key: views into the text of the file.
struct EntradaIni {
  std::string_view seccion, clave, valor;
};

/// All keys in the order of the file.
std::vector<EntradaIni> EntradasIni(std::string_view contenido);

/// The entry that counts for a key; null if there is none.
const EntradaIni* BuscaIni(const std::vector<EntradaIni>& entradas, std::string_view seccion, std::string_view clave);

/// Its value as UTF-8, cut at 127 characters (UTF-16 units); none if there is no such key. Bytes that are not UTF-8
/// count as code page 1252.
std::optional<std::string> LeeIni(const std::vector<EntradaIni>& entradas, std::string_view seccion,
                                  std::string_view clave);

/// The same file with this value for a key: in the line where it is read from, else in a new line at the end of its
/// section, else in a new section. All other lines, comments among them, stay byte for byte. Line ends within the value
/// become blanks.
std::string PonIni(std::string_view contenido, std::string_view seccion, std::string_view clave,
                   std::string_view valor);

/// How many letters of `escrita` must be left out, put in, changed or swapped with their neighbour for `clave`, without
/// regard to case; 3 stands for any number above 2.
int Erratas(std::string_view escrita, std::string_view clave);

/// Bytes of a file as a text of at most 127 characters.
std::string TextoIni(std::string_view bytes);

}  // namespace duktores
