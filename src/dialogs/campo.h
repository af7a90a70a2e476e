#pragma once
// Behaviour of the text fields, the same in every dialog: a numeric field never holds a character outside a number with
// the allowed decimals, 2 in millimetres and 3 in inches.

#include <string>
#include <string_view>

namespace duktores {

/// A text field as its filters see it. It holds ASCII only, since nothing else passes a filter.
struct Campo {
  std::string texto;
  std::size_t inicioSeleccion = 0, largoSeleccion = 0;  ///< without a selection: the caret, 0

  bool TodoSeleccionado() const { return largoSeleccion == texto.size(); }
};

inline constexpr char32_t kRetroceso = 8, kSaltoLinea = 10;

// A filter gives the key back, or 0 to drop it.
using Filtro = char32_t (*)(char32_t tecla, const Campo& campo);

/// Digits and one point.
char32_t FiltraNumero(char32_t tecla, const Campo& campo);
/// The same and one minus sign, wherever the caret stands.
char32_t FiltraNumeroSigno(char32_t tecla, const Campo& campo);
/// Digits alone.
char32_t FiltraEntero(char32_t tecla, const Campo& campo);

/// False while the text has a minus sign anywhere but first: the focus then stays in the field.
bool SignoEnSuSitio(const Campo& campo);

void SeleccionaTodo(Campo& campo);

/// What a typed key becomes: a comma turns into a point, then the filter decides. 0 when the key is dropped.
char32_t FiltraTecla(char32_t tecla, const Campo& campo, Filtro filtro);

/// Types one key into the field, at the selection or caret. False when it is dropped.
bool Teclea(char32_t tecla, Campo& campo, Filtro filtro);

/// Types a whole text that was copied elsewhere, or nothing of it. 0, or the number of the text that says what is wrong
/// with it: texto::kDecimalesDeMas takes the allowed number of decimals for its "%1".
int TecleaTodo(std::u32string_view texto, Campo& campo, Filtro filtro);

/// Decimals that a number may have in the configured unit.
int Decimales();

}  // namespace duktores
