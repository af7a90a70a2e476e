#pragma once
// The unfolding of a special piece as a user sees it.

#include <algorithm>
#include <functional>
#include <optional>
#include <sstream>
#include <string>
#include <vector>

#include "dialogs/dialogo.h"
#include "dxf/dibujo.h"
#include "geometry/puntos.h"
#include "special/despliega_especial.h"
#include "special/pieza_especial.h"
#include "state/estado.h"
#include "state/textos.h"
#include "viewer/ewdraw.h"

namespace duktores {

inline constexpr int kEsquina = 103, kLado = 104;

/// A piece typed into the dialog of its type. Places the shapes in a row and notes what it was asked for; refuses the
/// pick after `limite` ones.
struct Corrida : VistaEWdraw {
  Corrida(std::string_view tipo, const std::function<void(Dialogo&)>& teclea) {
    estado = {};
    estado.iUnidad = 1;
    estado.iFibra = 2;
    estado.MultinumDoblado = 36;
    estado.oDrawing = std::make_shared<cDrawing>();
    estado.iHandleDxf = 500;
    Dialogo dialogo(*DialogoDe(tipo));
    teclea(dialogo);
    aceptada = dialogo.CmdAceptar() == Respuesta::aceptado;
    axew.PonVista(this);
  }
  /// The texts of the fields apart by spaces.
  Corrida(std::string_view tipo, const std::string& textos)
      : Corrida(tipo, [&](Dialogo& dialogo) {
          std::istringstream palabras(textos);
          std::string texto;
          for (int i = 0; palabras >> texto; ++i) dialogo.CampoDe(i).texto = texto;
        }) {}
  std::optional<Punto3> EligePunto(EWdraw&) override {
    if (rotulos.size() == limite) return std::nullopt;
    rotulos.push_back(axew.RotuloFantasma());
    dibujado.push_back(axew.Entidades().size());
    return Punto3{static_cast<double>(rotulos.size()), -2, 0};
  }
  /// The outline that was placed under this name, if any was drawn.
  std::optional<std::vector<Punto2>> Forma(int texto, int numero) const {
    const auto en = std::ranges::find(rotulos, Texto(texto) + " " + std::to_string(numero)) - rotulos.begin();
    const auto i = static_cast<std::size_t>(en);
    const std::size_t fin = i + 1 < rotulos.size() ? dibujado[i + 1] : axew.Entidades().size();
    if (i == rotulos.size() || dibujado[i] == fin) return std::nullopt;
    std::vector<Punto2> forma;
    for (const Punto3& p : axew.Entidades()[dibujado[i]].puntos) forma.push_back({p.x, p.y});
    forma.pop_back();  // the first one again
    return forma;
  }
  auto Cuantas(TipoEntidad tipo) const { return std::ranges::count(axew.Entidades(), tipo, &Entidad::tipo); }

  EWdraw axew;
  bool aceptada = false;
  std::vector<std::string> rotulos;
  std::vector<std::size_t> dibujado;
  std::size_t limite = 99;
};

/// The piece as the usual rules have unfolded it: `estado` holds its adjusted radii.
inline PiezaEspecial Ajustada() {
  PiezaEspecial pieza = MedidasDeEstado();
  if (estado.sTipoPieza == "TransEsp2" || estado.sTipoPieza == "TransEsp3") {
    pieza.r1 = Cuatro(estado.dRadioEsp);
    pieza.r2 = Cuatro(estado.dRadioEsp2);
  }
  return pieza;
}

}  // namespace duktores
