#pragma once
// cHeader: generators of the HEADER and TABLES text of an AC1015 DXF file. All lines end in CR LF. The template takes
// the HEADER section and the VPORT table from here; the other tables have no effect on it, which has its own.

#include <string>

#include "dxf/ajustes.h"

namespace duktores {

class cHeader : public AjustesDxf {
 public:
  std::string DxfHeader() const;      ///< the HEADER section; the extent is that of `estado`
  std::string DxfTables();            ///< the TABLES section: viewport, line types, fonts, layers
  std::string DxfTableVPORT() const;  ///< laid out as cDXF::Save counts its lines
  std::string DxfLineTypes() const;
  std::string DxfFonts() const;  ///< the same whatever the fonts
  std::string DxfLayers();       ///< rows with an empty name are left out; an empty line type becomes "CONTINUOUS"
};

}  // namespace duktores
