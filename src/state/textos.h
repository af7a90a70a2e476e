#pragma once
// The texts that reach a user, in seven languages, by number. Texts are UTF-8. A text id is the language base plus the
// text number; the short labels 51 to 56, 59 and 60 are the same everywhere and have no id but their own number.

#include <string>
#include <string_view>

#include "platform/plataforma.h"

namespace duktores {

inline constexpr int kPasoIdioma = 10000;  ///< from one language base to the next
inline constexpr double kChino = 60000.0;  ///< language base of Chinese

/// Text of an id, whatever the configured language. An id without a text is an error of the run: std::out_of_range.
std::string TextoIdioma(double id);

/// Text number `n` in the configured language.
std::string Texto(int n);

/// Shows a message with a normal pointer and sets the hourglass again afterwards. Chinese goes to the program's own
/// message window, which has neither style nor title; a trailing NUL isn't shown. `detalle` stands below the text.
void MuestraMensaje(std::string_view texto, EstiloMensaje estilo, std::string_view titulo,
                    std::string_view detalle = {});

/// Hourglass pointer when true, normal pointer when false.
void CursorEspera(bool espera);

}  // namespace duktores
