#include "exige.h"

#include <algorithm>
#include <cassert>
#include <charconv>
#include <cmath>
#include <filesystem>
#include <iterator>
#include <sstream>

#include "batch/puntos_lote.h"
#include "batch/trabajo.h"
#include "check/comprueba.h"
#include "dxf/dibujo.h"
#include "shell/visor.h"
#include "state/arranque.h"
#include "state/caracteres.h"
#include "state/estado.h"
#include "state/fichero.h"

namespace duktores {

namespace {

// Keeps the last message.
struct Mensajes : Plataforma {
  void CajaMensaje(std::string_view texto, EstiloMensaje, std::string_view) override { ultimo = texto; }
  void VentanaMensaje(std::string_view texto) override { ultimo = texto; }
  std::string ultimo;
};

// The whole text as one number.
template <class Numero>
Numero Lee(std::string_view texto) {
  texto = Recorta(texto);
  Numero numero{};
  const auto [fin, error] = std::from_chars(texto.data(), texto.data() + texto.size(), numero);
  assert(error == std::errc() && fin == texto.data() + texto.size());
  return numero;
}

constexpr int kCodigoTexto = 1;

bool EsCodigoReal(int codigo) {
  return (codigo >= 10 && codigo < 60) || (codigo >= 140 && codigo < 150) || (codigo >= 210 && codigo < 240) ||
         (codigo >= 1010 && codigo < 1060);
}

// As a number that isn't finite is written.
bool DiceNoFinito(std::string_view texto) {
  std::istringstream palabras{std::string(texto)};
  return std::any_of(std::istream_iterator<std::string>(palabras), {}, [](const std::string& palabra) {
    return palabra == "inf" || palabra == "-inf" || palabra == "nan" || palabra == "-nan";
  });
}

}  // namespace

void ArrancaUnaVez() {
  static const EstadoPrograma configurado = [] {
    Arranca(DUKTORES_RAIZ "duktores", DUKTORES_RAIZ "Config/Config.ini");
    return estado;
  }();
  estado = configurado;
}

void ExigeDxf(std::string_view texto) {
  const auto linea = [&] {
    const std::size_t fin = texto.find("\r\n");
    assert(fin != std::string_view::npos);
    const std::string_view esta = texto.substr(0, fin);
    texto.remove_prefix(fin + 2);
    return esta;
  };
  while (!texto.empty()) {
    const int codigo = Lee<int>(linea());
    const std::string_view valor = linea();
    assert(codigo >= 0 && codigo <= 1071);
    if (EsCodigoReal(codigo)) assert(std::isfinite(Lee<double>(valor)));
    if (codigo == kCodigoTexto) assert(!DiceNoFinito(valor));
  }
}

void ExigeTrabajos(const std::vector<Trabajo>& trabajos, const std::string& carpeta) {
  const EstadoPrograma configurado = estado;
  Opciones opciones;
  opciones.carpeta = carpeta;
  for (const Trabajo& trabajo : trabajos) {
    estado = configurado;
    const Resultado resultado = Trabaja(trabajo, opciones);
    if (resultado.rechazo) {
      assert(!resultado.rechazo->texto.empty() && resultado.fichero.empty());
    } else {
      ExigeDxf(LeeFichero(resultado.fichero).value());
      std::filesystem::remove(resultado.fichero);
    }
  }
}

void ExigeDesarrollo() {
  Mensajes mensajes;
  estado.plataforma = &mensajes;
  EWdraw solido, axew;
  Dibuja3D(solido);
  const Solido mostrado = SolidoActual();
  PuntosLote sitios(SitiosLibres());
  axew.PonVista(&sitios);
  mensajes.ultimo.clear();
  const FinCorrida fin = Desplegado(axew);
  assert(fin == FinCorrida::completo || (fin == FinCorrida::error && !mensajes.ultimo.empty()));
  Comprueba(mostrado, axew);
  ExigeDxf(estado.oDrawing->GetEntities());
  estado.plataforma = nullptr;
}

}  // namespace duktores
