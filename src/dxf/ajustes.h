#pragma once
// AjustesDxf: layers, fonts, line types and their scale, as rows of arrays indexed from 0. Only the generators of
// tools/ read them, and a drawing takes its header and tables from the template: what a cDXF is told here has no
// effect on any file that it saves. It keeps the values for callers that know these names.

#include <cstdint>
#include <string>
#include <vector>

namespace duktores {

class AjustesDxf {
 public:
  AjustesDxf() { InitLineType(); }

  void InitLineType();  ///< sets the 24 line types of the start

  /// A value <= 0 becomes 1.0.
  void LineTypeScale(double v) { dLineTypeScale_ = v > 0 ? v : 1.0; }
  double LineTypeScale() const { return dLineTypeScale_; }

  // As many layers as there are names, missing columns are 0 or empty. The setters are true, the getters give the
  // number of rows.
  bool SetLineTypes(std::vector<std::string> LineTypes);
  bool SetFonts(std::vector<std::string> Fonts);
  bool SetLayers(std::vector<std::string> LayerNames, std::vector<std::int16_t> LayerFlags,
                 std::vector<std::int16_t> LayerColorIndex, std::vector<std::string> LayerLineTypeName);
  int GetLineTypes(std::vector<std::string>& LineTypes) const;
  int GetFonts(std::vector<std::string>& Fonts) const;
  int GetLayers(std::vector<std::string>& LayerNames, std::vector<std::int16_t>& LayerFlags,
                std::vector<std::int16_t>& LayerColorIndex, std::vector<std::string>& LayerLineTypeName) const;

 protected:
  double dLineTypeScale_ = 1.0;
  std::vector<std::string> LineTypes_;  ///< name, then dashes (above 0), gaps (below 0), dots (0) in drawing units
  std::vector<std::string> Fonts_{"Arial"};
  std::vector<std::string> LayerNames_{"0"};
  std::vector<std::int16_t> LayerFlags_{0};
  std::vector<std::int16_t> LayerColorIndex_{255};
  std::vector<std::string> LayerLineTypeName_{"CONTINUOUS"};
};

}  // namespace duktores
