#pragma once
// Lines of a table as a spreadsheet opens them.

#include <string>
#include <string_view>

namespace duktores {

/// What stands between fields, and in a number before its decimals.
struct HabitoCsv {
  char separador = ',', decimal = '.';
};
inline constexpr HabitoCsv kConPunto{}, kConComa{';', ','};

/// Goes before the first line of a file: without it a spreadsheet doesn't know that the text is UTF-8.
inline constexpr std::string_view kMarcaUtf8 = "\xEF\xBB\xBF";

class FilaCsv {
 public:
  explicit FilaCsv(HabitoCsv habito) : habito_(habito) {}
  /// In quotes where it has to be. What a spreadsheet would take for a formula begins with an apostrophe.
  FilaCsv& Texto(std::string_view texto);
  /// With at most so many decimals; empty if it is no number.
  FilaCsv& Numero(double v, int decimales);
  /// The line with its end.
  std::string Linea() const { return linea_ + "\r\n"; }

 private:
  void Separa();

  HabitoCsv habito_;
  std::string linea_;
  bool vacia_ = true;
};

}  // namespace duktores
