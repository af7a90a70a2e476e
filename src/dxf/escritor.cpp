#include "dxf/escritor.h"

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <iterator>

#include "dxf/composicion.h"
#include "dxf/dibujo.h"
#include "dxf/numero_dxf.h"
#include "piece/numeros_texto.h"
#include "state/caracteres.h"
#include "state/estado.h"

namespace duktores {
namespace {

namespace fs = std::filesystem;

/// The rules for the extent that `estado` holds; none if it is no extent.
std::optional<std::vector<Reemplazo>> Reemplazos() {
  const VistaDxf vista = VistaDeExtension();
  const double valores[]{estado.ExtMinX, estado.ExtMinY, estado.ExtMaxX, estado.ExtMaxY,
                         vista.x,        vista.y,        vista.altura};
  if (!std::ranges::all_of(valores, [](double v) { return std::isfinite(v); })) return std::nullopt;
  const auto texto = DxfNumeroTexto;
  return std::vector<Reemplazo>{{"$EXTMIN", {{1, texto(estado.ExtMinX)}, {1, texto(estado.ExtMinY)}}},
                                {"$EXTMAX", {{1, texto(estado.ExtMaxX)}, {1, texto(estado.ExtMaxY)}}},
                                {"*ACTIVE", {{11, texto(vista.x)}, {1, texto(vista.y)}, {25, texto(vista.altura)}}}};
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
  const auto reemplazos = Reemplazos();
  if (!reemplazos) return {texto::kVista, {}, {}};
  std::string fichero;
  const Guardado paso = ComponeDxf(kPlantillaDibujo, *reemplazos, Entities_->GetEntities(), fichero);
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

bool ExisteFichero(const std::string& ruta) {
  std::error_code fallo;
  const auto bytes = fs::file_size(ruta, fallo);
  return !fallo && bytes > 0;
}

}  // namespace duktores
