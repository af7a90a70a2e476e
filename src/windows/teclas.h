#pragma once
// The keys of the windows as one table: what they press, what the tooltips say of them, and the page that lists them.

#include <QString>
#include <functional>

class QKeyEvent;
class QPushButton;
class QWidget;

namespace duktores {

/// What a tooltip says of the button's keys, at its end: " (F12, ?)". The page of the keys goes by the name of "ayuda".
QString TextoTeclas(const QString& boton);

/// Has the keys of the button's row press it, or call `hace` with the key's place in the row. They work throughout the
/// button's window, and its tooltip tells them.
void PonTeclas(QPushButton& boton, const std::function<void(int)>& hace = {});

/// Has the keys of the page open it over this window.
void PonAyuda(QWidget& ventana);
void MuestraAyuda(QWidget& padre);

/// Enter presses the button that has the focus; false if none has.
bool PulsaConEnter(const QWidget& ventana, const QKeyEvent& suceso);

}  // namespace duktores
