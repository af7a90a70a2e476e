#pragma once
// cHeader: generators of the HEADER and TABLES text of an AC1015 DXF file, and the settings that they take. The
// template of the drawings is made from them. All lines end in CR LF. Arrays of settings are indexed from 0 here.

#include <cstdint>
#include <string>
#include <vector>

namespace duktores {

/// What the active view shows of the extent of `estado`: its centre, and as height the largest absolute coordinate.
struct VistaDxf {
  double x = 0, y = 0, altura = 0;
};
VistaDxf VistaDeExtension();

class cHeader {
 public:
  cHeader() { InitLineType(); }

  std::string DxfHeader() const;      ///< the HEADER section; the extent is that of `estado`
  std::string DxfTables();            ///< the TABLES section: viewport, line types, fonts, layers
  std::string DxfTableVPORT() const;  ///< laid out as cDXF::Save counts its lines
  std::string DxfLineTypes() const;
  std::string DxfFonts() const;
  std::string DxfLayers();  ///< rows with an empty name are left out; an empty line type becomes "CONTINUOUS"

  void InitLineType();

  /// A value <= 0 becomes 1.0.
  void LineTypeScale(double v);
  double LineTypeScale() const { return dLineTypeScale_; }

  // Settings; as many layers as there are names, missing columns are 0 or empty. The getters give the number of rows.
  bool SetLineTypes(std::vector<std::string> LineTypes);
  bool SetFonts(std::vector<std::string> Fonts);
  bool SetLayers(std::vector<std::string> LayerNames, std::vector<std::int16_t> LayerFlags,
                 std::vector<std::int16_t> LayerColorIndex, std::vector<std::string> LayerLineTypeName);
  int GetLineTypes(std::vector<std::string>& LineTypes) const;
  int GetFonts(std::vector<std::string>& Fonts) const;
  int GetLayers(std::vector<std::string>& LayerNames, std::vector<std::int16_t>& LayerFlags,
                std::vector<std::int16_t>& LayerColorIndex, std::vector<std::string>& LayerLineTypeName) const;

 private:
  double dLineTypeScale_ = 1.0;
  std::vector<std::string> LineTypes_;
  std::vector<std::string> Fonts_{"Arial"};
  std::vector<std::string> LayerNames_{"0"};
  std::vector<std::int16_t> LayerFlags_{0};
  std::vector<std::int16_t> LayerColorIndex_{255};
  std::vector<std::string> LayerLineTypeName_{"CONTINUOUS"};
};

}  // namespace duktores
