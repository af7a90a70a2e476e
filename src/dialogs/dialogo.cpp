#include "dialogs/dialogo.h"

#include <algorithm>

#include "piece/numeros_texto.h"
#include "state/estado.h"
#include "state/numeros.h"
#include "state/textos.h"

namespace duktores {

Dialogo::Dialogo(const DefDialogo& def) : def_(&def), campos_(def.campos.size()) {
  for (std::size_t i = 0; i < campos_.size(); ++i) {
    if (def.campos[i].uso == Uso::divisiones) campos_[i].texto = std::to_string(estado.iDivisiones);
  }
}

std::optional<std::string> Dialogo::Titulo() const {
  if (estado.dIdioma == kChino) return std::nullopt;
  return Texto(def_->textoTitulo);
}

std::string Dialogo::TextoRotulo(int campo) const {
  const bool chino = estado.dIdioma == kChino;
  const DefCampo& def = def_->campos[static_cast<std::size_t>(campo)];
  const std::string palabra(def.palabra), unidad = estado.iUnidad == 1 ? " (mm):" : " (inches):";
  switch (def.rotulo) {
    case Rotulo::longitud:
      return palabra + unidad;
    case Rotulo::textoLongitud:
      return TextoIdioma(def.textoRotulo) + unidad;
    case Rotulo::angulo:
      return chino ? Texto(def.textoRotulo) : palabra + " (" + Texto(texto::kGrados) + "):";
    case Rotulo::texto:
      return Texto(def.textoRotulo);
    case Rotulo::textoDosPuntos:
      break;
  }
  // In some languages the text itself ends in the colon.
  const std::string conTexto = Texto(def.textoRotulo);
  return chino || conTexto.ends_with(':') ? conTexto : conTexto + ":";
}

bool Dialogo::Elige(int campo, std::string_view valor) {
  const auto valores = def_->campos[static_cast<std::size_t>(campo)].valores;
  if (std::find(valores.begin(), valores.end(), valor) == valores.end()) return false;
  CampoDe(campo).texto = valor;
  return true;
}

void Dialogo::PonCeros() {
  for (std::size_t i = 0; i < campos_.size(); ++i) {
    if (def_->campos[i].uso == Uso::desvio && campos_[i].texto.empty()) campos_[i].texto = "0";
  }
}

void Dialogo::Activa() {
  foco_ = 0;
  if (def_->olvidaPiezas) dosPiezas = true;
}

std::optional<int> Dialogo::LeeCampos(Valores& v) const {
  for (std::size_t i = 0; i < campos_.size(); ++i) {
    const auto numero = NumeroDeCampo(campos_[i].texto);
    if (!numero) return static_cast<int>(i);
    v.push_back(*numero);
  }
  return std::nullopt;
}

Respuesta Dialogo::CmdAceptar() {
  if (def_->poneTipo) estado.sTipoPieza = def_->clave;

  const auto vacio = std::find_if(campos_.begin(), campos_.end(), [](const Campo& campo) {
    return campo.texto.find_first_not_of(' ') == std::string::npos;
  });
  if (vacio != campos_.end()) {
    foco_ = static_cast<int>(vacio - campos_.begin());
    MuestraMensaje(Texto(def_->textoVacio), EstiloMensaje::exclamacion, "");
    CursorEspera(false);
    return Respuesta::campoVacio;
  }

  CursorEspera(true);
  Valores v;
  std::optional<int> malo = LeeCampos(v);
  if (!malo) {
    const auto fallo = std::find_if(def_->comprobaciones.begin(), def_->comprobaciones.end(),
                                    [&](const Comprobacion& c) { return c.falla(v); });
    if (fallo != def_->comprobaciones.end()) malo = fallo->campo;
  }
  if (malo) {
    lblerror_ = Texto(def_->textoError);
    foco_ = *malo;
  } else {
    lblerror_.clear();
    Pieza pieza;
    pieza.tipo = def_->tipo;
    pieza.dosPiezas = def_->opcionPiezas && dosPiezas;
    pieza.regla = estado.iExacto != 0 ? Regla::exacta : Regla::usual;
    pieza.fibra = Fibra{estado.iFibra};
    pieza.espesor = estado.dEspesor;
    def_->guarda(v, pieza);
    estado.pieza = pieza;
  }
  CursorEspera(false);
  return malo ? Respuesta::datoErroneo : Respuesta::aceptado;
}

}  // namespace duktores
