#include "dxf/composicion.h"

#include <algorithm>
#include <system_error>
#include <utility>

#include "dxf/marco.h"
#include "piece/numeros_texto.h"
#include "state/caracteres.h"
#include "state/estado.h"
#include "state/fichero.h"

namespace duktores {

namespace {

/// Copies the lines of a template, one after the other, with CR LF behind each.
class Copiadora {
 public:
  Copiadora(std::string_view plantilla, std::string& destino) : resto_(plantilla), destino_(destino) {}

  /// False at the end of the template.
  bool Lee(std::string_view& linea) {
    if (resto_.empty()) return false;
    const std::size_t fin = std::min(resto_.find('\n'), resto_.size());
    linea = resto_.substr(0, fin);
    resto_.remove_prefix(std::min(fin + 1, resto_.size()));
    if (linea.ends_with('\r')) linea.remove_suffix(1);
    return true;
  }
  bool Copia(int lineas) {
    std::string_view linea;
    for (int i = 0; i < lineas; ++i) {
      if (!Lee(linea)) return false;
      Escribe(linea);
    }
    return true;
  }
  void Escribe(std::string_view linea) {
    destino_ += linea;
    destino_ += "\r\n";
  }

 private:
  std::string_view resto_;
  std::string& destino_;
};

/// The template can't take a drawing; `donde` is what is wrong, in plain words.
Guardado FalloDePlantilla(const std::string& ruta, const std::string& donde) {
  return {texto::kPlantilla, ruta + ": " + donde, {}};
}

/// Appends UTF-8 in code page 1252. Nearly all of a drawing is ASCII, which is the same in both.
void AnadeCp1252(std::string& destino, std::string_view utf8) {
  const auto esAscii = [](char c) { return static_cast<unsigned char>(c) < 0x80; };
  while (!utf8.empty()) {
    const auto otro = std::ranges::find_if_not(utf8, esAscii);
    destino.append(utf8.begin(), otro);
    const auto ascii = std::find_if(otro, utf8.end(), esAscii);
    if (otro != ascii) destino += Cp1252DeUtf8({otro, ascii});
    utf8 = {ascii, utf8.end()};
  }
}

// What follows says what is wrong with a template, in plain words; null if nothing is.

constexpr const char* kCortada = "cut short";

const char* Aplica(const Reemplazo& reemplazo, Copiadora& copiadora) {
  std::string_view anterior;
  for (const auto& [lineas, valor] : reemplazo.sustituciones) {
    if (!copiadora.Copia(lineas) || !copiadora.Lee(anterior)) return kCortada;
    copiadora.Escribe(valor);
  }
  return nullptr;
}

/// The rest from the entities on.
const char* Acaba(Copiadora& copiadora, std::string_view entidades, std::string& fichero) {
  std::string_view linea;
  AnadeCp1252(fichero, entidades);
  bool cerrado = false, acabado = false;
  while (copiadora.Lee(linea)) {
    copiadora.Escribe(linea);
    const std::string_view palabra = Recorta(linea);
    cerrado = cerrado || palabra == "ENDSEC";
    acabado = palabra.empty() ? acabado : palabra == "EOF";
  }
  return cerrado && acabado ? nullptr : kCortada;
}

const char* Compone(std::string_view plantilla, const std::vector<Reemplazo>& reemplazos, std::string_view entidades,
                    std::string& fichero) {
  fichero.reserve(2 * plantilla.size() + entidades.size());
  constexpr std::string_view kEntidades = "ENTITIES";
  // Capitals are as long as what they stand for, and few lines are as long as a mark.
  const auto cabe = [&](std::string_view linea) {
    const auto tanto = [&](const Reemplazo& r) { return r.marca.size() == linea.size(); };
    return linea.size() == kEntidades.size() || std::ranges::any_of(reemplazos, tanto);
  };
  Copiadora copiadora(plantilla, fichero);
  std::string_view linea;
  while (copiadora.Lee(linea)) {
    const std::string marca = cabe(linea) ? Mayusculas(linea) : "";
    const auto reemplazo = std::ranges::find(reemplazos, marca, &Reemplazo::marca);
    const bool toca = !marca.empty() && reemplazo != reemplazos.end();
    copiadora.Escribe(toca && reemplazo->propia ? std::string_view(*reemplazo->propia) : linea);
    if (marca == kEntidades) return Acaba(copiadora, entidades, fichero);
    if (!toca) continue;
    if (const char* fallo = Aplica(*reemplazo, copiadora)) return fallo;
  }
  return "no line ENTITIES";
}

std::optional<std::string> LeePlantilla(const std::string& ruta, Guardado& fallo) {
  std::error_code motivo;
  auto plantilla = LeeFichero(ruta, motivo);
  if (!plantilla) fallo = FalloDePlantilla(ruta, motivo.message());
  return plantilla;
}

}  // namespace

std::string RutaPlantilla(const PlantillaDxf& plantilla) {
  return estado.sRutaPrograma + "Template/" + std::string(plantilla.fichero);
}

Guardado RevisaPlantilla(const PlantillaDxf& plantilla) {
  Guardado fallo;
  std::string fichero;
  const std::string ruta = RutaPlantilla(plantilla);
  const auto texto = LeePlantilla(ruta, fallo);
  if (!texto) return fallo;
  if (const char* donde = Compone(*texto, {}, {}, fichero)) return FalloDePlantilla(ruta, donde);
  const auto falta = FaltaEnMarco(*texto, plantilla.capas);
  return falta ? FalloDePlantilla(ruta, *falta) : Guardado{};
}

Guardado ComponeDxf(const PlantillaDxf& plantilla, const std::vector<Reemplazo>& reemplazos, std::string_view entidades,
                    std::string& fichero) {
  Guardado fallo;
  const std::string ruta = RutaPlantilla(plantilla);
  const auto texto = LeePlantilla(ruta, fallo);
  if (!texto) return fallo;
  const char* donde = Compone(*texto, reemplazos, entidades, fichero);
  return donde ? FalloDePlantilla(ruta, donde) : Guardado{};
}

}  // namespace duktores
