#include "jobs/llenado.h"

#include <algorithm>

#include "state/caracteres.h"

namespace duktores {

namespace {

constexpr std::string_view kPiezas = "Pieces";  // key of the choice that is no field

std::string Lista(std::span<const std::string_view> valores) {
  std::string lista;
  for (const auto valor : valores) (lista += lista.empty() ? "" : ", ") += valor;
  return lista;
}

std::optional<std::string> EscribeCampo(Dialogo& dialogo, int campo, const std::string& texto) {
  const DefCampo& def = dialogo.Definicion().campos[static_cast<std::size_t>(campo)];
  if (!def.filtro) {
    if (dialogo.Elige(campo, texto)) return std::nullopt;
    return std::string(def.palabra) + " must be one of " + Lista(def.valores) + ", not \"" + texto + "\".";
  }
  SeleccionaTodo(dialogo.CampoDe(campo));
  for (const char16_t tecla : Utf16(texto)) {
    if (!Teclea(tecla, dialogo.CampoDe(campo), def.filtro)) {
      return "\"" + texto + "\" can't be typed into the field " + std::string(def.palabra) + ".";
    }
  }
  return std::nullopt;
}

std::optional<std::string> EscribeValor(Dialogo& dialogo, const std::string& clave, const std::string& texto) {
  const auto campos = dialogo.Definicion().campos;
  if (clave == kPiezas && dialogo.Definicion().opcionPiezas) {
    if (texto != "1" && texto != "2") return "Pieces must be one of 1, 2, not \"" + texto + "\".";
    dialogo.dosPiezas = texto == "2";
    return std::nullopt;
  }
  const auto campo = std::find_if(campos.begin(), campos.end(), [&](const DefCampo& c) { return c.palabra == clave; });
  if (campo == campos.end())
    return "\"" + clave + "\" is no key of the piece " + std::string(dialogo.Definicion().clave) + ".";
  return EscribeCampo(dialogo, static_cast<int>(campo - campos.begin()), texto);
}

}  // namespace

std::optional<Rechazo> LlenaDialogo(Dialogo& dialogo, const Trabajo& trabajo) {
  auto valores = trabajo.valores;
  std::ranges::sort(valores);
  for (const auto& [clave, texto] : valores) {
    if (auto motivo = EscribeValor(dialogo, clave, texto)) return Rechazo{clave, *motivo};
  }
  return std::nullopt;
}

Trabajo TrabajoDe(const Dialogo& dialogo, std::string nombre) {
  const DefDialogo& def = dialogo.Definicion();
  Trabajo trabajo;
  trabajo.nombre = std::move(nombre);
  trabajo.pieza = def.clave;
  for (std::size_t i = 0; i < def.campos.size(); ++i) {
    const std::string& texto = dialogo.CampoDe(static_cast<int>(i)).texto;
    // A point that came first by deleting can't be typed first.
    const char* cero = texto.starts_with('.') ? "0" : "";
    if (!texto.empty()) trabajo.valores.emplace_back(def.campos[i].palabra, cero + texto);
  }
  if (def.opcionPiezas) trabajo.valores.emplace_back(kPiezas, dialogo.dosPiezas ? "2" : "1");
  return trabajo;
}

}  // namespace duktores
