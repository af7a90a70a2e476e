#pragma once
// A special piece worked out anew for the tests, and its unfolding as a user sees it.

#include <algorithm>
#include <array>
#include <optional>
#include <sstream>
#include <string>
#include <vector>

#include "dialogs/dialogo.h"
#include "dxf/dibujo.h"
#include "geometry/puntos.h"
#include "special/despliega_especial.h"
#include "state/estado.h"
#include "state/textos.h"
#include "viewer/ewdraw.h"

namespace duktores {

inline constexpr int kEsquina = 103, kLado = 104, kCajetin = 106;

/// A piece typed into the dialog of its type, the texts of the fields apart by spaces. Places the shapes in a row and
/// notes what it was asked for; refuses the pick after `limite` ones.
struct Corrida : VistaEWdraw {
  Corrida(const char* tipo, const std::string& textos) {
    estado = {};
    estado.iUnidad = 1;
    estado.iFibra = 2;
    estado.MultinumDoblado = 36;
    estado.oDrawing = std::make_shared<cDrawing>();
    estado.iHandleDxf = 500;
    Dialogo dialogo(*DialogoDe(tipo));
    std::istringstream palabras(textos);
    std::string texto;
    for (int i = 0; palabras >> texto; ++i) dialogo.CampoDe(i).texto = texto;
    aceptada = dialogo.CmdAceptar() == Respuesta::aceptado;
    axew.PonVista(this);
  }
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

/// Points of a piece in space. Corners and sides are numbered from 1 as everywhere.
struct EnElEspacio {
  std::array<double, 5> r1{0, estado.dR11, estado.dR12, estado.dR13, estado.dR14},
      r2{0, estado.dR21, estado.dR22, estado.dR23, estado.dR24};
  double LX1 = estado.dLX1, LY1 = estado.dLY1, LX2 = estado.dLX2, LY2 = estado.dLY2;

  EnElEspacio() {
    if (estado.sTipoPieza != "TransEsp2" && estado.sTipoPieza != "TransEsp3") return;
    r1.fill(estado.dRadioEsp);
    r2.fill(estado.dRadioEsp2);
  }
  // From one side's normal (t = 0) to the next one's (t = 1) round a corner.
  Punto3 EnArco(int c, double t, double LX, double LY, double r, Punto3 centro) const {
    constexpr Punto3 normales[]{{0, -1, 0}, {-1, 0, 0}, {0, 1, 0}, {1, 0, 0}, {0, -1, 0}};
    const Punto3 de = normales[c - 1], a = normales[c];
    const double co = t == 1 ? 0 : std::cos(t * dPi / 2), si = t == 1 ? 1 : std::sin(t * dPi / 2);
    const Punto3 lado = de + a;
    return centro + Punto3{lado.x * (LX / 2 - r), lado.y * (LY / 2 - r), 0} + r * co * de + r * si * a;
  }
  Punto3 Bajo(int c, double t) const { return EnArco(c, t, LX2, LY2, r2[std::size_t(c)], {}); }
  Punto3 Alto(int c, double t) const {
    return EnArco(c, t, LX1, LY1, r1[std::size_t(c)], {estado.dAx, estado.dAy, estado.dAltura});
  }
  /// The mouth's plane by three of its points, tilted about two of its edges.
  Punto3 Inclinado(double dx, double dy) const {
    const double a = -estado.dAlfa * 3.141592 / 180, b = -estado.dBeta * 3.141592 / 180;
    const double x = dx + LX1 / 2, y = dy - LY1 / 2;
    const Punto3 p{x * std::cos(a), y, -x * std::sin(a)};
    return {estado.dAx - LX1 / 2 + p.x, estado.dAy + LY1 / 2 + p.y * std::cos(b) - p.z * std::sin(b),
            estado.dAltura + p.y * std::sin(b) + p.z * std::cos(b)};
  }
  Punto3 Corte(int c, double t) const {
    const Punto3 Q = Bajo(c, t), T = Alto(c, t), P = Inclinado(0, 0);
    const Punto3 normal = Vectorial(Inclinado(1, 0) - P, Inclinado(0, 1) - P);
    return Q + Escalar(normal, P - Q) / Escalar(normal, T - Q) * (T - Q);
  }
};

}  // namespace duktores
