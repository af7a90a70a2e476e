// Key sequences into the fields of a dialog, and the unfolding of what it accepts. The first two bytes choose dialog
// and configuration, each other byte is a key.

#include <algorithm>
#include <cassert>
#include <cstdint>

#include "exige.h"
#include "shell/lista.h"
#include "state/estado.h"

using namespace duktores;

namespace {

constexpr std::int16_t kMaximoDivisiones = 24;  // more take long and show nothing new

enum Tecla : unsigned char { marcaTodo = 1, marcaUna, alPrincipio, alFin, siguienteCampo = '\t' };

void Pulsa(unsigned char tecla, Dialogo& dialogo, int n) {
  const DefCampo& def = dialogo.Definicion().campos[static_cast<std::size_t>(n)];
  Campo& campo = dialogo.CampoDe(n);
  const std::size_t largo = campo.texto.size();
  if (!def.filtro) {
    const bool elegido = dialogo.Elige(n, def.valores[tecla % def.valores.size()]);
    assert(elegido);
  } else if (tecla == marcaTodo) {
    SeleccionaTodo(campo);
  } else if (tecla == marcaUna) {
    campo.largoSeleccion = campo.inicioSeleccion < largo ? 1 : 0;
  } else if (tecla == alPrincipio || tecla == alFin) {
    campo.inicioSeleccion = tecla == alFin ? largo : 0;
    campo.largoSeleccion = 0;
  } else {
    Teclea(tecla, campo, def.filtro);
    assert(campo.texto.find_first_not_of("0123456789.-") == std::string::npos);
    assert(std::ranges::count(campo.texto, '.') <= 1 && std::ranges::count(campo.texto, '-') <= 1);
    assert(campo.inicioSeleccion + campo.largoSeleccion <= campo.texto.size());
  }
}

void Configura(unsigned eleccion) {
  ArrancaUnaVez();
  estado.iExacto = eleccion & 1;
  estado.iUnidad = eleccion & 2 ? 2 : 1;
  estado.bComaDecimal = (eleccion & 4) != 0;
  estado.iFibra = static_cast<std::int16_t>(eleccion >> 3 & 3);
  estado.sDimensiones.assign(1, eleccion & 32 ? '0' : '1');
  estado.iBox = eleccion & 64 ? 0 : 1;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* datos, std::size_t largo) {
  if (largo < 2) return 0;
  Configura(datos[1]);
  Dialogo dialogo(FilasPieza()[datos[0] % kTiposPieza].dialogo);
  dialogo.dosPiezas = datos[1] < 128;
  const auto campos = static_cast<int>(dialogo.Definicion().campos.size());
  int campo = 0;
  for (const std::uint8_t tecla : std::span(datos, largo).subspan(2)) {
    if (tecla != siguienteCampo) {
      Pulsa(tecla, dialogo, campo);
    } else if (++campo == campos) {
      break;
    }
  }
  if (dialogo.CmdAceptar() == Respuesta::aceptado && estado.iDivisiones <= kMaximoDivisiones) ExigeDesarrollo();
  return 0;
}
