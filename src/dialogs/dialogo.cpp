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

std::vector<int> Dialogo::Vacios() const {
  std::vector<int> vacios;
  for (std::size_t i = 0; i < campos_.size(); ++i) {
    if (campos_[i].texto.find_first_not_of(' ') == std::string::npos) vacios.push_back(static_cast<int>(i));
  }
  return vacios;
}

std::optional<Dialogo::Reparo> Dialogo::Comprueba(Valores& v) const {
  for (std::size_t i = 0; i < campos_.size(); ++i) {
    const auto numero = NumeroDeCampo(campos_[i].texto);
    if (!numero) return Reparo{static_cast<int>(i), nullptr};
    v.push_back(*numero);
  }
  for (const Comprobacion& regla : def_->comprobaciones) {
    if (regla.falla(v)) return Reparo{regla.campo, &regla};
  }
  return std::nullopt;
}

Pieza Dialogo::PiezaDe(const Valores& v) const {
  Pieza pieza;
  pieza.tipo = def_->tipo;
  pieza.dosPiezas = def_->opcionPiezas && dosPiezas;
  pieza.regla = estado.iExacto != 0 ? Regla::exacta : Regla::usual;
  pieza.fibra = Fibra{estado.iFibra};
  pieza.espesor = estado.dEspesor;
  def_->llena(v, pieza);
  return pieza;
}

// As on the label, without unit and colon.
std::string Dialogo::NombreCampo(int campo) const {
  const DefCampo& def = def_->campos[static_cast<std::size_t>(campo)];
  const bool palabra = def.rotulo == Rotulo::longitud || def.rotulo == Rotulo::textoLongitud ||
                       (def.rotulo == Rotulo::angulo && estado.dIdioma != kChino);
  std::string nombre = palabra ? std::string(def.palabra) : TextoRotulo(campo);
  while (nombre.ends_with(':') || nombre.ends_with(' ')) nombre.pop_back();
  return nombre;
}

std::string Dialogo::TextoDe(const Reparo& reparo, const Valores& v) const {
  const Comprobacion* regla = reparo.regla;
  const std::string texto = Texto(regla ? regla->texto : texto::kNoEsNumero);
  std::string palabras = NombreCampo(reparo.campo) + ": ";
  for (std::size_t i = 0; i < texto.size(); ++i) {
    if (texto[i] != '%') {
      palabras += texto[i];
    } else if (const auto cual = static_cast<std::size_t>(texto.at(++i) - '0'); cual == 0) {
      palabras += TextoDeNumero(regla->limite(v));
    } else {
      palabras += NombreCampo(regla->campos.at(cual - 1));
    }
  }
  return palabras;
}

Tecleada Dialogo::Lee() const {
  if (const auto vacios = Vacios(); !vacios.empty()) {
    std::string faltan = Texto(texto::kFaltan);
    for (const int campo : vacios) faltan += (campo == vacios.front() ? " " : ", ") + NombreCampo(campo);
    return {{}, faltan};
  }
  Valores v;
  if (const auto reparo = Comprueba(v)) return {{}, TextoDe(*reparo, v)};
  return {PiezaDe(v), ""};
}

Respuesta Dialogo::CmdAceptar() {
  if (def_->poneTipo) estado.sTipoPieza = def_->clave;

  if (const auto vacios = Vacios(); !vacios.empty()) {
    foco_ = vacios.front();
    MuestraMensaje(Texto(def_->textoVacio), EstiloMensaje::exclamacion, "");
    CursorEspera(false);
    return Respuesta::campoVacio;
  }

  CursorEspera(true);
  Valores v;
  const auto reparo = Comprueba(v);
  if (reparo) {
    lblerror_ = Texto(def_->textoError);
    foco_ = reparo->campo;
  } else {
    lblerror_.clear();
    estado.pieza = PiezaDe(v);
    def_->guarda(*estado.pieza);
  }
  CursorEspera(false);
  return reparo ? Respuesta::datoErroneo : Respuesta::aceptado;
}

}  // namespace duktores
