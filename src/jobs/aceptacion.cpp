#include "jobs/aceptacion.h"

namespace duktores {

namespace {

std::string Palabra(const Dialogo& dialogo, int campo) {
  return std::string(dialogo.Definicion().campos[static_cast<std::size_t>(campo)].palabra);
}

}  // namespace

std::optional<Rechazo> LlenaYAcepta(Dialogo& dialogo, const Trabajo& trabajo, const PlataformaCallada& plataforma) {
  if (auto rechazo = LlenaDialogo(dialogo, trabajo)) return rechazo;
  switch (dialogo.CmdAceptar()) {
    case Respuesta::campoVacio:
      return Rechazo{Palabra(dialogo, dialogo.Foco()), plataforma.mensaje};
    case Respuesta::datoErroneo:
      return Rechazo{Palabra(dialogo, dialogo.Foco()), dialogo.lblerror()};
    case Respuesta::aceptado:
      break;
  }
  return std::nullopt;
}

}  // namespace duktores
