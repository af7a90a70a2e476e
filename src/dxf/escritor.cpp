#include "dxf/escritor.h"

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <iterator>

#include "dxf/dibujo.h"
#include "dxf/marco.h"
#include "dxf/numero_dxf.h"
#include "piece/numeros_texto.h"
#include "state/caracteres.h"
#include "state/estado.h"
#include "state/fichero.h"

namespace duktores {
namespace {

namespace fs = std::filesystem;

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

/// Copies `lineas` lines and writes a number in place of the one after them.
struct Sustitucion {
  int lineas;
  double valor;
};

/// What follows on a line that reads like `marca` in any mix of case.
struct Reemplazo {
  std::string_view marca;
  std::vector<Sustitucion> sustituciones;
};

/// The rules for the extent that `estado` holds.
std::vector<Reemplazo> Reemplazos() {
  const VistaDxf vista = VistaDeExtension();
  return {{"$EXTMIN", {{1, estado.ExtMinX}, {1, estado.ExtMinY}}},
          {"$EXTMAX", {{1, estado.ExtMaxX}, {1, estado.ExtMaxY}}},
          {"*ACTIVE", {{11, vista.x}, {1, vista.y}, {25, vista.altura}}}};
}

/// The template can't take a drawing; `donde` is what is wrong, in plain words.
Guardado FalloDePlantilla(const std::string& donde) { return {texto::kPlantilla, RutaPlantilla() + ": " + donde, {}}; }

Guardado Aplica(const Reemplazo& reemplazo, Copiadora& copiadora) {
  std::string_view anterior;
  for (const auto& [lineas, valor] : reemplazo.sustituciones) {
    if (!std::isfinite(valor)) return {texto::kVista, {}, {}};
    if (!copiadora.Copia(lineas) || !copiadora.Lee(anterior)) return FalloDePlantilla("cut short");
    copiadora.Escribe(DxfNumeroTexto(valor));
  }
  return {};
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

/// The whole file, or what is wrong with the template.
Guardado Compone(std::string_view plantilla, const std::vector<Reemplazo>& reemplazos, std::string_view entidades,
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
    copiadora.Escribe(linea);
    if (!cabe(linea)) continue;
    const std::string marca = Mayusculas(linea);
    if (marca == kEntidades) {
      AnadeCp1252(fichero, entidades);
      bool cerrado = false, acabado = false;
      while (copiadora.Lee(linea)) {
        copiadora.Escribe(linea);
        const std::string_view palabra = Recorta(linea);
        cerrado = cerrado || palabra == "ENDSEC";
        acabado = palabra.empty() ? acabado : palabra == "EOF";
      }
      return cerrado && acabado ? Guardado{} : FalloDePlantilla("cut short");
    }
    const auto reemplazo = std::ranges::find(reemplazos, marca, &Reemplazo::marca);
    if (reemplazo == reemplazos.end()) continue;
    if (const Guardado fallo = Aplica(*reemplazo, copiadora); !fallo) return fallo;
  }
  return FalloDePlantilla("no line ENTITIES");
}

std::string LeePlantilla(Guardado& fallo) {
  std::error_code motivo;
  auto plantilla = LeeFichero(RutaPlantilla(), motivo);
  if (!plantilla) fallo = FalloDePlantilla(motivo.message());
  return std::move(plantilla).value_or("");
}

}  // namespace

VistaDxf VistaDeExtension() {
  const EstadoPrograma& e = estado;
  return {(e.ExtMaxX - e.ExtMinX) / 2 + e.ExtMinX, (e.ExtMaxY - e.ExtMinY) / 2 + e.ExtMinY,
          std::max({std::abs(e.ExtMaxX), std::abs(e.ExtMaxY), std::abs(e.ExtMinX), std::abs(e.ExtMinY)})};
}

bool cGlobals::GetBlockBorder(std::string_view sName, double& xMin, double& yMin, double& zMin, double& xMax,
                              double& yMax, double& zMax) const {
  const std::string buscado = Mayusculas(Recorta(sName));
  const auto bloque = std::ranges::find_if(
      Blocks_, [&](const auto& candidato) { return Mayusculas(Recorta(candidato->Name)) == buscado; });
  if (bloque == Blocks_.end()) return false;
  (*bloque)->GetBorder(xMin, yMin, zMin, xMax, yMax, zMax);
  return true;
}

bool cDXF::InsertEntities(std::shared_ptr<cDrawing> Entities) {
  if (!Entities) return false;
  Entities_ = std::move(Entities);
  return true;
}

Guardado cDXF::Save(const std::string& sDXFFile, Enlace enlace) {
  if (!Entities_) return {texto::kVista, {}, {}};
  EstadoPrograma& e = estado;
  Entities_->GetBorder(e.ExtMinX, e.ExtMinY, e.ExtMinZ, e.ExtMaxX, e.ExtMaxY, e.ExtMaxZ);
  Guardado paso;
  std::string fichero;
  const std::string plantilla = LeePlantilla(paso);
  if (paso) paso = Compone(plantilla, Reemplazos(), Entities_->GetEntities(), fichero);
  return paso ? EscribeFichero(sDXFFile, fichero, enlace) : paso;
}

bool cDXF::SetFonts(std::vector<std::string> Fonts, int FontCharSet) {
  FontCharSet_ = FontCharSet;
  return AjustesDxf::SetFonts(std::move(Fonts));
}

int cDXF::GetFonts(std::vector<std::string>& Fonts, int& FontCharSet) const {
  FontCharSet = FontCharSet_;
  return AjustesDxf::GetFonts(Fonts);
}

void cDXF::InsertBlocks(const std::vector<std::shared_ptr<cDrawing>>& Blocks) {
  if (Blocks.empty()) return;
  std::vector<std::shared_ptr<cDrawing>> presentes;
  std::ranges::copy_if(Blocks, std::back_inserter(presentes), [](const auto& bloque) { return bloque != nullptr; });
  globals_.SetBlocks(std::move(presentes));
}

std::string RutaPlantilla() { return estado.sRutaPrograma + "Template/Template.dxf"; }

Guardado RevisaPlantilla() {
  Guardado paso;
  std::string fichero;
  const std::string plantilla = LeePlantilla(paso);
  if (paso) paso = Compone(plantilla, {}, {}, fichero);
  if (!paso) return paso;
  const auto falta = FaltaEnMarco(plantilla);
  return falta ? FalloDePlantilla(*falta) : paso;
}

bool ExisteFichero(const std::string& ruta) {
  std::error_code fallo;
  const auto bytes = fs::file_size(ruta, fallo);
  return !fallo && bytes > 0;
}

}  // namespace duktores
