#include "shell/catalogo.h"

#include "state/caracteres.h"
#include "state/textos.h"

namespace duktores {

namespace {

using enum ClaseFila;

constexpr std::string_view kInicial = "PresentDuktores.bmp", kEspeciales = "PresentTransEspeciales.bmp";

// clang-format off
constexpr std::array kFilas{
    // kind                 text  gap  capitals picture                 caption   window
    FilaCatalogo{categoria,   3,  {},  true,    kInicial,               { 3,  0}, {}},
    FilaCatalogo{hueco,       0,  "",  false,   {},                     {},       {}},
    FilaCatalogo{pieza,      11,  {},  false,   "TransBasRect.bmp",     {},       "FrTransfCR"},
    FilaCatalogo{pieza,      12,  {},  false,   "TransBasCirc.bmp",     {},       "FrTransfRC"},
    FilaCatalogo{hueco,       0,  " ", false,   {},                     {},       {}},
    FilaCatalogo{categoria,  41,  {},  false,   kEspeciales,            { 3, 47}, {}},
    FilaCatalogo{categoria,  47,  {},  false,   kEspeciales,            { 3, 47}, {}},
    FilaCatalogo{hueco,       0,  " ", false,   {},                     {},       {}},
    FilaCatalogo{pieza,      42,  {},  false,   "Transespe1.bmp",       {},       "FrTransfEsp1"},
    FilaCatalogo{pieza,      43,  {},  false,   "Transespe2.bmp",       {},       "FrTansfEsp2"},
    FilaCatalogo{pieza,      44,  {},  false,   "Transespe3.bmp",       {},       "FrTransfEsp3"},
    FilaCatalogo{pieza,      45,  {},  false,   "Transespe4.bmp",       {},       "FrTransEsp4"},
    FilaCatalogo{pieza,      46,  {},  false,   "Transespe5.bmp",       {},       "FrTransEspe5"},
    FilaCatalogo{hueco,       0,  " ", false,   {},                     {},       {}},
    FilaCatalogo{categoria,  49,  {},  false,   "PresentTransElip.bmp", {49,  0}, {}},
    FilaCatalogo{hueco,       0,  " ", false,   {},                     {},       {}},
    FilaCatalogo{pieza,      50,  {},  false,   "TransBoElip.bmp",      {},       "FrTransBaRectBoElip"},
};
// clang-format on

}  // namespace

std::span<const FilaCatalogo> FilasCatalogo() { return kFilas; }

std::string TextoFila(const FilaCatalogo& fila) {
  if (fila.texto == 0) return std::string(fila.hueco);
  return fila.capitales ? Mayusculas(Texto(fila.texto)) : Texto(fila.texto);
}

std::string RotuloFila(const FilaCatalogo& fila) {
  const auto [primero, segundo] = fila.rotulo;
  if (primero == 0) return {};
  const std::string resto = segundo == 0 ? "" : " " + Texto(segundo) + " ";
  return Mayusculas(Texto(primero) + resto);
}

}  // namespace duktores
