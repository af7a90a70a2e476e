#pragma once
// Numbers as texts, and texts as numbers, outside the DXF file. Independent of the process's locale; the decimal mark
// of written numbers follows `estado.bComaDecimal`.

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace duktores {

/// The default conversion of a double: up to 15 significant digits in general form, no trailing zeros, exponent as
/// E+15; decimal mark of the system. Zero has no sign; what is not finite gives "inf", "-inf" or "nan".
std::string TextoDeNumero(double v);

/// With so many decimals behind a point, whatever the system's mark. Zero has no sign.
std::string TextoFijo(double v, int decimales);

/// The number at the left of a text, after blanks: sign, digits, point, decimals, exponent; 0 if there is none or if it
/// is beyond the range of a double. Always a finite number.
double NumeroIzquierda(std::string_view texto);

/// The number that the whole text but blanks around it is; none if something else stands there too.
std::optional<double> NumeroEntero(std::string_view texto);

/// Reads what TextoDeNumero has written, under either mark; other texts as NumeroIzquierda does. A number that went
/// this way has kept 15 significant digits.
double NumeroDeTexto(std::string_view texto);

/// The number that a field holds: the whole text but blanks around it, an optional minus first, digits with at most one
/// point or comma, at least one digit. Empty if it isn't such a number or beyond the range of a double.
std::optional<double> NumeroDeCampo(std::string_view texto);

/// Rounded half to even; 0 when out of range.
std::int16_t EnteroCorto(double v);

}  // namespace duktores
