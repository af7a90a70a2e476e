#pragma once
// Who looks at a control without a window: gives the points of the picks in turn, refuses what is beyond them, and
// notes what hung on the pointer, how much was drawn by then, and what was told.

#include <optional>
#include <span>
#include <sstream>
#include <string>
#include <vector>

#include "platform/plataforma.h"
#include "viewer/ewdraw.h"

namespace duktores {

struct Mesa : VistaEWdraw, Plataforma {
  explicit Mesa(std::vector<Punto3> p = {}) : puntos(std::move(p)) {}
  std::optional<Punto3> EligePunto(EWdraw& axew) override {
    fantasmas.push_back(axew.Fantasma());
    rotulos.push_back(axew.RotuloFantasma());
    dibujado.push_back(axew.Entidades().size());
    const std::size_t i = fantasmas.size() - 1;
    return i < puntos.size() ? std::optional(puntos[i]) : std::nullopt;
  }
  void CajaMensaje(std::string_view texto, EstiloMensaje, std::string_view) override { mensajes.emplace_back(texto); }

  std::vector<Punto3> puntos;
  std::vector<std::vector<Punto2>> fantasmas;
  std::vector<std::string> rotulos, mensajes;
  std::vector<std::size_t> dibujado;
};

/// The texts drawn: their places, seen from `origen`, and what they say.
inline std::string Textos(std::span<const Entidad> entidades, Punto2 origen = {}) {
  std::ostringstream s;
  for (const Entidad& e : entidades) {
    if (e.tipo != TipoEntidad::texto) continue;
    s << e.puntos[0].x - origen.x << ',' << e.puntos[0].y - origen.y << '=' << e.texto << '|';
  }
  return s.str();
}

}  // namespace duktores
