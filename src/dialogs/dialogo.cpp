#include "dialogs/dialogo.h"

#include <algorithm>

#include "dialogs/eliptico.h"
#include "dialogs/especiales.h"
#include "dialogs/rectangulares.h"
#include "state/estado.h"
#include "state/numeros.h"
#include "state/textos.h"

namespace duktores {

Dialogo::Dialogo(const DefDialogo& def) : def_(&def), campos_(def.campos.size()) {
  for (std::size_t i = 0; i < campos_.size(); ++i) {
    if (def.campos[i].divisiones) campos_[i].texto = std::to_string(estado.iDivisiones);
  }
}

std::optional<std::string> Dialogo::Titulo() const {
  if (estado.dIdioma == kChino) return std::nullopt;
  return Texto(def_->textoTitulo);
}

std::string Dialogo::TextoRotulo(int campo) const {
  constexpr int kTextoGrados = 66;
  const bool chino = estado.dIdioma == kChino;
  const DefCampo& def = def_->campos[static_cast<std::size_t>(campo)];
  const std::string palabra(def.palabra), unidad = estado.iUnidad == 1 ? " (mm):" : " (inches):";
  switch (def.rotulo) {
    case Rotulo::longitud:
      return palabra + unidad;
    case Rotulo::textoLongitud:
      return TextoIdioma(def.textoRotulo) + unidad;
    case Rotulo::angulo:
      return chino ? Texto(def.textoRotulo) : palabra + " (" + Texto(kTextoGrados) + "):";
    case Rotulo::texto:
      return Texto(def.textoRotulo);
    case Rotulo::textoDosPuntos:
      break;
  }
  // In some languages the text itself ends in the colon.
  const std::string texto = Texto(def.textoRotulo);
  return chino || texto.ends_with(':') ? texto : texto + ":";
}

bool Dialogo::Elige(int campo, std::string_view valor) {
  const auto valores = def_->campos[static_cast<std::size_t>(campo)].valores;
  if (std::find(valores.begin(), valores.end(), valor) == valores.end()) return false;
  CampoDe(campo).texto = valor;
  return true;
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
    def_->guarda(v, dosPiezas);
  }
  CursorEspera(false);
  return malo ? Respuesta::datoErroneo : Respuesta::aceptado;
}

namespace {

constexpr std::array kDialogos{&kFrTransfCR,  &kFrTransfRC,   &kFrTransBaRectBoElip, &kFrTransfEsp1,
                               &kFrTansfEsp2, &kFrTransfEsp3, &kFrTransEsp4,         &kFrTransEspe5};

const DefDialogo* Busca(std::string_view DefDialogo::*campo, std::string_view valor) {
  const auto* dialogo = std::ranges::find_if(kDialogos, [&](const DefDialogo* d) { return d->*campo == valor; });
  return dialogo == kDialogos.end() ? nullptr : *dialogo;
}

}  // namespace

const DefDialogo* DialogoDe(std::string_view clave) { return Busca(&DefDialogo::clave, clave); }
const DefDialogo* VentanaDe(std::string_view nombre) { return Busca(&DefDialogo::nombre, nombre); }

}  // namespace duktores
