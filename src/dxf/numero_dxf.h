#pragma once
// Numbers of a DXF file. The decimal mark is a point whatever the locale. All values must be finite.

#include <string>

namespace duktores {

/// "0.0" for 0; below 1 up to 16 decimals, cut at the last digit that is not 0 (all 16 when every one is 0, then
/// without a sign); from 1 upward the general form with 15 significant digits, exponent as E+15.
std::string DxfNumeroTexto(double v);

/// The two lines of a numeric pair, the code behind two blanks: "  10", CR LF, the number, CR LF.
std::string DxfParNumero(int codigo, double v);

/// The same texts, appended.
void AnadeDxfNumero(std::string& destino, double v);
void AnadeDxfPar(std::string& destino, int codigo, double v);

}  // namespace duktores
