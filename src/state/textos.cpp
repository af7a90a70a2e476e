#include "state/textos.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <stdexcept>

#include "state/estado.h"
#include "state/numeros.h"

namespace duktores {

namespace {

constexpr std::size_t kIdiomas = 7;

struct FilaTexto {
  int numero;
  std::array<const char*, kIdiomas> textos;  // in the order of the language bases; null: the language lacks it
};

constexpr FilaTexto kTextos[] = {
#include "state/textos_tabla.inc"
#include "state/textos_ventanas.inc"
};

}  // namespace

std::string TextoIdioma(double id) {
  if (id >= 0 && id < kPasoIdioma * static_cast<int>(kIdiomas) && id == std::floor(id)) {
    const int entero = static_cast<int>(id);
    const auto* const fila = std::ranges::find(kTextos, entero % kPasoIdioma, &FilaTexto::numero);
    const auto idioma = static_cast<std::size_t>(entero / kPasoIdioma);
    if (fila != std::end(kTextos) && fila->textos[idioma] != nullptr) return fila->textos[idioma];
  }
  throw std::out_of_range("no text has the id " + TextoDeNumero(id));
}

std::string Texto(int n) { return TextoIdioma(estado.dIdioma + n); }

void MuestraMensaje(std::string_view texto, EstiloMensaje estilo, std::string_view titulo, std::string_view detalle) {
  if (estado.plataforma == nullptr) return;
  if (texto.ends_with('\0')) texto.remove_suffix(1);
  CursorEspera(false);
  estado.plataforma->PonDetalle(detalle);
  if (estado.dIdioma == kChino) {
    estado.plataforma->VentanaMensaje(texto);
  } else {
    estado.plataforma->CajaMensaje(texto, estilo, titulo);
  }
  CursorEspera(true);
}

void CursorEspera(bool espera) {
  if (estado.plataforma != nullptr) estado.plataforma->PonCursorEspera(espera);
}

}  // namespace duktores
