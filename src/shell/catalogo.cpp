#include "shell/catalogo.h"

#include <vector>

#include "piece/numeros_texto.h"
#include "shell/lista.h"
#include "state/caracteres.h"
#include "state/textos.h"

namespace duktores {

namespace {

using enum ClaseFila;

constexpr std::string_view kInicial = "PresentDuktores.bmp", kEspeciales = "PresentTransEspeciales.bmp",
                           kElipticas = "PresentTransElip.bmp";
constexpr std::array kRotuloEspeciales{texto::kDuktores, texto::kEspeciales};
constexpr FilaCatalogo kHueco{hueco, 0, " ", false, {}, {}};

struct CabezaGrupo {
  Grupo grupo;
  FilaCatalogo fila;
};
// clang-format off
constexpr CabezaGrupo kCabezas[]{
    // group                kind       text                    gap  capitals picture      caption
    {Grupo::rectangulares, {categoria, texto::kDuktores,        {},  true,  kInicial,    {texto::kDuktores, 0}}},
    {Grupo::rectangulares, {hueco,     0,                       "",  false, {},          {}}},
    {Grupo::especiales,    {categoria, texto::kGrupoEspeciales, {},  true,  kEspeciales, kRotuloEspeciales}},
    {Grupo::especiales,    {categoria, texto::kEspeciales,      {},  true,  kEspeciales, kRotuloEspeciales}},
    {Grupo::especiales,    kHueco},
    {Grupo::elipticas,     {categoria, texto::kGrupoElipticas,  {},  true,  kElipticas,  {texto::kGrupoElipticas, 0}}},
    {Grupo::elipticas,     kHueco},
};
// clang-format on

std::vector<FilaCatalogo> Filas() {
  std::vector<FilaCatalogo> filas;
  for (const Grupo grupo : {Grupo::rectangulares, Grupo::especiales, Grupo::elipticas}) {
    if (!filas.empty()) filas.push_back(kHueco);
    for (const auto& cabeza : kCabezas) {
      if (cabeza.grupo == grupo) filas.push_back(cabeza.fila);
    }
    for (const FilaPieza& p : FilasPieza()) {
      if (p.grupo == grupo) filas.push_back({pieza, p.dialogo.textoTitulo, {}, false, p.imagen, {}, p.tipo});
    }
  }
  return filas;
}

}  // namespace

std::span<const FilaCatalogo> FilasCatalogo() {
  static const std::vector<FilaCatalogo> filas = Filas();
  return filas;
}

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
