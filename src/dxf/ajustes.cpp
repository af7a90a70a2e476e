#include "dxf/ajustes.h"

#include <iterator>
#include <string_view>
#include <utility>

namespace duktores {
namespace {

constexpr std::string_view kTiposLinea[] = {
    "BORDER, 0.5, -0.25, 0.5, -0.25, 0, -0.25",
    "BORDER2, 0.25, -0.125, 0.25, -0.125, 0, -0.125",
    "BORDERX2, 1, -0.5, 1, -0.5, 0, -0.5",
    "CENTER, 1.25, -0.25, 0.25, -0.25",
    "CENTER2, 0.75, -0.125, 0.125, -0.125",
    "CENTERX2, 2.5, -0.5, 0.5, -0.5",
    "DASHDOT, 0.5, -0.25, 0, -0.25",
    "DASHDOT2, 0.25, -0.125, 0, -0.125",
    "DASHDOTX2, 1, -0.5, 0, -0.5",
    "DASHED, 0.5, -0.25",
    "DASHED2, 0.25, -0.125",
    "DASHEDX2, 1, -0.5",
    "DIVIDE, 0.5, -0.25, 0, -0.25, 0, -0.25",
    "DIVIDE2, 0.25, -0.125, 0, -0.125, 0, -0.125",
    "DIVIDEX2, 1, -0.5, 0, -0.5, 0, -0.5",
    "DOT, 0, -0.25",
    "DOT2, 0, -0.125",
    "DOTX2, 0, -0.5",
    "HIDDEN, 0.25, -0.125",
    "HIDDEN2, 0.125, -0.0625",
    "HIDDENX2, 0.5, -0.25",
    "PHANTOM, 1.25, -0.25, 0.25, -0.25, 0.25, -0.25",
    "PHANTOM2, 0.625, -0.125, 0.125, -0.125, 0.125, -0.125",
    "PHANTOMX2, 2.5, -0.5, 0.5, -0.5, 0.5, -0.5",
};

}  // namespace

void AjustesDxf::InitLineType() { LineTypes_.assign(std::begin(kTiposLinea), std::end(kTiposLinea)); }

bool AjustesDxf::SetLineTypes(std::vector<std::string> LineTypes) {
  LineTypes_ = std::move(LineTypes);
  return true;
}

bool AjustesDxf::SetFonts(std::vector<std::string> Fonts) {
  Fonts_ = std::move(Fonts);
  return true;
}

bool AjustesDxf::SetLayers(std::vector<std::string> LayerNames, std::vector<std::int16_t> LayerFlags,
                           std::vector<std::int16_t> LayerColorIndex, std::vector<std::string> LayerLineTypeName) {
  LayerNames_ = std::move(LayerNames);
  LayerFlags_ = std::move(LayerFlags);
  LayerColorIndex_ = std::move(LayerColorIndex);
  LayerLineTypeName_ = std::move(LayerLineTypeName);
  LayerFlags_.resize(LayerNames_.size());
  LayerColorIndex_.resize(LayerNames_.size());
  LayerLineTypeName_.resize(LayerNames_.size());
  return true;
}

int AjustesDxf::GetLineTypes(std::vector<std::string>& LineTypes) const {
  LineTypes = LineTypes_;
  return static_cast<int>(LineTypes_.size());
}

int AjustesDxf::GetFonts(std::vector<std::string>& Fonts) const {
  Fonts = Fonts_;
  return static_cast<int>(Fonts_.size());
}

int AjustesDxf::GetLayers(std::vector<std::string>& LayerNames, std::vector<std::int16_t>& LayerFlags,
                          std::vector<std::int16_t>& LayerColorIndex,
                          std::vector<std::string>& LayerLineTypeName) const {
  LayerNames = LayerNames_;
  LayerFlags = LayerFlags_;
  LayerColorIndex = LayerColorIndex_;
  LayerLineTypeName = LayerLineTypeName_;
  return static_cast<int>(LayerNames_.size());
}

}  // namespace duktores
