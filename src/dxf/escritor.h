#pragma once
// cDXF: writes a drawing as a DXF file: that of the template with the extent and the view of the drawing, and its
// entities.

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "dxf/ajustes.h"
#include "state/guardado.h"

namespace duktores {

class cDrawing;

/// What the active view shows of the extent of `estado`: its centre, and as height the largest absolute coordinate.
struct VistaDxf {
  double x = 0, y = 0, altura = 0;
};
VistaDxf VistaDeExtension();

/// The blocks of a cDXF, for look-up by name only: no file holds them.
class cGlobals {
 public:
  void SetBlocks(std::vector<std::shared_ptr<cDrawing>> Blocks) { Blocks_ = std::move(Blocks); }
  /// Border of the first block of that name, both trimmed and in capitals; false if there is none.
  bool GetBlockBorder(std::string_view sName, double& xMin, double& yMin, double& zMin, double& xMax, double& yMax,
                      double& zMax) const;

 private:
  std::vector<std::shared_ptr<cDrawing>> Blocks_;
};

class cDXF : public AjustesDxf {
 public:
  bool InsertEntities(std::shared_ptr<cDrawing> Entities);  ///< false for a missing drawing

  /// Writes the file, whole or not at all. The template is Template/Template.dxf below `estado.sRutaPrograma`, read
  /// anew each time. Not saved: no template, one without a line "ENTITIES" or cut short, no entities set, or a place
  /// that can't be written.
  Guardado Save(const std::string& sDXFFile, Enlace enlace = Enlace::seguido);

  // None of what follows, nor the settings of AjustesDxf, has an effect on any file that Save writes: all that is not
  // the drawing comes from the template.
  bool SetFonts(std::vector<std::string> Fonts, int FontCharSet);
  int GetFonts(std::vector<std::string>& Fonts, int& FontCharSet) const;
  /// Takes the present blocks over; an empty list changes nothing.
  void InsertBlocks(const std::vector<std::shared_ptr<cDrawing>>& Blocks);
  const cGlobals& Globals() const { return globals_; }

 private:
  std::shared_ptr<cDrawing> Entities_;
  int FontCharSet_ = 0;
  cGlobals globals_;
};

bool ExisteFichero(const std::string& ruta);  ///< a file with a length above 0

}  // namespace duktores
