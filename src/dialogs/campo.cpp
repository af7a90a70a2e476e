#include "dialogs/campo.h"

#include "piece/numeros_texto.h"
#include "state/estado.h"

namespace duktores {

namespace {

bool EsCifra(char32_t tecla) { return tecla >= U'0' && tecla <= U'9'; }

// Why a text can't be typed, which ends at this key.
int Falta(std::u32string_view texto, char32_t tecla, Filtro filtro) {
  if (filtro == FiltraEntero) return texto::kSoloCifras;
  const std::size_t marca = texto.find_first_of(U".,");
  const bool dosMarcas = marca != texto.npos && texto.find_first_of(U".,", marca + 1) != texto.npos;
  const auto* const signos = filtro == FiltraNumeroSigno ? U"0123456789.,-" : U"0123456789.,";
  if (dosMarcas || texto.find_first_not_of(signos) != texto.npos) return texto::kSoloNumero;
  const std::size_t signo = texto.rfind(U'-');
  if (signo != texto.npos && signo > 0) return texto::kSignoDelante;
  return EsCifra(tecla) ? texto::kDecimalesDeMas : texto::kSoloNumero;
}

// The count doesn't look at the caret: with all decimals present no digit passes before the point either.
bool CabeCifra(const Campo& campo, std::size_t decimales) {
  const std::size_t punto = campo.texto.find('.');
  return campo.TodoSeleccionado() || punto == std::string::npos || campo.texto.size() - punto - 1 < decimales;
}

}  // namespace

int Decimales() { return estado.iUnidad == 1 ? 2 : 3; }

char32_t FiltraNumero(char32_t tecla, const Campo& campo) {
  const auto decimales = static_cast<std::size_t>(Decimales());
  const bool hayPunto = campo.texto.find('.') != std::string::npos;
  bool pasa = tecla == kRetroceso || tecla == kSaltoLinea;
  if (tecla == U'.') pasa = !campo.texto.empty() && (campo.TodoSeleccionado() || !hayPunto);
  if (EsCifra(tecla)) pasa = CabeCifra(campo, decimales);
  return pasa ? tecla : 0;
}

char32_t FiltraNumeroSigno(char32_t tecla, const Campo& campo) {
  if (tecla != U'-') return FiltraNumero(tecla, campo);
  const bool haySigno = campo.texto.find('-') != std::string::npos;
  return campo.TodoSeleccionado() || !haySigno ? tecla : 0;
}

char32_t FiltraEntero(char32_t tecla, const Campo& campo) {
  const bool pasa = tecla == kRetroceso || tecla == kSaltoLinea || (EsCifra(tecla) && CabeCifra(campo, 2));
  return pasa ? tecla : 0;
}

bool SignoEnSuSitio(const Campo& campo) {
  const std::size_t signo = campo.texto.rfind('-');
  return signo == std::string::npos || signo == 0;
}

void SeleccionaTodo(Campo& campo) {
  campo.inicioSeleccion = 0;
  campo.largoSeleccion = campo.texto.size();
}

char32_t FiltraTecla(char32_t tecla, const Campo& campo, Filtro filtro) {
  return filtro(tecla == U',' ? U'.' : tecla, campo);
}

bool Teclea(char32_t tecla, Campo& campo, Filtro filtro) {
  const char32_t filtrada = FiltraTecla(tecla, campo, filtro);
  if (filtrada == 0) return false;
  if (filtrada == kSaltoLinea) return true;
  auto& [texto, inicio, largo] = campo;
  if (filtrada == kRetroceso && largo == 0) {
    if (inicio > 0) texto.erase(--inicio, 1);
    return true;
  }
  texto.erase(inicio, largo);
  largo = 0;
  if (filtrada != kRetroceso) texto.insert(inicio++, 1, static_cast<char>(filtrada));
  return true;
}

int TecleaTodo(std::u32string_view texto, Campo& campo, Filtro filtro) {
  constexpr std::size_t kMaximo = 400;  // no number needs more, and each character looks at all those before it
  Campo nuevo = campo;
  if (texto.size() > kMaximo) return Falta(texto, 0, filtro);
  for (const char32_t tecla : texto) {
    if (tecla < U' ' || !Teclea(tecla, nuevo, filtro)) return Falta(texto, tecla, filtro);
  }
  if (filtro == FiltraNumeroSigno && !SignoEnSuSitio(nuevo)) return texto::kSignoDelante;
  campo = nuevo;
  return 0;
}

}  // namespace duktores
