#pragma once
// The icons of the buttons, drawn in the text colour of the palette and crisp at any scale.

#include <QString>
#include <string_view>

class QAbstractButton;

namespace duktores {

/// Gives a button its name, its icon by that name, and its tooltip, which stays unset if empty.
void PonBoton(QAbstractButton& boton, std::string_view nombre, const QString& ayuda);

}  // namespace duktores
